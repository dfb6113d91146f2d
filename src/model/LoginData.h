#pragma once

// The record of the signed-in account. The host owns it, fills it at login and hands its address to CommonData; the
// client's code reads it on the GUI thread and changes nothing in it but the channel id.

#include <QString>

struct LoginData
{
    /// The login domain, as in uid@domain.
    QString m_strDomain;
    /// The account's user id.
    QString m_strUid;
    /// The code of the account's company.
    QString m_strCompanyCode;
    /// True for a customer-service agent.
    bool m_bIsAgentUser = false;
    /// The agent's own channel id.
    QString m_strChannelId;
    /// The name of the account's company.
    QString m_strCompanyName;
    /// What the call process asks for when the user is registered there; passed on unread.
    QString m_strRegValue;
};
