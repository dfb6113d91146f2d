#include "common/TimeText.h"

#include <QtTest>

class tst_TimeText : public QObject
{
    Q_OBJECT

private slots:
    void secondsReadAsClock_data()
    {
        QTest::addColumn<qint64>("seconds");
        QTest::addColumn<QString>("text");
        QTest::newRow("zero") << qint64(0) << "00:00:00";
        QTest::newRow("nine seconds get a zero") << qint64(9) << "00:00:09";
        QTest::newRow("ten seconds do not") << qint64(10) << "00:00:10";
        QTest::newRow("a minute") << qint64(60) << "00:01:00";
        QTest::newRow("an hour, a minute, a second") << qint64(3661) << "01:01:01";
        QTest::newRow("end of a day") << qint64(86399) << "23:59:59";
        QTest::newRow("hours run past 99") << qint64(360000) << "100:00:00";
        QTest::newRow("more than 32 bits") << qint64(36000000000) << "10000000:00:00";
        QTest::newRow("a sign stays behind the zero") << qint64(-1) << "00:00:0-1";
        QTest::newRow("each negative part has its sign") << qint64(-3661) << "0-1:0-1:0-1";
        QTest::newRow("two negative digits too") << qint64(-45) << "00:00:0-45";
    }
    void secondsReadAsClock()
    {
        QFETCH(qint64, seconds);
        QTEST(TimeText::GetTimeString(seconds), "text");
    }
};

QTEST_GUILESS_MAIN(tst_TimeText)
#include "tst_TimeText.moc"
