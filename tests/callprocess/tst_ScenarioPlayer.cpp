// What the player of scenarios does: expectations, the bytes that go out, the connection, the end.

#include "callprocess/CallProcessTest.h"
#include "endpoint/Wire.h"
#include "fakes/Patience.h"

#include <QtTest>

using Wire::Code;

class tst_ScenarioPlayer : public CallProcessTest
{
    Q_OBJECT

private slots:
    void metExpectationsLeadToTheEnd()
    {
        CallProcess peer;
        peer.startScenario("expect CallUser param1=30010001 param2=false\nsend 18\nexpect HangUpCall\nend\n");
        QVERIFY(peer.connectClient());
        peer.command(QStringLiteral("CallUser"), CallProcess::callParameters());
        QCOMPARE(peer.nextNotification(), QStringLiteral("18"));
        peer.command(QStringLiteral("HangUpCall"));
        QCOMPARE(peer.exitCode(), 0);
        const QStringList trace = peer.trace();
        const QStringList expected{
            QStringLiteral("= connected"),
            QStringLiteral("< {\"messagetype\":\"CallUser\",\"param1\":\"30010001\",\"param2\":false}"),
            QStringLiteral("> {\"content\":\"\",\"resultCode\":18}"),
            QStringLiteral("< {\"messagetype\":\"HangUpCall\"}"), QStringLiteral("= scenario ended")};
        int position = -1;
        for (const QString &record : expected) {
            const int found = trace.indexOf(record);
            QVERIFY2(found > position, qPrintable(record));
            position = found;
        }
    }

    void unmetExpectationEndsWithThree()
    {
        CallProcess peer;
        peer.startScenario("# first\nexpect CallUser param1=30010002\n");
        QVERIFY(peer.connectClient());
        peer.command(QStringLiteral("CallUser"), CallProcess::callParameters());
        QCOMPARE(peer.exitCode(), 3);
        QVERIFY(
            peer.waitTrace(QStringLiteral(":2: expected CallUser param1=30010002, got "
                                          "{\"messagetype\":\"CallUser\",\"param1\":\"30010001\",\"param2\":false}")));
        QVERIFY(!QFile::exists(CallProcess::socketPath()));
    }

    void missingLineEndsWithThree()
    {
        CallProcess peer;
        peer.startScenario("timeout 20ms\nexpect CallUser\n");
        QCOMPARE(peer.exitCode(), 3);
        QVERIFY(peer.waitTrace(QStringLiteral(":2: expected CallUser, got nothing for 20 ms")));
    }

    void unexpectedLineEndsWithThree()
    {
        CallProcess peer;
        peer.startScenario("await-client\nexpect-nothing 100s\n");
        QVERIFY(peer.connectClient());
        peer.command(QStringLiteral("HangUpCall"));
        QCOMPARE(peer.exitCode(), 3);
        QVERIFY(peer.waitTrace(QStringLiteral(":2: expected nothing, got {\"messagetype\":\"HangUpCall\"}")));
    }

    void ignoredCommandsArePassedOver()
    {
        CallProcess peer;
        peer.startScenario("ignore SetMicEnable UnReg\nexpect HangUpCall\nexpect-nothing 1ms\nend\n");
        QVERIFY(peer.connectClient());
        peer.command(QStringLiteral("SetMicEnable"), {true});
        peer.command(QStringLiteral("HangUpCall"));
        peer.command(QStringLiteral("UnReg"), {QStringLiteral("100")});
        QCOMPARE(peer.exitCode(), 0);
    }

    void ignoredCommandCanStillBeExpected()
    {
        CallProcess peer;
        peer.startScenario("ignore SetMicEnable\nexpect SetMicEnable param1=false\nend\n");
        QVERIFY(peer.connectClient());
        peer.command(QStringLiteral("SetMicEnable"), {true});
        peer.command(QStringLiteral("SetMicEnable"), {false});
        QCOMPARE(peer.exitCode(), 0);
    }

    void awaitPassesOverOthers()
    {
        CallProcess peer;
        peer.startScenario("await HangUpCall\nend\n");
        QVERIFY(peer.connectClient());
        peer.command(QStringLiteral("CallUser"), CallProcess::callParameters());
        peer.command(QStringLiteral("HangUpCall"));
        QCOMPARE(peer.exitCode(), 0);
    }

