#include "plugin/StrangerCards.h"

#include "model/FriendData.h"
#include "model/UserIds.h"
#include "plugin/VoipManageEventProcess.h"

namespace {

// The client's fixed system account: no card is ever asked for it.
constexpr const char *cSystemAccount = "kv6005626532";

} // namespace

bool StrangerCards::test(const QString &uid)
{
    const QString jid = UserIds::getJidByUid(uid);
    const FriendData record = VoipManageEventProcess::getFriendInfoByJid(jid);
    // Deliberate: the contact plug-in is asked in any case, for the system account and for records at hand too.
    const bool known = VoipManageEventProcess::isExistFriend(jid);
    if (known || uid == QLatin1String(cSystemAccount)) {
        return false;
    }
    ids.append(UserIds::getUidByJid(uid));
    versions.append(QString::number(record.m_vcardInfo.m_iSmallVersion));
    return true;
}

void StrangerCards::request() const
{
    VoipManageEventProcess::getStrangerSmallVCard(ids, versions, true);
}
