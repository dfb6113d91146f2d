#pragma once

// A person among the contacts, or known from a conversation. A plain value that is copied freely, on any thread; the
// host keeps the records in CommonData's friend map under their bare jids.

#include "model/BaseInfo.h"

#include <QList>
#include <QMetaType>
#include <QString>

class MyProfileData;

class FriendData : public BaseInfo
{
public:
    /// The id of the contact group that the person is in.
    QString m_strGroupId;
    /// The name of that group.
    QString m_strGroupName;
    /// The person's kind of cooperation with the company, a number of the host.
    int m_iCooperate = 0;
    /// Two texts that the store has room for and the host gives a meaning.
    QString m_strExtension1;
    QString m_strExtension2;
    /// True for a contact outside the company.
    bool m_bOutsideFriend = false;
    /// True for one of the user's own contacts.
    bool m_bMyFriend = false;
    /// Two texts of the host, carried along and not read.
    QString m_strFriendText1;
    QString m_strFriendText2;

    /// All empty.
    FriendData() = default;

    /// The contact of that jid, normalised and without its resource; a malformed jid leaves the key empty.
    FriendData(const QString &strJid);

    /// The user's own profile as a contact.
    FriendData(const MyProfileData &profile);

    /// True when the jids are equal, whatever else differs.
    bool operator==(const FriendData &other) const { return m_strJid == other.m_strJid; }
    /// False when the jids are equal.
    bool operator!=(const FriendData &other) const { return !(*this == other); }
};

Q_DECLARE_METATYPE(FriendData)
