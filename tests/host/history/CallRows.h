#pragma once

// Entries of a history for tests.

#include "history/CallEntry.h"

#include <QDateTime>

/// A single outgoing call that found the other busy, begun so many minutes before noon of a day long past.
inline CallEntry callRow(const char *strUid, int iMinutesBefore = 0)
{
    CallEntry entry;
    entry.uid = QLatin1String(strUid);
    entry.caller = true;
    entry.outcome = resultBusy;
    entry.begun = QDateTime(QDate(2024, 5, 3), QTime(12, 0)).addSecs(-60 * qint64(iMinutesBefore));
    return entry;
}

/// One that came in and was missed, which the user has still to be told of.
inline CallEntry missedRow(const char *strUid, int iMinutesBefore = 0)
{
    CallEntry entry = callRow(strUid, iMinutesBefore);
    entry.caller = false;
    entry.outcome = outcomeMissed;
    entry.seen = false;
    return entry;
}

/// A conference of the own user with these two that lasted ten minutes.
inline CallEntry conferenceRow(const char *strOne, const char *strOther, int iMinutesBefore = 0)
{
    CallEntry entry = callRow("30010000", iMinutesBefore);
    entry.conference = true;
    entry.members = QStringList{QLatin1String(strOne), QLatin1String(strOther)};
    entry.connected = true;
    entry.seconds = 600;
    entry.outcome = resultHungUp;
    return entry;
}
