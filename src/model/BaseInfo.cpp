#include "model/BaseInfo.h"

#include "model/UserIds.h"

QString BaseInfo::displayName() const
{
    for (const QString &strName : {m_strMySetFriendName, m_vcardInfo.m_strNickName, m_vcardInfo.m_strAlternativeName}) {
        if (!strName.isEmpty()) {
            return strName;
        }
    }
    return UserIds::getUidByJid(m_strJid);
}

void BaseInfo::setMySetFriendName(const QString &strName)
{
    m_strMySetFriendName = strName;
}

void BaseInfo::setVcardInfo(const VcardInfo &vcardInfo)
{
    m_vcardInfo = vcardInfo;
}
