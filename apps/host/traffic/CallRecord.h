#pragma once

#include "plugin/CallResult.h"

#include <QDateTime>
#include <QMetaType>
#include <QString>

/// One finished call, as the session plug-in is told of it by command 4478. A value; GUI thread.
struct CallRecord
{
    bool video = false;     ///< it was placed as a video call
    QString uid;            ///< the other party
    int result = 0;         ///< why it ended: a CallResult, or whatever number the event has
    bool caller = false;    ///< this user placed it
    bool connected = false; ///< it was answered
    qint64 seconds = 0;     ///< time connected
    QDateTime endedAt;      ///< local time of the end
};

Q_DECLARE_METATYPE(CallRecord)

/// The word, in the client's language, for a CallResult: in English "cancelled", "failed", "hung up", "busy",
/// "rejected"; any other number as it is.
QString outcomeWord(int iResult);

/// Seconds as "m:ss", hours in front from 60 minutes on; a negative number counts as 0.
QString durationText(qint64 iSeconds);
