#include "history/CallReadiness.h"

#include <utility>

template <typename Value> void CallReadiness::set(Value &member, Value value)
{
    if (std::exchange(member, value) != value) {
        emit changed();
    }
}

void CallReadiness::setSignedIn(bool bSignedIn)
{
    set(m_bSignedIn, bSignedIn);
}

void CallReadiness::setInCall(bool bInCall)
{
    set(m_bInCall, bInCall);
}

void CallReadiness::setService(Service service)
{
    set(m_service, service);
}

QString CallReadiness::reason() const
{
    if (m_bInCall) {
        return tr("You are in a call. End it first.");
    }
    if (!m_bSignedIn) {
        return tr("You are signed out. Sign in first.");
    }
    switch (m_service) {
    case Service::Awaited:
        return tr("The call service is being reached. Wait a moment.");
    case Service::Lost:
        return tr("The call service cannot be reached.");
    default:
        return QString();
    }
}
