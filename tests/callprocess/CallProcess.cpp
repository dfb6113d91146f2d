#include "callprocess/CallProcess.h"

#include "fakes/Patience.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QTest>
#include <QUuid>

CallProcess::CallProcess()
    : m_program(QStringLiteral(VOIPSDK_PROGRAM)),
      m_tracePath(QUuid::createUuid().toString(QUuid::WithoutBraces) + QStringLiteral(".trace"))
{
}

CallProcess::~CallProcess()
{
    if (m_process.state() != QProcess::NotRunning) {
        m_process.kill();
        m_process.waitForFinished(cPatienceMs);
    }
}

void CallProcess::start(const QStringList &options)
{
    m_process.start(m_program, QStringList{QStringLiteral("--trace"), m_tracePath} + options);
    m_process.waitForStarted(cPatienceMs);
}

void CallProcess::startScenario(const QByteArray &text, const QStringList &options)
{
    QFile file(m_tracePath + QStringLiteral(".scn"));
    if (file.open(QIODevice::WriteOnly)) {
        file.write(text);
        file.close();
    }
    start(QStringList{QStringLiteral("--scenario"), file.fileName()} + options);
}

bool CallProcess::connectClient()
{
    m_input.clear();
    m_client = std::make_unique<QLocalSocket>();
    const QDeadlineTimer deadline(cWaitMs);
    while (!deadline.hasExpired() && m_process.state() != QProcess::NotRunning) {
        m_client->connectToServer(m_socketName);
        if (m_client->waitForConnected(cWaitMs)) {
            return true;
        }
        QTest::qWait(2);
    }
    return false;
}

bool CallProcess::startRegistered(const QStringList &options)
{
    start(options);
    if (!connectClient()) {
        return false;
    }
    command(QStringLiteral("RegeditUser"), {QStringLiteral("100"), QStringLiteral("Me"), QStringLiteral("r"), false});
    return nextNotification() == QLatin1String("17 true") && nextNotification() == QLatin1String("999 registered 100");
}

void CallProcess::write(const QByteArray &bytes)
{
    m_client->write(bytes);
    while (m_client->bytesToWrite() > 0 && m_client->waitForBytesWritten(cWaitMs)) {
    }
}

QByteArray CallProcess::line(const QString &name, const QJsonArray &parameters)
{
    QJsonObject object{{QStringLiteral("messagetype"), name}};
    for (int i = 0; i < parameters.size(); ++i) {
        object.insert(QStringLiteral("param%1").arg(i + 1), parameters.at(i));
    }
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

void CallProcess::command(const QString &name, const QJsonArray &parameters)
{
    write(line(name, parameters));
}

QByteArray CallProcess::nextRead()
{
    if (m_client->bytesAvailable() == 0) {
        m_client->waitForReadyRead(cWaitMs);
    }
    return m_client->readAll();
}

QString CallProcess::nextNotification()
{
    int end = m_input.indexOf('\n');
    for (; end < 0; end = m_input.indexOf('\n')) {
        const QByteArray read = nextRead();
        if (read.isEmpty()) {
            return {};
        }
        m_input += read;
    }
    const QJsonObject object = QJsonDocument::fromJson(m_input.left(end)).object();
    m_input.remove(0, end + 1);
    const QString code = QString::number(object.value(QStringLiteral("resultCode")).toInt(-1));
    return (code + QLatin1Char(' ') + object.value(QStringLiteral("content")).toString()).trimmed();
}

bool CallProcess::isNotified()
{
    m_input += m_client->readAll();
    return m_input.contains('\n');
}

bool CallProcess::waitDisconnected()
{
    return m_client->state() == QLocalSocket::UnconnectedState || m_client->waitForDisconnected(cWaitMs);
}

int CallProcess::exitCode()
{
    const bool ended = m_process.state() == QProcess::NotRunning || m_process.waitForFinished(cWaitMs);
    return ended && m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}

QStringList CallProcess::trace() const
{
    QStringList lines;
    QFile file(m_tracePath);
    if (file.open(QIODevice::ReadOnly)) {
        const QList<QByteArray> records = file.readAll().split('\n');
        for (const QByteArray &record : records) {
            lines.append(QString::fromUtf8(record.mid(record.indexOf(' ') + 1)));
        }
    }
    return lines;
}

bool CallProcess::waitTrace(const QString &text) const
{
    return QTest::qWaitFor([&] { return !trace().filter(text).isEmpty(); }, cWaitMs);
}

QString CallProcess::socketPath()
{
    return QDir(QDir::tempPath()).filePath(QStringLiteral("VoipSDK"));
}
