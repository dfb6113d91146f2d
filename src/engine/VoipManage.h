#pragma once

// The call engine: the one object that knows whether a call exists. It owns the link to the call process, the current
// call, the ring, the call window, the conference centre while it is open, and three timers. The host's commands reach
// it through the mailbox, the user's clicks through the signals of both windows, the call process's reports through the
// socket.
//
// GUI thread only, no lock, nothing thrown. It blocks for at most one second while the socket connects and one second
// while the last line is written at the exit. The singleton is created at the host's first command and lives to the
// process's end.

#include "engine/CallData.h"
#include "model/UidIndex.h"
#include "model/VcardInfo.h"

#include <QLocalSocket>
#include <QObject>
#include <QTimer>

struct ConferenceDocument;
class CVoiceConferenceWidget;
class CVoipWidget;
class QProcess;
class QSound;

class CVoipManage : public QObject
{
    Q_OBJECT

public:
    /// How long an outgoing call may ring, in milliseconds.
    static constexpr int cInviteLimitMs = 60000;
    /// How long an incoming call may stay unconnected, accepted or not, in milliseconds.
    static constexpr int cRecevieLimitMs = 60000;

    /// What a member of a conference can be made to do. The numbers stand in the log.
    enum ConfControlSignal
    {
        Kick = 0,
        Mute = 1,
        UnMute = 2
    };

    /// The singleton, created without a parent on the first call and never deleted.
    static CVoipManage *instance();

    /// Takes the ring, starts the call process, tries to connect (up to one second) and builds the hidden call window.
    explicit CVoipManage(QObject *parent = nullptr);
    ~CVoipManage() override;

    // Core.
    /// Starts the call process and makes the first attempt to connect.
    void initVoipSDK();

    /// Builds the hidden call window and connects its signals.
    void initVoipWidget();

    /// The host's exit: hangs up, tells the call process to quit, closes the channel.
    void exitVoip();

    /// Forgets the current call. Timers, ring and window are the caller's business. Deliberately no slot: the call
    /// window's signal of the same purpose does not reach it.
    void clearLocalCallData();

    /// Whether the machine has any audio input. Waits a second at most for a silent sound server, and is true then.
    bool getIsHasAudioInputDevice();

    /// Whether there is a call in any state, one that only rings included.
    bool isExistCall();

    /// Rings until stopRinging(), unless the user's setting closeVoice is "1".
    void playReceviceCall();

    /// Stops the ring; harmless when nothing rings.
    void stopRinging();

    // Channel to the call process.
    /// Starts the call process, detached and without arguments. A failure shows only as a socket that never connects.
    void creatVoipSDK();

    /// Connects to the call process, waiting up to one second; a failure arms the back-off.
    void creatVoipSDKSocket();

    /// Tells the call process to quit and drops the socket.
    void disconnectVoipSDKSocket();

    /// Writes one line as it stands (it brings its line feed). Lost when the socket has gone away.
    void sendVoipMessage(QString strMessage);

    /// Acts on one inbound line; a line that is malformed or has a negative code has no effect.
    void recevieVoipMessage(QString strLine);

    /// Arms the back-off timer: 1, 4, 9, 16, 25, 36, 49, 60 seconds, then again from 1. A connect resets it.
    void reconnectVoipSDK();

    // Commands to the call process.
    /// Stores the user, socket up or not, and registers it at the call process; repeated by itself after each
    /// reconnection.
    void regeditVoipUser(QString strUserId, QString strNickName, QString strRegValue);

    /// Takes the stored user off the call process. The stored values stay, so a reconnection registers it again.
    void unRegeditCurrentVoipUser();

    // Notifications of the call process.
    /// Acts on one notification; an unknown code is only logged.
    void callbackMessage(int iCode, QString content);

    /// Takes a tracking record; does nothing.
    void voipLogPrint(QString url, QString value);

    // Single call.
    /// Calls `strUser`. Without a microphone, with a call in any state or without the call process it says so in a
    /// message box and changes nothing.
    void callSingleUser(QString strUser, bool bVideo);

    /// Tells the host of an incoming call and limits how long it may stay unconnected.
    void notifyRecevieVoipCall(QString strUser, bool bIsConf, bool bIsVideo);

    /// Accepts the incoming call and shows the window; without a microphone it says so and rejects.
    void acceptVoipCall();

    /// Refuses the call and ends it with result 26.
    void rejectVoipCall();

    /// Ends the call: rejects one that this side has not answered, hangs up any other. Harmless without a call.
    void hangupVoipCall();

    /// The user's answer to the host's prompt.
    void responseVoipRequest(bool bAccept);

    /// The one end of every call: timers, ring, the host's prompt, the record (the host writes that of a single call, a
    /// conference's goes into the store), the call data, the window. A second end of the same call does nothing.
    void callFinished(CallData::FinishResult result);

    /// The host's report on its own login: registers the user, or hangs up and unregisters.
    void clientConnectStatus(bool bConnected);

    /// Always false, during a video call too: deliberate.
    bool isVideoCall();

    // Conference.
    /// Starts a conference with `userList`, this side added when it is not in it; flag and text go to the call process
    /// unread. Same refusals as callSingleUser(); an empty list is none.
    void callConference(QList<QString> userList, bool bFlag, QString strText);

    /// Adds members to the list, to the window and, inside a conference, to that of the call process, which is asked
    /// for an empty list too.
    void addConferenceMember(QList<QString> userList);

