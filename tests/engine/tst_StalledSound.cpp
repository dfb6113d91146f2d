// A sound server that takes connections and answers nobody: a call is placed all the same, and the event loop goes on.

#include "fakes/EngineFixture.h"

#include <QDir>
#include <QLocalServer>
#include <QLocalSocket>
#include <QTest>
#include <QVector>

class tst_StalledSound : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void callIsPlaced();
    void ringRingsAndStops();

private:
    QLocalServer m_server;
};

void tst_StalledSound::initTestCase()
{
    const QString path = QDir::current().filePath(QStringLiteral("sound"));
    QVERIFY(m_server.listen(path));
    qputenv("PULSE_SERVER", "unix:" + path.toLocal8Bit());
}

void tst_StalledSound::callIsPlaced()
{
    EngineFixture f;
    f.manager->m_strUserId = QStringLiteral("me");
    f.manager->callSingleUser(QStringLiteral("anna"), false);
    QCOMPARE(f.state(), QString("outgoing anna, invite"));
    QCOMPARE(f.boxes.texts, QStringList());
    // The ring's client and the one that asks for the inputs; whoever had waited for their patience to end would find
    // them gone.
    QVector<QLocalSocket *> clients;
    while (clients.size() < 2) {
        QVERIFY(m_server.hasPendingConnections() || m_server.waitForNewConnection(30000));
        clients.append(m_server.nextPendingConnection());
    }
    for (QLocalSocket *client : clients) {
        client->waitForReadyRead(0);
        client->readAll();
        QVERIFY(!client->waitForDisconnected(0));
        QCOMPARE(client->state(), QLocalSocket::ConnectedState);
    }
}

void tst_StalledSound::ringRingsAndStops()
{
    EngineFixture f;
    f.notify(0, "bert");
    QCOMPARE(f.state(), QString("incoming bert, receive, ring"));
    f.manager->responseVoipRequest(true);
    QCOMPARE(f.state(), QString("incoming bert, receive"));
}

#include "support/TestProgram.h"
VOIP_TEST(tst_StalledSound, Widgets)
#include "tst_StalledSound.moc"
