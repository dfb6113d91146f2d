#include "passport/PassportLoginServer.h"

#include "common/CLogManger.h"

#include <QDebug>

namespace {

constexpr char cRefreshReturns[] = "CPassportLoginServer::ManualRefreshAuthID return direct.";

// An answer without a cookie must not wipe a valid one.
void storeUnlessEmpty(QString &strStored, const QString &strValue)
{
    if (!strValue.isEmpty()) {
        strStored = strValue;
    }
}

} // namespace

CPassportLoginServer::CPassportLoginServer(QObject *pParent) : QObject(pParent) {}

void CPassportLoginServer::SetPassportTGCCookie(const QString &strCookie)
{
    storeUnlessEmpty(m_strTgcCookie, strCookie);
}

void CPassportLoginServer::SetPassportRemCookie(const QString &strCookie)
{
    storeUnlessEmpty(m_strRemCookie, strCookie);
}

void CPassportLoginServer::SetPassportAuthIDCookie(const QString &strAuthId)
{
    storeUnlessEmpty(m_strAuthId, strAuthId);
}

void CPassportLoginServer::ManualRefreshAuthID()
{
    // The live values stand in clear, deliberately: they are part of the keeper's log output.
    LOG_DEBUG << "ManualRefreshAuthID authid =" << m_strAuthId << ", TGC = " << m_strTgcCookie
              << ",ids_r = " << m_strRemCookie << "\n";
    LOG_DEBUG << cRefreshReturns << "\n";
    qDebug().noquote().nospace() << cRefreshReturns;
}

void CPassportLoginServer::UserOverdue()
{
    LOG_DEBUG << "CPassportLoginServer::UserOverdue return direct."
              << "\n";
}

void CPassportLoginServer::UserCookieExpire()
{
    emit signal_UserOverdue();
}
