#include "common/text/TimeText.h"

#include <QtTest>

namespace {

const QString cFormat = QStringLiteral("yyyy-MM-dd hh:mm:ss");

QDateTime local(const QString &strTime)
{
    return QDateTime::fromString(strTime, cFormat);
}

QString milliseconds(const QString &strTime)
{
    return QString::number(local(strTime).toMSecsSinceEpoch());
}

/// Knows the two words of the context "QObject".
class TwoDays : public QTranslator
{
public:
    QString translate(const char *pContext, const char *pText, const char *, int) const override
    {
        if (qstrcmp(pContext, "QObject") != 0) {
            return {};
        }
        if (qstrcmp(pText, "yesterday") == 0) {
            return QStringLiteral("昨天");
        }
        return qstrcmp(pText, "thedaybeforeyesterday") == 0 ? QStringLiteral("前天") : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class tst_TimeText : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qputenv("TZ", "Asia/Shanghai"); }

    void chatListTimes_data()
    {
        QTest::addColumn<QString>("time");
        QTest::addColumn<QString>("now");
        QTest::addColumn<QString>("plain");
        QTest::addColumn<QString>("withClock");
        const auto row = [](const char *pName, const char *pTime, const char *pNow, const char *pPlain,
                            const char *pWithClock) {
            QTest::newRow(pName) << QString(pTime) << QString(pNow) << QString(pPlain) << QString(pWithClock);
        };
        const char *pNoon = "2026-03-10 12:00:00";
        row("today", "2026-03-10 09:05:59", pNoon, "09:05", "09:05");
        row("today's first second", "2026-03-10 00:00:00", pNoon, "00:00", "00:00");
        row("today's last second", "2026-03-10 23:59:59", pNoon, "23:59", "23:59");
        row("yesterday's last second", "2026-03-09 23:59:59", "2026-03-10 00:00:00", "yesterday", "yesterday 23:59");
        row("yesterday's first second", "2026-03-09 00:00:00", "2026-03-10 23:59:59", "yesterday", "yesterday 00:00");
        row("two days ago, last second", "2026-03-08 23:59:59", pNoon, "thedaybeforeyesterday",
            "thedaybeforeyesterday 23:59");
        row("two days ago, first second", "2026-03-08 00:00:00", pNoon, "thedaybeforeyesterday",
            "thedaybeforeyesterday 00:00");
        row("three days ago", "2026-03-07 23:59:59", pNoon, "03-07", "03-07 23:59");
        row("the year's first day", "2026-01-01 00:00:00", "2026-12-31 23:59:59", "01-01", "01-01 00:00");
        row("tomorrow", "2026-03-11 08:30:00", pNoon, "08:30", "08:30");
        row("far ahead in this year", "2026-12-31 08:30:00", pNoon, "08:30", "08:30");
        row("an earlier year shows letters", "2025-06-01 08:30:00", pNoon, "2025-06-01", "2025-06-01 hh:mm");
        row("yesterday in the old year", "2025-12-31 23:59:59", "2026-01-01 00:00:00", "2025-12-31",
            "2025-12-31 hh:mm");
        row("two days ago in the old year", "2025-12-30 10:00:00", "2026-01-01 00:00:00", "2025-12-30",
            "2025-12-30 hh:mm");
        row("a later year", "2027-01-01 00:00:00", "2026-12-31 23:59:59", "2027-01-01", "2027-01-01 hh:mm");
        row("across a leap day", "2028-02-28 10:00:00", "2028-03-01 10:00:00", "thedaybeforeyesterday",
            "thedaybeforeyesterday 10:00");
        row("across no leap day", "2026-02-28 10:00:00", "2026-03-01 10:00:00", "yesterday", "yesterday 10:00");
        row("with milliseconds", "2026-03-10 09:05:59.123", pNoon, "09:05", "09:05");
        row("milliseconds of another year", "2025-03-10 09:05:59.999", pNoon, "2025-03-10", "2025-03-10 hh:mm");
        row("nothing", "", pNoon, "", "");
        row("no time", "hello", pNoon, "", "");
        row("nineteen other letters", "2026/03/10 09:05:59", pNoon, "", "");
        row("no such day", "2026-02-30 09:05:59", pNoon, "", "");
        row("without seconds", "2026-03-10 09:05", pNoon, "", "");
        row("a cut fraction", "2026-03-10 09:05:59.", pNoon, "", "");
    }
    void chatListTimes()
    {
        QFETCH(QString, time);
        QFETCH(QString, now);
        QTEST(TimeText::getTime(time, local(now)), "plain");
        QTEST(TimeText::getTimeEx(time, local(now)), "withClock");
    }

