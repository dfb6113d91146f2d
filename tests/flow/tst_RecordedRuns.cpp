// Runs of the built module against robots, recorded by the checker in the call process's place, and then played both
// ways: to the module by the stand-in, and to the stand-in by the checker.

#include "callcheck/CheckOptions.h"
#include "fakes/FileBytes.h"
#include "fakes/Patience.h"
#include "flow/CallTrace.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QtTest>

namespace {

struct Outcome
{
    int exitCode = -1;
    QString said;
};

Outcome run(const QString &strProgram, const QStringList &arguments, const QMap<QString, QString> &variables,
            const QString &strFolder)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (auto it = variables.cbegin(); it != variables.cend(); ++it) {
        environment.insert(it.key(), it.value());
    }
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setWorkingDirectory(strFolder);
    process.start(strProgram, arguments);
    const bool ended = process.waitForFinished(3 * cPatienceMs) && process.exitStatus() == QProcess::NormalExit;
    return {ended ? process.exitCode() : -1, QString::fromUtf8(process.readAll())};
}

/// The text with the first `before` in it replaced; empty when there is none.
QByteArray replacedOnce(QByteArray text, const QByteArray &before, const QByteArray &after)
{
    const int at = text.indexOf(before);
    return at < 0 ? QByteArray() : text.replace(at, before.size(), after);
}

} // namespace

class tst_RecordedRuns : public QObject
{
    Q_OBJECT

private slots:
    void runIsRecordedAndPlayedBothWays_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArrayList>("lines");
        QTest::newRow("single call") << "single"
                                     << QByteArrayList{"expect RegeditUser param1=30010000 param4=false",
                                                       "send 17 true", "expect CallUser param1=30010001 param2=false",
                                                       "send 18", "expect HangUpCall"};
        const QByteArray request = "expect RequestConference param1=30010000 "
                                   "param2=[\"30010001\",\"30010002\",\"30010003\"] param3=true param4=title";
        QTest::newRow("conference") << "conference"
                                    << QByteArrayList{request, "send 18", "send 5 30010002", "send 25 30010003",
                                                      "expect HangupConf"};
    }

    void runIsRecordedAndPlayedBothWays()
    {
        QFETCH(QString, name);
        QFETCH(QByteArrayList, lines);
        const QString scenario = record(name);
        QVERIFY(!scenario.isEmpty());
        const QByteArrayList recorded = readBytes(scenario).split('\n');
        for (const QByteArray &line : lines) {
            QVERIFY2(recorded.contains(line), line + " is not in:\n" + recorded.join('\n'));
        }
        QVERIFY2(!recorded.join().contains("registration"), "the registration value belongs to the user alone");

        const QString folder = folderFor("play-" + name);
        const Outcome played = playToModule(name, scenario, folder);
        const CallTrace trace(folder + "/wire.trace");
        QCOMPARE(trace.texts('!'), QList<QByteArray>());
        QVERIFY2(played.exitCode == 0, qPrintable(played.said));
        QCOMPARE(trace.texts('=').contains("quit"), true);

        const Outcome replayed = replayToRobots(scenario);
        QVERIFY2(replayed.exitCode == 0, qPrintable(replayed.said + readBytes(scenario)));
    }

    void wrongCodeIsFoundBothWays()
    {
        const QString scenario = record("single");
        QVERIFY(!scenario.isEmpty());
        const QString folder = folderFor("wrong-code");
        const QString wrong = folder + "/wrong.scn";
        QVERIFY(writeFile(wrong, replacedOnce(readBytes(scenario), "\nsend 18\n", "\nsend 22\n")));

        const Outcome replayed = replayToRobots(wrong);
        QCOMPARE(replayed.exitCode, static_cast<int>(CheckExit::NotAsRecorded));
        QVERIFY2(replayed.said.contains("expected 22 (PeerBusy), got 18 (CallConnected)"), qPrintable(replayed.said));

        // The module ends the call and hangs nothing up, so the line quit comes where that was expected.
        QVERIFY(playToModule("single", wrong, folder).exitCode != 0);
        const QList<QByteArray> complaints = CallTrace(folder + "/wire.trace").texts('!');
        QCOMPARE(complaints.size(), 1);
        QVERIFY2(complaints.constFirst().contains("expected HangUpCall, got quit"), complaints.constFirst());
    }

    void otherCommandIsFoundByTheStandIn()
    {
        const QString scenario = record("single");
        QVERIFY(!scenario.isEmpty());
        const QString folder = folderFor("other-command");
        const QString other = folder + "/other.scn";
        QVERIFY(writeFile(other,
                          replacedOnce(readBytes(scenario), "CallUser param1=30010001", "CallUser param1=30010006")));
        QVERIFY(playToModule("single", other, folder).exitCode != 0);
        const QList<QByteArray> complaints = CallTrace(folder + "/wire.trace").texts('!');
        QVERIFY2(complaints.value(0).contains("expected CallUser param1=30010006"), complaints.value(0));
    }

private:
    QString folderFor(const QString &strName) const
    {
        QString folder = QDir::current().filePath(strName);
        QDir().mkpath(folder);
        return folder;
    }

    /// Records a run; returns the scenario's path, empty when the run fails.
    QString record(const QString &strRun)
    {
        const QString folder = folderFor(QStringLiteral("record-") + strRun);
        const QString scenario = folder + QStringLiteral("/run.scn");
        QFile::remove(scenario);
        QFile::remove(folder + QStringLiteral("/wire.trace"));
        const Outcome outcome = run(
            QStringLiteral(VOIP_KIT_HANDS), {strRun},
            {{"CALLCHECK_OUT", scenario}, {"CALLCHECK_PROGRAM", QStringLiteral(VOIP_STAND_IN)}, {"VOIPSDK_SPEED", "4"}},
            folder);
        if (outcome.exitCode != 0) {
            qWarning("%s\n%s", qPrintable(outcome.said), readBytes(scenario).constData());
            return {};
        }
        // The recorder sees the end of its call process a moment after the client does.
        return QTest::qWaitFor([&] { return readBytes(scenario).endsWith("expect quit\n"); }, cPatienceMs) ? scenario
                                                                                                           : QString();
    }

    /// Lets the stand-in play the scenario to the module, with the same hands.
    Outcome playToModule(const QString &strRun, const QString &strScenario, const QString &strFolder)
    {
        QFile::remove(strFolder + QStringLiteral("/wire.trace"));
        return run(QStringLiteral(VOIP_HANDS), {strRun}, {{"VOIPSDK_SCENARIO", strScenario}, {"VOIPSDK_SPEED", "4"}},
                   strFolder);
    }

    Outcome replayToRobots(const QString &strScenario)
    {
        return run(QStringLiteral(VOIP_CALLCHECK),
                   {"replay", "--patience", "5", strScenario, "--", QStringLiteral(VOIP_STAND_IN), "--speed", "4"}, {},
                   QDir::currentPath());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_RecordedRuns, Guiless)
#include "tst_RecordedRuns.moc"
