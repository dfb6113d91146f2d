// How a call ends without a command: what the library says of it, and what the user hears.

#include "calls/agent/FarText.h"
#include "calls/agent/UserAgentCore.h"

#include <utility>

namespace {

// What the library says of a call that it ended for want of sound.
constexpr int cStatusMediaLost = 503;

CallEnd nothingAgreed()
{
    return {SipStatus::cNothingInCommon, false, nothingInCommon()};
}

} // namespace

void UserAgent::Core::takeEnd()
{
    const auto call = std::exchange(m_call, nullptr);
    CallEnd end;
    if (const auto error = call->getErrorInfo()) {
        end.status = error->getProtocolCode();
        end.why = farText(error->getPhrase(), cRemarkLimit);
        end.mediaLost = m_mediaRan && end.status == cStatusMediaLost;
    }
    if (call->getState() == linphone::Call::State::Error && end.status == 0 &&
        call->getCallLog()->getStatus() == linphone::Call::Status::Success) {
        // It was taken, but in a way that the library does not agree with: it ends that without a status.
        end = nothingAgreed();
    }
    reportEnd(end, call->getDir() == linphone::Call::Dir::Outgoing);
}

void UserAgent::Core::reportEnd(const CallEnd &end, bool placedHere)
{
    playEnd(end, placedHere);
    emit m_agent.callEnded(end);
}

void UserAgent::Core::playEnd(const CallEnd &end, bool placedHere)
{
    if (end.mediaLost) {
        m_tones.playFailed(*m_library);
    } else if (placedHere && !m_mediaRan) {
        const bool busy = end.status == SipStatus::cBusy || end.status == SipStatus::cDeclined;
        busy ? m_tones.playBusy(*m_library) : m_tones.playFailed(*m_library);
    }
}

void UserAgent::Core::endForWantOfKeys()
{
    const auto call = std::exchange(m_call, nullptr);
    call->terminate();
    reportEnd(nothingAgreed(), call->getDir() == linphone::Call::Dir::Outgoing);
}
