#include "common/text/SizeText.h"

#include <QtTest>

#include <limits>

namespace {

constexpr qint64 KIB = 1024;
constexpr qint64 MIB = 1048576;
constexpr qint64 GIB = 1073741824;
constexpr qint64 GREATEST = std::numeric_limits<qint64>::max();
constexpr qint64 SMALLEST = std::numeric_limits<qint64>::min();

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
        row("998 KB", 998 * KIB, "998KB");
        row("just below 999 KB rounds up to it", 999 * KIB - 1, "999KB");
        row("999 KB is one MB", 999 * KIB, "1MB");
        row("1000 KB", 1000 * KIB, "1MB");
        row("just below a MB", MIB - 1, "1MB");
        row("one MB", MIB, "1MB");
        row("one and a half MB", MIB + MIB / 2, "1.5MB");
        row("998 MB", 998 * MIB, "998MB");
        row("just below 999 MB", 999 * MIB - 1, "999MB");
        row("999 MB is one GB", 999 * MIB, "1GB");
        row("just below a GB", GIB - 1, "1GB");
        row("one GB", GIB, "1GB");
        row("two and a half GB", 2 * GIB + GIB / 2, "2.5GB");
        row("999 GB", 999 * GIB, "999GB");
        row("just below 999.5 GB", 999 * GIB + GIB / 2 - 1, "999GB");
        row("999.5 GB has an exponent", 999 * GIB + GIB / 2, "1e+03GB");
        row("1024 GB", 1024 * GIB, "1.02e+03GB");
        row("the greatest", GREATEST, "8.59e+09GB");
        row("a negative one", -1, "-1B");
        row("a great negative one", -5 * GIB, "-5368709120B");
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
        row("MB", 10 * MIB, 4, "2.5MB/s");
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
        constexpr qint64 NOW = 1800000000000;
        row("no start", 0, NOW, 1000, 0, "0B/S");
        row("no start, whatever else", 0, 1, GREATEST, 0, "0B/S");
        row("the same time", NOW, NOW, 1000, 0, "0B/S");
        row("an end before the start", NOW, NOW - 1, 1000, 0, "0B/S");
        row("one second", NOW, NOW + 1000, 500, 500, "500B/S");
        row("half a second", NOW, NOW + 500, 500, 1000, "1000B/S");
        row("the rest is dropped", NOW, NOW + 3, 1, 333, "333B/S");
        row("less than one a second", NOW, NOW + 2000, 1, 0, "0B/S");
        row("last of the bytes", NOW, NOW + 1000, 1023, 1023, "1023B/S");
        row("first of the KB", NOW, NOW + 1000, 1024, 1024, "1.0KB/S");
        row("one and a half KB", NOW, NOW + 1000, 1536, 1536, "1.5KB/S");
        row("last of the KB", NOW, NOW + 1000, MIB - 1, MIB - 1, "1024.0KB/S");
        row("first of the MB", NOW, NOW + 1000, MIB, MIB, "1.0MB/S");
        row("below the cap", NOW, NOW + 1000, 15728639, 15728639, "15.0MB/S");
        row("the cap", NOW, NOW + 1000, 15728640, 15728640, "15.0MB/S");
        row("above the cap", NOW, NOW + 1000, 15728641, 15728640, "15.0MB/S");
        row("far above the cap", NOW, NOW + 1, GREATEST, 15728640, "15.0MB/S");
        row("no bytes", NOW, NOW + 1000, 0, 0, "0B/S");
        row("negative bytes", NOW, NOW + 1000, -500, -500, "-500B/S");
        row("a start before the epoch", -1000, 1000, 4000, 2000, "2.0KB/S");
        row("as far apart as can be", SMALLEST, GREATEST, GREATEST, 499, "499B/S");
        row("as far below as can be", NOW, NOW + 1, SMALLEST, -GREATEST, "-9.22337e+18B/S");
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
