#include "calls/exchange/ExchangeConfiguration.h"

#include "calls/exchange/ExchangeFolder.h"

#include <QFile>

/// A resource of a static library is not there before this was called, which no namespace may hold.
static void initTemplate()
{
    Q_INIT_RESOURCE(exchange);
}

namespace {

QByteArray configurationTemplate()
{
    initTemplate();
    QFile file(QStringLiteral(":/exchange/kamailio.cfg.in"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

QString ExchangeConfiguration::domain()
{
    return QStringLiteral("calls.invalid");
}

QByteArray ExchangeConfiguration::text() const
{
    const auto file = [this](const char *name) { return QFile::encodeName(ExchangeFolder::path(folder, name)); };
    QByteArray listen = "listen=tls:127.0.0.1:" + QByteArray::number(port);
    if (alsoIpv6) {
        listen += "\nlisten=tls:[::1]:" + QByteArray::number(port);
    }
    const std::pair<const char *, QByteArray> values[] = {
        {"@HEADLINE@", "The exchange of one Unix user, written anew at each start."},
        {"@KIND@", "EMBEDDED"},
        {"@LOGLEVEL@", "1"},
        {"@LOGSTDERR@", "yes"},
        {"@CONNECTIONS@", "256"},
        {"@DOMAIN@", domain().toUtf8()},
        {"@LISTEN@", listen},
        {"@DATABASE@", {}},
        {"@SECRET@", secret},
        {"@CERTIFICATE@", file(ExchangeFolder::cCertificate)},
        {"@KEY@", file(ExchangeFolder::cKey)},
        {"@MIXERS@", "1"},
    };
    QByteArray filled = configurationTemplate();
    for (const auto &[name, value] : values) {
        filled.replace(name, value);
    }
    return filled;
}
