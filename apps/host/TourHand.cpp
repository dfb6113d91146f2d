#include "TourHand.h"

#include <QApplication>
#include <QMouseEvent>
#include <QScreen>
#include <QWindow>

namespace {

// Calls of work() after which a pointer that has not been seen to arrive is sent once more: another window was in
// front.
constexpr int patience = 20;

} // namespace

TourHand::TourHand()
{
    qApp->installEventFilter(this);
}

void TourHand::click(const Finder &where, Qt::MouseButton button, int iTimes)
{
    m_gestures.enqueue({where, button, iTimes});
}

void TourHand::hover(const Finder &where)
{
    m_gestures.enqueue({where, Qt::NoButton, 0});
}

void TourHand::rest()
{
    m_pointer.moveTo(QGuiApplication::primaryScreen()->geometry().bottomRight());
}

void TourHand::work()
{
    if (m_gestures.isEmpty() || m_iReleases > 0) {
        return;
    }
    const Gesture &gesture = m_gestures.head();
    const WindowProbe::Spot spot = gesture.where();
    if (spot.widget == nullptr) {
        return;
    }
    const QPoint place = spot.widget->mapToGlobal(spot.place);
    if (!m_bArrived || place != m_place) {
        reach(spot, place);
        return;
    }
    if (gesture.times == 0) {
        finish();
        return;
    }
    m_iReleases = gesture.times;
    for (int i = 0; i < gesture.times; ++i) {
        m_pointer.click(gesture.button);
    }
}

void TourHand::reach(const WindowProbe::Spot &spot, const QPoint &place)
{
    if (place == m_place && m_pWindow != nullptr && --m_iPatience > 0) {
        return;
    }
    QWidget *window = spot.widget->window();
    m_pWindow = window->windowHandle();
    m_place = place;
    m_bArrived = false;
    m_iPatience = patience;
    window->raise();
    // From beside, so that it moves even when it is there already.
    m_pointer.moveTo(place - QPoint(1, 1));
    m_pointer.moveTo(place);
}

void TourHand::finish()
{
    m_gestures.dequeue();
    m_pWindow = nullptr;
    m_bArrived = false;
}

bool TourHand::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_pWindow) {
        return false;
    }
    if (event->type() == QEvent::MouseMove) {
        m_bArrived = static_cast<QMouseEvent *>(event)->globalPos() == m_place;
    } else if (event->type() == QEvent::MouseButtonRelease && m_iReleases > 0 && --m_iReleases == 0) {
        finish();
        // Not before the click has been dealt with: a menu opens where the pointer is.
        QMetaObject::invokeMethod(this, &TourHand::rest, Qt::QueuedConnection);
    }
    return false;
}
