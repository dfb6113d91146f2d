#include "tour/Tour.h"

#include "screen/WindowProbe.h"
#include "tour/TourHand.h"
#include "tour/TourWatch.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

namespace {

constexpr int cTickMs = 25;
// Time for the window to be raised and for the compositor to paint it.
constexpr int cSettleMs = 500;

/// Whether it is a line of the call process or an event between host and plug-in. What they lead to may last for less
/// than a tick.
bool mayChangeWindows(const QEvent &event)
{
    return event.type() == QEvent::SockAct || event.type() == QEvent::User;
}

} // namespace

Tour::Tour(TourWatch &watch, TourHand &hand, QList<TourStep> steps, const QString &strFolder)
    : m_watch(watch), m_hand(hand), m_steps(std::move(steps)), m_strFolder(strFolder)
{
    connect(&m_timer, &QTimer::timeout, this, &Tour::tick);
    connect(&m_hand, &TourHand::done, this, &Tour::lookFor);
    qApp->installEventFilter(this);
}

bool Tour::eventFilter(QObject *watched, QEvent *event)
{
    if (!m_bLooking && mayChangeWindows(*event)) {
        m_bLooking = true;
        // Queued behind this event and before the next read of a socket.
        const auto look = [this] {
            m_bLooking = false;
            lookFor();
        };
        QMetaObject::invokeMethod(this, look, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

void Tour::start()
{
    m_timer.start(cTickMs);
}

void Tour::tick()
{
    m_watch.look();
    m_hand.work();
    switch (m_phase) {
    case Beginning:
        begin();
        break;
    case Waiting:
        wait();
        break;
    case Settling:
        settle();
        break;
    }
}

void Tour::begin()
{
    if (m_iStep == m_steps.size()) {
        end(true);
        return;
    }
    if (step().act) {
        m_watch.mark();
    }
    TourWatch::say(QStringLiteral("[%1/%2] %3").arg(m_iStep + 1, 2).arg(m_steps.size()).arg(step().title));
    m_seen.clear();
    for (int i = 0; i < step().checks.size(); ++i) {
        m_seen.append(false);
    }
    m_clock.start();
    m_phase = Waiting;
    m_bActed = false;
    act();
}

void Tour::act()
{
    m_bActed = m_bActed || !step().act || step().act();
}

bool Tour::hasActed() const
{
    return m_bActed && m_hand.isIdle();
}

void Tour::lookFor()
{
    if (m_phase != Waiting || !hasActed()) {
        return;
    }
    for (int i = 0; i < m_seen.size(); ++i) {
        if (!m_seen.at(i) && step().checks.at(i).seen()) {
            m_seen[i] = true;
            TourWatch::say(QStringLiteral("     ok %1").arg(step().checks.at(i).words));
        }
    }
}

void Tour::sayMissing() const
{
    if (!hasActed()) {
        TourWatch::say(QStringLiteral("   MISS what it acts on is not shown"));
    }
    for (int i = 0; i < m_seen.size(); ++i) {
        if (!m_seen.at(i)) {
            TourWatch::say(QStringLiteral("   MISS %1").arg(step().checks.at(i).words));
        }
    }
}

void Tour::wait()
{
    act();
    lookFor();
    if (hasActed() && !m_seen.contains(false)) {
        if (step().pictureOf && step().pictureOf() != nullptr) {
            step().pictureOf()->raise();
        }
        m_clock.start();
        m_phase = Settling;
    } else if (m_clock.hasExpired(step().limitMs)) {
        sayMissing();
        end(false);
    }
}

void Tour::settle()
{
    if (!step().picture.isEmpty()) {
        if (!m_clock.hasExpired(cSettleMs)) {
            return;
        }
        if (!takePicture()) {
            if (m_clock.hasExpired(step().limitMs)) {
                const QString words = step().pictureOf ? WindowProbe::sizeWords(step().pictureOf()) : QString();
                TourWatch::say(QStringLiteral("   MISS picture %1.png %2").arg(step().picture, words));
                end(false);
            }
            return;
        }
        TourWatch::say(QStringLiteral("        picture             %1.png").arg(step().picture));
    }
    ++m_iStep;
    m_phase = Beginning;
}

bool Tour::takePicture()
{
    const QString file = QStringLiteral("%1/%2.png").arg(m_strFolder, step().picture);
    return step().pictureOf ? WindowProbe::savePicture(step().pictureOf(), file) : WindowProbe::saveScreen(file);
}

void Tour::end(bool bOk)
{
    m_timer.stop();
    if (bOk) {
        TourWatch::say(QStringLiteral("Tour: all %1 steps had their effect").arg(m_steps.size()));
    } else {
        TourWatch::say(QStringLiteral("Tour: FAILED at step %1: %2").arg(m_iStep + 1).arg(step().title));
        WindowProbe::saveScreen(m_strFolder + QStringLiteral("/missed.png"));
    }
    emit finished(bOk);
}
