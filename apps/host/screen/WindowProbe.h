#pragma once

#include <QPoint>
#include <QString>
#include <QStringList>
#include <QVariant>

class QWidget;

/// Looks at windows from the outside, as a person does, and finds where their buttons are: by the class name of the
/// window and the object names of its parts, because the plug-in's own classes are not reachable from the host. GUI
/// thread.
namespace WindowProbe {

/// The plug-in's call window; null before it exists.
QWidget *callWindow();

/// The message dialog that is open, or null.
QWidget *messageBox();

/// The plug-in's conference centre that is open, or null.
QWidget *conferenceCentre();

/// The client's picker of people that is open, or null.
QWidget *memberPicker();

/// A row of a list, or a cell of a grid: the list's object name, and the data by which the row is known. The first of
/// several is meant.
struct Row
{
    const char *list;
    int idRole;
    QString id;
};

/// The row's data of that role; invalid when there is no such row or its list is not shown.
QVariant rowData(const QWidget *window, const Row &row, int iRole);

/// A place in a widget that a mouse can reach; no widget when there is none at present.
struct Spot
{
    QWidget *widget = nullptr;
    QPoint place;
};

/// The middle of the rectangle, of the list's viewport, that stands in the row's data of the role `rectRole`.
Spot rowPart(const QWidget *window, const Row &row, int rectRole);

/// The middle of the row.
Spot rowMiddle(const QWidget *window, const Row &row);

/// The middle of the button, while it can be pressed.
Spot button(const QWidget *window, const char *strName);

/// The menu item of this text, while a menu that has it is open.
Spot menuItem(const QString &strText);

/// The texts of the menu that is open; empty while there is none.
QStringList menuTexts();

/// Number of rows, or cells with anybody in them, of a list by the role that they are known by; -1 while it is not
/// shown.
int rowCount(const QWidget *window, const char *strList, int idRole);

/// The text of a label or button in `window`; null when the window, the part or the part's place is not shown.
QString text(const QWidget *window, const char *strName);

/// Whether the part is shown in `window`.
bool isShown(const QWidget *window, const char *strName);

/// The call window in words: "hidden", or what it shows, from title to buttons.
QString callWindowWords();

/// Saves what the screen shows at the window's place, frame included, as a PNG. Raise the window some time before.
/// False when nothing could be written, or while the window has not its size: smaller than its parts need, it is asked
/// to take that again, as a window manager that is late may have made it so.
bool savePicture(QWidget *window, const QString &strFile);

/// What savePicture() looks at, in words: the window's size and the least that it should have.
QString sizeWords(const QWidget *window);

/// Saves the whole screen as a PNG.
bool saveScreen(const QString &strFile);

} // namespace WindowProbe
