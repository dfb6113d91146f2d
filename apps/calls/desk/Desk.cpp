#include "calls/desk/Desk.h"

#include "conference/Documents.h"
#include "conference/UserId.h"
#include "endpoint/Channel.h"
#include "endpoint/ServiceTable.h"

#include <array>

namespace {

// Longer than the plug-in's longest pause between two tries to connect: who stays away beyond has ended, and the
// microphone must not stay open.
constexpr int cAwayMs = 90000;

} // namespace

Desk::Desk(Channel &channel, Trace &trace, UserAgent &agent, const ExchangeAccess &access, QObject *parent)
    : QObject(parent), m_channel(channel), m_trace(trace), m_agent(agent), m_access(access), m_outlet(channel, trace),
      m_remarks(m_outlet)
{
    m_awayTimer.setSingleShot(true);
    m_awayTimer.setInterval(cAwayMs);
    const auto endForWantOfAClient = [this] {
        m_agent.end();
        m_phase = CallPhase::None;
    };
    connect(&m_awayTimer, &QTimer::timeout, this, endForWantOfAClient);
    connect(&channel, &Channel::clientArrived, this, &Desk::takeClient);
    connect(&channel, &Channel::clientGone, &m_awayTimer, qOverload<>(&QTimer::start));
    connect(&agent, &UserAgent::registered, this, &Desk::takeRegistration);
    connect(&agent, &UserAgent::registrationLost, this, &Desk::takeRegistrationLoss);
    connect(&agent, &UserAgent::callArrived, this, &Desk::takeArrival);
    connect(&agent, &UserAgent::mediaRuns, this, &Desk::takeMedia);
    connect(&agent, &UserAgent::callEnded, this, &Desk::takeEnd);
    connect(&agent, &UserAgent::ringsThere, this, [this] { m_outlet.note(QStringLiteral("it rings there")); });
    connect(&agent, &UserAgent::remarked, this, [this](const QString &text) { m_remarks.tell(text); });
}

void Desk::handleLine(const QByteArray &line)
{
    // There is no picture to switch, and no conference to control yet.
    // clang-format off
    static constexpr std::array<ServiceRow<Desk>, Wire::cCommands.size()> rows{{
        {Wire::Command::RegeditUser,       &Desk::registerUser},
        {Wire::Command::UnReg,             &Desk::unregisterUser},
        {Wire::Command::CallUser,          &Desk::callUser},
        {Wire::Command::RequestConference, &Desk::requestConference},
        {Wire::Command::Add2Conference,    &Desk::addToConference},
        {Wire::Command::AcceptCall,        &Desk::acceptCall},
        {Wire::Command::AcceptConf,        &Desk::acceptConference},
        {Wire::Command::RejectCall,        &Desk::endCall},
        {Wire::Command::RejectConf,        &Desk::endCall},
        {Wire::Command::HangUpCall,        &Desk::endCall},
        {Wire::Command::HangupConf,        &Desk::endCall},
        {Wire::Command::ControlConf,       nullptr},
        {Wire::Command::SetMicEnable,      &Desk::setMicrophoneEnabled},
        {Wire::Command::SetSpeakerEnble,   &Desk::setSpeakerEnabled},
        {Wire::Command::SetCamreraEnable,  nullptr},
        {Wire::Command::SetMicVolume,      &Desk::setMicrophoneVolume},
        {Wire::Command::SetSpeakerVolume,  &Desk::setSpeakerVolume},
    }};
    // clang-format on
    static_assert(Wire::tellOfEveryCommand(rows), "a command that nobody serves");
    serveLine(*this, rows, line, m_trace);
}

void Desk::registerUser(const Command &command)
{
    const QString userId = command.text(1);
    if (userId != m_userId) {
        m_agent.signOut();
        m_phase = CallPhase::None;
    }
    m_userId = userId;
    m_nickName = command.text(2);
    m_registrationValue = command.text(3);
    m_answerDue = true;
    signIn();
}

void Desk::signIn()
{
    QString fault;
    if (!isUserId(m_userId)) {
        fault = QStringLiteral("no user id");
    } else if (!m_agentFault.isEmpty()) {
        takeRegistrationLoss(m_agentFault);
        return;
    } else if (m_access.servers.isEmpty()) {
        // The exchange of one's own is about to come, or its failure to be told.
        if (!m_exchangeFault.isEmpty()) {
            takeRegistrationLoss(m_exchangeFault);
        }
        return;
    }
    const Credentials credentials =
        fault.isEmpty() ? m_access.credentials(m_userId, m_registrationValue, &fault) : Credentials();
    if (!fault.isEmpty()) {
        m_userId.clear();
        m_agent.signOut();
        takeRegistrationLoss(fault);
        return;
    }
    m_agent.signIn(m_userId, m_nickName, credentials);
}

void Desk::takeExchange()
{
    m_exchangeFault.clear();
    m_agent.takeExchange();
    if (!m_userId.isEmpty()) {
        signIn();
    }
}

void Desk::loseExchange(const QString &why)
{
    m_exchangeFault = why;
    m_agent.loseExchange();
    takeRegistrationLoss(why);
}

void Desk::takeAgent()
{
    m_agentFault.clear();
    if (!m_userId.isEmpty()) {
        signIn();
    }
}

