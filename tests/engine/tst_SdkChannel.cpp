// The socket to the call process: connecting, the back-off after a loss, the orderly end.

#include "engine/ReadLines.h"
#include "fakes/EngineTest.h"
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

class tst_SdkChannel : public EngineTest<EngineFixture>
{
    Q_OBJECT

private slots:
    void connectsToARunningCallProcess()
    {
        QVERIFY(m_f->manager->m_bSocketConnected);
        QVERIFY(m_f->manager->m_pVoipSocket);
        QCOMPARE(m_f->manager->m_pVoipSocket->parent(), m_f->manager.get());
        QVERIFY(!m_f->manager->m_reconnectTimer.isActive());
        QCOMPARE(m_f->takeLines(), QStringList());
    }

    void failedConnectArmsOneSecondOnce()
    {
        begin(EngineFixture::NoCallProcess);
        QVERIFY(!m_f->manager->m_bSocketConnected);
        QVERIFY(m_f->manager->m_pVoipSocket);
        QVERIFY(m_f->manager->m_reconnectTimer.isActive());
        QCOMPARE(m_f->manager->m_reconnectTimer.interval(), 1000);
        QCOMPARE(m_f->manager->m_nReconnectCount, Q_INT64_C(1));
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
        QList<int> intervals;
        for (int loss = 0; loss < 24; ++loss) {
            if (bySlot) {
                m_f->manager->slot_VoipSDKDisConnected();
            } else {
                m_f->manager->reconnectVoipSDK();
            }
            QVERIFY(m_f->manager->m_reconnectTimer.isActive());
            intervals.append(m_f->manager->m_reconnectTimer.interval());
            m_f->manager->m_reconnectTimer.stop();
        }
        QCOMPARE(intervals, cBackOff + cBackOff + cBackOff);
    }

    void furtherLossStartsARunningTimerWithTheNextDelay()
    {
        begin(EngineFixture::NoCallProcess);
        QVERIFY(m_f->manager->m_reconnectTimer.isActive());
        m_f->manager->slot_VoipSDKDisConnected();
        QVERIFY(m_f->manager->m_reconnectTimer.isActive());
        QCOMPARE(m_f->manager->m_reconnectTimer.interval(), 4000);
    }

    void connectAfterSevenFailuresMakesTheNextLossWaitOneSecond()
    {
        begin(EngineFixture::NoCallProcess);
        for (int failure = 2; failure <= 7; ++failure) {
            m_f->manager->slot_ReConnectVoipSDK();
            QCOMPARE(m_f->manager->m_reconnectTimer.interval(), cBackOff.at(failure - 1));
        }
        m_f->process.open();
        m_f->manager->slot_ReConnectVoipSDK();
        QVERIFY(m_f->manager->m_bSocketConnected);
        QCOMPARE(m_f->manager->m_nReconnectCount, Q_INT64_C(0));
        QVERIFY(!m_f->manager->m_reconnectTimer.isActive());
        m_f->process.close();
        QTRY_VERIFY_WITH_TIMEOUT(m_f->manager->m_reconnectTimer.isActive(), cPatienceMs);
        QCOMPARE(m_f->manager->m_reconnectTimer.interval(), 1000);
    }

    void timerOfTheBackOffReconnects()
    {
        begin(EngineFixture::NoCallProcess);
        m_f->process.open();
        // The timer itself, not its slot.
        m_f->manager->m_reconnectTimer.start(0);
        QTRY_VERIFY_WITH_TIMEOUT(m_f->manager->m_bSocketConnected, cPatienceMs);
        QVERIFY(!m_f->manager->m_reconnectTimer.isActive());
    }

    void retriesWithoutASocketToTalkTo()
    {
        m_f->manager->disconnectVoipSDKSocket();
        QVERIFY(!m_f->manager->m_pVoipSocket);
        m_f->process.takeLastLines();
        m_f->manager->slot_ReConnectVoipSDK();
        QVERIFY(m_f->manager->m_pVoipSocket);
        QVERIFY(m_f->manager->m_bSocketConnected);
    }

    void reconnectStopsTheTimerAndUsesTheSameSocket()
    {
        begin(EngineFixture::NoCallProcess);
        QLocalSocket *socket = m_f->manager->m_pVoipSocket;
        m_f->process.open();
        m_f->manager->slot_ReConnectVoipSDK();
        QCOMPARE(m_f->manager->m_pVoipSocket, socket);
        QVERIFY(!m_f->manager->m_reconnectTimer.isActive());
        // One connection of the signal, not one for each attempt.
        const QtMessages messages;
        m_f->process.send(FakeCallProcess::line(Code::SdkLog, "once"));
        QTRY_COMPARE_WITH_TIMEOUT(deliveredPayloads(messages), QStringList{"once"}, cPatienceMs);
    }

