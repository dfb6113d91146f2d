// The ring's player: one for all engines of a process, silent when its engine goes, and gone in time when the process
// ends.

#include "engine/CallRing.h"
#include "fakes/EngineFixture.h"

#include <QProcess>
#include <QSignalSpy>
#include <QSound>
#include <QTest>

#include <array>

class tst_CallRing : public QObject
{
    Q_OBJECT

private slots:
    void playerOutlivesItsEngines()
    {
        const QSound *first = nullptr;
        {
            EngineFixture f;
            first = f.manager->m_pRingSound;
            QVERIFY(!first->parent());
        }
        QSignalSpy gone(first, &QObject::destroyed);
        for (int round = 0; round < 3; ++round) {
            EngineFixture f;
            QCOMPARE(f.manager->m_pRingSound, first);
            f.notify(Code::IncomingCall, "bert");
            QCOMPARE(f.state(), QString("incoming bert, receive, ring"));
        }
        QCOMPARE(gone.count(), 0);
        QCOMPARE(first->loops(), -1);
    }

    void engineThatGoesFallsSilent()
    {
        {
            EngineFixture f;
            f.notify(Code::IncomingCall, "bert");
            QVERIFY(!CallRing::player()->isFinished());
        }
        QVERIFY(CallRing::player()->isFinished());
    }

    void engineDoesWithoutAPlayerThatHasGone()
    {
        EngineFixture f;
        emit f.manager->m_pRingSound->destroyed();
        QVERIFY(!f.manager->m_pRingSound);
        f.manager->playReceviceCall();
        f.manager->stopRinging();
        QVERIFY(CallRing::player()->isFinished());
    }

    void processEndsInOrderWhileTheFileIsRead_data()
    {
        QTest::addColumn<QStringList>("way");

        QTest::newRow("silent") << QStringList();
        QTest::newRow("ringing") << QStringList("ringing");
    }

    void processEndsInOrderWhileTheFileIsRead()
    {
        QFETCH(QStringList, way);
        const EngineFixture providesTheFile(EngineFixture::NoCallProcess);
        std::array<QProcess, 12> children;
        for (QProcess &child : children) {
            child.start(QStringLiteral(VOIP_RING_CHILD), way);
        }
        for (QProcess &child : children) {
            QVERIFY(child.waitForFinished(120000));
            QCOMPARE(child.exitStatus(), QProcess::NormalExit);
            QCOMPARE(child.exitCode(), 0);
            const QByteArray said = child.readAllStandardError();
            QVERIFY2(!said.contains("Last-Modified") && !said.contains("QMutex") && !said.contains("QEventLoop"), said);
        }
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CallRing, Widgets)
#include "tst_CallRing.moc"
