// Calls that nobody here has placed: which of them is taken on, and how the others are refused.

#include "calls/agent/CallState.h"
#include "calls/agent/FarText.h"
#include "calls/agent/UserAgentCore.h"

#include "conference/Talk.h"
#include "conference/UserId.h"

void UserAgent::Core::takeStranger(const std::shared_ptr<linphone::Call> &call, linphone::Call::State state)
{
    if (isArrival(state)) {
        takeArrival(call);
    } else if (state == linphone::Call::State::OutgoingInit && !m_placing) {
        // The far end may ask the library to call somebody else.
        call->terminate();
        emit m_agent.remarked(QStringLiteral("a call that nobody here has placed was ended"));
    }
}

void UserAgent::Core::takeArrival(const std::shared_ptr<linphone::Call> &call)
{
    const auto address = call->getRemoteAddress();
    const QString userId = farText(address->getUsername(), cUserIdLimit + 1);
    const auto remote = call->getRemoteParams();
    if (m_call && !isOver(m_call->getState())) {
        call->decline(linphone::Reason::Busy);
    } else if (!isUserId(userId) || !m_registration->isOfThisExchange(*address)) {
        // Another domain's user would read as the user of the same name here.
        call->decline(linphone::Reason::Forbidden);
        emit m_agent.remarked(QStringLiteral("refused a call from %1: not of this exchange")
                                  .arg(farText(address->asStringUriOnly(), cRemarkLimit)));
    } else if (remote && !remote->getCustomHeader(Talk::cHeader).empty()) {
        call->decline(linphone::Reason::NotImplemented);
    } else {
        m_tones.stop();
        m_call = call;
        m_mediaRan = false;
        emit m_agent.callArrived(userId);
    }
}
