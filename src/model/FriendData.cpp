#include "model/FriendData.h"

#include "model/Jid.h"
#include "model/MyProfileData.h"

FriendData::FriendData(const QString &strJid)
{
    m_strJid = QString::fromStdString(Jid(strJid.toStdString()).BareJid().Str());
}

FriendData::FriendData(const MyProfileData &profile) : BaseInfo(profile), m_bMyFriend(true) {}
