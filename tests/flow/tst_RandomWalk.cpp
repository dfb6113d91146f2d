// Long random sequences of host commands, clicks, timeouts and wire lines, sensible and not, beside a model of what the
// engine has to do: after each step both stand the same and have said the same. And the same confusion from inside the
// host's event handlers, where only survival is asked for.

#include "fakes/QtMessages.h"
#include "flow/Walk.h"
#include "ui/VoipWidget.h"

#include <QTest>

class tst_RandomWalk : public QObject
{
    Q_OBJECT

private slots:
    void engineStandsAsTheModelAfterEachStep_data()
    {
        QTest::addColumn<uint>("seed");
        for (uint seed = 1; seed <= 5; ++seed) {
            QTest::addRow("seed %u", seed) << seed;
        }
    }

    void engineStandsAsTheModelAfterEachStep()
    {
        QFETCH(uint, seed);
        Walk walk(seed);
        const QtMessages messages;
        int records = 0;
        for (int step = 0; step < 500; ++step) {
            walk.step();
            records += walk.engine.host.received(MSG_CALL_FINISHED).size();
            const QString fault = walk.fault();
            QVERIFY2(fault.isEmpty(), qPrintable(QStringLiteral("step %1, %2: %3").arg(step).arg(walk.last, fault)));
            if (step % 50 == 0) {
                EngineFixture::deliverPosted();
            }
        }
        QVERIFY2(records > 10, "the walk has led through calls");
        QVERIFY2(messages.warnings.isEmpty(), qPrintable(messages.warnings.join('\n')));
    }

    void whateverTheHostDoesInsideItsHandlersIsSurvived_data()
    {
        QTest::addColumn<uint>("seed");
        for (uint seed = 101; seed <= 104; ++seed) {
            QTest::addRow("seed %u", seed) << seed;
        }
    }

    void whateverTheHostDoesInsideItsHandlersIsSurvived()
    {
        QFETCH(uint, seed);
        Walk walk(seed);
        const QtMessages quiet;
        int depth = 0;
        int nested = 0;
        const auto stepInside = [&] {
            ++depth;
            ++nested;
            walk.step();
            --depth;
        };
        walk.engine.whileHandled = [&](BaseEvent &) {
            if (depth < 3 && walk.noise.chance(3)) {
                stepInside();
            }
        };
        walk.engine.boxes.whileOpen = [&] {
            walk.boxIsOpen = true;
            stepInside();
            walk.boxIsOpen = false;
        };
        for (int step = 0; step < 250; ++step) {
            walk.step();
            walk.model.channelUp = walk.engine.manager->m_bSocketConnected;
            walk.engine.host.events.clear();
            walk.engine.takeJournal();
            if (step % 50 == 0) {
                EngineFixture::deliverPosted();
            }
        }
        QVERIFY2(nested > 100, "the host has done things inside its handlers");
        walk.engine.whileHandled = nullptr;
        walk.engine.boxes.whileOpen = nullptr;
        takesACall(walk.engine);
    }

private:
    static void takesACall(EngineFixture &engine)
    {
        engine.boxes.texts.clear();
        engine.manager->exitVoip();
        QVERIFY(!engine.manager->isExistCall());
        engine.manager->slot_ReConnectVoipSDK();
        engine.manager->callSingleUser("anna", false);
        QVERIFY2(engine.manager->isExistCall(), "the engine still takes a call");
        QVERIFY(engine.manager->m_pVoipWidget->isVisible());
        QCOMPARE(engine.boxes.texts, QStringList());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_RandomWalk, Widgets)
#include "tst_RandomWalk.moc"
