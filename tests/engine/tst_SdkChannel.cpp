// The socket to the call process: connecting and the back-off, what of a read is delivered, the orderly end.

#include "fakes/EngineFixture.h"
#include "fakes/QtMessages.h"

#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>

namespace {

const QList<int> kBackOff{1000, 4000, 9000, 16000, 25000, 36000, 49000, 60000};

QByteArray line(int code, const QString &content = QString())
{
    return FakeCallProcess::line(code, content);
}

} // namespace

class tst_SdkChannel : public QObject
{
    Q_OBJECT

private slots:
    void connectsToARunningCallProcess();
    void failedConnectArmsOneSecondOnce();
    void lossesWaitLongerEachTimeAndThenFromOneSecondAgain_data();
    void lossesWaitLongerEachTimeAndThenFromOneSecondAgain();
    void connectAfterSevenFailuresMakesTheNextLossWaitOneSecond();
    void timerOfTheBackOffReconnects();
    void retriesWithoutASocketToTalkTo();
    void reconnectStopsTheTimerAndUsesTheSameSocket();
    void socketErrorChangesNoState();

    void userRegisteredWhileDownIsSentOnConnect();
    void automaticRegistrationNeedsIdAndValue_data();
    void automaticRegistrationNeedsIdAndValue();
    void lostConnectionIsRegisteredAgain();
    void unregisteringKeepsTheUserForTheNextConnect();
    void nothingElseIsReplayedAfterAReconnect();

    void linesOfOneReadAreDelivered_data();
    void linesOfOneReadAreDelivered();
    void lineSplitOverTwoReadsIsLost();
    void nulByteHidesTheRestOfTheReadOnly();
    void linesWithoutEffect_data();
    void linesWithoutEffect();
    void bytesThatComeDuringAnEventLoopInAHandlerAreHandled();
    void readIsWrittenToTheDebugLog();
    void readOfNothingIsNotWrittenToTheDebugLog();

    void exitHangsUpSaysQuitAndArmsTheTimer();
    void exitWithoutACallSaysQuitOnly();
    void exitWithoutAConnectionIsQuiet();
    void exitWithTheFarSideJustGoneIsQuiet();
    void secondExitDoesNothing();
    void exitLetsGoOfTheSocket();
    void endOfTheChannelClearsTheFlagWithoutASocketToo();
    void destructionSaysQuit();
    void writeToALostSocketIsLost();

private:
    static int reads(const QtMessages &messages);
    static QStringList delivered(const QtMessages &messages);
};

/// How many reads the engine has taken.
int tst_SdkChannel::reads(const QtMessages &messages)
{
    return std::count_if(messages.debugLines.cbegin(), messages.debugLines.cend(),
                         [](const QString &text) { return text.startsWith(QStringLiteral("Voip返回数据")); });
}

/// The payloads of the delivered 999 lines.
QStringList tst_SdkChannel::delivered(const QtMessages &messages)
{
    QStringList payloads;
    for (const QString &text : messages.debugLines) {
        if (text.startsWith("voipsdk:"))
            payloads.append(text.mid(8));
    }
    return payloads;
}

void tst_SdkChannel::connectsToARunningCallProcess()
{
    EngineFixture f;
    QVERIFY(f.manager->m_bSocketConnected);
    QVERIFY(f.manager->m_pVoipSocket);
    QCOMPARE(f.manager->m_pVoipSocket->parent(), f.manager.get());
    QVERIFY(!f.manager->m_reconnectTimer.isActive());
    QCOMPARE(f.takeLines(), QStringList());
}

void tst_SdkChannel::failedConnectArmsOneSecondOnce()
{
    EngineFixture f(EngineFixture::NoCallProcess);
    QVERIFY(!f.manager->m_bSocketConnected);
    QVERIFY(f.manager->m_pVoipSocket);
    QVERIFY(f.manager->m_reconnectTimer.isActive());
    QCOMPARE(f.manager->m_reconnectTimer.interval(), 1000);
    QCOMPARE(f.manager->m_nReconnectCount, Q_INT64_C(1));
}

