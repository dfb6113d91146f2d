#include "common/CUrlInfo.h"

#include "common/CSettingsManager.h"
#include "common/text/LastingText.h"

#include <QStringList>
#include <QUrl>

// The base address of each endpoint: where a client without an address file goes. The names are those of the table's
// rows.
namespace Endpoint {
namespace {
// NOLINTBEGIN(readability-identifier-naming)
const QLatin1String NoDefault("");
const QLatin1String Text("");
const QLatin1String Main("http://center.kelvar.example");
const QLatin1String MainInternal("http://center.internal.kelvar.example");
const QLatin1String Sso("http://sso.kelvar.example");
const QLatin1String Passport("http://passport.kelvar.example");
const QLatin1String PassportInternal("http://passport.internal.kelvar.example");
const QLatin1String Image("http://image.kelvar.example");
const QLatin1String Monitor("http://monitor.kelvar.example");
const QLatin1String AgentPlatform("http://agent.kelvar.example");
const QLatin1String Admin("http://admin.kelvar.example");
const QLatin1String ObjectStore("http://objectstore.kelvar.example");
const QLatin1String SipRegistration("sip.kelvar.example");
// NOLINTEND(readability-identifier-naming)
} // namespace
} // namespace Endpoint

namespace {

QVariant entry(const QString &strKey)
{
    return CSettingsManager::instance()->getUrlSettings()->value(strKey);
}

QString address(const QString &strKey, QLatin1String base, QLatin1String path)
{
    const QString strValue = entry(strKey).toString();
    return strValue.isEmpty() ? QString(base) + path : strValue;
}

QString percentEncoded(const QString &strText)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(strText));
}

// The way through the sign-on into the enterprise administration. The innermost address is encoded twice: it is a query
// value in an address that is a query value itself.
QString signInQuery()
{
    const QString strTarget = QString(Endpoint::Admin) + QLatin1String("/eadmin-web/login/login.do");
    const QString strService =
        QString(Endpoint::Admin) + QLatin1String("/eadmin-web/auth?targetUrl=") + percentEncoded(strTarget);
    return QLatin1String("?service=") + percentEncoded(strService) + QLatin1String("&loginTheme=eadmin-web");
}

QString signInAddress(const QString &strKey, QLatin1String base, QLatin1String path)
{
    const QString strValue = entry(strKey).toString();
    return strValue.isEmpty() ? QString(base) + path + signInQuery() : strValue;
}

} // namespace

#define URL_ANSWER_Plain(key, endpoint, path)                                                                          \
    return address(QStringLiteral(key), Endpoint::endpoint, QLatin1String(path));
#define URL_ANSWER_Cached(key, endpoint, path)                                                                         \
    static const QString &strUrl = lastingText(address(QStringLiteral(key), Endpoint::endpoint, QLatin1String(path))); \
    return strUrl;
#define URL_ANSWER_SignIn(key, endpoint, path)                                                                         \
    return signInAddress(QStringLiteral(key), Endpoint::endpoint, QLatin1String(path));
#define URL_ANSWER_Arg(key, endpoint, path)                                                                            \
    return address(QStringLiteral(key), Endpoint::endpoint, QLatin1String(path)).arg(strParameter);
#define URL_GETTER(name, key, endpoint, path, form)                                                                    \
    QString CUrlInfo::name(URL_PARAMETER_##form)                                                                       \
    {                                                                                                                  \
        URL_ANSWER_##form(key, endpoint, path)                                                                         \
    }
#include "common/CUrlInfo.def"
#undef URL_ANSWER_Arg
#undef URL_ANSWER_SignIn
#undef URL_ANSWER_Cached
#undef URL_ANSWER_Plain

QString CUrlInfo::getSOAUrl(const QString &strParameter)
{
    const QString strTemplate = entry(QStringLiteral("oaurl/theurl/")).toString();
    const QString strTarget = entry(QStringLiteral("oaurl/tarurl/")).toString();
    return strTemplate.arg(strParameter) + percentEncoded(strTarget);
}

void CUrlInfo::getSipPhoneRegDomain(QMap<QString, QString> &map)
{
    for (int i = 0;; ++i) {
        const QString strDomain = entry(QStringLiteral("/sipphone/domain%1").arg(i)).toString();
        if (strDomain.isEmpty()) {
            break;
        }
        const QStringList listRange = entry(QStringLiteral("/sipphone/numrange%1").arg(i)).toStringList();
        if (listRange.isEmpty()) {
            map[tr("000000")] = strDomain;
            break;
        }
        for (const QString &strRange : listRange) {
            map[strRange] = strDomain;
        }
    }
    if (map.isEmpty()) {
        map[tr("000000")] = Endpoint::SipRegistration;
    }
}
