#pragma once

#include <QString>

class QWidget;

/// Looks at windows from the outside, as a person does, and presses their buttons: by the class name of the window and
/// the object names of its parts, because the plug-in's own classes are not reachable from the host. GUI thread.
namespace WindowProbe {

/// The plug-in's call window; null before it exists.
QWidget *callWindow();

/// The message dialog that is open, or null.
QWidget *messageBox();

/// The text of a label or button in `window`; null when the window, the part or the part's place is not shown.
QString text(const QWidget *window, const char *strName);

/// Whether the part is shown in `window`.
bool isShown(const QWidget *window, const char *strName);

/// The call window in words: "hidden", or what it shows, from title to buttons.
QString callWindowWords();

/// Clicks the button with the left mouse button, through the event queue. False when it is not shown.
bool press(const QWidget *window, const char *strName);

/// Saves what the screen shows at the window's place, frame included, as a PNG. Raise the window some time before.
/// False when nothing could be written, or while the window manager has not given the window its size yet.
bool savePicture(const QWidget *window, const QString &strFile);

/// Saves the whole screen as a PNG.
bool saveScreen(const QString &strFile);

} // namespace WindowProbe
