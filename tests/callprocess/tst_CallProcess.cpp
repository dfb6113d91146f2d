#include "callprocess/CallProcessTest.h"
#include "fakes/Patience.h"

#include <QtTest>

#include <csignal>
#include <sys/stat.h>

class tst_CallProcess : public CallProcessTest
{
    Q_OBJECT

private slots:
    void socketIsForTheSameUserOnly()
    {
        CallProcess peer;
        peer.start();
        QVERIFY(peer.connectClient());
        struct stat status = {};
        QCOMPARE(::stat(qPrintable(CallProcess::socketPath()), &status), 0);
        QVERIFY(S_ISSOCK(status.st_mode));
        QCOMPARE(status.st_mode & 0777U, 0700U);
    }

    void quitEndsItAndRemovesTheSocketFile()
    {
        CallProcess peer;
        peer.start();
        QVERIFY(peer.connectClient());
        peer.write("quit\n");
        QCOMPARE(peer.exitCode(), 0);
        QVERIFY(!QFile::exists(CallProcess::socketPath()));
        QVERIFY(peer.trace().contains(QStringLiteral("= quit")));
    }

    void quitWithoutItsLineFeedDoesNotEndIt()
    {
        CallProcess peer;
        QVERIFY(peer.startRegistered());
        peer.write("quit");
        peer.client().disconnectFromServer();
        QVERIFY(peer.waitTrace(QStringLiteral("! line without an end: quit")));
        QVERIFY(peer.connectClient());
        peer.write("quit\n");
        QCOMPARE(peer.exitCode(), 0);
    }

    void staleSocketFileIsTakenOver()
    {
        CallProcess killed;
        killed.start();
        QVERIFY(killed.connectClient());
        killed.process().kill();
        QVERIFY(killed.process().waitForFinished(cPatienceMs));
        QVERIFY(QFile::exists(CallProcess::socketPath()));

        CallProcess peer;
        QVERIFY(peer.startRegistered());
    }

    void plainFileInTheWayIsTakenOver()
    {
        QFile file(CallProcess::socketPath());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        CallProcess peer;
        QVERIFY(peer.startRegistered());
    }

    void secondOneStepsBackAndLeavesTheFirstAlone()
    {
        CallProcess first;
        QVERIFY(first.startRegistered());
        struct stat before = {};
        QCOMPARE(::stat(qPrintable(CallProcess::socketPath()), &before), 0);

        CallProcess second;
        second.start();
        QCOMPARE(second.exitCode(), 0);
        QCOMPARE(second.process().readAllStandardError(),
                 QByteArray("VoipSDK: another call process is alive, this one steps back\n"));
        QVERIFY(second.trace().contains(QStringLiteral("= stepped back")));

        struct stat after = {};
        QCOMPARE(::stat(qPrintable(CallProcess::socketPath()), &after), 0);
        QCOMPARE(after.st_ino, before.st_ino);
        first.command(QStringLiteral("CallUser"), {QStringLiteral("30010002"), false});
        QCOMPARE(first.nextNotification(), QStringLiteral("22"));
        QCOMPARE(first.trace().filter(QStringLiteral("= connected")).size(), 1);
    }

    void manyAtOnceLeaveOneAlive()
    {
        CallProcess killed;
        killed.start();
        QVERIFY(killed.connectClient());
        killed.process().kill();
        QVERIFY(killed.process().waitForFinished(cPatienceMs));

        std::array<CallProcess, 6> peers;
        for (CallProcess &peer : peers) {
            peer.start();
        }
        const auto living = [&] {
            return std::count_if(peers.begin(), peers.end(),
                                 [](CallProcess &peer) { return peer.process().state() != QProcess::NotRunning; });
        };
        QTRY_COMPARE_WITH_TIMEOUT(living(), 1, CallProcess::cWaitMs);
        const auto listening = std::count_if(peers.begin(), peers.end(), [](CallProcess &peer) {
            return !peer.trace().filter(QStringLiteral("= listening")).isEmpty();
        });
        QCOMPARE(listening, 1);
    }