    void malformedLineIsTracedAndPassedOver()
    {
        CallProcess peer;
        peer.startScenario("expect HangUpCall\nend\n");
        QVERIFY(peer.connectClient());
        peer.write("nonsense\n[]\n");
        peer.command(QStringLiteral("HangUpCall"));
        QCOMPARE(peer.exitCode(), 0);
        QCOMPARE(peer.trace().filter(QRegularExpression(QStringLiteral("^!"))).size(), 2);
    }

    void sendWithoutAClientEndsWithThree()
    {
        CallProcess peer;
        peer.startScenario("send 18\n");
        QCOMPARE(peer.exitCode(), 3);
        QVERIFY(peer.waitTrace(QStringLiteral(":1: line 1 has nobody to send to")));
    }

    void badScenarioEndsWithTwo()
    {
        CallProcess peer;
        peer.startScenario("send 18\nshout\n");
        QCOMPARE(peer.exitCode(), 2);
        QVERIFY(peer.process().readAllStandardError().trimmed().endsWith(":2: unknown statement \"shout\""));
        QVERIFY(!QFile::exists(CallProcess::socketPath()));
    }

    void separateLinesComeInSeparateReads()
    {
        CallProcess peer;
        peer.startScenario("await-client\nrepeat 100 {\n send 999 same\n}\n");
        QVERIFY(peer.connectClient());
        for (int i = 0; i < 100; ++i) {
            QCOMPARE(peer.nextRead(), notificationLine(Code::SdkLog, QStringLiteral("same")));
        }
    }

    void joinedLinesComeInOneRead()
    {
        CallProcess peer;
        peer.startScenario("await-client\njoin {\n send 18\n raw \"x\\n\"\n send 8\n}\n");
        QVERIFY(peer.connectClient());
        QCOMPARE(peer.nextRead(),
                 notificationLine(Code::CallConnected, {}) + "x\n" + notificationLine(Code::PeerHangup, {}));
        QVERIFY(peer.waitTrace(
            QStringLiteral("> {\"content\":\"\",\"resultCode\":18}␊x␊{\"content\":\"\",\"resultCode\":8}")));
    }

    void splitLineComesInTwoReads()
    {
        CallProcess peer;
        peer.startScenario("await-client\nsplit 10 20ms 22\nsend 18\n");
        QVERIFY(peer.connectClient());
        const QByteArray line = notificationLine(Code::PeerBusy, {});
        QCOMPARE(peer.nextRead(), line.left(10));
        QCOMPARE(peer.nextRead(), line.mid(10));
        QCOMPARE(peer.nextRead(), notificationLine(Code::CallConnected, {}));
        QVERIFY(peer.waitTrace(QStringLiteral("> {\"content\"…")));
    }

    void rawBytesGoOutAsTheyAre()
    {
        CallProcess peer;
        peer.startScenario("await-client\nraw \"a\\0\\xFF\" '\\n' \"\\n\"\n");
        QVERIFY(peer.connectClient());
        QCOMPARE(peer.nextRead(), QByteArray("a\0\xFF\\n\n", 6));
    }

    void lineOfOneMegabyteArrivesWhole()
    {
        CallProcess peer;
        const QByteArray text(1024 * 1024, 'x');
        peer.startScenario("await-client\nsend 999 " + text + "\nsend 18\nend\n");
        QVERIFY(peer.connectClient());
        QCOMPARE(peer.nextNotification(), QStringLiteral("999 ") + QString::fromLatin1(text));
        QCOMPARE(peer.nextNotification(), QStringLiteral("18"));
        QCOMPARE(peer.exitCode(), 0);
    }

    void dieLeavesTheSocketFile()
    {
        CallProcess peer;
        peer.startScenario("await-client\nsend 18\ndie\n");
        QVERIFY(peer.connectClient());
        QCOMPARE(peer.nextNotification(), QStringLiteral("18"));
        QCOMPARE(peer.exitCode(), 9);
        QVERIFY(QFile::exists(CallProcess::socketPath()));
        QCOMPARE(peer.trace().filter(QStringLiteral("= ")).constLast(), QStringLiteral("= died"));

        CallProcess next;
        QVERIFY(next.startRegistered());
    }