    void detailTimes_data()
    {
        QTest::addColumn<QString>("time");
        QTest::addColumn<QString>("now");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *pName, const char *pTime, const char *pNow, const char *pText) {
            QTest::newRow(pName) << QString(pTime) << QString(pNow) << QString(pText);
        };
        const char *pNoon = "2026-03-10 12:00:00";
        row("today", "2026-03-10 09:05:59", pNoon, "09:05");
        row("later today", "2026-03-10 23:59:59", pNoon, "23:59");
        row("yesterday, no blank", "2026-03-09 23:59:59", "2026-03-10 00:00:00", "yesterday23:59");
        row("two days ago, no blank", "2026-03-08 00:00:00", pNoon, "thedaybeforeyesterday00:00");
        row("three days ago", "2026-03-07 23:59:59", pNoon, "03-07 23:59");
        row("tomorrow", "2026-03-11 00:00:00", pNoon, "03-11 00:00");
        row("an earlier year has its clock", "2025-06-01 08:30:00", pNoon, "2025-06-01 08:30");
        row("yesterday in the old year", "2025-12-31 23:59:59", "2026-01-01 00:00:00", "2025-12-31 23:59");
        row("a later year", "2027-01-01 00:00:00", "2026-12-31 23:59:59", "2027-01-01 00:00");
    }
    void detailTimes()
    {
        QFETCH(QString, time);
        QFETCH(QString, now);
        QTEST(TimeText::getDetailTime(milliseconds(time), local(now)), "text");
    }

