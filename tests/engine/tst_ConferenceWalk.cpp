// Ten thousand wire lines, host commands and clicks in random order around conferences, with what must always hold
// looked at after each.

#include "engine/ConferenceWalk.h"

#include <QTest>

class tst_ConferenceWalk : public QObject
{
    Q_OBJECT

private slots:
    void whatMustHoldHoldsAfterEachStep_data()
    {
        QTest::addColumn<quint32>("seed");

        for (quint32 seed = 1; seed <= 2; ++seed) {
            QTest::addRow("seed %u", seed) << seed;
        }
    }

    void whatMustHoldHoldsAfterEachStep()
    {
        QFETCH(quint32, seed);
        constexpr int steps = 10000;
        ConferenceWalk walk(seed);
        for (int i = 0; i < steps; ++i) {
            const QString fault = walk.step();
            QVERIFY2(fault.isEmpty(), qPrintable(QString("step %1 (%2): %3").arg(i).arg(walk.last, fault)));
            if (i % 100 == 0) {
                EngineFixture::deliverPosted();
                walk.engine.takeLines();
            }
        }
        QCOMPARE(walk.recordFault(), QString());
        // A walk in which hardly anything ended would have shown nothing.
        QVERIFY2(walk.ends > steps / 50 && walk.engine.count() > steps / 100, qPrintable(QString::number(walk.ends)));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ConferenceWalk, Widgets)
#include "tst_ConferenceWalk.moc"
