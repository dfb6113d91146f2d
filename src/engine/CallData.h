#pragma once

// The one current call of the engine, as far as this side knows it. A plain value; GUI thread only, owned by
// CVoipManage.
//
// There is no state variable: a call exists when `peerId` or `memberList` is not empty, and its state follows from the
// flags.

#include "plugin/CallResult.h"

#include <QDateTime>
#include <QString>
#include <QStringList>

struct CallData
{
    /// Why a call ended: the numbers that the host is told, under the engine's own names.
    enum FinishResult
    {
        FinishCanceled = resultCancelled,
        FinishFailed = resultFailed,
        FinishHangup = resultHungUp,
        FinishBusy = resultBusy,
        FinishRejected = resultRejected,
    };

    bool bIsConf = false;      ///< a conference, else a single call
    bool bIsVideo = false;     ///< a video call; only an outgoing single call ever is
    bool bIsCaller = false;    ///< this side started the call; in a conference: this side created it
    bool bIsConnected = false; ///< media is up
    QStringList memberList; ///< user ids known to belong to the conference; the creator's own id included on its side
    QStringList connectedList; ///< user ids that the last conference document named
    QString peerId;            ///< single call: the other party; incoming conference: its creator
    QDateTime connectTime;     ///< UTC instant of the connection; null before
    QString confId;            ///< conference id, given by the call process
    QDateTime createTime;      ///< creation time as the call process reported it, local time; null when it did not
};
