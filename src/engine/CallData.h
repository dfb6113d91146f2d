#pragma once

// The one current call of the engine, as far as this side knows it. A plain value; GUI thread only, owned by
// CVoipManage.
//
// There is no state variable: a call exists when `peerId` or `memberList` is not empty, and its state follows from the
// flags.

#include <QDateTime>
#include <QString>
#include <QStringList>

struct CallData
{
    /// Why a call ended. The numbers go to the host with the call record and are part of its contract.
    enum FinishResult
    {
        /// ended before it connected, by this side or by the caller; also notification 4, or 5 naming the own user, at
        /// any time
        FinishCanceled = 21,
        FinishFailed = 22,   ///< the call process could not make the call
        FinishHangup = 24,   ///< ended after it connected, or by the far end
        FinishBusy = 25,     ///< the far end is in another call
        FinishRejected = 26, ///< refused, here or there
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
