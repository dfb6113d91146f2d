#pragma once

// The notification codes of the call process, and the reading of the line that carries one. Nothing that comes over the
// wire throws. No state; any thread.

#include <QString>

namespace SdkNotification {

/// The codes that have an action. Only the number travels; 6, 11 and 14 to 16 are known and have none.
enum Code
{
    IncomingCall = 0,
    IncomingCallAlt = 1,
    IncomingConf = 2,
    RejectRequest = 3,
    PeerCanceled = 4,
    UserRejected = 5,
    CallEnded = 7,
    PeerHangup = 8,
    PeerHangupAlt = 9,
    PeerRejected = 10,
    ConfUpdate = 12,
    ConfMemberLeft = 13,
    SdkFlag = 17,
    CallConnected = 18,
    CallFailed = 19,
    ConfCreated = 20,
    ConfAddResult = 21,
    PeerBusy = 22,
    CallFailedAlt = 23,
    CallFailedAlt2 = 24,
    ConfMemberRejected = 25,
    SdkLog = 999,
};

/// One inbound line: the code and its payload.
struct Line
{
    int code = -1;   ///< -1 for a line that has no effect
    QString content; ///< the payload; empty when absent
};

/// Reads one wire line. A line that does not parse, is not an object or has a wrong type where the code or the payload
/// is read gives the code -1. What the JSON library converts quietly stays: `null` and `{}` are code 0, `true` is 1,
/// 8.9 is 8.
Line read(const QString &line);

} // namespace SdkNotification
