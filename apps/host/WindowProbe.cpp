#include "WindowProbe.h"

#include <QAbstractButton>
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

QWidget *shownPart(const QWidget *window, const char *strName)
{
    if (window == nullptr || !window->isVisible()) {
        return nullptr;
    }
    auto *part = window->findChild<QWidget *>(QLatin1String(strName));
    return part != nullptr && part->isVisible() ? part : nullptr;
}

void postClick(QWidget *button, QEvent::Type type, Qt::MouseButtons held)
{
    const QPoint centre = button->rect().center();
    QCoreApplication::postEvent(
        button, new QMouseEvent(type, centre, button->mapToGlobal(centre), Qt::LeftButton, held, Qt::NoModifier));
}

} // namespace

QWidget *WindowProbe::callWindow()
{
    return topLevel("CVoipWidget");
}

QWidget *WindowProbe::messageBox()
{
    QWidget *box = topLevel("ErrorMessage");
    return box != nullptr && box->isVisible() ? box : nullptr;
}

QString WindowProbe::text(const QWidget *window, const char *strName)
{
    const QWidget *part = shownPart(window, strName);
    if (const auto *label = qobject_cast<const QLabel *>(part)) {
        return label->text();
    }
    if (const auto *button = qobject_cast<const QAbstractButton *>(part)) {
        return button->text();
    }
    return QString();
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
    auto *button = qobject_cast<QAbstractButton *>(shownPart(window, strName));
    if (button == nullptr || !button->isEnabled()) {
        return false;
    }
    postClick(button, QEvent::MouseButtonPress, Qt::LeftButton);
    postClick(button, QEvent::MouseButtonRelease, Qt::NoButton);
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
