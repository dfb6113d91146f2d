#include "calls/peers/Baresip.h"

#include "fakes/Patience.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTcpServer>
#include <QTest>
#include <QUuid>

Baresip::Baresip(const TestExchange &exchange, QString id, bool encrypted)
    : m_exchange(exchange), m_id(std::move(id)), m_encrypted(encrypted),
      m_folder(QDir::current().absoluteFilePath(QUuid::createUuid().toString(QUuid::WithoutBraces))),
      m_source("ausine," + QByteArray::number(cSpokenHz)),
      m_player("aufile," + QFile::encodeName(m_folder) + "/heard.wav")
{
    QDir().mkpath(m_folder);
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    m_controlPort = server.serverPort();
}

Baresip::~Baresip() = default;

void Baresip::useDevices(const QString &microphone, const QString &speaker)
{
    // ALSA's way to the sound server.
    m_source = "alsa,pulse:" + microphone.toUtf8();
    m_player = "alsa,pulse:" + speaker.toUtf8();
}

bool Baresip::start()
{
    return begin(account()) && waitSaid(QStringLiteral("200 OK"));
}

bool Baresip::startSignedOff()
{
    return begin(QString()) && QTest::qWaitFor([this] { return isControlled(); }, cPatienceMs);
}

QString Baresip::account() const
{
    QString account =
        QStringLiteral("<sip:%1@%2>;auth_user=%1;auth_pass=%3;outbound=\"sip:127.0.0.1:%4;transport=tls\";"
                       "regint=60;audio_codecs=opus/48000/2")
            .arg(m_id, TestExchange::domain(), TestExchange::secretOf(m_id))
            .arg(m_exchange.port());
    if (m_answers) {
        account += QStringLiteral(";answermode=auto");
    }
    if (m_encrypted) {
        account += QStringLiteral(";mediaenc=srtp-mand");
    }
    return account;
}

bool Baresip::begin(const QString &account)
{
    QFile source(QStringLiteral(CALLS_TEST_FOLDER "/peers/baresip.conf"));
    QFile configuration(m_folder + QStringLiteral("/config"));
    QFile accounts(m_folder + QStringLiteral("/accounts"));
    QFile contacts(m_folder + QStringLiteral("/contacts"));
    if (!source.open(QIODevice::ReadOnly) || !configuration.open(QIODevice::WriteOnly) ||
        !accounts.open(QIODevice::WriteOnly) || !contacts.open(QIODevice::WriteOnly)) {
        return false;
    }
    configuration.write(source.readAll()
                            .replace("@FOLDER@", QFile::encodeName(m_folder))
                            .replace("@SOURCE@", m_source)
                            .replace("@PLAYER@", m_player)
                            .replace("@CONTROL@", QByteArray::number(m_controlPort)));
    accounts.write(account.toUtf8() + '\n');
    configuration.close();
    accounts.close();
    contacts.close();
    m_child = std::make_unique<ChildProgram>(m_folder + QStringLiteral("/log"));
    return m_child->begin(QStringLiteral("baresip"), {QStringLiteral("-f"), m_folder});
}

bool Baresip::isControlled()
{
    if (m_control.state() != QAbstractSocket::ConnectedState) {
        m_control.connectToHost(QHostAddress::LocalHost, static_cast<quint16>(m_controlPort));
    }
    return m_control.state() == QAbstractSocket::ConnectedState || m_control.waitForConnected(cPatienceMs);
}

bool Baresip::command(const char *name, const QString &parameters)
{
    const QJsonObject object{{QStringLiteral("command"), QLatin1String(name)}, {QStringLiteral("params"), parameters}};
    const QByteArray text = QJsonDocument(object).toJson(QJsonDocument::Compact);
    if (!isControlled()) {
        return false;
    }
    m_control.write(QByteArray::number(text.size()) + ':' + text + ',');
    return m_control.waitForBytesWritten(cPatienceMs);
}

bool Baresip::signIn()
{
    return command("uanew", account());
}

bool Baresip::call(const QString &userId)
{
    return command("dial", QStringLiteral("sip:%1@%2").arg(userId, TestExchange::domain()));
}

bool Baresip::reports(const QByteArray &kind)
{
    const QByteArray wanted = "\"type\":\"" + kind + '"';
    for (;;) {
        const int end = m_input.indexOf(wanted);
        if (end >= 0) {
            m_input.remove(0, end + wanted.size());
            return true;
        }
        if (!isControlled() || !m_control.waitForReadyRead(cPatienceMs)) {
            return false;
        }
        m_input += m_control.readAll();
    }
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
