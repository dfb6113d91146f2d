// The checker's replay, as the program that it is, against the stand-in and against call processes that do wrong.

#include "endpoint/Wire.h"
#include "fakes/FileBytes.h"
#include "fakes/Patience.h"

#include <QDir>
#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>
#include <QProcess>
#include <QtTest>

namespace {

struct Outcome
{
    int exitCode;
    QString said; ///< on either stream
};

Outcome check(const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QStringLiteral(CALLCHECK_PROGRAM), arguments);
    // The test's own event loop may play the call process meanwhile.
    const bool ended = QTest::qWaitFor([&] { return process.state() == QProcess::NotRunning; }, cPatienceMs);
    return {ended && process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            QString::fromUtf8(process.readAll())};
}

QString scenarioFile(const QByteArray &text)
{
    QFile file(QDir::current().filePath(QStringLiteral("run.scn")));
    if (file.open(QIODevice::WriteOnly)) {
        file.write(text);
    }
    return file.fileName();
}

/// How long the checker waits for each step, in seconds: for what comes, and for what never does.
constexpr int cPatient = cPatienceMs / 1000;
constexpr int cImpatient = 5;

Outcome replayAgainst(const QByteArray &scenario, const QStringList &callProcess, int iSeconds = cPatient)
{
    return check(QStringList{"replay", "--patience", QString::number(iSeconds), scenarioFile(scenario), "--"} +
                 callProcess);
}

QStringList standIn(const QStringList &options = {"--speed", "100"})
{
    return QStringList{QStringLiteral(VOIPSDK_PROGRAM)} + options;
}

/// Replays the recorded scenario against the stand-in that plays another one.
Outcome replayAgainstPlayed(const QByteArray &recorded, const QByteArray &played)
{
    const QString path = QDir::current().filePath("played.scn");
    if (!writeFile(path, played)) {
        qFatal("cannot write %s", qPrintable(path));
    }
    return replayAgainst(recorded, standIn({"--scenario", path}));
}

QString readyScenario(const QString &name)
{
    return QStringLiteral(VOIPSDK_SCENARIOS "/") + name;
}

const QByteArray cAnswered = "await RegeditUser\nsend 17 true\nsend 999\nexpect CallUser param1=30010001 param2=false\n"
                             "wait 1.5s\nsend 18\nexpect HangUpCall\nexpect quit\n";

} // namespace

class tst_Replay : public QObject
{
    Q_OBJECT

private slots:
    void everyReadyScenarioIsKeptToByItsOwnPlayer_data()
    {
        QTest::addColumn<QString>("file");
        const QStringList names = QDir(QStringLiteral(VOIPSDK_SCENARIOS)).entryList({"*.scn"}, QDir::Files);
        for (const QString &name : names) {
            QTest::newRow(qPrintable(name)) << readyScenario(name);
        }
    }

    void everyReadyScenarioIsKeptToByItsOwnPlayer()
    {
        QFETCH(QString, file);
        const Outcome outcome =
            check(QStringList{"replay", file, "--"} + standIn({"--scenario", file, "--speed", "20"}));
        QVERIFY2(outcome.exitCode == 0, qPrintable(outcome.said));
    }

    void robotsDoAsWasRecorded()
    {
        const Outcome outcome = replayAgainst(cAnswered, standIn());
        QCOMPARE(outcome.said, QString("as recorded: 3 commands, 2 notifications\n"));
        QCOMPARE(outcome.exitCode, 0);
    }

    void secretRegistrationComesFromAFile_data()
    {
        QTest::addColumn<QByteArray>("text"); // of the file; null: there is none
        QTest::addColumn<QString>("told");
        QTest::newRow("whole") << QByteArray("open sesame\nmore\n") << QString();
        QTest::newRow("without a line's end") << QByteArray("open sesame") << QString();
        QTest::newRow("another") << QByteArray("open barley\n") << QString("expected 17 (SdkFlag) true");
        QTest::newRow("empty") << QByteArray("\nopen sesame\n")
                               << QString("no registration value in %1: its first line is empty");
        QTest::newRow("too long") << QByteArray(70000, 'a')
                                  << QString("no registration value in %1: its first line is too long");
        QTest::newRow("none") << QByteArray() << QString("no registration value in %1: No such file or directory");
    }