void Desk::lackAgent(const QString &why)
{
    m_agentFault = why;
    takeRegistrationLoss(why);
}

void Desk::unregisterUser(const Command & /*command*/)
{
    m_agent.signOut();
    m_phase = CallPhase::None;
    m_userId.clear();
    m_registrationValue.clear();
    m_answerDue = false;
    m_saidTrue = false;
}

void Desk::callUser(const Command &command)
{
    if (command.parameter(2).toBool()) {
        m_outlet.note(QStringLiteral("a video call goes out by voice"));
    }
    const bool rang = std::exchange(m_phase, CallPhase::Calling) == CallPhase::Ringing;
    if (rang) {
        // Both have called at once, and the plug-in, which calls nobody while it rings, has seen this one too late.
        m_agent.refuse(true);
        failCall({SipStatus::cBusy, false, QStringLiteral("both have called at once")});
    } else if (!m_agent.isRegistered()) {
        failCall({0, false, QStringLiteral("the caller is not registered")});
    } else if (!isUserId(command.text(1))) {
        failCall({SipStatus::cUnknown, false, QStringLiteral("nobody has such an id")});
    } else if (!m_agent.call(command.text(1))) {
        failCall({0, false, QStringLiteral("the call cannot be placed")});
    }
}

void Desk::requestConference(const Command & /*command*/)
{
    m_remarks.tell(QStringLiteral("conferences are not served"));
    m_outlet.notify(Wire::Code::ConfCreated);
}

void Desk::addToConference(const Command &command)
{
    m_outlet.notify(Wire::Code::ConfAddResult, additionDocument(command.texts(1)));
}

void Desk::acceptCall(const Command & /*command*/)
{
    if (m_phase == CallPhase::Ringing) {
        m_phase = CallPhase::Accepted;
        m_agent.accept();
    } else if (m_phase == CallPhase::None) {
        // The plug-in would wait for its minute to end.
        m_outlet.notify(Wire::Code::PeerCanceled);
    }
}

void Desk::acceptConference(const Command & /*command*/)
{
    m_outlet.notify(Wire::Code::CallEnded);
}

void Desk::endCall(const Command & /*command*/)
{
    m_phase = CallPhase::None;
    m_agent.end();
}

void Desk::setMicrophoneEnabled(const Command &command)
{
    m_agent.setEnabled(Loudness::Side::Microphone, command.parameter(1).toBool());
}

void Desk::setSpeakerEnabled(const Command &command)
{
    m_agent.setEnabled(Loudness::Side::Speaker, command.parameter(1).toBool());
}

void Desk::setMicrophoneVolume(const Command &command)
{
    m_agent.setVolume(Loudness::Side::Microphone, command.parameter(1).toInt());
}

void Desk::setSpeakerVolume(const Command &command)
{
    m_agent.setVolume(Loudness::Side::Speaker, command.parameter(1).toInt());
}

void Desk::takeRegistration()
{
    if (m_answerDue || !m_saidTrue) {
        m_outlet.notify(Wire::Code::SdkFlag, QStringLiteral("true"));
        m_remarks.tell(QStringLiteral("registered %1").arg(m_userId));
    }
    m_answerDue = false;
    m_saidTrue = true;
}

void Desk::takeRegistrationLoss(const QString &why)
{
    if (m_answerDue || m_saidTrue) {
        m_outlet.notify(Wire::Code::SdkFlag, QStringLiteral("false"));
        m_remarks.tell(QStringLiteral("not registered: %1").arg(why));
    }
    m_answerDue = false;
    m_saidTrue = false;
}

void Desk::takeArrival(const QString &userId)
{
    // Until the exchange has taken note that the user has gone it hands his calls on.
    if (!m_channel.hasClient() || m_userId.isEmpty()) {
        m_agent.refuse(false);
        return;
    }
    m_phase = CallPhase::Ringing;
    m_outlet.notify(Wire::Code::IncomingCall, userId);
}

void Desk::takeMedia()
{
    m_phase = CallPhase::Running;
    m_outlet.notify(Wire::Code::CallConnected);
}

void Desk::takeEnd(const CallEnd &end)
{
    const CallPhase phase = std::exchange(m_phase, CallPhase::None);
    if (phase == CallPhase::None) {
        return;
    }
    m_outlet.notify(codeOf(phase, end));
    if (phase != CallPhase::Running || end.mediaLost) {
        const QString status = end.status == 0 ? QString() : QStringLiteral("%1 ").arg(end.status);
        m_remarks.tell(QStringLiteral("the call ended: ") + status + end.why);
    }
}

/// A call of one's own that does not get as far as the exchange. It ends the one that is on, as any other does.
void Desk::failCall(const CallEnd &end)
{
    m_agent.end();
    takeEnd(end);
    m_agent.playFailure(end);
}

void Desk::takeClient()
{
    m_awayTimer.stop();
    const qint64 before = std::exchange(m_clientProcess, m_channel.clientProcess());
    if (before != m_clientProcess && m_phase != CallPhase::None) {
        m_outlet.note(QStringLiteral("another client knows nothing of the call, which ends"));
        m_phase = CallPhase::None;
        m_agent.end();
    }
}
