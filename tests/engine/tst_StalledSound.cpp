// A sound server that takes connections and answers nobody: a call is placed all the same, and the event loop goes on.

#include "fakes/EngineFixture.h"

#include <QDir>
#include <QLocalServer>
#include <QLocalSocket>
#include <QTest>

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
    // The ring's client and the one that asks for the inputs. The latter still waits; whoever had waited with it, for
    // its patience to end, would find both gone.
    int connected = 0;
    for (int client = 0; client < 2; ++client) {
        QVERIFY(m_server.hasPendingConnections() || m_server.waitForNewConnection(30000));
        QLocalSocket *socket = m_server.nextPendingConnection();
        socket->waitForReadyRead(0);
        socket->readAll();
        connected += socket->state() == QLocalSocket::ConnectedState && !socket->waitForDisconnected(0) ? 1 : 0;
    }
    QVERIFY(connected > 0);
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
