// The decoration of every request that carries the user's identity. It stands beside the keeper of that identity.

#include "model/CommonData.h"
#include "model/SharedContext.h"
#include "passport/PassportLoginServer.h"

#include <QNetworkCookie>
#include <QNetworkRequest>
#include <QVariant>

namespace {

constexpr char cAuthorizationHeader[] = "Authorization";
constexpr char cAuthIdCookie[] = "imAuthId";

// The identifier as a cookie's value. A line break in it would begin a header of its own.
QByteArray cookieValue(const QString &strAuthId)
{
    return strAuthId.toLatin1().replace('\r', "").replace('\n', "");
}

QNetworkRequest decorated(const QNetworkRequest &request, const QString &strAuthId)
{
    QNetworkRequest result;
    const QList<QByteArray> listName = request.rawHeaderList();
    for (const QByteArray &name : listName) {
        if (name.compare(cAuthorizationHeader, Qt::CaseInsensitive) != 0) {
            result.setRawHeader(name, request.rawHeader(name));
        }
    }
    result.setHeader(QNetworkRequest::CookieHeader,
                     QVariant::fromValue(QNetworkCookie(cAuthIdCookie, cookieValue(strAuthId))));
    result.setUrl(request.url());
    return result;
}

} // namespace

QNetworkRequest CommonData::CoverNetworkRequest(const QNetworkRequest &request) const
{
    return decorated(request,
                     m_pPassportLoginServer != nullptr ? m_pPassportLoginServer->GetAuthIDByPassport() : QString());
}

QNetworkRequest SharedContext::CoverNetworkRequest(const QNetworkRequest &request)
{
    return m_pCommonData != nullptr ? m_pCommonData->CoverNetworkRequest(request) : decorated(request, QString());
}
