// The call process is killed behind every statement of every ready scenario. The loss itself ends nothing and tells the
// host nothing; the user's hang-up ends what there was; another call process is found, gets the registration again and
// takes the next call.

#include "fakes/Patience.h"
#include "flow/CallModel.h"
#include "flow/ScenarioRows.h"
#include "ui/VoipWidget.h"

#include <QtTest>

namespace {

const QString cRegistration = QStringLiteral(R"(RegeditUser "me" "" "ticket" false)");

/// One row for each scenario: the first way that a user goes with it.
QList<Row> rowsToCut()
{
    QList<Row> rows;
    const QList<Row> all = scenarioRows();
    for (const Row &row : all) {
        if (rows.isEmpty() || rows.constLast().scenario != row.scenario) {
            rows.append(row);
        }
    }
    return rows;
}

} // namespace

class tst_KilledAtEveryStep : public QObject
{
    Q_OBJECT

private slots:
    void everyScenarioIsCut()
    {
        QStringList cut;
        int places = 0;
        const QList<Row> rows = rowsToCut();
        for (const Row &row : rows) {
            cut.append(row.scenario);
            places += ScenarioRun::statements(row.scenario) + 1;
        }
        cut.sort();
        QCOMPARE(cut, ScenarioRun::names());
        QVERIFY(places > 200);
    }

    void killedAtStep_data()
    {
        QTest::addColumn<QList<Step>>("steps");
        QTest::addColumn<QString>("scenario");
        QTest::addColumn<int>("statements");
        const QList<Row> rows = rowsToCut();
        for (const Row &row : rows) {
            const int count = ScenarioRun::statements(row.scenario);
            for (int statements = 0; statements <= count; ++statements) {
                QTest::addRow("%s, %d of %d", qPrintable(row.scenario), statements, count)
                    << row.steps << row.scenario << statements;
            }
        }
    }

    void killedAtStep()
    {
        QFETCH(QList<Step>, steps);
        QFETCH(QString, scenario);
        QFETCH(int, statements);
        ScenarioRun run(scenario, statements);
        QVERIFY(run.connectChannel());
        run.command(MSG_CLIENT_CONNECT_STATUS, true);
        playUntilCut(run, steps);
        if (QTest::currentTestFailed()) {
            return;
        }

        QVERIFY(QTest::qWaitFor([&] { return run.hasReadAll(); }, cPatienceMs));
        run.engine.takeJournal();
        const QString call = run.engine.callText();
        const QString state = run.engine.state();
        const bool visible = run.engine.manager->m_pVoipWidget->isVisible();
        QVERIFY(run.killCallProcess());
        QCOMPARE(run.engine.takeJournal(), QStringList());
        QCOMPARE(run.engine.callText(), call);
        QCOMPARE(run.engine.state(), state);
        QCOMPARE(run.engine.manager->m_pVoipWidget->isVisible(), visible);
        QVERIFY(run.engine.manager->m_reconnectTimer.isActive());

        hangUpWithoutChannel(run);
        if (QTest::currentTestFailed()) {
            return;
        }
        callWithAnother(run);
        QCOMPARE(run.engine.boxes.texts, QStringList());
    }

private:
    /// Does what the user does, up to the place where the scenario was cut.
    static void playUntilCut(ScenarioRun &run, const QList<Step> &steps)
    {
        for (const Step &step : steps) {
            if (run.isPlayed()) {
                break;
            }
            QVERIFY2(step.run(run), qPrintable(step.name + " failed; " + run.engine.state()));
        }
        QVERIFY(run.waitFor([] { return false; }));
    }

    /// Ends what is left of a call while nobody is there to be told of it.
    static void hangUpWithoutChannel(ScenarioRun &run)
    {
        CallModel expected(QStringLiteral("me"));
        expected.channelUp = false;
        expected.call = run.engine.manager->m_callData;
        expected.offline();
        run.command(MSG_CLIENT_CONNECT_STATUS, false);
        QCOMPARE(run.engine.takeJournal(), expected.journal);
        QCOMPARE(run.engine.state(), QStringLiteral("idle"));
        QVERIFY(!run.engine.manager->m_pVoipWidget->isVisible());
    }

    static void callWithAnother(ScenarioRun &run)
    {
        QVERIFY(run.startAnother(QStringLiteral("call-answered")));
        QVERIFY(run.connectChannel());
        const QList<Step> steps{call(QStringLiteral("30010001")), untilConnected(), press("HangUp"), untilIdle()};
        for (const Step &step : steps) {
            QVERIFY2(step.run(run), qPrintable(step.name + " failed; " + run.engine.state()));
        }
        QCOMPARE(run.finish(), 0);
        QCOMPARE(run.complaints(), QList<QByteArray>());
        QCOMPARE(run.trace.commands(), QStringList({cRegistration, R"(CallUser "30010001" false)", "HangUpCall",
                                                    "SetMicEnable true", "SetSpeakerEnble true", "quit"}));
        QCOMPARE(run.engine.takeJournal(),
                 QStringList({"4345 30010001@kelvar.im", "4478 false 30010001 24 true true"}));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_KilledAtEveryStep, Widgets)
#include "tst_KilledAtEveryStep.moc"
