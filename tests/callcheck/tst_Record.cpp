// The checker's recording, as the program that it is, between a client played by the test and the stand-in.

#include "callcheck/PluginCommand.h"
#include "callprocess/Scenario.h"
#include "endpoint/Wire.h"
#include "fakes/FileBytes.h"
#include "fakes/Patience.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QLocalSocket>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <memory>
#include <sys/stat.h>

using Wire::Code;

namespace {

const char *const cOpening = "# Recorded by kelvarim-callcheck.\n"
                             "ignore SetMicEnable SetSpeakerEnble SetCamreraEnable SetMicVolume SetSpeakerVolume\n"
                             "timeout 0s\n"
                             "await-client\n";

QByteArray registration()
{
    return commandLine("RegeditUser", {"me", "Nick", "secret", false});
}

const QByteArray cRegistered = "expect RegeditUser param1=me param4=false\n";

/// The checker with a stand-in that plays a scenario, and the plug-in's end of the connection.
class Recording
{
public:
    explicit Recording(const QByteArray &scenario)
    {
        if (!writeFile(played(), scenario)) {
            qFatal("cannot write %s", qPrintable(played()));
        }
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    }

    ~Recording()
    {
        process.kill();
        process.waitForFinished(cPatienceMs);
    }

    QString played() const { return m_folder.filePath("played.scn"); }
    QString file() const { return m_folder.filePath("recorded.scn"); }

    void start(const QStringList &options = {})
    {
        process.start(QStringLiteral(CALLCHECK_PROGRAM),
                      QStringList{"record", "--out", file()} + options +
                          QStringList{"--", QStringLiteral(VOIPSDK_PROGRAM), "--scenario", played()});
    }

    bool connectClient()
    {
        client = std::make_unique<QLocalSocket>();
        return QTest::qWaitFor(
            [this] {
                client->connectToServer("VoipSDK");
                return client->waitForConnected(1000);
            },
            cPatienceMs);
    }

    void say(const QByteArray &bytes)
    {
        client->write(bytes);
        client->flush();
    }

    /// The next read.
    QByteArray hear()
    {
        if (client->bytesAvailable() == 0) {
            client->waitForReadyRead(cPatienceMs);
        }
        return client->readAll();
    }

    bool waitDisconnected()
    {
        return client->state() == QLocalSocket::UnconnectedState || client->waitForDisconnected(cPatienceMs);
    }

    int exitCode()
    {
        const bool ended = process.state() == QProcess::NotRunning || process.waitForFinished(cPatienceMs);
        return ended && process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    }

    /// The recorded text behind the opening, which must be there.
    QByteArray recorded() const
    {
        const QByteArray text = readBytes(file());
        return text.startsWith(cOpening) ? text.mid(static_cast<int>(qstrlen(cOpening))) : "no opening: " + text;
    }

    /// The same without the pauses: a busy machine lengthens those of the call process and makes some of its own.
    QByteArray steps() const
    {
        QByteArray text;
        for (const QByteArray &line : recorded().split('\n')) {
            text += line.isEmpty() || line.startsWith("wait ") ? QByteArray() : line + '\n';
        }
        return text;
    }

    QProcess process;
    std::unique_ptr<QLocalSocket> client;

private:
    QTemporaryDir m_folder;
};

} // namespace