    void secretRegistrationComesFromAFile()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, told);
        const QString played = QDir::current().filePath("opens.scn");
        QVERIFY(writeFile(played, "expect RegeditUser param3=\"open sesame\"\nsend 17 true\nexpect quit\n"));
        const QString secret = QDir::current().filePath("registration");
        QFile::remove(secret);
        QVERIFY(text.isNull() || writeFile(secret, text));
        const QString scenario = scenarioFile("expect RegeditUser\nsend 17 true\nexpect quit\n");
        const Outcome outcome = check(QStringList{"replay", "--patience", QString::number(cImpatient),
                                                  "--registration-file", secret, scenario, "--"} +
                                      standIn({"--scenario", played}));
        QCOMPARE(outcome.exitCode == 0, told.isEmpty());
        QVERIFY2(outcome.said.contains(told.replace("%1", secret)), qPrintable(outcome.said));
    }

    void whatIsNotAsRecordedIsTold_data()
    {
        QTest::addColumn<QByteArray>("instead");
        QTest::addColumn<QByteArray>("of");
        QTest::addColumn<QString>("told");
        QTest::addColumn<int>("seconds");
        QTest::newRow("code") << QByteArray("send 22") << QByteArray("send 18")
                              << QString("run.scn:6: expected 22 (PeerBusy), got 18 (CallConnected)") << cPatient;
        QTest::newRow("content") << QByteArray("17 false") << QByteArray("17 true")
                                 << QString("run.scn:2: expected 17 (SdkFlag) false, got 17 (SdkFlag) true")
                                 << cPatient;
        QTest::newRow("called user") << QByteArray("param1=30010002") << QByteArray("param1=30010001")
                                     << QString("run.scn:6: expected 18 (CallConnected), got 22 (PeerBusy)")
                                     << cPatient;
        QTest::newRow("one more") << QByteArray("send 18\nsend 8") << QByteArray("send 18")
                                  << QString("run.scn:7: expected 8 (PeerHangup), got nothing for 5000 ms")
                                  << cImpatient;
        QTest::newRow("drop") << QByteArray("drop") << QByteArray("send 18")
                              << QString("run.scn:6: the connection is not closed") << cImpatient;
        QTest::newRow("death") << QByteArray("die") << QByteArray("send 18")
                               << QString("run.scn:6: expected the call process to die, it lives") << cImpatient;
        QTest::newRow("end") << QByteArray("end") << QByteArray("send 18")
                             << QString("run.scn:6: expected the call process to end by itself, it lives")
                             << cImpatient;
        QTest::newRow("server") << QByteArray("stop-listen") << QByteArray("send 18")
                                << QString("run.scn:6: the call process still listens") << cImpatient;
    }

    void whatIsNotAsRecordedIsTold()
    {
        QFETCH(QByteArray, instead);
        QFETCH(QByteArray, of);
        QFETCH(QString, told);
        QFETCH(int, seconds);
        const Outcome outcome = replayAgainst(QByteArray(cAnswered).replace(of, instead), standIn(), seconds);
        QCOMPARE(outcome.exitCode, 3);
        QVERIFY2(outcome.said.contains(told), qPrintable(outcome.said));
    }

    void lineInTwoReadsIsTold()
    {
        const QString split = readyScenario("split-line.scn");
        QFile file(split);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray whole = file.readAll().replace("split 10 200ms 22", "send 22");
        const Outcome outcome = replayAgainst(whole, standIn({"--scenario", split}));
        QCOMPARE(outcome.exitCode, 3);
        QVERIFY2(outcome.said.contains("more than one read"), qPrintable(outcome.said));
    }

    void nothingMoreMayBeSaid()
    {
        const Outcome outcome = replayAgainst("await RegeditUser\nexpect quit\n", standIn());
        QCOMPARE(outcome.exitCode, 3);
        QVERIFY2(outcome.said.contains("expected nothing more, got 17 (SdkFlag) true"), qPrintable(outcome.said));
    }

    void whatComesBehindTheLastLineIsTold_data()
    {
        QTest::addColumn<QByteArray>("recorded");
        QTest::addColumn<QByteArray>("more");
        QTest::addColumn<QString>("told");
        const QString half = "expected nothing more, got \"{\"resultCode\":1\"";
        QTest::newRow("line") << QByteArray("send 17 true") << QByteArray("send 18")
                              << QString("expected nothing more, got 18 (CallConnected)");
        QTest::newRow("half a line") << QByteArray("send 17 true") << QByteArray("raw '{\"resultCode\":1'") << half;
        QTest::newRow("half a line where lines come in pieces")
            << QByteArray("split 10 1ms 17 true") << QByteArray("raw '{\"resultCode\":1'") << half;
        QTest::newRow("log in two reads") << QByteArray("send 17 true") << QByteArray("split 10 1ms 999 text")
                                          << QString("a line came in more than one read");
    }

    void whatComesBehindTheLastLineIsTold()
    {
        QFETCH(QByteArray, recorded);
        QFETCH(QByteArray, more);
        QFETCH(QString, told);
        const QByteArray begin = "await RegeditUser\n" + recorded + '\n';
        const Outcome outcome = replayAgainstPlayed(begin + "drop\nend\n", begin + more + "\ndrop\nend\n");
        QCOMPARE(outcome.exitCode, 3);
        QVERIFY2(outcome.said.contains(told), qPrintable(outcome.said));
    }

    void halfLineOfTheScenarioMayStandBehindTheLast()
    {
        const QByteArray scenario = "await RegeditUser\nsend 17 true\nraw '{\"resultCode\":1'\ndrop\nend\n";
        const Outcome outcome = replayAgainstPlayed(scenario, scenario);
        QVERIFY2(outcome.exitCode == 0, qPrintable(outcome.said));
    }

    void endThatIsNotAsRecordedIsTold_data()
    {
        QTest::addColumn<QByteArray>("recorded");
        QTest::addColumn<QByteArray>("played");
        QTest::addColumn<QString>("told");
        QTest::newRow("end for a death") << QByteArray("die") << QByteArray("end")
                                         << QString("expected the call process to die, it ended with code 0");
        QTest::newRow("death for an end")
            << QByteArray("end") << QByteArray("die")
            << QString("expected the call process to end with code 0, it ended with code 9");
        QTest::newRow("lost connection") << QByteArray("send 18") << QByteArray("drop")
                                         << QString("expected 18 (CallConnected), got the end of the connection");
        QTest::newRow("server that stays closed")
            << QByteArray("stop-listen\nrestart-listen") << QByteArray("stop-listen\nexpect HangUpCall")
            << QString("run.scn:4: the call process does not listen again");
    }

    void endThatIsNotAsRecordedIsTold()
    {
        QFETCH(QByteArray, recorded);
        QFETCH(QByteArray, played);
        QFETCH(QString, told);
        const QByteArray begin = "await RegeditUser\nsend 17 true\n";
        const Outcome outcome = replayAgainstPlayed(begin + recorded + '\n', begin + played + '\n');
        QCOMPARE(outcome.exitCode, 3);
        QVERIFY2(outcome.said.contains(told), qPrintable(outcome.said));
    }

    void callProcessThatOutlivesQuitIsTold()
    {
        QLocalServer server;
        server.setSocketOptions(QLocalServer::UserAccessOption);
        QVERIFY(server.listen("stays"));
        const Outcome outcome =
            check({"replay", "--attach", "stays", "--patience", "0.1", scenarioFile("await RegeditUser\n")});
        QCOMPARE(outcome.exitCode, 3);
        QVERIFY2(outcome.said.contains("the call process has not ended 100 ms after quit"), qPrintable(outcome.said));
    }

    void codeAfterQuitMustBeNought()
    {
        const Outcome outcome = replayAgainstPlayed("await RegeditUser\nsend 17 true\nexpect quit\n",
                                                    "await RegeditUser\nsend 17 true\nexpect HangUpCall\n");
        QCOMPARE(outcome.exitCode, 3);
        QVERIFY2(outcome.said.contains("expected code 0 after quit, the call process ended with code 3"),
                 qPrintable(outcome.said));
    }

    void socketThatIsOpenToOthersIsTold()
    {
        QLocalServer server;
        server.setSocketOptions(QLocalServer::WorldAccessOption);
        QVERIFY(server.listen("open"));
        const Outcome outcome = check({"replay", "--attach", "open", scenarioFile("await RegeditUser\n")});
        QCOMPARE(outcome.exitCode, 3);
        QVERIFY2(outcome.said.contains("the socket file is open to other users: its mode is 0777"),
                 qPrintable(outcome.said));
    }

    void callProcessThatNeverListensIsTold()
    {
        const Outcome silent =
            check({"replay", "--patience", "0.1", scenarioFile(cAnswered), "--", "/bin/sleep", "100"});
        QCOMPARE(silent.exitCode, 1);
        QVERIFY2(silent.said.contains("does not listen"), qPrintable(silent.said));
        const Outcome ended = replayAgainst(cAnswered, {"/bin/false"});
        QCOMPARE(ended.exitCode, 1);
        QVERIFY2(ended.said.contains("ended with code 1 before it listened"), qPrintable(ended.said));
        QCOMPARE(replayAgainst(cAnswered, {"/nothing/here"}).exitCode, 1);
    }

    void badScenarioIsRefused()
    {
        const Outcome outcome = replayAgainst("await RegeditUser\ndance\n", standIn());
        QCOMPARE(outcome.exitCode, 2);
        QVERIFY2(outcome.said.contains("run.scn:2: unknown statement"), qPrintable(outcome.said));
    }

    void runningCallProcessIsAttachedTo()
    {
        QProcess running;
        running.start(QStringLiteral(VOIPSDK_PROGRAM), {"--socket-name", "running", "--speed", "100"});
        QVERIFY(running.waitForStarted(cPatienceMs));
        const Outcome outcome = check({"replay", "--attach", "running", scenarioFile(cAnswered)});
        QVERIFY2(outcome.exitCode == 0, qPrintable(outcome.said));
        QVERIFY(running.state() == QProcess::NotRunning || running.waitForFinished(cPatienceMs));
        QCOMPARE(running.exitCode(), 0);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_Replay, Guiless)
#include "tst_Replay.moc"