    void socketFileIsClaimedUnderALock()
    {
        QLockFile lock(CallProcess::socketPath() + QStringLiteral(".lock"));
        QVERIFY(lock.tryLock());
        CallProcess peer;
        peer.start();
        QVERIFY(peer.waitTrace(QStringLiteral("= started")));
        // Long enough for the other to have listened too, had it not waited.
        CallProcess passing;
        passing.start({QStringLiteral("--help")});
        QCOMPARE(passing.exitCode(), 0);
        QVERIFY(!QFile::exists(CallProcess::socketPath()));
        lock.unlock();
        QVERIFY(peer.connectClient());
        peer.write("quit\n");
        QCOMPARE(peer.exitCode(), 0);
        QVERIFY(!QFile::exists(CallProcess::socketPath() + QStringLiteral(".lock")));
    }

    void endsByItselfWithoutAClient()
    {
        CallProcess peer;
        peer.start({QStringLiteral("--idle-seconds"), QStringLiteral("0.05")});
        QCOMPARE(peer.exitCode(), 0);
        QVERIFY(peer.trace().contains(QStringLiteral("= idle")));
        QVERIFY(!QFile::exists(CallProcess::socketPath()));
    }

    void endsByItselfWhenItsClientStaysAway()
    {
        CallProcess peer;
        peer.start({QStringLiteral("--idle-seconds"), QStringLiteral("2")});
        QVERIFY(peer.connectClient());
        QVERIFY(peer.waitTrace(QStringLiteral("= connected")));
        peer.client().disconnectFromServer();
        QCOMPARE(peer.exitCode(), 0);
        const QStringList trace = peer.trace();
        QVERIFY(trace.indexOf(QStringLiteral("= idle")) > trace.indexOf(QStringLiteral("= disconnected")));
    }

    void reconnectingClientReplacesTheOldOne()
    {
        CallProcess peer;
        QVERIFY(peer.startRegistered());
        QLocalSocket newcomer;
        newcomer.connectToServer(QStringLiteral("VoipSDK"));
        QVERIFY(newcomer.waitForConnected(cPatienceMs));
        QVERIFY(peer.waitDisconnected());
        newcomer.write("{\"messagetype\":\"CallUser\",\"param1\":\"30010002\",\"param2\":false}\n");
        QVERIFY(newcomer.waitForReadyRead(CallProcess::cWaitMs));
        QVERIFY(newcomer.readAll().contains("\"resultCode\":22"));
    }

    void linesMayComeInPieces()
    {
        CallProcess peer;
        QVERIFY(peer.startRegistered());
        const QByteArray line = "{\"messagetype\":\"CallUser\",\"param1\":\"30010002\",\"param2\":false}\n";
        for (const char byte : line) {
            peer.write(QByteArray(1, byte));
        }
        QCOMPARE(peer.nextNotification(), QStringLiteral("22"));
        peer.write(line + line.left(30));
        QCOMPARE(peer.nextNotification(), QStringLiteral("22"));
        peer.write(line.mid(30));
        QCOMPARE(peer.nextNotification(), QStringLiteral("22"));
    }

