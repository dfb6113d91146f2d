#include "panes/WayToCall.h"

#include "history/CallWatch.h"
#include "screen/WindowProbe.h"

#include <QApplication>
#include <QEvent>
#include <QMainWindow>
#include <QScreen>
#include <QStatusBar>

namespace {

/// Before the window is shown, so that the window manager leaves it where it is put.
void putOnScreen(QWidget &window)
{
    const QRect screen = window.screen()->availableGeometry();
    if (window.height() > screen.height()) {
        window.move(screen.left() + (screen.width() - window.width()) / 2, screen.bottom() + 1 - window.height());
    }
}

} // namespace

WayToCall::WayToCall(QMainWindow &window, const CallWatch &calls)
    : QObject(&window), m_pBar(window.statusBar()), m_calls(calls)
{
    m_pBar->installEventFilter(this);
    connect(&calls, &CallWatch::changed, this, &WayToCall::showWay);
    connect(&calls, &CallWatch::began, this, [this](const CallEntry &call) {
        accompany();
        if (call.caller && QApplication::activeModalWidget() == nullptr) {
            go();
        }
    });
}

void WayToCall::go()
{
    QWidget *window = WindowProbe::callWindow();
    if (window != nullptr && window->isVisible()) {
        window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
        window->raise();
        window->activateWindow();
    }
}

void WayToCall::accompany()
{
    QWidget *window = WindowProbe::callWindow();
    if (window != nullptr) {
        // Installing a filter again has no further effect.
        window->installEventFilter(this);
        putOnScreen(*window);
    }
}

void WayToCall::showWay()
{
    m_pBar->setCursor(m_calls.hasCall() ? Qt::PointingHandCursor : Qt::ArrowCursor);
    m_pBar->setToolTip(m_calls.hasCall() ? tr("Show the call window") : QString());
}

bool WayToCall::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_pBar) {
        if (event->type() == QEvent::Show && !event->spontaneous()) {
            putOnScreen(*static_cast<QWidget *>(watched));
        }
    } else if (event->type() == QEvent::MouseButtonRelease) {
        go();
    }
    return QObject::eventFilter(watched, event);
}
