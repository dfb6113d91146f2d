// The socket to the call process: connecting, the back-off after a loss, the orderly end.

#include "ReadLines.h"
#include "fakes/EngineFixture.h"
#include "fakes/Patience.h"
#include "fakes/QtMessages.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

namespace {

const QList<int> cBackOff{1000, 4000, 9000, 16000, 25000, 36000, 49000, 60000};

} // namespace

class tst_SdkChannel : public QObject
{
    Q_OBJECT

private slots:
    void connectsToARunningCallProcess()
    {
        EngineFixture f;
        QVERIFY(f.manager->m_bSocketConnected);
        QVERIFY(f.manager->m_pVoipSocket);
        QCOMPARE(f.manager->m_pVoipSocket->parent(), f.manager.get());
        QVERIFY(!f.manager->m_reconnectTimer.isActive());
        QCOMPARE(f.takeLines(), QStringList());
    }

    void failedConnectArmsOneSecondOnce()
    {
        EngineFixture f(EngineFixture::NoCallProcess);
        QVERIFY(!f.manager->m_bSocketConnected);
        QVERIFY(f.manager->m_pVoipSocket);
        QVERIFY(f.manager->m_reconnectTimer.isActive());
        QCOMPARE(f.manager->m_reconnectTimer.interval(), 1000);
        QCOMPARE(f.manager->m_nReconnectCount, Q_INT64_C(1));
    }

    void lossesWaitLongerEachTimeAndThenFromOneSecondAgain_data()
    {
        QTest::addColumn<bool>("bySlot");

        QTest::newRow("the socket's loss") << true;
        QTest::newRow("the same rule called by its name") << false;
    }

    void lossesWaitLongerEachTimeAndThenFromOneSecondAgain()
    {
        QFETCH(bool, bySlot);
        EngineFixture f;
        QList<int> intervals;
        for (int loss = 0; loss < 24; ++loss) {
            if (bySlot) {
                f.manager->slot_VoipSDKDisConnected();
            } else {
                f.manager->reconnectVoipSDK();
            }
            QVERIFY(f.manager->m_reconnectTimer.isActive());
            intervals.append(f.manager->m_reconnectTimer.interval());
            f.manager->m_reconnectTimer.stop();
        }
        QCOMPARE(intervals, cBackOff + cBackOff + cBackOff);
    }

    void furtherLossStartsARunningTimerWithTheNextDelay()
    {
        EngineFixture f(EngineFixture::NoCallProcess);
        QVERIFY(f.manager->m_reconnectTimer.isActive());
        f.manager->slot_VoipSDKDisConnected();
        QVERIFY(f.manager->m_reconnectTimer.isActive());
        QCOMPARE(f.manager->m_reconnectTimer.interval(), 4000);
    }

    void connectAfterSevenFailuresMakesTheNextLossWaitOneSecond()
    {
        EngineFixture f(EngineFixture::NoCallProcess);
        for (int failure = 2; failure <= 7; ++failure) {
            f.manager->slot_ReConnectVoipSDK();
            QCOMPARE(f.manager->m_reconnectTimer.interval(), cBackOff.at(failure - 1));
        }
        f.process.open();
        f.manager->slot_ReConnectVoipSDK();
        QVERIFY(f.manager->m_bSocketConnected);
        QCOMPARE(f.manager->m_nReconnectCount, Q_INT64_C(0));
        QVERIFY(!f.manager->m_reconnectTimer.isActive());
        f.process.close();
        QTRY_VERIFY_WITH_TIMEOUT(f.manager->m_reconnectTimer.isActive(), cPatienceMs);
        QCOMPARE(f.manager->m_reconnectTimer.interval(), 1000);
    }

    void timerOfTheBackOffReconnects()
    {
        EngineFixture f(EngineFixture::NoCallProcess);
        f.process.open();
        // The timer itself, not its slot.
        f.manager->m_reconnectTimer.start(0);
        QTRY_VERIFY_WITH_TIMEOUT(f.manager->m_bSocketConnected, cPatienceMs);
        QVERIFY(!f.manager->m_reconnectTimer.isActive());
    }

    void retriesWithoutASocketToTalkTo()
    {
        EngineFixture f;
        f.manager->disconnectVoipSDKSocket();
        QVERIFY(!f.manager->m_pVoipSocket);
        f.process.takeLastLines();
        f.manager->slot_ReConnectVoipSDK();
        QVERIFY(f.manager->m_pVoipSocket);
        QVERIFY(f.manager->m_bSocketConnected);
    }

    void reconnectStopsTheTimerAndUsesTheSameSocket()
    {
        EngineFixture f(EngineFixture::NoCallProcess);
        QLocalSocket *socket = f.manager->m_pVoipSocket;
        f.process.open();
        f.manager->slot_ReConnectVoipSDK();
        QCOMPARE(f.manager->m_pVoipSocket, socket);
        QVERIFY(!f.manager->m_reconnectTimer.isActive());
        // One connection of the signal, not one for each attempt.
        const QtMessages messages;
        f.process.send(FakeCallProcess::line(999, "once"));
        QTRY_COMPARE_WITH_TIMEOUT(deliveredPayloads(messages), QStringList{"once"}, cPatienceMs);
    }

