#include "history/CallReadiness.h"

#include <utility>

template <typename Value>
void CallReadiness::set(Value &member, Value value)
{
    if (std::exchange(member, value) != value) {
        emit changed();
    }
}

void CallReadiness::setSignedIn(bool bSignedIn)
{
    set(m_bSignedIn, bSignedIn);
}

void CallReadiness::setCall(Call call)
{
    set(m_call, call);
}

void CallReadiness::setService(Service service)
{
    set(m_service, service);
}

QString CallReadiness::reason() const
{
    if (m_call != Call::None) {
        return m_call == Call::On ? tr("You are in a call. End it first.")
                                  : tr("The window of the lost call is still open. Hang up there first.");
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