void tst_SdkChannel::lossesWaitLongerEachTimeAndThenFromOneSecondAgain_data()
{
    QTest::addColumn<bool>("bySlot");

    QTest::newRow("the socket's loss") << true;
    QTest::newRow("the same rule called by its name") << false;
}

void tst_SdkChannel::lossesWaitLongerEachTimeAndThenFromOneSecondAgain()
{
    QFETCH(bool, bySlot);
    EngineFixture f;
    QList<int> intervals;
    for (int loss = 0; loss < 24; ++loss) {
        if (bySlot)
            f.manager->slot_VoipSDKDisConnected();
        else
            f.manager->reconnectVoipSDK();
        QVERIFY(f.manager->m_reconnectTimer.isActive());
        intervals.append(f.manager->m_reconnectTimer.interval());
        f.manager->m_reconnectTimer.stop();
    }
    QCOMPARE(intervals, kBackOff + kBackOff + kBackOff);
}

void tst_SdkChannel::connectAfterSevenFailuresMakesTheNextLossWaitOneSecond()
{
    EngineFixture f(EngineFixture::NoCallProcess);
    for (int failure = 2; failure <= 7; ++failure) {
        f.manager->slot_ReConnectVoipSDK();
        QCOMPARE(f.manager->m_reconnectTimer.interval(), kBackOff.at(failure - 1));
    }
    f.process.open();
    f.manager->slot_ReConnectVoipSDK();
    QVERIFY(f.manager->m_bSocketConnected);
    QCOMPARE(f.manager->m_nReconnectCount, Q_INT64_C(0));
    QVERIFY(!f.manager->m_reconnectTimer.isActive());
    f.process.close();
    QTRY_VERIFY(f.manager->m_reconnectTimer.isActive());
    QCOMPARE(f.manager->m_reconnectTimer.interval(), 1000);
}

void tst_SdkChannel::timerOfTheBackOffReconnects()
{
    EngineFixture f(EngineFixture::NoCallProcess);
    f.process.open();
    // The timer itself, not its slot.
    f.manager->m_reconnectTimer.start(0);
    QTRY_VERIFY(f.manager->m_bSocketConnected);
    QVERIFY(!f.manager->m_reconnectTimer.isActive());
}

void tst_SdkChannel::retriesWithoutASocketToTalkTo()
{
    EngineFixture f;
    f.manager->disconnectVoipSDKSocket();
    QVERIFY(!f.manager->m_pVoipSocket);
    f.process.takeLastLines();
    f.manager->slot_ReConnectVoipSDK();
    QVERIFY(f.manager->m_pVoipSocket);
    QVERIFY(f.manager->m_bSocketConnected);
}

void tst_SdkChannel::reconnectStopsTheTimerAndUsesTheSameSocket()
{
    EngineFixture f(EngineFixture::NoCallProcess);
    QLocalSocket *socket = f.manager->m_pVoipSocket;
    f.process.open();
    f.manager->slot_ReConnectVoipSDK();
    QCOMPARE(f.manager->m_pVoipSocket, socket);
    QVERIFY(!f.manager->m_reconnectTimer.isActive());
    // One connection of the signal, not one for each attempt.
    const QtMessages messages;
    f.process.send(line(999, "once"));
    QTRY_COMPARE(delivered(messages), QStringList{"once"});
}

void tst_SdkChannel::socketErrorChangesNoState()
{
    EngineFixture f;
    const QtMessages messages;
    f.manager->slot_DisplayError(QLocalSocket::ServerNotFoundError);
    QVERIFY(f.manager->m_bSocketConnected);
    QVERIFY(!f.manager->m_reconnectTimer.isActive());
    QCOMPARE(messages.debugLines, QStringList{"2"});
}

