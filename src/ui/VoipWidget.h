#pragma once

// The one window of a running call: a voice call, a video call or a conference.
//
// It holds no call logic. The call manager creates it without a parent, owns it, drives it through the operations below
// and listens to its signals; the window never talks to the call process. It keeps what is shown: which pages are up,
// which toggles are on, when the call began. It has no system frame, so it moves and resizes itself. Lives on the GUI
// thread. It does not count for Qt's quit-on-last-window-closed, so that its close never ends a host that has no other
// window open.
//
// All that it logs stands in VoipWidget.cpp, whose name is the source tag that readers of the log look for.

#include "model/UidIndex.h"
#include "ui/EdgeDrag.h"

#include <QList>
#include <QPoint>
#include <QPointer>
#include <QRect>
#include <QString>
#include <QTime>
#include <QTimer>
#include <QWidget>

#include <memory>

class CIconButtonEx;
class MyRubberBand;
class VcardInfo;
class QCloseEvent;
class QMouseEvent;
class QSlider;

namespace Ui {
class CVoipWidget;
}

class CVoipWidget : public QWidget
{
    Q_OBJECT

public:
    /// Kind of call. Any other value passes through without a change of pages.
    enum VoipType : int
    {
        Voice = 0,
        Video = 1,
        Conference = 2
    };

    /// Where the cursor stands, as a sum of edges: 0 away from them, else the edge or corner that a drag moves.
    enum MouseState : int
    {
        NoEdge = 0,
        LeftEdge = EdgeDrag::Left,
        TopEdge = EdgeDrag::Top,
        TopLeftCorner = EdgeDrag::Left + EdgeDrag::Top,
        RightEdge = EdgeDrag::Right,
        TopRightCorner = EdgeDrag::Top + EdgeDrag::Right,
        BottomEdge = EdgeDrag::Bottom,
        BottomLeftCorner = EdgeDrag::Left + EdgeDrag::Bottom,
        BottomRightCorner = EdgeDrag::Right + EdgeDrag::Bottom
    };

    /// Builds the hidden window. `parent` may be null; Qt's ownership rule applies to it.
    explicit CVoipWidget(QWidget *parent = nullptr);
    ~CVoipWidget() override;

    /// Sets the window up for a call. `userList` holds uids: the other party first (voice, video) or all members in
    /// order (conference). An empty list changes nothing for voice and video; a conference goes on with no members.
    /// `bMyCall` is true when this user placed the call; `bConnected` selects the calling controls at once.
    void setVoipCallInfo(QList<QString> userList, VoipType iType, bool bMyCall, bool bConnected);

    /// True: the call is connected, the clock starts at now. False: back to the request controls; the clock runs on.
    void setVoipCallStatus(bool bConnect);

    /// Shows the window in its normal state, also when it was minimised.
    void show();

    /// The user went offline: closes the window, with everything a close does.
    void UserOffline();

    /// The call ended at the manager's side: clears the call's data, leaves texts and window.
    void SetVoipCallHangUpMessage();

    /// Forgets the call: flags, toggles and members back to their start values. Always sends
    /// signal_SetMicEnable(true) and signal_SetSpeakerEnable(true). The type of call and the clock's timer are kept.
    void ClearCallInfoData();

    /// Empties the texts, the head picture and the member list.
    void clearUI();

    /// Stores the microphone's volume (cut to 32 bits) and sends the value given by signal_SetMicVolume. No unit.
    void SetVoipMicVolume(qlonglong iVolume);

    /// Stores the speaker's volume (cut to 32 bits) and sends the value given by signal_SetSpeakerVolume. No unit.
    void SetVoipSpeakerVolume(qlonglong iVolume);

    /// Always 0, whatever the call's state: deliberate.
    int GetCurrentCallStatus() const;

    /// Always a null pointer: there is no web view in this window.
    QWidget *getWebEngineView() const;

    /// Puts the widget on the video page, whose layout then owns it. A null pointer is ignored.
    void addVoipWidget(QWidget *pWidget);

    /// Adds a member by uid and refreshes the count. A uid already present changes nothing.
    void addConferenceMember(QString strUserID);

    /// Takes a member away by uid and refreshes the count, also when the uid is unknown.
    void removeConferenceMember(QString strUserID);

    /// The members of the list (uids) are connected; the others keep their status. Unknown uids are ignored.
    void updateConferenceListStatus(QList<QString> list);

    /// Uid of the conference's creator, who gets the mark in the member list.
    void setConferenceCreator(QString strCreator);

    /// The members of the list (uids) could not be called. An empty list changes nothing.
    void setaddConfFailedList(QList<QString> list);

    /// Sets one member's status code (see model/MemberRoles.h). An unknown uid is ignored.
    void updateConferenceUserStatus(QString strUserID, qlonglong iStatus);

    /// A contact's card arrived. A conference hands it to the member list; otherwise it counts only when `strJid` is
    /// the other party's full user jid.
    void updateUserInfo(QString strJid, VcardInfo vcard);

