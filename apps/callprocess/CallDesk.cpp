#include "callprocess/CallDesk.h"

namespace {

constexpr int cFailureAfterMs = 500;
constexpr int cConnectAfterMs = 300;

} // namespace

CallDesk::CallDesk(PacedOutlet &outlet, QObject *parent) : QObject(parent), m_outlet(outlet) {}

CallDesk::~CallDesk() = default;

void CallDesk::placeCall(const QString &userId)
{
    end();
    m_robot = findRobot(userId);
    enter(Phase::Calling);
    if (m_robot == nullptr) {
        m_outlet.note(QStringLiteral("nobody has the id %1").arg(userId));
        after(cFailureAfterMs, [this] { finish(Wire::Code::CallFailed); });
        return;
    }
    if (m_robot->reply != Reply::Silent) {
        after(m_robot->replyAfterMs, [this] { reply(*m_robot); });
    }
}

void CallDesk::ring(const Robot &robot)
{
    m_robot = &robot;
    enter(Phase::Ringing);
    m_outlet.notify(Wire::Code::IncomingCall, QString::fromLatin1(robot.id));
    after(cRobotPatienceMs, [this] { finish(Wire::Code::PeerCanceled); });
}

void CallDesk::accept()
{
    if (m_phase != Phase::Ringing) {
        m_outlet.note(QStringLiteral("no call to accept"));
        return;
    }
    enter(Phase::Ringing);
    after(cConnectAfterMs, [this] { connectCall(*m_robot); });
}

void CallDesk::end()
{
    enter(Phase::None);
    m_robot = nullptr;
}

void CallDesk::enter(Phase phase)
{
    m_phase = phase;
    m_timers = std::make_unique<QObject>();
}

void CallDesk::after(int delayMs, const std::function<void()> &action)
{
    m_outlet.after(m_timers.get(), delayMs, action);
}

void CallDesk::reply(const Robot &robot)
{
    switch (robot.reply) {
    case Reply::Answers:
        connectCall(robot);
        break;
    case Reply::Busy:
        finish(Wire::Code::PeerBusy);
        break;
    case Reply::Rejects:
        finish(Wire::Code::PeerRejected);
        if (robot.then != Return::Nothing) {
            emit returnWanted(robot);
        }
        break;
    case Reply::Fails:
        finish(Wire::Code::CallFailed);
        break;
    case Reply::Silent:
        break;
    }
}

void CallDesk::connectCall(const Robot &robot)
{
    enter(Phase::Connected);
    m_outlet.notify(Wire::Code::CallConnected);
    if (robot.hangsUpAfterMs > 0) {
        after(robot.hangsUpAfterMs, [this] { finish(Wire::Code::PeerHangup); });
    }
}

void CallDesk::finish(Wire::Code code)
{
    end();
    m_outlet.notify(code);
}