void tst_SdkChannel::userRegisteredWhileDownIsSentOnConnect()
{
    EngineFixture f(EngineFixture::NoCallProcess);
    f.manager->regeditVoipUser("me", QStringLiteral("我"), "ticket");
    QCOMPARE(f.manager->m_strUserId, QString("me"));
    QCOMPARE(f.manager->m_strNickName, QStringLiteral("我"));
    QCOMPARE(f.manager->m_strRegValue, QString("ticket"));
    f.process.open();
    f.manager->slot_ReConnectVoipSDK();
    QCOMPARE(f.takeLines(), QStringList{QStringLiteral("RegeditUser \"me\" \"我\" \"ticket\" false")});
}

void tst_SdkChannel::automaticRegistrationNeedsIdAndValue_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("nick");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QStringList>("direct");
    QTest::addColumn<QStringList>("automatic");

    const QString withoutNick("RegeditUser \"me\" \"\" \"ticket\" false");
    QTest::newRow("all but the nick name") << "me"
                                           << ""
                                           << "ticket" << QStringList{withoutNick} << QStringList{withoutNick};
    QTest::newRow("no value") << "me"
                              << "Nick"
                              << "" << QStringList{"RegeditUser \"me\" \"Nick\" \"\" false"} << QStringList();
    QTest::newRow("no id") << ""
                           << "Nick"
                           << "ticket" << QStringList{"RegeditUser \"\" \"Nick\" \"ticket\" false"} << QStringList();
}

void tst_SdkChannel::automaticRegistrationNeedsIdAndValue()
{
    QFETCH(QString, id);
    QFETCH(QString, nick);
    QFETCH(QString, value);
    EngineFixture f;
    f.manager->regeditVoipUser(id, nick, value);
    QTEST(f.takeLines(), "direct");
    f.manager->slot_VoipSDKConnected();
    QTEST(f.takeLines(), "automatic");
}

void tst_SdkChannel::lostConnectionIsRegisteredAgain()
{
    EngineFixture f;
    f.manager->regeditVoipUser("me", "Nick", "ticket");
    const QStringList registration{"RegeditUser \"me\" \"Nick\" \"ticket\" false"};
    QCOMPARE(f.takeLines(), registration);
    f.process.dropClient();
    QTRY_VERIFY(!f.manager->m_bSocketConnected);
    f.manager->slot_ReConnectVoipSDK();
    QVERIFY(f.manager->m_bSocketConnected);
    QCOMPARE(f.takeLines(), registration);
}

void tst_SdkChannel::unregisteringKeepsTheUserForTheNextConnect()
{
    EngineFixture f;
    f.manager->regeditVoipUser("me", "Nick", "ticket");
    f.manager->unRegeditCurrentVoipUser();
    const QString registration("RegeditUser \"me\" \"Nick\" \"ticket\" false");
    QCOMPARE(f.takeLines(), QStringList({registration, "UnReg \"me\""}));
    QCOMPARE(f.manager->m_strUserId, QString("me"));
    f.process.dropClient();
    QTRY_VERIFY(!f.manager->m_bSocketConnected);
    f.manager->slot_ReConnectVoipSDK();
    QCOMPARE(f.takeLines(), QStringList{registration});
}

void tst_SdkChannel::nothingElseIsReplayedAfterAReconnect()
{
    EngineFixture f;
    f.manager->regeditVoipUser("me", "Nick", "ticket");
    f.manager->callSingleUser("anna", false);
    f.takeLines();
    f.process.dropClient();
    QTRY_VERIFY(!f.manager->m_bSocketConnected);
    f.manager->slot_SetMicEnable(false);
    f.manager->slot_ReConnectVoipSDK();
    QCOMPARE(f.takeLines(), QStringList{"RegeditUser \"me\" \"Nick\" \"ticket\" false"});
    QCOMPARE(f.manager->m_callData.peerId, QString("anna"));
}

