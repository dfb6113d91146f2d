#pragma once

// Times as texts for the user's eye, told from the present moment where it matters: `now` is the local clock unless the
// caller gives another. Words are looked up in the translations of QObject. A time that cannot be read gives the empty
// text.
// Any thread; no state.

#include <QDateTime>
#include <QString>

class TimeText
{
public:
    /// The time in a chat list: "hh:mm" today or on a later date of this year, then "yesterday",
    /// "thedaybeforeyesterday", "MM-dd", and "yyyy-MM-dd" in another year. `strTime` is "yyyy-MM-dd hh:mm:ss" or
    /// "yyyy-MM-dd hh:mm:ss.zzz".
    static QString getTime(const QString &strTime, const QDateTime &now = QDateTime::currentDateTime());

    /// The same; the words and dates are followed by a blank and "hh:mm", which in another year are the letters.
    static QString getTimeEx(const QString &strTime, const QDateTime &now = QDateTime::currentDateTime());

    /// The time of a message of `strMilliseconds` since the epoch: "hh:mm" today, behind the word for the last two days
    /// with no blank between, behind "MM-dd " on other days of the year and behind "yyyy-MM-dd " in other years.
    static QString getDetailTime(const QString &strMilliseconds, const QDateTime &now = QDateTime::currentDateTime());

    /// The age of a post of `strMilliseconds` since the epoch, in Chinese: minutes (at least one), hours, days or
    /// years, with words for the last two days.
    static QString getPublishTime(const QString &strMilliseconds, const QDateTime &now = QDateTime::currentDateTime());

    /// `iSeconds` as "hh:mm:ss". Hours can run past 99; of a negative time each negative part keeps its sign behind a
    /// "0".
    static QString GetTimeString(qint64 iSeconds);

    /// `iSeconds` as a Chinese duration in hours, minutes and seconds without those that are 0; empty for 0 and for a
    /// negative time.
    static QString getTimeStringBySecond(qint64 iSeconds);
};