    void connectingAgainKeepsTheConnectionAndRegistersAgain()
    {
        EngineFixture f;
        f.manager->regeditVoipUser("me", "Nick", "ticket");
        f.takeLines();
        QLocalSocket *socket = f.manager->m_pVoipSocket;
        const QSignalSpy ends(socket, &QLocalSocket::disconnected);
        const QtMessages messages;
        f.manager->creatVoipSDKSocket();
        QCOMPARE(messages.debugLines, QStringList{QString::number(QLocalSocket::OperationError)});
        QCOMPARE(f.takeLines(), QStringList{"RegeditUser \"me\" \"Nick\" \"ticket\" false"});
        QVERIFY(f.manager->m_bSocketConnected);
        QCOMPARE(f.manager->m_pVoipSocket, socket);
        QCOMPARE(socket->state(), QLocalSocket::ConnectedState);
        QCOMPARE(ends.count(), 0);
        QVERIFY(!f.manager->m_reconnectTimer.isActive());
    }

    void socketErrorChangesNoState()
    {
        EngineFixture f;
        const QtMessages messages;
        f.manager->slot_DisplayError(QLocalSocket::ServerNotFoundError);
        QVERIFY(f.manager->m_bSocketConnected);
        QVERIFY(!f.manager->m_reconnectTimer.isActive());
        QCOMPARE(messages.debugLines, QStringList{"2"});
    }

    void exitHangsUpSaysQuitAndArmsTheTimer()
    {
        EngineFixture f;
        f.manager->callSingleUser("anna", false);
        f.takeJournal();
        const QtMessages messages;
        f.manager->exitVoip();
        QCOMPARE(f.process.takeLastLines(), QStringList({"SetMicEnable true", "SetSpeakerEnble true", "quit"}));
        QCOMPARE(f.takeJournal(), QStringList({"HangUpCall", "4345 anna@kelvar.im", "4478 false anna 21 true false"}));
        QVERIFY(!f.manager->m_pVoipSocket);
        QVERIFY(!f.manager->m_bSocketConnected);
        QVERIFY(!f.manager->m_pVoipProcess);
        // The socket still reports its end.
        QVERIFY(f.manager->m_reconnectTimer.isActive());
        QCOMPARE(f.manager->m_reconnectTimer.interval(), 1000);
        QCOMPARE(messages.warnings, QStringList());
    }

    void exitWithoutACallSaysQuitOnly()
    {
        EngineFixture f;
        f.manager->exitVoip();
        QCOMPARE(f.process.takeLastLines(), QStringList{"quit"});
        QCOMPARE(f.host.commands(), QList<int>());
    }

    void exitWithoutAConnectionIsQuiet()
    {
        EngineFixture f(EngineFixture::NoCallProcess);
        f.manager->m_reconnectTimer.start(49000);
        const QtMessages messages;
        f.manager->exitVoip();
        QCOMPARE(messages.warnings, QStringList());
        QVERIFY(!f.manager->m_pVoipSocket);
        QVERIFY(f.manager->m_reconnectTimer.isActive());
        QCOMPARE(f.manager->m_reconnectTimer.interval(), 49000);
    }

    void exitWithTheFarSideJustGoneIsQuiet()
    {
        EngineFixture f;
        f.process.close();
        QVERIFY(f.manager->m_bSocketConnected);
        const QtMessages messages;
        f.manager->exitVoip();
        QCOMPARE(messages.warnings, QStringList());
        QVERIFY(!f.manager->m_bSocketConnected);
        QVERIFY(!f.manager->m_pVoipSocket);
    }

    void secondExitDoesNothing()
    {
        EngineFixture f;
        f.manager->exitVoip();
        QCOMPARE(f.process.takeLastLines(), QStringList{"quit"});
        f.manager->m_reconnectTimer.stop();
        const QtMessages messages;
        f.manager->exitVoip();
        QCOMPARE(messages.warnings, QStringList());
        QVERIFY(!f.manager->m_reconnectTimer.isActive());
    }

    void exitLetsGoOfTheSocket()
    {
        EngineFixture f;
        const QPointer<QLocalSocket> socket = f.manager->m_pVoipSocket;
        f.manager->exitVoip();
        f.manager->m_reconnectTimer.stop();
        QVERIFY(socket);
        const QtMessages messages;
        // What it still reports until it is gone reaches nobody.
        emit socket->disconnected();
        QMetaObject::invokeMethod(socket, "error",
                                  Q_ARG(QLocalSocket::LocalSocketError, QLocalSocket::PeerClosedError));
        QVERIFY(!f.manager->m_reconnectTimer.isActive());
        QCOMPARE(messages.debugLines, QStringList());
        QCoreApplication::sendPostedEvents(socket, QEvent::DeferredDelete);
        QVERIFY(!socket);
    }

    void endOfTheChannelClearsTheFlagWithoutASocketToo()
    {
        EngineFixture f;
        f.manager->disconnectVoipSDKSocket();
        f.manager->m_bSocketConnected = true;
        f.manager->disconnectVoipSDKSocket();
        QVERIFY(!f.manager->m_bSocketConnected);
    }

    void destructionSaysQuit()
    {
        EngineFixture f;
        f.manager.reset();
        QCOMPARE(f.process.takeLastLines(), QStringList{"quit"});
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_SdkChannel, Widgets)
#include "tst_SdkChannel.moc"
