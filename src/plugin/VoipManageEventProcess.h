#pragma once

// Everything that the plug-in asks of the host and of the host's other plug-ins. Each operation packs its arguments
// into a BaseEvent, names the receiver by id and hands the event to the mailbox. GUI thread only; no state. Synchronous
// operations run the receiver's handler to its end before they return, and that handler may open an event loop.

#include <QObject>
#include <QString>
#include <QStringList>

class FriendData;

/// The requests to the host, all static.
class VoipManageEventProcess : public QObject
{
    Q_OBJECT

public:
    /// Tells the session plug-in that `strUserId` calls; it prompts the user and answers with
    /// MSG_RESPONSE_VOIP_REQUEST.
    static void notifyRecevieVoipCall(QString strUserId, bool bIsConf, bool bIsVideo);

    /// Tells the session plug-in that a call with `strUserId` has ended: `iResult` is a CallResult,
    /// `iSeconds` the length of the call in seconds.
    static void notifyCallFinished(bool bIsVideo, QString strUserId, int iResult, bool bIsCaller, bool bIsConnected,
                                   qint64 iSeconds);

    /// Lets the session plug-in open its picker for a new conference; `list` holds the users to start with.
    static void notifyCreateVoiceConference(QStringList list);

    /// Lets the session plug-in open its picker for further members; `list` holds the people already there, without the
    /// own id. Returns the users to add; an answer that does not read as a list gives an empty one, and a missing
    /// answer gives `list`.
    static QStringList addMemberToConference(QStringList list);

    /// The record of `strJid`: from the shared friend map when it is there, else by asking the contact plug-in. Without
    /// an answer a default record.
    static FriendData getFriendInfoByJid(QString strJid);

    /// Whether the contact plug-in knows `strJid` as a contact. The answer replaces the question in the event; without
    /// one the question is read as if it were the answer, by its first byte: false for any text but a null one.
    static bool isExistFriend(QString strJid);

    /// Asks the vCard plug-in, by a queued event, for the cards of `ids`; `versions` holds for each id the decimal
    /// version of the card at hand. The cards come back as MSG_UPDATE_USER_INFO. The engine always passes `flag` as
    /// true.
    static void getStrangerSmallVCard(QStringList ids, QStringList versions, bool flag);

    /// Takes away the host's prompt of the call with `strJid`.
    static void closeAVMsgBox(QString strJid);

    /// Shows the signature card for `text` (a jid) at `x`, `y`; these and `height` are in pixels, and the lists pass
    /// their view's width as `height`. The meaning of `b1` and `b2` is the receiver's.
    static void showSignList(QString text, int x, int y, int height, bool b1, bool b2);

    /// Hides the signature card.
    static void closeSignList();
};
