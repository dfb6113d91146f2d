#include "fakes/FakeCallProcess.h"

#include "fakes/Patience.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocalSocket>

namespace {

const QByteArray cEndMark = "end of what was written\n";

QString compact(const QJsonValue &value)
{
    const QString array = QString::fromUtf8(QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact));
    return array.mid(1, array.size() - 2);
}

} // namespace

FakeCallProcess::FakeCallProcess()
{
    open();
}

FakeCallProcess::~FakeCallProcess()
{
    close();
}

void FakeCallProcess::open()
{
    if (!m_server.listen(QStringLiteral("VoipSDK"))) {
        qFatal("the local server could not be opened");
    }
}

void FakeCallProcess::close()
{
    dropClient();
    m_server.close();
}

void FakeCallProcess::dropClient()
{
    acceptClient();
    delete m_pClient;
}

void FakeCallProcess::acceptClient()
{
    while (m_server.hasPendingConnections() || m_server.waitForNewConnection(0)) {
        if (m_pClient) {
            m_buffer += m_pClient->readAll();
            delete m_pClient;
        }
        m_pClient = m_server.nextPendingConnection();
    }
}

void FakeCallProcess::send(const QByteArray &bytes)
{
    acceptClient();
    if (!m_pClient) {
        qFatal("nobody is connected");
    }
    m_pClient->write(bytes);
    m_pClient->flush();
}

QByteArray FakeCallProcess::line(int code, const QString &content)
{
    const QJsonObject object{{"resultCode", code}, {"content", content}};
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

void FakeCallProcess::readUntil(const QByteArray &end)
{
    acceptClient();
    QLocalSocket *client = m_pClient;
    if (!client) {
        return;
    }
    m_buffer += client->readAll();
    while ((end.isEmpty() || !m_buffer.endsWith(end)) && client->waitForReadyRead(cPatienceMs)) {
        m_buffer += client->readAll();
    }
    m_buffer += client->readAll();
}

QList<QByteArray> FakeCallProcess::takeRawLines(QLocalSocket *client)
{
    if (client && client->state() == QLocalSocket::ConnectedState) {
        client->write(cEndMark);
        client->flush();
        readUntil(cEndMark);
    }
    QList<QByteArray> lines;
    int start = 0;
    for (int end = m_buffer.indexOf('\n'); end >= 0; end = m_buffer.indexOf('\n', start)) {
        lines.append(m_buffer.mid(start, end + 1 - start));
        start = end + 1;
    }
    m_buffer.remove(0, start);
    lines.removeAll(cEndMark);
    return lines;
}

QStringList FakeCallProcess::takeLines(QLocalSocket *client)
{
    QStringList lines;
    const QList<QByteArray> rawLines = takeRawLines(client);
    for (const QByteArray &rawLine : rawLines) {
        lines.append(shown(rawLine));
    }
    return lines;
}

QStringList FakeCallProcess::takeLastLines()
{
    readUntil(QByteArray());
    return takeLines(nullptr);
}

QString FakeCallProcess::shown(const QByteArray &line)
{
    const QJsonDocument document = QJsonDocument::fromJson(line);
    if (!document.isObject()) {
        return QString::fromUtf8(line).chopped(1);
    }
    const QJsonObject object = document.object();
    QStringList words{object.value("messagetype").toString()};
    for (int number = 1; object.contains("param" + QString::number(number)); ++number) {
        words.append(compact(object.value("param" + QString::number(number))));
    }
    return words.join(' ');
}