class tst_Record : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        // Of a test before that mirrored a death.
        QFile::remove(QDir(QDir::tempPath()).filePath("VoipSDK"));
    }

    void runIsWrittenAsAScenario()
    {
        Recording run("await RegeditUser\nsend 17 true\nexpect CallUser\nwait 500ms\nsend 18\nexpect HangUpCall\n");
        run.start();
        QVERIFY(run.connectClient());
        run.say(registration());
        QCOMPARE(run.hear(), notificationLine(Code::SdkFlag, "true"));
        run.say(commandLine("CallUser", {"30010001", false}));
        QCOMPARE(run.hear(), notificationLine(Code::CallConnected, ""));
        run.say(commandLine("HangUpCall", {}) + "quit\n");
        QCOMPARE(run.exitCode(), 0);
        QCOMPARE(run.steps(), cRegistered + "send 17 true\nexpect CallUser param1=30010001 param2=false\n"
                                            "send 18\nexpect HangUpCall\nexpect quit\n");
        // Half a second, and what a busy machine adds.
        const QRegularExpression waited("\nwait (?:[5-9]00ms|[1-9][0-9.]*s)\nsend 18\n");
        QVERIFY2(QString::fromUtf8(run.recorded()).contains(waited), run.recorded().constData());
        QVERIFY(!run.recorded().contains("secret"));
        QString error;
        QVERIFY2(Scenario::load(run.file(), &error), qPrintable(error));
    }

    void fileAndSocketAreForTheSameUserOnly()
    {
        Recording run("await RegeditUser\n");
        run.start();
        QVERIFY(run.connectClient());
        const QStringList paths{QDir(QDir::tempPath()).filePath("VoipSDK"), run.file()};
        for (const QString &path : paths) {
            struct stat status = {};
            QCOMPARE(::stat(qPrintable(path), &status), 0);
            QCOMPARE(status.st_mode & 077U, 0U);
        }
        const QStringList folders = QDir(QDir::tempPath()).entryList({"callcheck-*"}, QDir::Dirs);
        QCOMPARE(folders.size(), 1);
        struct stat status = {};
        QCOMPARE(::stat(qPrintable(QDir(QDir::tempPath()).filePath(folders.constFirst())), &status), 0);
        QCOMPARE(status.st_mode & 077U, 0U);
        run.say(registration() + "quit\n");
        QCOMPARE(run.exitCode(), 0);
        QCOMPARE(QDir(QDir::tempPath()).entryList({"callcheck-*"}, QDir::Dirs), QStringList());
    }

    void bytesPassUnchanged()
    {
        const QByteArray long_(100000, 'x');
        Recording run("await RegeditUser\nsplit 10 300ms 22\nraw \"\\xFF\\0no json\\n\"\nsend 999 " + long_ +
                      "\njoin {\nsend 18\nsend 8\n}\nexpect SetMicVolume\n");
        run.start();
        QVERIFY(run.connectClient());
        run.say(registration());
        const QByteArray busy = notificationLine(Code::PeerBusy, "");
        QCOMPARE(run.hear(), busy.left(10));
        QCOMPARE(run.hear(), busy.mid(10));
        QCOMPARE(run.hear(), QByteArray("\xFF\0no json\n", 10));
        QByteArray log;
        while (!log.endsWith('\n')) {
            log += run.hear();
        }
        QCOMPARE(log, notificationLine(Code::SdkLog, long_));
        QCOMPARE(run.hear(), notificationLine(Code::CallConnected, "") + notificationLine(Code::PeerHangup, ""));
        run.say(commandLine("SetMicVolume", {7}) + "qu");
        run.say("it\n");
        QCOMPARE(run.exitCode(), 0);
        QVERIFY2(run.recorded().contains("split 10 "), run.recorded().left(300));
        QVERIFY(run.recorded().contains("raw \"\\xFF\\x00no json\\n\"\n"));
        QVERIFY(
            run.steps().endsWith("join {\n    send 18\n    send 8\n}\nexpect SetMicVolume param1=7\nexpect quit\n"));
    }

    void lostConnectionsOfBothSidesAreRecorded()
    {
        Recording run("await RegeditUser\nsend 17 true\ndrop\nawait-client\nexpect RegeditUser\nsend 18\nawait-gone\n"
                      "await-client\nsend 8\nexpect HangUpCall\n");
        run.start();
        QVERIFY(run.connectClient());
        run.say(registration());
        QCOMPARE(run.hear(), notificationLine(Code::SdkFlag, "true"));
        QVERIFY(run.waitDisconnected());
        QVERIFY(run.connectClient());
        run.say(registration());
        QCOMPARE(run.hear(), notificationLine(Code::CallConnected, ""));
        run.client->disconnectFromServer();
        QVERIFY(run.connectClient());
        QCOMPARE(run.hear(), notificationLine(Code::PeerHangup, ""));
        run.say(commandLine("HangUpCall", {}) + "quit\n");
        QCOMPARE(run.exitCode(), 0);
        QCOMPARE(run.steps(), cRegistered + "send 17 true\ndrop\nawait-client\n" + cRegistered +
                                  "send 18\nawait-gone\nawait-client\nsend 8\nexpect HangUpCall\nexpect quit\n");
    }

    void closedServerIsRecorded()
    {
        Recording run("await RegeditUser\nsend 17 true\nstop-listen\nexpect HangUpCall\ndrop\nrestart-listen\n"
                      "await-client\nexpect RegeditUser\nsend 18\n");
        run.start();
        QVERIFY(run.connectClient());
        run.say(registration());
        QCOMPARE(run.hear(), notificationLine(Code::SdkFlag, "true"));
        QVERIFY(QTest::qWaitFor([&run] { return run.recorded().endsWith("stop-listen\n"); }, cPatienceMs));
        QLocalSocket refused;
        refused.connectToServer("VoipSDK");
        QVERIFY2(!refused.waitForConnected(cPatienceMs), "the plug-in meets a server where the call process has none");
        run.say(commandLine("HangUpCall", {}));
        QVERIFY(run.waitDisconnected());
        QVERIFY(run.connectClient());
        run.say(registration());
        QCOMPARE(run.hear(), notificationLine(Code::CallConnected, ""));
        run.say("quit\n");
        QCOMPARE(run.exitCode(), 0);
        QCOMPARE(run.steps(), cRegistered + "send 17 true\nstop-listen\nexpect HangUpCall\ndrop\nrestart-listen\n" +
                                  "await-client\n" + cRegistered + "send 18\nexpect quit\n");
    }

    void whatFollowsAClosedServerStandsBehindIt()
    {
        Recording run("await RegeditUser\nsend 17 true\nstop-listen\nexpect HangUpCall\nsend 8\nexpect quit\n");
        run.start();
        QVERIFY(run.connectClient());
        run.say(registration());
        QCOMPARE(run.hear(), notificationLine(Code::SdkFlag, "true"));
        const QString server = QDir(QDir::tempPath()).filePath("VoipSDK");
        QVERIFY(QTest::qWaitFor([&server] { return !QFile::exists(server); }, cPatienceMs));
        run.say(commandLine("HangUpCall", {}));
        QCOMPARE(run.hear(), notificationLine(Code::PeerHangup, ""));
        run.say("quit\n");
        QCOMPARE(run.exitCode(), 0);
        QCOMPARE(run.steps(), cRegistered + "send 17 true\nstop-listen\nexpect HangUpCall\nsend 8\nexpect quit\n");
    }

    void deathIsRecordedAndMirrored()
    {
        Recording run("await RegeditUser\nsend 17 true\ndie\n");
        run.start();
        QVERIFY(run.connectClient());
        run.say(registration());
        QCOMPARE(run.hear(), notificationLine(Code::SdkFlag, "true"));
        QVERIFY(run.waitDisconnected());
        QCOMPARE(run.exitCode(), 9);
        QCOMPARE(run.steps(), cRegistered + "send 17 true\ndie\n# The call process ended with code 9.\n");
        QVERIFY2(QFile::exists(QDir(QDir::tempPath()).filePath("VoipSDK")), "a killed process leaves its socket file");
        QCOMPARE(QDir(QDir::tempPath()).entryList({"callcheck-*"}, QDir::Dirs), QStringList());
    }

    void endOfItsOwnIsRecorded()
    {
        Recording run("await RegeditUser\nsend 17 true\nend\n");
        run.start();
        QVERIFY(run.connectClient());
        run.say(registration());
        QCOMPARE(run.exitCode(), 0);
        QCOMPARE(run.steps(), cRegistered + "send 17 true\nend\n");
        QVERIFY(!QFile::exists(QDir(QDir::tempPath()).filePath("VoipSDK")));
    }

    void existingFileIsLeftAlone()
    {
        Recording run("await RegeditUser\n");
        QVERIFY(writeFile(run.file(), "mine"));
        run.start();
        QCOMPARE(run.exitCode(), 2);
        QCOMPARE(readBytes(run.file()), QByteArray("mine"));
    }

    void anotherLivesSoItStepsBack()
    {
        Recording first("await RegeditUser\n");
        first.start();
        QVERIFY(first.connectClient());
        Recording second("await RegeditUser\n");
        second.start();
        QCOMPARE(second.exitCode(), 0);
        QVERIFY(!QFile::exists(second.file()));
        first.say(registration() + "quit\n");
        QCOMPARE(first.exitCode(), 0);
        QCOMPARE(first.steps(), cRegistered + "expect quit\n");
    }

    void stoppingTheRecorderIsNoDeath()
    {
        Recording run("await RegeditUser\nsend 17 true\nexpect HangUpCall\n");
        run.start();
        QVERIFY(run.connectClient());
        run.say(registration());
        QCOMPARE(run.hear(), notificationLine(Code::SdkFlag, "true"));
        run.process.terminate();
        QCOMPARE(run.exitCode(), 0);
        QVERIFY(run.waitDisconnected());
        QCOMPARE(run.steps(), cRegistered + "send 17 true\n# The recording was stopped.\n");
    }

    void callProcessGoesWithAKilledRecorder()
    {
        Recording run("await RegeditUser\nsend 17 true\nexpect HangUpCall\n");
        const QString trace = run.file() + ".trace";
        qputenv("VOIPSDK_TRACE", QFile::encodeName(trace));
        run.start();
        qunsetenv("VOIPSDK_TRACE");
        QVERIFY(run.connectClient());
        const QByteArray started = "started, process ";
        const QByteArray text = readBytes(trace);
        const int at = text.indexOf(started) + started.size();
        const auto id = static_cast<pid_t>(text.mid(at, text.indexOf('\n', at) - at).toInt());
        QVERIFY(id > 0 && ::kill(id, 0) == 0);
        run.process.kill();
        run.process.waitForFinished(cPatienceMs);
        QTRY_VERIFY_WITH_TIMEOUT(
            [id] {
                QFile status(QStringLiteral("/proc/%1/stat").arg(id));
                return !status.open(QIODevice::ReadOnly) || status.readAll().contains(") Z ");
            }(),
            cPatienceMs);
    }

    void inThePlaceOfACallProcessItTakesNoArguments()
    {
        Recording run("await RegeditUser\nsend 17 true\n");
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("CALLCHECK_OUT", run.file());
        environment.insert("CALLCHECK_PROGRAM", QStringLiteral(VOIPSDK_PROGRAM));
        environment.insert("VOIPSDK_SCENARIO", run.played());
        run.process.setProcessEnvironment(environment);
        run.process.start(QStringLiteral(CALLCHECK_PROGRAM), QStringList());
        QVERIFY(run.connectClient());
        const QString streams = QStringLiteral("/proc/%1/fd/%2").arg(run.process.processId());
        for (int stream = 0; stream < 3; ++stream) {
            QCOMPARE(QFile::symLinkTarget(streams.arg(stream)), QStringLiteral("/dev/null"));
        }
        run.say(registration());
        QCOMPARE(run.hear(), notificationLine(Code::SdkFlag, "true"));
        run.say("quit\n");
        QCOMPARE(run.exitCode(), 0);
        QCOMPARE(run.steps(), cRegistered + "send 17 true\nexpect quit\n");
    }

    void callProcessThatCannotBeStartedLeavesNoFile()
    {
        Recording run("");
        run.process.start(QStringLiteral(CALLCHECK_PROGRAM), {"record", "--out", run.file(), "--", "/nothing/here"});
        QCOMPARE(run.exitCode(), 1);
        QVERIFY(!QFile::exists(run.file()));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_Record, Guiless)
#include "tst_Record.moc"
