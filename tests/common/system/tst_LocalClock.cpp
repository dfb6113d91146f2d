#include "common/system/LocalClock.h"
#include "fakes/ShiftedClock.h"

#include <QTest>

class tst_LocalClock : public QObject
{
    Q_OBJECT

private slots:
    void init() { ShiftedClock::reset(); }

    void cleanup()
    {
        ShiftedClock::reset();
        qunsetenv("TZ");
    }

    void timeIsThatOfTheClock()
    {
        // More calls than fit into one second.
        for (const QTime start = QTime::currentTime(); qAbs(start.secsTo(QTime::currentTime())) < 2;) {
            const QTime before = QTime::currentTime();
            const QTime now = LocalClock::now();
            const QTime after = QTime::currentTime();
            QVERIFY2((before <= now && now <= after) || after < before, qPrintable(now.toString(Qt::ISODateWithMs)));
        }
    }

    void jumpsOfTheClockCountAtOnce_data()
    {
        QTest::addColumn<int>("seconds");
        for (const int seconds : {1, 3600, 86399, -1, -3600, -86400}) {
            QTest::addRow("%d s", seconds) << seconds;
        }
    }

    void jumpsOfTheClockCountAtOnce()
    {
        QFETCH(int, seconds);
        ShiftedClock::holdTimeOfDay();
        QCOMPARE(LocalClock::now(), QTime::currentTime());
        ShiftedClock::setTimeOfDay(seconds);
        QCOMPARE(LocalClock::now(), QTime::currentTime());
    }

    void changeOfTheZoneCountsFromTheNextSecondOn()
    {
        ShiftedClock::holdTimeOfDay();
        qputenv("TZ", "UTC-3");
        ShiftedClock::setTimeOfDay(1);
        QCOMPARE(LocalClock::now(), QTime(15, 0, 1));
        qputenv("TZ", "UTC+2");
        ShiftedClock::setTimeOfDay(1);
        QCOMPARE(LocalClock::now(), QTime(10, 0, 2));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_LocalClock, Guiless)
#include "tst_LocalClock.moc"