    /// "HH:MM:SS" of a number of seconds; hours are not capped.
    QString GetCallTimeString(qulonglong iSeconds) const;

signals:
    /// Microphone on or off, by the user's click or because the call was cleared.
    void signal_SetMicEnable(bool bEnable);
    /// Speaker on or off, by the user's click or because the call was cleared.
    void signal_SetSpeakerEnable(bool bEnable);
    /// Camera on or off.
    void signal_SetCameraEnable(bool bEnable);
    /// The microphone's volume was set; the value as given, no unit.
    void signal_SetMicVolume(qlonglong iVolume);
    /// The speaker's volume was set; the value as given, no unit.
    void signal_SetSpeakerVolume(qlonglong iVolume);
    /// The user ends the call: hang up, cancel, window closed. Cancel sends it twice.
    void signal_HangupCurrentCall();
    /// The user wants to invite further members.
    void signal_AddConferenceMember();
    /// The user takes a member (uid) out of the conference.
    void signal_RemoveUser(QString strUserID);
    /// The user mutes or unmutes a member (uid).
    void signal_MuteUser(QString strUserID, bool bMute);
    /// The user mutes or unmutes all members.
    void signal_MuteAll(bool bMute);
    /// The window was closed and has cleared its data; sent after signal_HangupCurrentCall.
    void signal_ClearCallData();
    /// The user calls a member (uid) again who was not reached.
    void signal_ReInviteConfUser(QString strUserID);

protected:
    /// The cursor over any part of the window decides at which edges it stands, as long as no drag of it is on.
    bool event(QEvent *event) override;

    /// Escape in the window or one of its watched controls asks whether to hang up; leaving them is swallowed.
    bool eventFilter(QObject *obj, QEvent *event) override;

    /// A change of language renews the words of the buttons, their tips and their names, nothing else.
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private slots:
    void slot_HangUpCall();
    void slot_close();
    void slot_MicVolumChanged(int iVolum);
    void slot_SpeakerVolumChanged(int iVolum);
    void slot_MicSilderHide();
    void slot_SpeakerSilderHide();
    void slot_RefreshTime();
    void slot_MicButtonClicked();
    void slot_SpeakerButtonClicked();
    void slot_CameraButtonClicked();
    void slot_CaptureButtonClicked();
    void slot_WindowChangeButtonClicked();
    void slot_CancelVoipCall();
    void slot_AddConferenceMember();
    void slot_RemoveConferenceMember(QString strUserID);
    void slot_MuteConferenceMember(QString strUserID, bool bMute);
    void slot_MuteAll();
    void slot_ReInviteConfUser(QString strUserID);

private:
    void setUpForm();
    void setUpKeys();
    void nameParts();
    QSlider *newVolumeSlider();
    void connectControls();
    void connectConferenceControls();
    void showConference();
    void showPeer();
    QString showPeerCard(const VcardInfo &vcard, const QString &strPhotoPath);
    void showPeerTitle(const QString &strShownName);
    void refreshMemberCount();
    bool askToEndTheCall();
    void savePicture();
    MouseState cursorState(int x, int y) const;
    void setCursorStyle(MouseState state);
    void followCursor(const QPoint &position);
    void showRubberBand(const QRect &rect);
    void dragEdges(const QPoint &cursor);
    void dragWindow(const QPoint &cursor);
    void SetMicButton(bool bMute);
    void SetSpeakerButton(bool bMute);
    void SetCameraButton(bool bEnable);
    void setMuteAllButton(bool bMute);
    void SetMicEnable(bool bEnable);
    void SetSpeakerEnable(bool bEnable);
    void SetCamreraEnable(bool bEnable);
    void SetMicVolume(qlonglong iVolume);
    void SetSpeakerVolume(qlonglong iVolume);

    std::unique_ptr<Ui::CVoipWidget> ui;
    QTimer m_reservedTimer; ///< deliberate: never started or connected, a place among the members
    bool m_bCallFlag = false;
    bool m_bIsMyCall = false;
    QSlider *m_pMicSlider = nullptr;
    QSlider *m_pSpeakerSlider = nullptr;
    bool m_bMicMute = false;
    bool m_bSpeakerMute = false;
    bool m_bMuteAll = false;
    bool m_bCameraEnable = true;
    QPoint m_dragOffset;            ///< from the window's corner to the cursor that holds it
    bool m_bGeometryLocked = false; ///< deliberate: tested wherever the geometry changes, set by nothing
    bool m_bFullScreen = false;
    QRect m_normalGeometry; ///< the place to come back to from the full screen
    bool m_bLeftPressed = false;
    MouseState m_mouseState = NoEdge;
    QPointer<MyRubberBand> m_pRubberBand; ///< built on first need; stands on the desktop, not in this window
    bool m_bResized = false;
    QRect m_rubberRect;
    QTimer m_micSliderTimer;
    QTimer m_speakerSliderTimer;
    QTimer m_callTimeTimer;
    QTime m_callStartTime;
    int m_iCallStatus = 0;
    int m_iMicVolume = 0;
    int m_iSpeakerVolume = 0;
    bool m_bConnected = false;
    QString m_strPeerUid;
    QList<QString> m_memberList;
    UidIndex m_memberIndex; ///< of m_memberList
    QString m_strCreator;
    VoipType m_iVoipType = Voice;
    const QEvent *m_pAskedEscape = nullptr; ///< the key press that a control has asked about, until any other event
};