void tst_SdkChannel::linesOfOneReadAreDelivered_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("payloads");

    const QByteArray a = line(999, "a");
    const QByteArray b = line(999, "b");
    QTest::newRow("one") << a << QStringList{"a"};
    QTest::newRow("two in order") << b + a << QStringList{"b", "a"};
    QTest::newRow("two equal ones") << a + a << QStringList{"a"};
    QTest::newRow("two equal ones apart") << a + b + a << QStringList{"a", "b"};
    QTest::newRow("one and a half") << a + b.left(12) << QStringList{"a"};
    QTest::newRow("malformed between") << a + "{\n" + b << QStringList{"a", "b"};
    QTest::newRow("lines that throw in the parser between")
        << a + "5\n\"x\"\n[1]\n{\"resultCode\":\"999\"}\n" + QByteArray(2000, '[') + "\n" + b << QStringList{"a", "b"};
    QTest::newRow("empty line between") << a + "\n" + b << QStringList{"a"};
    QTest::newRow("carriage returns") << QByteArray(a).replace("\n", "\r\n") + b << QStringList{"a", "b"};
    QTest::newRow("outside ASCII") << line(999, QStringLiteral("呼叫")) << QStringList{QStringLiteral("呼叫")};
}

void tst_SdkChannel::linesOfOneReadAreDelivered()
{
    QFETCH(QByteArray, bytes);
    EngineFixture f;
    const QtMessages messages;
    f.process.send(bytes);
    QTRY_COMPARE(reads(messages), 1);
    QTEST(delivered(messages), "payloads");
    QCOMPARE(messages.warnings, QStringList());
}

void tst_SdkChannel::lineSplitOverTwoReadsIsLost()
{
    EngineFixture f;
    const QtMessages messages;
    const QByteArray split = line(999, "split in the middle");
    f.process.send(split.left(20));
    QTRY_COMPARE(reads(messages), 1);
    f.process.send(split.mid(20) + line(999, "next"));
    QTRY_COMPARE(reads(messages), 2);
    QCOMPARE(delivered(messages), QStringList{"next"});
}

void tst_SdkChannel::nulByteHidesTheRestOfTheReadOnly()
{
    EngineFixture f;
    const QtMessages messages;
    // The line feed behind the byte would give the next line a clean start.
    f.process.send(line(999, "before") + '\0' + '\n' + line(999, "behind"));
    QTRY_COMPARE(reads(messages), 1);
    f.process.send(line(999, "later"));
    QTRY_COMPARE(reads(messages), 2);
    QCOMPARE(delivered(messages), QStringList({"before", "later"}));
}

void tst_SdkChannel::linesWithoutEffect_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("code -1") << R"({"resultCode":-1,"content":"bert"})";
    QTest::newRow("least code") << R"({"resultCode":-2147483648,"content":"bert"})";
    QTest::newRow("code that no one knows") << R"({"resultCode":998,"content":"bert"})";
    QTest::newRow("no JSON") << "hello";
    QTest::newRow("half a document") << R"({"resultCode":0,"content":"be)";
    QTest::newRow("number") << "5";
    QTest::newRow("code as text") << R"({"resultCode":"0","content":"bert"})";
    QTest::newRow("object as payload") << R"({"resultCode":0,"content":{"id":"bert"}})";
}

void tst_SdkChannel::linesWithoutEffect()
{
    QFETCH(QString, text);
    EngineFixture f;
    f.manager->recevieVoipMessage(text + "\n");
    QCOMPARE(f.takeJournal(), QStringList());
    QCOMPARE(f.state(), QString("idle"));
    f.manager->recevieVoipMessage("{}");
    QCOMPARE(f.takeJournal(), QStringList{"4639  false false"});
}

