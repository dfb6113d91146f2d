// Every ready scenario of the stand-in call process, played against the real engine over the real socket: what the user
// and the host do meanwhile, what goes over the wire, and what the host is told.

#include "flow/ScenarioRows.h"

#include <QtTest>

class tst_Scenarios : public QObject
{
    Q_OBJECT

private slots:
    void everyScenarioHasARow()
    {
        QStringList played;
        for (const Row &row : scenarioRows()) {
            played.append(row.scenario);
        }
        played.sort();
        played.removeDuplicates();
        QCOMPARE(played, ScenarioRun::names());
    }

    void scenarioIsPlayed_data()
    {
        QTest::addColumn<Row>("row");
        for (const Row &row : scenarioRows()) {
            QTest::newRow(qPrintable(row.scenario + (row.story.isEmpty() ? "" : ": ") + row.story)) << row;
        }
    }

    void scenarioIsPlayed()
    {
        QFETCH(Row, row);
        ScenarioRun run(row.scenario);
        QVERIFY(run.connectChannel());
        run.command(MSG_CLIENT_CONNECT_STATUS, true);
        for (const Step &step : qAsConst(row.steps)) {
            QVERIFY2(step.run(run), qPrintable(step.name + " failed; " + run.engine.state() +
                                               "; on the wire: " + run.trace.commands().join(", ") +
                                               "; members at the end: " + run.membersAtEnd.join(", ") + "; " +
                                               run.complaints().join("; ")));
        }
        const int exitCode = run.finish();
        QCOMPARE(run.complaints(), QList<QByteArray>());
        QCOMPARE(exitCode, row.exitCode);

        QStringList wire = row.wire;
        wire.prepend(R"(RegeditUser "me" "" "ticket" false)");
        if (exitCode == 0) {
            wire.append("quit");
        }
        QCOMPARE(run.trace.commands(), wire);
        QCOMPARE(run.engine.takeJournal(), row.events);
        QCOMPARE(run.engine.boxes.texts, QStringList());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_Scenarios, Widgets)
#include "tst_Scenarios.moc"
