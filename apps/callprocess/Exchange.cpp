#include "callprocess/Exchange.h"

#include "endpoint/ServiceTable.h"

#include <array>

Exchange::Exchange(Channel &channel, Trace &trace, double speed, QObject *parent)
    : QObject(parent), m_trace(trace), m_outlet(channel, trace, speed), m_calls(m_outlet), m_conferences(m_outlet)
{
    connect(&m_calls, &CallDesk::returnWanted, this, &Exchange::letRobotReturn);
}

void Exchange::handleLine(const QByteArray &line)
{
    // What a robot would not notice has no effect.
    // clang-format off
    static constexpr std::array<ServiceRow<Exchange>, Wire::cCommands.size()> rows{{
        {Wire::Command::RegeditUser,       &Exchange::registerUser},
        {Wire::Command::UnReg,             &Exchange::unregisterUser},
        {Wire::Command::CallUser,          &Exchange::callUser},
        {Wire::Command::RequestConference, &Exchange::requestConference},
        {Wire::Command::Add2Conference,    &Exchange::addToConference},
        {Wire::Command::AcceptCall,        &Exchange::acceptCall},
        {Wire::Command::AcceptConf,        &Exchange::acceptConference},
        {Wire::Command::RejectCall,        &Exchange::endCall},
        {Wire::Command::RejectConf,        &Exchange::endConference},
        {Wire::Command::HangUpCall,        &Exchange::endCall},
        {Wire::Command::HangupConf,        &Exchange::endConference},
        {Wire::Command::ControlConf,       &Exchange::controlConference},
        {Wire::Command::SetMicEnable,      nullptr},
        {Wire::Command::SetSpeakerEnble,   nullptr},
        {Wire::Command::SetCamreraEnable,  nullptr},
        {Wire::Command::SetMicVolume,      nullptr},
        {Wire::Command::SetSpeakerVolume,  nullptr},
    }};
    // clang-format on
    static_assert(Wire::tellOfEveryCommand(rows), "a command that nobody serves");
    serveLine(*this, rows, line, m_trace);
}

void Exchange::registerUser(const Command &command)
{
    const QString userId = command.text(1);
    if (userId != m_userId) {
        endAll();
    }
    m_userId = userId;
    const bool registered = !m_userId.isEmpty();
    m_outlet.notify(Wire::Code::SdkFlag, registered ? QStringLiteral("true") : QStringLiteral("false"));
    m_outlet.notify(Wire::Code::SdkLog, registered ? QStringLiteral("registered %1").arg(m_userId)
                                                   : QStringLiteral("not registered: no user id"));
}

void Exchange::unregisterUser(const Command & /*command*/)
{
    endAll();
    m_userId.clear();
}

void Exchange::callUser(const Command &command)
{
    if (m_userId.isEmpty()) {
        m_outlet.note(QStringLiteral("the caller is not registered"));
        m_outlet.notify(Wire::Code::CallFailed);
        return;
    }
    m_conferences.end();
    m_calls.placeCall(command.text(1));
}

void Exchange::requestConference(const Command &command)
{
    if (m_userId.isEmpty()) {
        m_outlet.note(QStringLiteral("the caller is not registered"));
        m_outlet.notify(Wire::Code::ConfCreated);
        return;
    }
    m_calls.end();
    m_conferences.request(m_userId, command.texts(2));
}

void Exchange::addToConference(const Command &command)
{
    m_conferences.add(command.texts(1));
}

void Exchange::acceptCall(const Command & /*command*/)
{
    m_calls.accept();
}

void Exchange::acceptConference(const Command & /*command*/)
{
    m_conferences.accept();
}

void Exchange::endCall(const Command & /*command*/)
{
    m_calls.end();
}

void Exchange::endConference(const Command & /*command*/)
{
    m_conferences.end();
}

void Exchange::controlConference(const Command &command)
{
    m_conferences.control(command.text(1), command.text(2));
}

void Exchange::letRobotReturn(const Robot &robot)
{
    m_outlet.after(this, robot.thenAfterMs, [this, &robot] {
        if (m_userId.isEmpty() || m_calls.hasCall() || m_conferences.hasConference()) {
            m_outlet.note(QStringLiteral("%1 finds the line busy or away").arg(QLatin1String(robot.name)));
        } else if (robot.then == Return::Calls) {
            m_calls.ring(robot);
        } else {
            m_conferences.invite(robot, m_userId);
        }
    });
}

void Exchange::endAll()
{
    m_calls.end();
    m_conferences.end();
}
