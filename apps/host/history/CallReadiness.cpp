#include "history/CallReadiness.h"

#include <utility>

void CallReadiness::set(bool &bMember, bool bValue)
{
    if (std::exchange(bMember, bValue) != bValue) {
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

void CallReadiness::setServed(bool bServed)
{
    set(m_bServed, bServed);
}

QString CallReadiness::reason() const
{
    if (m_bInCall) {
        return tr("You are in a call. End it first.");
    }
    if (!m_bSignedIn) {
        return tr("You are signed out. Sign in first.");
    }
    return m_bServed ? QString() : tr("The call service cannot be reached.");
}
