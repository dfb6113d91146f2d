#pragma once

#include "traffic/CallRecord.h"

#include <QDateTime>
#include <QString>
#include <QStringList>

/// What became of a call beyond what a CallResult tells. The numbers stand in the user's file.
enum CallOutcome
{
    outcomeRunning = 0,   ///< it is not over
    outcomeMissed = 1,    ///< it came in, and the user neither took nor refused it
    outcomeCutOff = 2,    ///< its end was not seen, since the client or the call process ended first or another call
                          ///< took its place
    outcomeNoAnswer = 3,  ///< nobody took it within the time that a call may ring
    outcomeRunningIn = 4, ///< it is not over, came in, and the user has not taken it
};

/// One call of the history, single or conference, from its begin on. A value; GUI thread.
struct CallEntry
{
    qint64 id = 0;           ///< number in the history; 0 for one that is not in it
    QDateTime begun;         ///< local time; invalid where nobody has noted it
    qint64 seconds = 0;      ///< time connected
    QString uid;             ///< the other party; who called a conference together, the own user for an own one
    QStringList members;     ///< user ids of a conference's members without the own user; empty for a single call
    QString confId;          ///< what the store's record of the conference goes by; empty where there is none
    int outcome = 0;         ///< a CallOutcome or a CallResult
    bool conference = false; ///< else a single call
    bool video = false;      ///< it was placed as a video call
    bool caller = false;     ///< this user placed it
    bool connected = false;  ///< it was answered
    bool seen = true;        ///< false: the user has still to be told how it ended

    /// Whether it is not over.
    bool isRunning() const { return outcome == outcomeRunning || outcome == outcomeRunningIn; }

    /// Whether it came in and was missed.
    bool isMissed() const { return outcome == outcomeMissed; }
};

Q_DECLARE_METATYPE(CallEntry)

/// The word, in the client's language, for what became of the call: in English "missed", "cut off", "no answer", "now",
/// or the outcomeWord() of its CallResult.
QString historyWord(const CallEntry &entry);
