#include "common/text/SizeText.h"

#include <QtTest>

#include <limits>

namespace {

constexpr qint64 cKib = 1024;
constexpr qint64 cMib = 1048576;
constexpr qint64 cGib = 1073741824;
constexpr qint64 cGreatest = std::numeric_limits<qint64>::max();
constexpr qint64 cSmallest = std::numeric_limits<qint64>::min();

} // namespace

class tst_SizeText : public QObject
{
    Q_OBJECT

private slots:
    void aSizeHasThreeDigitsAndItsUnit_data()
    {
        QTest::addColumn<qint64>("bytes");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *pName, qint64 iBytes, const char *pText) {
            QTest::newRow(pName) << iBytes << QString(pText);
        };
        row("nothing", 0, "0B");
        row("one", 1, "1B");
        row("999 bytes", 999, "999B");
        row("1000 bytes", 1000, "1000B");
        row("last of the bytes", 1023, "1023B");
        row("first of the KB", 1024, "1KB");
        row("one byte more", 1025, "1KB");
        row("one and a half", 1536, "1.5KB");
        row("rounded to three digits", 1234567, "1.18MB");
        row("998 KB", 998 * cKib, "998KB");
        row("just below 999 KB rounds up to it", 999 * cKib - 1, "999KB");
        row("999 KB is one MB", 999 * cKib, "1MB");
        row("1000 KB", 1000 * cKib, "1MB");
        row("just below a MB", cMib - 1, "1MB");
        row("one MB", cMib, "1MB");
        row("one and a half MB", cMib + cMib / 2, "1.5MB");
        row("998 MB", 998 * cMib, "998MB");
        row("just below 999 MB", 999 * cMib - 1, "999MB");
        row("999 MB is one GB", 999 * cMib, "1GB");
        row("just below a GB", cGib - 1, "1GB");
        row("one GB", cGib, "1GB");
        row("two and a half GB", 2 * cGib + cGib / 2, "2.5GB");
        row("999 GB", 999 * cGib, "999GB");
        row("just below 999.5 GB", 999 * cGib + cGib / 2 - 1, "999GB");
        row("999.5 GB has an exponent", 999 * cGib + cGib / 2, "1e+03GB");
        row("1024 GB", 1024 * cGib, "1.02e+03GB");
        row("the greatest", cGreatest, "8.59e+09GB");
        row("a negative one", -1, "-1B");
        row("a great negative one", -5 * cGib, "-5368709120B");
    }
    void aSizeHasThreeDigitsAndItsUnit()
    {
        QFETCH(qint64, bytes);
        QTEST(SizeText::fileSizeConvert(bytes), "text");
    }

    void aMeanSpeedHasASmallS_data()
    {
        QTest::addColumn<quint64>("bytes");
        QTest::addColumn<quint64>("seconds");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *pName, quint64 iBytes, quint64 iSeconds, const char *pText) {
            QTest::newRow(pName) << iBytes << iSeconds << QString(pText);
        };
        row("no seconds", 1024, 0, "");
        row("no bytes", 0, 5, "0B/s");
        row("one second", 1536, 1, "1.5KB/s");
        row("whole bytes a second", 10, 3, "3B/s");
        row("last of the bytes", 2047, 2, "1023B/s");
        row("MB", 10 * cMib, 4, "2.5MB/s");
        row("more than a signed number holds", std::numeric_limits<quint64>::max(), 1, "8.59e+09GB/s");
    }
    void aMeanSpeedHasASmallS()
    {
        QFETCH(quint64, bytes);
        QFETCH(quint64, seconds);
        unsigned long iBytes = bytes;
        unsigned long iSeconds = seconds;
        QTEST(SizeText::speedConvert(iBytes, iSeconds), "text");
        QCOMPARE(quint64(iBytes), bytes);
        QCOMPARE(quint64(iSeconds), seconds);
    }

    void speedBetweenTwoTimes_data()
    {
        QTest::addColumn<qint64>("start");
        QTest::addColumn<qint64>("end");
        QTest::addColumn<qint64>("bytes");
        QTest::addColumn<qint64>("speed");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *pName, qint64 iStart, qint64 iEnd, qint64 iBytes, qint64 iSpeed,
                            const char *pText) {
            QTest::newRow(pName) << iStart << iEnd << iBytes << iSpeed << QString(pText);
        };
        constexpr qint64 now = 1800000000000;
        row("no start", 0, now, 1000, 0, "0B/S");
        row("no start, whatever else", 0, 1, cGreatest, 0, "0B/S");
        row("the same time", now, now, 1000, 0, "0B/S");
        row("an end before the start", now, now - 1, 1000, 0, "0B/S");
        row("one second", now, now + 1000, 500, 500, "500B/S");
        row("half a second", now, now + 500, 500, 1000, "1000B/S");
        row("the rest is dropped", now, now + 3, 1, 333, "333B/S");
        row("less than one a second", now, now + 2000, 1, 0, "0B/S");
        row("last of the bytes", now, now + 1000, 1023, 1023, "1023B/S");
        row("first of the KB", now, now + 1000, 1024, 1024, "1.0KB/S");
        row("one and a half KB", now, now + 1000, 1536, 1536, "1.5KB/S");
        row("last of the KB", now, now + 1000, cMib - 1, cMib - 1, "1024.0KB/S");
        row("first of the MB", now, now + 1000, cMib, cMib, "1.0MB/S");
        row("below the cap", now, now + 1000, 15728639, 15728639, "15.0MB/S");
        row("the cap", now, now + 1000, 15728640, 15728640, "15.0MB/S");
        row("above the cap", now, now + 1000, 15728641, 15728640, "15.0MB/S");
        row("far above the cap", now, now + 1, cGreatest, 15728640, "15.0MB/S");
        row("no bytes", now, now + 1000, 0, 0, "0B/S");
        row("negative bytes", now, now + 1000, -500, -500, "-500B/S");
        row("a start before the epoch", -1000, 1000, 4000, 2000, "2.0KB/S");
        row("as far apart as can be", cSmallest, cGreatest, cGreatest, 499, "499B/S");
        row("as far below as can be", now, now + 1, cSmallest, -cGreatest, "-9.22337e+18B/S");
    }
    void speedBetweenTwoTimes()
    {
        QFETCH(qint64, start);
        QFETCH(qint64, end);
        QFETCH(qint64, bytes);
        QTEST(SizeText::getSpeed(start, end, bytes), "speed");
        QTEST(SizeText::getSpeedString(start, end, bytes), "text");
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_SizeText, Guiless)
#include "tst_SizeText.moc"
