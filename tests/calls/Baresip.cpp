#include "calls/Baresip.h"

#include "fakes/Patience.h"

#include <QDir>
#include <QFile>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>
#include <QUuid>

Baresip::Baresip(const TestExchange &exchange, QString id, bool encrypted)
    : m_exchange(exchange), m_id(std::move(id)), m_encrypted(encrypted),
      m_folder(QDir::current().absoluteFilePath(QUuid::createUuid().toString(QUuid::WithoutBraces)))
{
    QDir().mkpath(m_folder);
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    m_controlPort = server.serverPort();
}

Baresip::~Baresip() = default;

bool Baresip::start()
{
    QFile source(QStringLiteral(CALLS_TEST_FOLDER "/baresip.conf"));
    QFile configuration(m_folder + QStringLiteral("/config"));
    QFile accounts(m_folder + QStringLiteral("/accounts"));
    QFile contacts(m_folder + QStringLiteral("/contacts"));
    if (!source.open(QIODevice::ReadOnly) || !configuration.open(QIODevice::WriteOnly) ||
        !accounts.open(QIODevice::WriteOnly) || !contacts.open(QIODevice::WriteOnly)) {
        return false;
    }
    configuration.write(source.readAll()
                            .replace("@FOLDER@", QFile::encodeName(m_folder))
                            .replace("@CONTROL@", QByteArray::number(m_controlPort)));
    accounts.write(QStringLiteral("<sip:%1@%2>;auth_user=%1;auth_pass=%3;outbound=\"sip:127.0.0.1:%4;transport=tls\";"
                                  "regint=60;answermode=auto;audio_codecs=opus/48000/2%5\n")
                       .arg(m_id, TestExchange::domain(), TestExchange::secretOf(m_id))
                       .arg(m_exchange.port())
                       .arg(m_encrypted ? QStringLiteral(";mediaenc=srtp-mand") : QString())
                       .toUtf8());
    configuration.close();
    accounts.close();
    contacts.close();
    m_child = std::make_unique<ChildProgram>(m_folder + QStringLiteral("/log"));
    return m_child->begin(QStringLiteral("baresip"), {QStringLiteral("-f"), m_folder}) &&
           waitSaid(QStringLiteral("200 OK"));
}

bool Baresip::call(const QString &userId) const
{
    QTcpSocket control;
    control.connectToHost(QHostAddress::LocalHost, static_cast<quint16>(m_controlPort));
    const QByteArray command =
        QStringLiteral("{\"command\":\"dial\",\"params\":\"sip:%1@%2\"}").arg(userId, TestExchange::domain()).toUtf8();
    if (!control.waitForConnected(cPatienceMs)) {
        return false;
    }
    control.write(QByteArray::number(command.size()) + ':' + command + ',');
    return control.waitForReadyRead(cPatienceMs);
}

bool Baresip::waitSaid(const QString &text) const
{
    return QTest::qWaitFor([&] { return said().contains(text.toUtf8()); }, cPatienceMs);
}

QByteArray Baresip::said() const
{
    QFile log(m_folder + QStringLiteral("/log"));
    return log.open(QIODevice::ReadOnly) ? log.readAll() : QByteArray();
}
