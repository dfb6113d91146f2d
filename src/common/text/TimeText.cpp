#include "common/text/TimeText.h"

#include <QObject>

namespace {

QDateTime fromDateText(const QString &strTime)
{
    const auto strSeconds = QStringLiteral("yyyy-MM-dd hh:mm:ss");
    return QDateTime::fromString(strTime, strTime.size() == strSeconds.size() ? strSeconds
                                                                              : strSeconds + QStringLiteral(".zzz"));
}

/// A local time; invalid if the text is no number.
QDateTime fromMilliseconds(const QString &strMilliseconds)
{
    bool bNumber = false;
    const qint64 iMilliseconds = strMilliseconds.toLongLong(&bNumber);
    return bNumber ? QDateTime::fromMSecsSinceEpoch(iMilliseconds) : QDateTime();
}

QString clockOf(const QDateTime &time)
{
    return time.toString(QStringLiteral("hh:mm"));
}

/// The word for the day that lies so many days back; empty if it has none.
QString dayWord(qint64 iDays)
{
    if (iDays == 1) {
        return QObject::tr("yesterday");
    }
    return iDays == 2 ? QObject::tr("thedaybeforeyesterday") : QString();
}

QString minutesAgo(int iMinutes)
{
    return QString::number(iMinutes) + QStringLiteral("分钟前");
}

QString hoursAgo(int iHours)
{
    return QString::number(iHours) + QStringLiteral("小时前");
}

QString agoToday(const QTime &then, const QTime &now)
{
    const int iHours = now.hour() - then.hour();
    const int iMinutes = now.minute() - then.minute();
    if (iHours == 0) {
        return minutesAgo(iMinutes == 0 ? 1 : iMinutes);
    }
    return iHours == 1 && iMinutes < 0 ? minutesAgo(iMinutes + 60) : hoursAgo(iHours);
}

QString twoDigits(qint64 iPart)
{
    const QString strPart = QString::number(iPart);
    return iPart <= 9 ? QLatin1Char('0') + strPart : strPart;
}

} // namespace

QString TimeText::getTime(const QString &strTime, const QDateTime &now)
{
    const QDateTime time = fromDateText(strTime);
    const qint64 iDays = time.date().daysTo(now.date());
    if (time.date().year() != now.date().year()) {
        return time.date().toString(QStringLiteral("yyyy-MM-dd"));
    }
    if (iDays == 1 || iDays == 2) {
        return dayWord(iDays);
    }
    return iDays < 3 ? clockOf(time) : time.toString(QStringLiteral("MM-dd"));
}

QString TimeText::getTimeEx(const QString &strTime, const QDateTime &now)
{
    const QDateTime time = fromDateText(strTime);
    const qint64 iDays = time.date().daysTo(now.date());
    // Deliberate: the format of a date leaves the letters of the clock, and chat lists show them so.
    if (time.date().year() != now.date().year()) {
        return time.date().toString(QStringLiteral("yyyy-MM-dd hh:mm"));
    }
    if (iDays == 1 || iDays == 2) {
        return dayWord(iDays) + QLatin1Char(' ') + clockOf(time);
    }
    return iDays < 3 ? clockOf(time) : time.toString(QStringLiteral("MM-dd hh:mm"));
}

QString TimeText::getDetailTime(const QString &strMilliseconds, const QDateTime &now)
{
    const QDateTime time = fromMilliseconds(strMilliseconds);
    const qint64 iDays = time.date().daysTo(now.date());
    if (time.date().year() != now.date().year()) {
        return time.toString(QStringLiteral("yyyy-MM-dd hh:mm"));
    }
    if (iDays >= 0 && iDays <= 2) {
        return dayWord(iDays) + clockOf(time);
    }
    return time.toString(QStringLiteral("MM-dd hh:mm"));
}

QString TimeText::getPublishTime(const QString &strMilliseconds, const QDateTime &now)
{
    const QDateTime time = fromMilliseconds(strMilliseconds);
    if (!time.isValid()) {
        return {};
    }

    const int iYears = now.date().year() - time.date().year();
    const qint64 iDays = time.date().daysTo(now.date());
    if (iYears != 0 && (iYears != 1 || quint32(iDays) > 364)) {
        return QString::number(iYears) + QStringLiteral("年前");
    }
    if (iDays == 0) {
        return agoToday(time.time(), now.time());
    }
    if (iDays == 1 && time.time().hour() > now.time().hour()) {
        return hoursAgo(now.time().hour() + 24 - time.time().hour());
    }
    if (iDays == 1 || iDays == 2) {
        return dayWord(iDays);
    }
    return QString::number(iDays) + QStringLiteral("天前");
}

QString TimeText::GetTimeString(qint64 iSeconds)
{
    const QLatin1Char colon(':');
    const qint64 iRest = iSeconds % 3600;
    return twoDigits(iSeconds / 3600) + colon + twoDigits(iRest / 60) + colon + twoDigits(iRest % 60);
}

QString TimeText::getTimeStringBySecond(qint64 iSeconds)
{
    const auto part = [](qint64 iPart, const QString &strUnit) {
        return iPart > 0 ? QString::number(iPart) + strUnit : QString();
    };
    const qint64 iRest = iSeconds % 3600;
    return part(iSeconds / 3600, QStringLiteral("小时")) + part(iRest / 60, QStringLiteral("分")) +
           part(iRest % 60, QStringLiteral("秒"));
}
