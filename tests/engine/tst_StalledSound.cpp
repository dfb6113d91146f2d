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
    QTRY_VERIFY(m_server.hasPendingConnections());
    // A second question is not held up for longer than the first.
    QVERIFY(f.manager->getIsHasAudioInputDevice());
}

void tst_StalledSound::ringRingsAndStops()
{
    EngineFixture f;
    f.notify(0, "bert");
    QCOMPARE(f.state(), QString("incoming bert, receive, ring"));
    f.manager->responseVoipRequest(true);
    QCOMPARE(f.state(), QString("incoming bert, receive"));
}

QTEST_MAIN(tst_StalledSound)
#include "tst_StalledSound.moc"
