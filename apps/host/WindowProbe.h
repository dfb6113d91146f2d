#pragma once

#include <QString>
#include <QVariant>

class QWidget;

/// Looks at windows from the outside, as a person does, and presses their buttons: by the class name of the window and
/// the object names of its parts, because the plug-in's own classes are not reachable from the host. GUI thread.
namespace WindowProbe {

/// The plug-in's call window; null before it exists.
QWidget *callWindow();

/// The message dialog that is open, or null.
QWidget *messageBox();

/// The client's picker of people that is open, or null.
QWidget *memberPicker();

/// A row of a list: the list's object name, and the data by which the row is known.
struct Row
{
    const char *list;
    int idRole;
    QString id;
};

/// The row's data of that role; invalid when there is no such row or its list is not shown.
QVariant rowData(const QWidget *window, const Row &row, int iRole);

/// Clicks into the rectangle, of the list's viewport, that stands in the row's data of the role `rectRole`. False when
/// there is none.
bool pressRowPart(const QWidget *window, const Row &row, int rectRole);

/// Clicks in the middle of the row, twice for a double click. False when there is no such row.
bool pressRow(const QWidget *window, const Row &row, bool bTwice);

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