    void agesOfPosts_data()
    {
        QTest::addColumn<QString>("time");
        QTest::addColumn<QString>("now");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *pName, const char *pTime, const char *pNow, const char *pText) {
            QTest::newRow(pName) << QString(pTime) << QString(pNow) << QString(pText);
        };
        row("ten seconds", "2026-03-10 10:05:10", "2026-03-10 10:05:20", "1分钟前");
        row("the next minute", "2026-03-10 10:05:59", "2026-03-10 10:06:00", "1分钟前");
        row("two minutes", "2026-03-10 10:05:00", "2026-03-10 10:07:00", "2分钟前");
        row("the last minute of the hour", "2026-03-10 10:00:00", "2026-03-10 10:59:59", "59分钟前");
        row("a minute ahead", "2026-03-10 10:06:00", "2026-03-10 10:05:00", "-1分钟前");
        row("15 minutes over the hour", "2026-03-10 09:50:00", "2026-03-10 10:05:00", "15分钟前");
        row("59 minutes over the hour", "2026-03-10 09:06:00", "2026-03-10 10:05:00", "59分钟前");
        row("one hour to the minute", "2026-03-10 09:05:59", "2026-03-10 10:05:00", "1小时前");
        row("nearly two hours", "2026-03-10 09:00:00", "2026-03-10 10:59:59", "1小时前");
        row("two hours by the clock", "2026-03-10 08:59:00", "2026-03-10 10:00:00", "2小时前");
        row("the whole day", "2026-03-10 00:00:00", "2026-03-10 23:59:59", "23小时前");
        row("an hour ahead", "2026-03-10 11:00:00", "2026-03-10 10:00:00", "-1小时前");
        row("over midnight", "2026-03-09 23:00:00", "2026-03-10 01:00:00", "2小时前");
        row("a minute over midnight", "2026-03-09 23:59:00", "2026-03-10 00:00:00", "1小时前");
        row("23 hours", "2026-03-09 11:00:00", "2026-03-10 10:00:00", "23小时前");
        row("the same hour of yesterday", "2026-03-09 10:59:00", "2026-03-10 10:00:00", "yesterday");
        row("early yesterday", "2026-03-09 00:00:00", "2026-03-10 23:59:59", "yesterday");
        row("two days by date", "2026-03-08 23:59:59", "2026-03-10 00:00:00", "thedaybeforeyesterday");
        row("three days", "2026-03-07 23:59:59", "2026-03-10 00:00:00", "3天前");
        row("the year's days", "2026-01-01 00:00:00", "2026-12-31 23:59:59", "364天前");
        row("tomorrow", "2026-03-11 10:00:00", "2026-03-10 10:00:00", "-1天前");
        row("the old year's last hour", "2025-12-31 23:00:00", "2026-01-01 01:00:00", "2小时前");
        row("the old year's yesterday", "2025-12-31 01:00:00", "2026-01-01 01:00:00", "yesterday");
        row("last December", "2025-12-01 10:00:00", "2026-01-15 10:00:00", "45天前");
        row("364 days over the new year", "2025-03-11 10:00:00", "2026-03-10 10:00:00", "364天前");
        row("365 days over the new year", "2025-03-10 10:00:00", "2026-03-10 10:00:00", "1年前");
        row("nearly two years", "2025-01-01 00:00:00", "2026-12-31 23:59:59", "1年前");
        row("two years by number", "2024-12-31 23:59:59", "2026-01-01 00:00:00", "2年前");
        row("long ago", "1970-01-02 00:00:00", "2026-03-10 10:00:00", "56年前");
        row("next year", "2027-01-01 00:00:00", "2026-12-31 23:59:59", "-1年前");
    }
    void agesOfPosts()
    {
        QFETCH(QString, time);
        QFETCH(QString, now);
        QTEST(TimeText::getPublishTime(milliseconds(time), local(now)), "text");
    }

    void millisecondsAreReadInLocalTime()
    {
        const QDateTime now = local("2026-03-10 12:00:00");
        QCOMPARE(TimeText::getDetailTime("1773100800000", now), QString("08:00"));
        QCOMPARE(TimeText::getDetailTime("1773100859999", now), QString("08:00"));
        QCOMPARE(TimeText::getDetailTime("0", now), QString("1970-01-01 08:00"));
        QCOMPARE(TimeText::getDetailTime("-1", now), QString("1970-01-01 07:59"));
    }

    void whatIsNoNumberGivesNoText_data()
    {
        QTest::addColumn<QString>("text");
        for (const char *pText : {"", "hello", "12a", "1.5", "99999999999999999999999", "2026-03-10 12:00:00"}) {
            QTest::newRow(*pText ? pText : "nothing") << QString(pText);
        }
    }
    void whatIsNoNumberGivesNoText()
    {
        QFETCH(QString, text);
        const QDateTime now = local("2026-03-10 12:00:00");
        QCOMPARE(TimeText::getDetailTime(text, now), QString());
        QCOMPARE(TimeText::getPublishTime(text, now), QString());
    }

    void timesFarOutsideTheCalendarAreHarmless()
    {
        const QDateTime now = local("2026-03-10 12:00:00");
        for (const char *pText : {"9223372036854775807", "-9223372036854775808", "253402300800000"}) {
            QVERIFY(TimeText::getPublishTime(pText, now).endsWith("年前"));
            QVERIFY(TimeText::getDetailTime(pText, now) != TimeText::getDetailTime("0", now));
        }
    }

    void theDaysAreNamedByTheTranslationOfQObject()
    {
        TwoDays words;
        QVERIFY(QCoreApplication::installTranslator(&words));
        const QDateTime now = local("2026-03-10 12:00:00");
        const QString strYesterday = "2026-03-09 10:05:00";
        const QString strBefore = "2026-03-08 10:05:00";
        QCOMPARE(TimeText::getTime(strYesterday, now), QString("昨天"));
        QCOMPARE(TimeText::getTime(strBefore, now), QString("前天"));
        QCOMPARE(TimeText::getTimeEx(strYesterday, now), QString("昨天 10:05"));
        QCOMPARE(TimeText::getTimeEx(strBefore, now), QString("前天 10:05"));
        QCOMPARE(TimeText::getDetailTime(milliseconds(strYesterday), now), QString("昨天10:05"));
        QCOMPARE(TimeText::getDetailTime(milliseconds(strBefore), now), QString("前天10:05"));
        QCOMPARE(TimeText::getPublishTime(milliseconds(strYesterday), now), QString("昨天"));
        QCOMPARE(TimeText::getPublishTime(milliseconds(strBefore), now), QString("前天"));
        QCoreApplication::removeTranslator(&words);
    }

    void theLocalClockIsTheOneUnlessToldOtherwise()
    {
        // Ten years ago and ten years ahead stay so whatever happens between this line and the calls.
        const QDateTime now = QDateTime::currentDateTime();
        const QDateTime past = now.addYears(-10);
        const QDateTime future = now.addYears(10);
        QCOMPARE(TimeText::getTime(past.toString(cFormat)), past.toString("yyyy-MM-dd"));
        QCOMPARE(TimeText::getTimeEx(future.toString(cFormat)), future.toString("yyyy-MM-dd") + " hh:mm");
        QCOMPARE(TimeText::getDetailTime(QString::number(past.toMSecsSinceEpoch())), past.toString("yyyy-MM-dd hh:mm"));
        QVERIFY(TimeText::getPublishTime(QString::number(past.toMSecsSinceEpoch())).startsWith("1"));
    }

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

    void secondsReadAsDuration_data()
    {
        QTest::addColumn<qint64>("seconds");
        QTest::addColumn<QString>("text");
        QTest::newRow("zero") << qint64(0) << "";
        QTest::newRow("a second") << qint64(1) << "1秒";
        QTest::newRow("last of the seconds") << qint64(59) << "59秒";
        QTest::newRow("a minute alone") << qint64(60) << "1分";
        QTest::newRow("a minute and a second") << qint64(61) << "1分1秒";
        QTest::newRow("last of the minutes") << qint64(3599) << "59分59秒";
        QTest::newRow("an hour alone") << qint64(3600) << "1小时";
        QTest::newRow("an hour and a second") << qint64(3601) << "1小时1秒";
        QTest::newRow("an hour and a minute") << qint64(3660) << "1小时1分";
        QTest::newRow("all three") << qint64(3661) << "1小时1分1秒";
        QTest::newRow("a day is 24 hours") << qint64(86400) << "24小时";
        QTest::newRow("more than 32 bits") << qint64(36000000000) << "10000000小时";
        QTest::newRow("a negative time") << qint64(-3661) << "";
    }
    void secondsReadAsDuration()
    {
        QFETCH(qint64, seconds);
        QTEST(TimeText::getTimeStringBySecond(seconds), "text");
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_TimeText, Guiless)
#include "tst_TimeText.moc"
