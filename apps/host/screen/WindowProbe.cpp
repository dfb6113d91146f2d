#include "screen/WindowProbe.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QRegularExpression>
#include <QScreen>

#include <algorithm>
#include <cstring>
#include <iterator>

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

QSize leastSize(const QWidget &window)
{
    return window.minimumSize().expandedTo(window.minimumSizeHint());
}

/// A button's text as it is seen: "&" marks the letter behind it, "&&" is one that is shown.
QString withoutMarks(const QString &strText)
{
    static const QRegularExpression mark(QStringLiteral("&(.)"));
    return QString(strText).replace(mark, QStringLiteral("\\1"));
}

QAbstractItemView *shownList(const QWidget *window, const char *strList)
{
    return qobject_cast<QAbstractItemView *>(shownPart(window, strList));
}

QModelIndex find(const QAbstractItemView *list, const WindowProbe::Row &row)
{
    const QAbstractItemModel *model = list->model();
    for (int column = 0; column < model->columnCount(); ++column) {
        const QModelIndexList found = model->match(model->index(0, column), row.idRole, row.id, 1, Qt::MatchExactly);
        if (!found.isEmpty()) {
            return found.first();
        }
    }
    return {};
}

QMenu *openMenu()
{
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
}

/// The place in the list's viewport, unless it is scrolled away.
WindowProbe::Spot inView(const QAbstractItemView *list, const QPoint &place)
{
    return list->viewport()->rect().contains(place) ? WindowProbe::Spot{list->viewport(), place} : WindowProbe::Spot();
}

} // namespace

QWidget *WindowProbe::callWindow()
{
    return topLevel("CVoipWidget");
}

QWidget *WindowProbe::conferenceCentre()
{
    return shownTopLevel("CVoiceConferenceWidget");
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
    const QAbstractItemView *list = shownList(window, row.list);
    return list == nullptr ? QVariant() : find(list, row).data(iRole);
}

WindowProbe::Spot WindowProbe::rowPart(const QWidget *window, const Row &row, int rectRole)
{
    const QRect part = rowData(window, row, rectRole).toRect();
    return part.isNull() ? Spot() : inView(shownList(window, row.list), part.center());
}

WindowProbe::Spot WindowProbe::rowMiddle(const QWidget *window, const Row &row)
{
    const QAbstractItemView *list = shownList(window, row.list);
    const QModelIndex index = list == nullptr ? QModelIndex() : find(list, row);
    return index.isValid() ? inView(list, list->visualRect(index).center()) : Spot();
}

int WindowProbe::rowCount(const QWidget *window, const char *strList, int idRole)
{
    const QAbstractItemView *list = shownList(window, strList);
    if (list == nullptr) {
        return -1;
    }
    const QAbstractItemModel *model = list->model();
    int count = 0;
    for (int cell = 0; cell < model->rowCount() * model->columnCount(); ++cell) {
        const QModelIndex index = model->index(cell / model->columnCount(), cell % model->columnCount());
        count += index.data(idRole).toString().isEmpty() ? 0 : 1;
    }
    return count;
}

WindowProbe::Spot WindowProbe::menuItem(const QString &strText)
{
    QMenu *menu = openMenu();
    if (menu != nullptr) {
        const QList<QAction *> actions = menu->actions();
        for (QAction *action : actions) {
            if (action->text() == strText) {
                return {menu, menu->actionGeometry(action).center()};
            }
        }
    }
    return {};
}

QStringList WindowProbe::menuTexts()
{
    QStringList texts;
    if (const QMenu *menu = openMenu()) {
        const QList<QAction *> actions = menu->actions();
        std::transform(actions.begin(), actions.end(), std::back_inserter(texts),
                       [](const QAction *action) { return action->text(); });
    }
    return texts;
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
    return button == nullptr ? QString() : withoutMarks(button->text());
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

WindowProbe::Spot WindowProbe::button(const QWidget *window, const char *strName)
{
    QWidget *part = shownPart(window, strName);
    if (part == nullptr) {
        return {};
    }
    // The button may stand inside a part of that name; the mouse meets the innermost widget.
    QWidget *inner = part->childAt(part->rect().center());
    QWidget *target = inner != nullptr ? inner : part;
    return target->isEnabled() ? Spot{target, target->rect().center()} : Spot();
}

bool WindowProbe::savePicture(QWidget *window, const QString &strFile)
{
    if (window == nullptr || !window->isVisible()) {
        return false;
    }
    const QSize least = leastSize(*window);
    if (window->width() < least.width() || window->height() < least.height()) {
        window->resize(window->size().expandedTo(least));
        return false;
    }
    // Asked while the window manager puts its frame around the window, Qt takes one pixel for the whole frame for good.
    const QRect frame = window->frameGeometry().united(window->geometry());
    return QGuiApplication::primaryScreen()
        ->grabWindow(0, frame.x(), frame.y(), frame.width(), frame.height())
        .save(strFile, "PNG");
}

QString WindowProbe::sizeWords(const QWidget *window)
{
    if (window == nullptr || !window->isVisible()) {
        return QStringLiteral("not shown");
    }
    const QSize least = leastSize(*window);
    return QStringLiteral("%1x%2, at least %3x%4 wanted")
        .arg(window->width())
        .arg(window->height())
        .arg(least.width())
        .arg(least.height());
}

bool WindowProbe::saveScreen(const QString &strFile)
{
    return QGuiApplication::primaryScreen()->grabWindow(0).save(strFile, "PNG");
}