void tst_SdkChannel::bytesThatComeDuringAnEventLoopInAHandlerAreHandled()
{
    EngineFixture f;
    f.whileHandled = [&f](BaseEvent &event) {
        if (event.msgId != MSG_RECEVIE_VOIP_CALL)
            return;
        f.process.send(line(18));
        QEventLoop loop;
        while (f.manager->m_pVoipSocket->bytesAvailable() == 0)
            loop.processEvents(QEventLoop::WaitForMoreEvents);
    };
    f.process.send(line(0, "bert"));
    QTRY_VERIFY(!f.manager->m_callData.peerId.isEmpty());
    QTRY_VERIFY(f.manager->m_callData.bIsConnected);
    QVERIFY(!f.manager->m_recevieTimer.isActive());
}

void tst_SdkChannel::readIsWrittenToTheDebugLog()
{
    EngineFixture f;
    const QtMessages messages;
    const QByteArray bytes = line(998, QStringLiteral("呼叫"));
    f.process.send(bytes);
    QTRY_COMPARE(messages.debugLines, QStringList{QStringLiteral("Voip返回数据") + QString::fromUtf8(bytes)});
}

void tst_SdkChannel::readOfNothingIsNotWrittenToTheDebugLog()
{
    EngineFixture f;
    const QtMessages messages;
    f.manager->slot_VoipSDKDataRecevie();
    f.manager->disconnectVoipSDKSocket();
    f.manager->slot_VoipSDKDataRecevie();
    QCOMPARE(messages.debugLines, QStringList());
}

void tst_SdkChannel::exitHangsUpSaysQuitAndArmsTheTimer()
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

void tst_SdkChannel::exitWithoutACallSaysQuitOnly()
{
    EngineFixture f;
    f.manager->exitVoip();
    QCOMPARE(f.process.takeLastLines(), QStringList{"quit"});
    QCOMPARE(f.host.commands(), QList<int>());
}

void tst_SdkChannel::exitWithoutAConnectionIsQuiet()
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

void tst_SdkChannel::exitWithTheFarSideJustGoneIsQuiet()
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

void tst_SdkChannel::secondExitDoesNothing()
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

void tst_SdkChannel::exitLetsGoOfTheSocket()
{
    EngineFixture f;
    const QPointer<QLocalSocket> socket = f.manager->m_pVoipSocket;
    f.manager->exitVoip();
    f.manager->m_reconnectTimer.stop();
    QVERIFY(socket);
    const QtMessages messages;
    // What it still reports until it is gone reaches nobody.
    emit socket->disconnected();
    QMetaObject::invokeMethod(socket, "error", Q_ARG(QLocalSocket::LocalSocketError, QLocalSocket::PeerClosedError));
    QVERIFY(!f.manager->m_reconnectTimer.isActive());
    QCOMPARE(messages.debugLines, QStringList());
    QCoreApplication::sendPostedEvents(socket, QEvent::DeferredDelete);
    QVERIFY(!socket);
}

void tst_SdkChannel::endOfTheChannelClearsTheFlagWithoutASocketToo()
{
    EngineFixture f;
    f.manager->disconnectVoipSDKSocket();
    f.manager->m_bSocketConnected = true;
    f.manager->disconnectVoipSDKSocket();
    QVERIFY(!f.manager->m_bSocketConnected);
}

void tst_SdkChannel::destructionSaysQuit()
{
    EngineFixture f;
    f.manager.reset();
    QCOMPARE(f.process.takeLastLines(), QStringList{"quit"});
}

void tst_SdkChannel::writeToALostSocketIsLost()
{
    EngineFixture f;
    f.process.dropClient();
    QTRY_VERIFY(!f.manager->m_bSocketConnected);
    const QtMessages messages;
    // Accepting is the one command that is sent without a look at the channel.
    f.manager->acceptVoipCall();
    f.manager->sendVoipMessage("lost\n");
    QCOMPARE(messages.warnings.filter("QIODevice"), QStringList());
    f.manager->slot_ReConnectVoipSDK();
    QVERIFY(f.manager->m_bSocketConnected);
    QCOMPARE(f.takeLines(), QStringList());
}

QTEST_MAIN(tst_SdkChannel)
#include "tst_SdkChannel.moc"
