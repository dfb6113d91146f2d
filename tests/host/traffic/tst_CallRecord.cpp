#include "traffic/CallRecord.h"

#include <QTest>

class tst_CallRecord : public QObject
{
    Q_OBJECT

private slots:
    void eachResultHasItsWord_data()
    {
        QTest::addColumn<int>("result");
        QTest::addColumn<QString>("word");
        QTest::newRow("21") << 21 << QStringLiteral("cancelled");
        QTest::newRow("22") << 22 << QStringLiteral("failed");
        QTest::newRow("24") << 24 << QStringLiteral("hung up");
        QTest::newRow("25") << 25 << QStringLiteral("busy");
        QTest::newRow("26") << 26 << QStringLiteral("rejected");
        QTest::newRow("another") << 23 << QStringLiteral("23");
    }

    void eachResultHasItsWord()
    {
        QFETCH(int, result);
        QTEST(outcomeWord(result), "word");
    }

    void durationIsMinutesAndSeconds_data()
    {
        QTest::addColumn<qint64>("seconds");
        QTest::addColumn<QString>("text");
        QTest::newRow("nothing") << qint64(0) << QStringLiteral("0:00");
        QTest::newRow("seconds") << qint64(9) << QStringLiteral("0:09");
        QTest::newRow("minutes") << qint64(754) << QStringLiteral("12:34");
        QTest::newRow("just below an hour") << qint64(3599) << QStringLiteral("59:59");
        QTest::newRow("one hour") << qint64(3600) << QStringLiteral("1:00:00");
        QTest::newRow("one minute") << qint64(60) << QStringLiteral("1:00");
        QTest::newRow("longer than a day") << qint64(100 * 3600) << QStringLiteral("100:00:00");
        QTest::newRow("hours") << qint64(3600 + 62) << QStringLiteral("1:01:02");
        QTest::newRow("a clock set back") << qint64(-5) << QStringLiteral("0:00");
    }

    void durationIsMinutesAndSeconds()
    {
        QFETCH(qint64, seconds);
        QTEST(durationText(seconds), "text");
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CallRecord, Guiless)
#include "tst_CallRecord.moc"
