#pragma once

#include <QDateTime>
#include <QMetaType>
#include <QString>

/// Why a call ended, as command 4478 says it.
enum CallResult
{
    resultCancelled = 21, ///< before it was answered, by this side or by the caller
    resultFailed = 22,    ///< it could not be made
    resultHungUp = 24,    ///< after it was answered, or by the far end
    resultBusy = 25,      ///< the far end was in another call
    resultRejected = 26   ///< here or there
};

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