    void malformedLinesAreTracedAndIgnored_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("complaint");
        QTest::newRow("empty line") << QByteArray("\n") << QStringLiteral("! not JSON");
        QTest::newRow("text") << QByteArray("hello\n") << QStringLiteral("! not JSON");
        QTest::newRow("array") << QByteArray("[1]\n") << QStringLiteral("! not an object");
        QTest::newRow("no name") << QByteArray("{}\n") << QStringLiteral("! no text \"messagetype\"");
        QTest::newRow("unknown") << QByteArray("{\"messagetype\":\"Dance\"}\n") << QStringLiteral("! unknown command");
        QTest::newRow("wrong type") << QByteArray("{\"messagetype\":\"CallUser\",\"param1\":5,\"param2\":false}\n")
                                    << QStringLiteral("! CallUser has a param1 of the wrong type");
        QTest::newRow("binary") << QByteArray("\xFF\x00\x80\x1B\n", 5) << QStringLiteral("! not JSON");
        QTest::newRow("deep") << QByteArray(100000, '[') + '\n' << QStringLiteral("! not JSON");
        QTest::newRow("quit and more") << QByteArray("quit \n") << QStringLiteral("! not JSON");
    }

    void malformedLinesAreTracedAndIgnored()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, complaint);
        CallProcess peer;
        QVERIFY(peer.startRegistered());
        peer.write(bytes);
        peer.command(QStringLiteral("CallUser"), {QStringLiteral("30010002"), false});
        QCOMPARE(peer.nextNotification(), QStringLiteral("22"));
        QCOMPARE(peer.trace().filter(complaint).size(), 1);
    }

    void lineOfOneMegabyteIsServed()
    {
        CallProcess peer;
        QVERIFY(peer.startRegistered());
        const QString name(1024 * 1024, QLatin1Char('n'));
        peer.command(QStringLiteral("RegeditUser"), {QStringLiteral("100"), name, QStringLiteral("r"), false});
        QCOMPARE(peer.nextNotification(), QStringLiteral("17 true"));
    }

    void outlivesItsStreams()
    {
        CallProcess peer;
        QVERIFY(peer.startRegistered());
        const QString streams = QStringLiteral("/proc/%1/fd/%2").arg(peer.process().processId());
        for (int stream = 0; stream < 3; ++stream) {
            QCOMPARE(QFile::symLinkTarget(streams.arg(stream)), QStringLiteral("/dev/null"));
        }
    }

    void socketNameCanBeChosen()
    {
        CallProcess peer;
        QVERIFY(peer.startRegistered());
        CallProcess other;
        other.start({QStringLiteral("--socket-name"), QStringLiteral("Other")});
        QVERIFY(other.waitTrace(QStringLiteral("= listening at %1").arg(QDir::tempPath() + QStringLiteral("/Other"))));
        QLocalSocket client;
        client.connectToServer(QStringLiteral("Other"));
        QVERIFY(client.waitForConnected(cPatienceMs));
    }

    void helpIsPrinted()
    {
        CallProcess peer;
        peer.start({QStringLiteral("--help")});
        QCOMPARE(peer.exitCode(), 0);
        const QByteArray text = peer.process().readAllStandardOutput();
        for (const char *option : {"--scenario", "--trace", "--speed", "--hide-secrets", "--idle-seconds",
                                   "--socket-name", "VOIPSDK_TRACE", "(600)", "(VoipSDK)"}) {
            QVERIFY2(text.contains(option), option);
        }
    }

    void badUsageEndsWithTwo_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::newRow("option") << QStringList{QStringLiteral("--loud")};
        QTest::newRow("speed") << QStringList{QStringLiteral("--speed"), QStringLiteral("0")};
        QTest::newRow("scenario") << QStringList{QStringLiteral("--scenario"), QStringLiteral("nowhere.scn")};
        QTest::newRow("trace") << QStringList{QStringLiteral("--trace"), QStringLiteral("no/such/folder/trace")};
    }

    void badUsageEndsWithTwo()
    {
        QFETCH(QStringList, options);
        CallProcess peer;
        peer.start(options);
        QCOMPARE(peer.exitCode(), 2);
        QCOMPARE(peer.process().readAllStandardError().count('\n'), 1);
        QVERIFY(!QFile::exists(CallProcess::socketPath()));
    }

    void environmentStandsInForOptions()
    {
        CallProcess peer;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("VOIPSDK_IDLE_SECONDS"), QStringLiteral("0.05"));
        environment.insert(QStringLiteral("VOIPSDK_TRACE"), QStringLiteral("environment.trace"));
        peer.process().setProcessEnvironment(environment);
        peer.process().start(QStringLiteral(VOIPSDK_PROGRAM), QStringList());
        QCOMPARE(peer.exitCode(), 0);
        QFile trace(QStringLiteral("environment.trace"));
        QVERIFY(trace.open(QIODevice::ReadOnly));
        QVERIFY(QString::fromUtf8(trace.readAll()).contains(QRegularExpression(QStringLiteral("(?m)^[0-9]+ = idle$"))));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CallProcess, Guiless)
#include "tst_CallProcess.moc"