    /// Sends a control command for one member, or for everybody; dropped outside a conference.
    void controlConference(ConfControlSignal iOperation, bool bIsAllMember, QString strUserId);

    /// Marks the connected members in the window.
    void updateConferenceListStatus();

    /// Hands a contact's card on to the window.
    void updateUserInfo(QString strUserId, VcardInfo vcard);

    /// Opens the conference centre, or brings the open one to the front.
    void showVoiceConf();

public slots:
    // The order is that of the meta-object and stays; parameter names are part of it.
    /// Switches the microphone; goes out without a call too.
    void slot_SetMicEnable(bool bEnable);
    /// Switches the speaker; goes out without a call too.
    void slot_SetSpeakerEnable(bool bEnable);
    /// Switches the camera; goes out without a call too.
    void slot_SetCameraEnable(bool bEnable);
    /// Sets the microphone's volume to a tenth of the slider's value, cut towards zero.
    void slot_SetMicVolume(qlonglong iVolume);
    /// Sets the speaker's volume to a tenth of the slider's value, cut towards zero.
    void slot_SetSpeakerVolume(qlonglong iVolume);
    /// The user ends the call.
    void slot_HangupCurrentCall();
    /// Lets the host's picker choose further members and adds those that are new.
    void slot_AddConfMember();
    /// The channel is up: the back-off starts anew, a stored user is registered again.
    void slot_VoipSDKConnected();
    /// The channel is lost or could not be made: arms the back-off timer. A call stays as it is.
    void slot_VoipSDKDisConnected();
    /// Takes one read off the channel and acts on its whole lines.
    void slot_VoipSDKDataRecevie();
    /// Writes a socket error to the logs; changes nothing.
    void slot_DisplayError(QLocalSocket::LocalSocketError socketError);
    /// The back-off is over: tries to connect again.
    void slot_ReConnectVoipSDK();
    /// An outgoing call has rung too long: hangs it up.
    void slot_inviteCallTimeout();
    /// An incoming call has stayed unconnected too long: hangs it up.
    void slot_recevieCallTimeout();
    /// Takes a member off the list and, when connected, out of the conference. An id that is no member is only taken
    /// out of the window.
    void slot_RemoveConferenceMember(QString strUserID);
    /// Mutes or unmutes one member; an empty id sends nothing.
    void slot_MuteConferenceMember(QString strUserID, bool bMute);
    /// The conference centre was closed: forgets its window, which is deleted later.
    void slot_VoiceConfWidgetClose();
    /// Mutes or unmutes everybody.
    void slot_MuteAll(bool bMute);
    /// Calls a member again who was not reached; the creator's right alone.
    void slot_ReInviteConfUser(QString strUserID);
    /// The conference centre drops a conference's record from the store. An empty or unknown id touches nothing.
    void slot_DeleteConfInfoData(QString strConfID);

protected:
    static CVoipManage *m_pInstance;

    CVoipWidget *m_pVoipWidget = nullptr; ///< the call window; owned, lives as long as the manager
    QString m_strUserId;                  ///< the logged-in user, as given to regeditVoipUser()
    QString m_strNickName;
    QString m_strRegValue;
    CallData m_callData;
    UidIndex m_memberIndex;                ///< of the call's members
    QLocalSocket *m_pVoipSocket = nullptr; ///< the channel; child of the manager
    bool m_bSocketConnected = false;
    bool m_bSdkFlag = false;      ///< notification 17 said "true"; nothing reads it
    qint64 m_nReconnectCount = 0; ///< back-off counter
    QTimer m_reconnectTimer;
    CVoiceConferenceWidget *m_pVoiceConfWidget = nullptr; ///< the conference centre, while open; owned
    QProcess *m_pVoipProcess = nullptr;                   ///< holds no child: the call process is started detached
    QSound *m_pRingSound = nullptr;                       ///< the incoming ring; CallRing's, null once that has ended
    QTimer m_inviteTimer;                                 ///< limits how long an outgoing call may ring
    QTimer m_recevieTimer;                                ///< limits how long an incoming call stays unconnected

private:
    void connectVoipWidget();
    void showCallInWindow();
    void stopCallTimers();
    void acceptConference();
    void recordConference(qint64 iSeconds);
    bool canPlaceCall();
    void showMessage(const QString &text);
    void sendIfConnected(const QString &line);

    // One notification each; the table that names them stands with callbackMessage().
    void onIncomingCall(const QString &content);
    void onIncomingConf(const QString &content);
    void onRejectRequest(const QString &content);
    void onPeerCanceled(const QString &content);
    void onUserRejected(const QString &content);
    void onCallEnded(const QString &content);
    void onPeerHangup(const QString &content);
    void onPeerRejected(const QString &content);
    void onConfUpdate(const QString &content);
    void onConfMemberLeft(const QString &content);
    void onSdkFlag(const QString &content);
    void onCallConnected(const QString &content);
    void onCallFailed(const QString &content);
    void onConfCreated(const QString &content);
    void onConfAddResult(const QString &content);
    void onPeerBusy(const QString &content);
    void onConfMemberRejected(const QString &content);
    void onSdkLog(const QString &content);
    bool isOurConference(const ConferenceDocument &document) const;
    void takeCreateTime(qint64 msecs);

    struct NotificationRow;
    static const NotificationRow cNotifications[];
};
