#include "calls/peers/TestExchange.h"

#include "fakes/Patience.h"

#include <QDir>
#include <QFile>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>
#include <QUuid>

namespace {

constexpr int cStarts = 5;

int freePort()
{
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    return server.serverPort();
}

} // namespace

TestExchange::TestExchange(const TestMachine &machine)
    : m_machine(machine),
      m_folder(QDir::current().absoluteFilePath(QUuid::createUuid().toString(QUuid::WithoutBraces))), m_port(freePort())
{
    QDir().mkpath(m_folder);
}

TestExchange::~TestExchange() = default;

bool TestExchange::start()
{
    const bool first = !QFile::exists(caFile());
    if (first && !makeCertificate()) {
        return false;
    }
    for (int i = 0; i < cStarts; ++i) {
        if (begin()) {
            return true;
        }
        // Somebody else has taken it meanwhile.
        m_port = first ? freePort() : m_port;
    }
    return false;
}

bool TestExchange::begin()
{
    QFile tls(m_folder + QStringLiteral("/tls.cfg"));
    if (!tls.open(QIODevice::WriteOnly)) {
        return false;
    }
    tls.write(QStringLiteral("[server:default]\nmethod = TLSv1.2+\nverify_certificate = no\nrequire_certificate = no\n"
                             "private_key = %1/key.pem\ncertificate = %1/certificate.pem\n")
                  .arg(m_folder)
                  .toUtf8());
    tls.close();
    m_child = std::make_unique<ChildProgram>(m_folder + QStringLiteral("/log"));
    return m_child->beginOn(m_machine.enter, QStringLiteral("/usr/sbin/kamailio"), options(tls.fileName())) &&
           QTest::qWaitFor([this] { return takesConnections() || m_child->state() == QProcess::NotRunning; },
                           cPatienceMs) &&
           takesConnections();
}

QStringList TestExchange::options(const QString &tlsFile) const
{
    const auto define = [](const char *name, const QString &value) {
        return QStringLiteral("%1=%2").arg(QLatin1String(name), value);
    };
    const QString quoted = QStringLiteral("\"%1\"");
    QStringList given{
        QStringLiteral("-f"),  QStringLiteral(CALLS_TEST_FOLDER "/peers/exchange.cfg"),
        QStringLiteral("-DD"), QStringLiteral("-E"),
        QStringLiteral("-m"),  QStringLiteral("32"),
        QStringLiteral("-M"),  QStringLiteral("4"),
        QStringLiteral("-Y"),  m_folder,
        QStringLiteral("-w"),  m_folder,
        QStringLiteral("-A"),  define("LISTEN", QStringLiteral("tls:%1:%2").arg(m_machine.address).arg(m_port)),
        QStringLiteral("-A"),  define("TLSCFG", quoted.arg(tlsFile)),
        QStringLiteral("-A"),  define("DOMAIN", quoted.arg(domain()))};
    if (m_peerPort > 0) {
        given << QStringLiteral("-A") << define("PEER", quoted.arg(QStringLiteral("sip:127.0.0.1:%1").arg(m_peerPort)))
              << QStringLiteral("-A") << define("PEERSIDE", QStringLiteral("udp:127.0.0.1:%1").arg(m_port));
    }
    return given;
}

bool TestExchange::kill()
{
    m_child->killAll();
    return QTest::qWaitFor([this] { return !takesConnections(); }, cPatienceMs);
}

bool TestExchange::makeCertificate() const
{
    ChildProgram openssl;
    const QStringList arguments{QStringLiteral("req"),
                                QStringLiteral("-x509"),
                                QStringLiteral("-newkey"),
                                QStringLiteral("ec"),
                                QStringLiteral("-pkeyopt"),
                                QStringLiteral("ec_paramgen_curve:P-256"),
                                QStringLiteral("-nodes"),
                                QStringLiteral("-days"),
                                QStringLiteral("3650"),
                                QStringLiteral("-subj"),
                                QStringLiteral("/CN=") + host(),
                                QStringLiteral("-addext"),
                                QStringLiteral("subjectAltName=DNS:") + host(),
                                QStringLiteral("-keyout"),
                                m_folder + QStringLiteral("/key.pem"),
                                QStringLiteral("-out"),
                                caFile()};
    return openssl.begin(QStringLiteral("openssl"), arguments) && openssl.waitForFinished(cPatienceMs) &&
           openssl.exitCode() == 0;
}

bool TestExchange::takesConnections() const
{
    if (m_machine.enter.isEmpty()) {
        QTcpSocket socket;
        socket.connectToHost(QHostAddress::LocalHost, static_cast<quint16>(m_port));
        return socket.waitForConnected(cPatienceMs);
    }
    ChildProgram probe;
    const QString connects = QStringLiteral("exec 3<>/dev/tcp/%1/%2").arg(m_machine.address).arg(m_port);
    return probe.beginOn(m_machine.enter, QStringLiteral("bash"), {QStringLiteral("-c"), connects}) &&
           probe.waitForFinished(cPatienceMs) && probe.exitCode() == 0;
}
