#pragma once

// What every contact has in common: its jid, its card and the name that the user gave it. A plain value that is copied
// freely, on any thread.

#include "model/VcardInfo.h"

#include <QString>

class BaseInfo
{
public:
    /// The user id of the contact's account.
    QString m_strAccountUid;
    /// The card.
    VcardInfo m_vcardInfo;
    /// The bare jid, the contact's key.
    QString m_strJid;
    /// Two texts of the host, carried along and not read.
    QString m_strHostText1;
    QString m_strHostText2;
    /// The name that the user gave this contact; the first step of the shown name.
    QString m_strMySetFriendName;

    /// The name to show: the first that is not empty of the user's own name for the contact, nick name, alternative
    /// name and the jid's part before "@". Empty when all are.
    QString displayName() const;

    /// Stores the name that the user gave this contact; empty takes it away.
    void setMySetFriendName(const QString &strName);

    /// Replaces the card whole.
    void setVcardInfo(const VcardInfo &vcardInfo);
};
