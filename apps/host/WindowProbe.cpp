#include "WindowProbe.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QScreen>

#include <cstring>

namespace {

QWidget *topLevel(const char *strClass)
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (std::strcmp(window->metaObject()->className(), strClass) == 0) {
            return window;
        }
    }
    return nullptr;
}

/// One that was closed may still wait to be deleted beside the one that is open.
QWidget *shownTopLevel(const char *strClass)
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->isVisible() && std::strcmp(window->metaObject()->className(), strClass) == 0) {
            return window;
        }
    }
    return nullptr;
}

QWidget *shownPart(const QWidget *window, const char *strName)
{
    if (window == nullptr || !window->isVisible()) {
        return nullptr;
    }
    auto *part = window->findChild<QWidget *>(QLatin1String(strName));
    return part != nullptr && part->isVisible() ? part : nullptr;
}

void postMouse(QWidget *target, const QPoint &position, QEvent::Type type, Qt::MouseButtons held)
{
    QCoreApplication::postEvent(
        target, new QMouseEvent(type, position, target->mapToGlobal(position), Qt::LeftButton, held, Qt::NoModifier));
}

void postClick(QWidget *target, const QPoint &position)
{
    postMouse(target, position, QEvent::MouseButtonPress, Qt::LeftButton);
    postMouse(target, position, QEvent::MouseButtonRelease, Qt::NoButton);
}

QAbstractItemView *shownList(const QWidget *window, const WindowProbe::Row &row)
{
    return qobject_cast<QAbstractItemView *>(shownPart(window, row.list));
}

QModelIndex find(const QAbstractItemView *list, const WindowProbe::Row &row)
{
    const QAbstractItemModel *model = list->model();
    return model->match(model->index(0, 0), row.idRole, row.id, 1, Qt::MatchExactly).value(0);
}

} // namespace

QWidget *WindowProbe::callWindow()
{
    return topLevel("CVoipWidget");
}

QWidget *WindowProbe::messageBox()
{
    return shownTopLevel("ErrorMessage");
}

QWidget *WindowProbe::memberPicker()
{
    return shownTopLevel("MemberPicker");
}

QVariant WindowProbe::rowData(const QWidget *window, const Row &row, int iRole)
{
    const QAbstractItemView *list = shownList(window, row);
    return list == nullptr ? QVariant() : find(list, row).data(iRole);
}

bool WindowProbe::pressRowPart(const QWidget *window, const Row &row, int rectRole)
{
    const QRect part = rowData(window, row, rectRole).toRect();
    if (part.isNull()) {
        return false;
    }
    postClick(shownList(window, row)->viewport(), part.center());
    return true;
}

bool WindowProbe::pressRow(const QWidget *window, const Row &row, bool bTwice)
{
    const QAbstractItemView *list = shownList(window, row);
    const QModelIndex index = list == nullptr ? QModelIndex() : find(list, row);
    if (!index.isValid()) {
        return false;
    }
    const QPoint middle = list->visualRect(index).center();
    postClick(list->viewport(), middle);
    if (bTwice) {
        postMouse(list->viewport(), middle, QEvent::MouseButtonDblClick, Qt::LeftButton);
        postMouse(list->viewport(), middle, QEvent::MouseButtonRelease, Qt::NoButton);
    }
    return true;
}

QString WindowProbe::text(const QWidget *window, const char *strName)
{
    const QWidget *part = shownPart(window, strName);
    if (const auto *label = qobject_cast<const QLabel *>(part)) {
        return label->text();
    }
    if (part == nullptr) {
        return QString();
    }
    // The button may stand inside a part of that name.
    const auto *button = qobject_cast<const QAbstractButton *>(part);
    if (button == nullptr) {
        button = part->findChild<const QAbstractButton *>();
    }
    return button == nullptr ? QString() : button->text();
}

bool WindowProbe::isShown(const QWidget *window, const char *strName)
{
    return shownPart(window, strName) != nullptr;
}

QString WindowProbe::callWindowWords()
{
    const QWidget *window = callWindow();
    if (window == nullptr || !window->isVisible()) {
        return QStringLiteral("hidden");
    }
    QStringList words;
    for (const char *name : {"lblVoipTipMsg", "lblUserName", "lblStatus", "lblListCount", "currentPlayTimeLabel"}) {
        words << text(window, name);
    }
    for (const char *name : {"btnCancelCall", "HangUp"}) {
        if (isShown(window, name)) {
            words << QLatin1Char('[') + text(window, name) + QLatin1Char(']');
        }
    }
    words.removeAll(QString());
    return words.join(QStringLiteral(" | "));
}

bool WindowProbe::press(const QWidget *window, const char *strName)
{
    QWidget *part = shownPart(window, strName);
    if (part == nullptr) {
        return false;
    }
    // The button may stand inside a part of that name; the mouse meets the innermost widget.
    const QPoint centre = part->rect().center();
    QWidget *inner = part->childAt(centre);
    QWidget *button = inner != nullptr ? inner : part;
    if (!button->isEnabled()) {
        return false;
    }
    postClick(button, button->rect().center());
    return true;
}

bool WindowProbe::savePicture(const QWidget *window, const QString &strFile)
{
    if (window == nullptr || !window->isVisible()) {
        return false;
    }
    const QRect frame = window->frameGeometry();
    const QSize least = window->minimumSize().expandedTo(window->minimumSizeHint());
    if (frame.width() < least.width() || frame.height() < least.height()) {
        return false;
    }
    return QGuiApplication::primaryScreen()
        ->grabWindow(0, frame.x(), frame.y(), frame.width(), frame.height())
        .save(strFile, "PNG");
}

bool WindowProbe::saveScreen(const QString &strFile)
{
    return QGuiApplication::primaryScreen()->grabWindow(0).save(strFile, "PNG");
}