    void connectingAgainKeepsTheConnectionAndRegistersAgain()
    {
        m_f->manager->regeditVoipUser("me", "Nick", "ticket");
        m_f->takeLines();
        QLocalSocket *socket = m_f->manager->m_pVoipSocket;
        const QSignalSpy ends(socket, &QLocalSocket::disconnected);
        const QtMessages messages;
        m_f->manager->creatVoipSDKSocket();
        QCOMPARE(messages.debugLines, QStringList{QString::number(QLocalSocket::OperationError)});
        QCOMPARE(m_f->takeLines(), QStringList{"RegeditUser \"me\" \"Nick\" \"ticket\" false"});
        QVERIFY(m_f->manager->m_bSocketConnected);
        QCOMPARE(m_f->manager->m_pVoipSocket, socket);
        QCOMPARE(socket->state(), QLocalSocket::ConnectedState);
        QCOMPARE(ends.count(), 0);
        QVERIFY(!m_f->manager->m_reconnectTimer.isActive());
    }

    void socketErrorChangesNoState()
    {
        const QtMessages messages;
        m_f->manager->slot_DisplayError(QLocalSocket::ServerNotFoundError);
        QVERIFY(m_f->manager->m_bSocketConnected);
        QVERIFY(!m_f->manager->m_reconnectTimer.isActive());
        QCOMPARE(messages.debugLines, QStringList{"2"});
    }

    void exitHangsUpSaysQuitAndArmsTheTimer()
    {
        m_f->manager->callSingleUser("anna", false);
        m_f->takeJournal();
        const QtMessages messages;
        m_f->manager->exitVoip();
        QCOMPARE(m_f->process.takeLastLines(), QStringList({"SetMicEnable true", "SetSpeakerEnble true", "quit"}));
        QCOMPARE(m_f->takeJournal(),
                 QStringList({"HangUpCall", "4345 anna@kelvar.im", "4478 false anna 21 true false"}));
        QVERIFY(!m_f->manager->m_pVoipSocket);
        QVERIFY(!m_f->manager->m_bSocketConnected);
        QVERIFY(!m_f->manager->m_pVoipProcess);
        // The socket still reports its end.
        QVERIFY(m_f->manager->m_reconnectTimer.isActive());
        QCOMPARE(m_f->manager->m_reconnectTimer.interval(), 1000);
        QCOMPARE(messages.warnings, QStringList());
    }

    void exitWithoutACallSaysQuitOnly()
    {
        m_f->manager->exitVoip();
        QCOMPARE(m_f->process.takeLastLines(), QStringList{"quit"});
        QCOMPARE(m_f->host.commands(), QList<int>());
    }

    void exitWithoutAConnectionIsQuiet()
    {
        begin(EngineFixture::NoCallProcess);
        m_f->manager->m_reconnectTimer.start(49000);
        const QtMessages messages;
        m_f->manager->exitVoip();
        QCOMPARE(messages.warnings, QStringList());
        QVERIFY(!m_f->manager->m_pVoipSocket);
        QVERIFY(m_f->manager->m_reconnectTimer.isActive());
        QCOMPARE(m_f->manager->m_reconnectTimer.interval(), 49000);
    }

    void exitWithTheFarSideJustGoneIsQuiet()
    {
        m_f->process.close();
        QVERIFY(m_f->manager->m_bSocketConnected);
        const QtMessages messages;
        m_f->manager->exitVoip();
        QCOMPARE(messages.warnings, QStringList());
        QVERIFY(!m_f->manager->m_bSocketConnected);
        QVERIFY(!m_f->manager->m_pVoipSocket);
    }

    void secondExitDoesNothing()
    {
        m_f->manager->exitVoip();
        QCOMPARE(m_f->process.takeLastLines(), QStringList{"quit"});
        m_f->manager->m_reconnectTimer.stop();
        const QtMessages messages;
        m_f->manager->exitVoip();
        QCOMPARE(messages.warnings, QStringList());
        QVERIFY(!m_f->manager->m_reconnectTimer.isActive());
    }

    void exitLetsGoOfTheSocket()
    {
        const QPointer<QLocalSocket> socket = m_f->manager->m_pVoipSocket;
        m_f->manager->exitVoip();
        m_f->manager->m_reconnectTimer.stop();
        QVERIFY(socket);
        const QtMessages messages;
        // What it still reports until it is gone reaches nobody.
        emit socket->disconnected();
        QMetaObject::invokeMethod(socket, "error",
                                  Q_ARG(QLocalSocket::LocalSocketError, QLocalSocket::PeerClosedError));
        QVERIFY(!m_f->manager->m_reconnectTimer.isActive());
        QCOMPARE(messages.debugLines, QStringList());
        QCoreApplication::sendPostedEvents(socket, QEvent::DeferredDelete);
        QVERIFY(!socket);
    }

    void endOfTheChannelClearsTheFlagWithoutASocketToo()
    {
        m_f->manager->disconnectVoipSDKSocket();
        m_f->manager->m_bSocketConnected = true;
        m_f->manager->disconnectVoipSDKSocket();
        QVERIFY(!m_f->manager->m_bSocketConnected);
    }

    void destructionSaysQuit()
    {
        m_f->manager.reset();
        QCOMPARE(m_f->process.takeLastLines(), QStringList{"quit"});
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_SdkChannel, Widgets)
#include "tst_SdkChannel.moc"
