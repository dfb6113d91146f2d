#include "model/UserIds.h"

#include "model/LoginData.h"
#include "model/SharedContext.h"

#include <QStringBuilder>
#include <QStringList>

namespace {

const QChar cAt(QLatin1Char('@'));
const QChar cIdJoint(QLatin1Char('_'));
const QLatin1String cRoomDomainJoint("@c.");
const QLatin1String cRoomPrefixOf("of");
const QLatin1String cRoomPrefixRoom("room");
const QLatin1String cChannelPrefix("KFCNL");
const QLatin1String cVideoRoomPrefix("vroom");

QString loginText(QString LoginData::*pField)
{
    const LoginData *pLogin = SharedContext::getLoginData();
    return pLogin != nullptr ? pLogin->*pField : QString();
}

QString joinSmallerFirst(const QString &strFirst, const QString &strSecond)
{
    return strFirst < strSecond ? strFirst + cIdJoint + strSecond : strSecond + cIdJoint + strFirst;
}

// The two parties of a session id; two empty texts and false when it does not have exactly two.
struct SessionParties
{
    explicit SessionParties(const QString &strSessionId)
    {
        const QStringList listPart = strSessionId.split(cIdJoint, Qt::KeepEmptyParts);
        m_bValid = listPart.size() == 2;
        if (m_bValid) {
            m_strFirst = listPart.at(0);
            m_strSecond = listPart.at(1);
        }
    }

    QString m_strFirst;
    QString m_strSecond;
    bool m_bValid = false;
};

} // namespace

QString UserIds::getLoginUID()
{
    return loginText(&LoginData::m_strUid);
}

QString UserIds::getLoginDomain()
{
    return loginText(&LoginData::m_strDomain);
}

QString UserIds::getLoginMyJID()
{
    return getLoginUID() + cAt + getLoginDomain();
}

QString UserIds::getMychannelID()
{
    return loginText(&LoginData::m_strChannelId);
}

void UserIds::setMychannelID(const QString &strId)
{
    if (LoginData *pLogin = SharedContext::getLoginData(); pLogin != nullptr) {
        pLogin->m_strChannelId = strId;
    }
}

bool UserIds::getIsAgentUser()
{
    const LoginData *pLogin = SharedContext::getLoginData();
    return pLogin != nullptr && pLogin->m_bIsAgentUser;
}

QString UserIds::getLoginCompanyCode()
{
    return loginText(&LoginData::m_strCompanyCode);
}

QString UserIds::getLoginCompanyName()
{
    return loginText(&LoginData::m_strCompanyName);
}

QString UserIds::getJidByUid(const QString &strId)
{
    if (strId.contains(cAt)) {
        return strId;
    }
    // Any id that starts like a room's counts as a room, "office1" too, deliberately.
    if (isMucJid(strId)) {
        return strId % cRoomDomainJoint % getLoginDomain();
    }
    return strId % cAt % getLoginDomain();
}

QString UserIds::getUidByJid(const QString &strJid)
{
    return strJid.left(strJid.indexOf(cAt));
}

QString UserIds::getSessionIdByChatJid(const QString &strJid)
{
    const QString strPeer = getUidByJid(strJid);
    return isMucJid(strPeer) ? strPeer : joinSmallerFirst(getLoginUID(), strPeer);
}

QString UserIds::getChatJidBySessionId(const QString &strSessionId)
{
    if (isMucSession(strSessionId)) {
        return getJidByUid(strSessionId);
    }
    const SessionParties parties(strSessionId);
    if (!parties.m_bValid) {
        return QLatin1String("");
    }
    return getJidByUid(parties.m_strFirst != getLoginUID() ? parties.m_strFirst : parties.m_strSecond);
}

bool UserIds::isMucJid(const QString &strJid)
{
    return strJid.startsWith(cRoomPrefixOf) || strJid.startsWith(cRoomPrefixRoom);
}

bool UserIds::isMucSession(const QString &strSessionId)
{
    return isMucJid(strSessionId);
}

bool UserIds::isAgentSession(const QString &strSessionId)
{
    const SessionParties parties(strSessionId);
    return !isMucSession(strSessionId) && (isChannelId(parties.m_strFirst) || isChannelId(parties.m_strSecond));
}

bool UserIds::isAgentSystemSession(const QString &strSessionId)
{
    return isAgentSession(strSessionId) && getCSUserIdBySessionId(strSessionId) != getLoginUID();
}

bool UserIds::isAgentId(const QString &strId)
{
    return isChannelId(strId);
}

bool UserIds::isChannelId(const QString &strId)
{
    return strId.startsWith(cChannelPrefix);
}

QString UserIds::getChannelIdBySessionId(const QString &strSessionId)
{
    const SessionParties parties(strSessionId);
    if (isChannelId(parties.m_strFirst)) {
        return parties.m_strFirst;
    }
    return isChannelId(parties.m_strSecond) ? parties.m_strSecond : QString();
}

QString UserIds::getSessionIdByChannelId(const QString &strChannelId)
{
    return getSessionIdByUserAndChannel(getLoginUID(), strChannelId);
}

QString UserIds::getSessionIdByUserAndChannel(const QString &strUser, const QString &strChannel)
{
    return joinSmallerFirst(strUser, strChannel);
}

QString UserIds::getCSUserIdBySessionId(const QString &strSessionId)
{
    const SessionParties parties(strSessionId);
    if (isChannelId(parties.m_strFirst)) {
        return parties.m_strSecond;
    }
    return isChannelId(parties.m_strSecond) ? parties.m_strFirst : QLatin1String("");
}

bool UserIds::isVideoChat(const QString &strId)
{
    return strId.toLower().startsWith(cVideoRoomPrefix);
}