    void dropClosesTheConnectionAndAwaitsTheNext()
    {
        CallProcess peer;
        peer.startScenario("await-client\nsend 18\ndrop\nawait-client\nsend 8\nawait-gone\nend\n");
        QVERIFY(peer.connectClient());
        QCOMPARE(peer.nextNotification(), QStringLiteral("18"));
        QVERIFY(peer.waitDisconnected());
        QVERIFY(peer.connectClient());
        QCOMPARE(peer.nextNotification(), QStringLiteral("8"));
        peer.client().disconnectFromServer();
        QCOMPARE(peer.exitCode(), 0);
    }

    void stopListenRefusesUntilRestart()
    {
        CallProcess peer;
        peer.startScenario("await-client\nstop-listen\nsend 18\nexpect HangUpCall\nrestart-listen\nsend 8\n");
        QVERIFY(peer.connectClient());
        QCOMPARE(peer.nextNotification(), QStringLiteral("18"));
        QVERIFY(!QFile::exists(CallProcess::socketPath()));
        QLocalSocket other;
        other.connectToServer(QStringLiteral("VoipSDK"));
        QVERIFY(!other.waitForConnected(cPatienceMs));
        peer.command(QStringLiteral("HangUpCall"));
        QCOMPARE(peer.nextNotification(), QStringLiteral("8"));
        other.connectToServer(QStringLiteral("VoipSDK"));
        QVERIFY(other.waitForConnected(cPatienceMs));
    }

    void playedScenarioServesOnUntilQuit()
    {
        CallProcess peer;
        peer.startScenario("await-client\nsend 18\n");
        QVERIFY(peer.connectClient());
        QCOMPARE(peer.nextNotification(), QStringLiteral("18"));
        peer.command(QStringLiteral("HangUpCall"));
        QVERIFY(peer.waitTrace(QStringLiteral("HangUpCall")));
        QCOMPARE(peer.process().state(), QProcess::Running);
        peer.write("quit\n");
        QCOMPARE(peer.exitCode(), 0);
    }

    void expectedQuitEndsWithZero()
    {
        CallProcess peer;
        peer.startScenario("expect HangUpCall\nexpect quit\ndie\n");
        QVERIFY(peer.connectClient());
        peer.write("{\"messagetype\":\"HangUpCall\"}\nquit\n");
        QCOMPARE(peer.exitCode(), 0);
    }

    void quitBeforeWhatIsExpectedEndsWithThree()
    {
        CallProcess peer;
        peer.startScenario("await HangUpCall\n");
        QVERIFY(peer.connectClient());
        peer.write("quit\n");
        QCOMPARE(peer.exitCode(), 3);
        QVERIFY(peer.waitTrace(QStringLiteral(":1: expected HangUpCall, got quit")));
    }

    void quitDuringAWaitChecksTheRest_data()
    {
        QTest::addColumn<QByteArray>("rest");
        QTest::addColumn<int>("exitCode");
        QTest::newRow("nothing more") << QByteArray("send 18\nwait 1000s\n") << 0;
        QTest::newRow("a line that came") << QByteArray("expect HangUpCall\n") << 0;
        QTest::newRow("a line that did not") << QByteArray("expect HangUpCall\nexpect HangUpCall\n") << 3;
        QTest::newRow("quiet") << QByteArray("expect HangUpCall\nexpect-nothing 1000s\n") << 0;
        QTest::newRow("not quiet") << QByteArray("expect-nothing 1000s\n") << 3;
        QTest::newRow("another client") << QByteArray("split 5 1000s 18\nawait-client\nawait-gone\n") << 0;
    }

    void quitDuringAWaitChecksTheRest()
    {
        QFETCH(QByteArray, rest);
        QFETCH(int, exitCode);
        CallProcess peer;
        peer.startScenario("await-client\nwait 1000s\n" + rest);
        QVERIFY(peer.connectClient());
        peer.write("{\"messagetype\":\"HangUpCall\"}\nquit\n");
        QCOMPARE(peer.exitCode(), exitCode);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ScenarioPlayer, Guiless)
#include "tst_ScenarioPlayer.moc"
