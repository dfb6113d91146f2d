#include "tour/TourHand.h"

#include <QApplication>
#include <QMouseEvent>
#include <QScreen>
#include <QWidget>
#include <QWindow>

namespace {

// After so many calls of work(), a move or a press that the program has not heard of is done once more: another window
// was in front. It is not done sooner, because a press that is only late on a busy machine would count twice.
constexpr int cPatienceForMove = 2;
constexpr int cPatienceForPress = 200;

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
    if (m_gestures.isEmpty() || m_bPressSeen) {
        return;
    }
    const WindowProbe::Spot spot = m_gestures.head().where();
    if (spot.widget == nullptr) {
        m_phase = Waiting;
        return;
    }
    const QPoint place = spot.widget->mapToGlobal(spot.place);
    const bool lost = m_phase != Arrived && --m_iPatience <= 0;
    const bool moved = m_phase != Pressed && place != m_place;
    if (m_phase == Waiting || moved || lost) {
        reach(spot, place);
    } else if (m_phase == Arrived) {
        press(m_gestures.head());
    }
}

void TourHand::reach(const WindowProbe::Spot &spot, const QPoint &place)
{
    QWidget *window = spot.widget->window();
    m_pWindow = window->windowHandle();
    m_place = place;
    m_phase = Reaching;
    m_iPatience = cPatienceForMove;
    window->raise();
    // The pointer is moved beside the place and onto it in turn, because Qt does not report a move to the place where
    // it saw the pointer last.
    m_bBeside = !m_bBeside;
    m_pointer.moveTo(m_bBeside ? place - QPoint(1, 1) : place);
}

void TourHand::press(const Gesture &gesture)
{
    if (gesture.times == 0) {
        finish();
        return;
    }
    m_phase = Pressed;
    m_iPatience = cPatienceForPress;
    m_iReleases = gesture.times;
    for (int i = 0; i < gesture.times; ++i) {
        m_pointer.click(gesture.button);
    }
}

void TourHand::finish()
{
    const bool clicked = m_phase == Pressed;
    m_gestures.dequeue();
    m_phase = Waiting;
    m_bPressSeen = false;
    m_bBeside = false;
    if (clicked && m_gestures.isEmpty()) {
        // Not before the click has been dealt with: a menu opens where the pointer is.
        QMetaObject::invokeMethod(this, &TourHand::settle, Qt::QueuedConnection);
    }
}

bool TourHand::isInPlace() const
{
    const WindowProbe::Spot spot = m_gestures.head().where();
    return spot.widget != nullptr && spot.widget->mapToGlobal(spot.place) == m_place;
}

void TourHand::settle()
{
    // The click may have led to the next gesture already.
    if (isIdle()) {
        rest();
        emit done();
    }
}

bool TourHand::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_pWindow) {
        return false;
    }
    if (event->type() == QEvent::MouseMove && m_phase == Reaching) {
        m_phase = static_cast<QMouseEvent *>(event)->globalPos() == m_place ? Arrived : Reaching;
    } else if (event->type() == QEvent::MouseButtonPress && m_phase == Pressed && !m_bPressSeen) {
        // What moved while the press was under way has been missed, and is reached for again.
        m_bPressSeen = isInPlace();
        m_phase = m_bPressSeen ? Pressed : Waiting;
    } else if (event->type() == QEvent::MouseButtonRelease && m_bPressSeen && --m_iReleases == 0) {
        finish();
    }
    return false;
}
