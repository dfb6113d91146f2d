// One call between two people, from its start to callFinished(), which also ends conferences.

#include "common/CLogManger.h"
#include "engine/SdkLine.h"
#include "engine/VoipManage.h"
#include "model/FriendData.h"
#include "model/LoginData.h"
#include "model/SharedContext.h"
#include "model/UserIds.h"
#include "plugin/StrangerCards.h"
#include "plugin/VoipManageEventProcess.h"
#include "ui/VoipWidget.h"
#include "widgets/ErrorMessage.h"

void CVoipManage::showMessage(const QString &text)
{
    ErrorMessage message(QString(), QStringLiteral("确定"), nullptr);
    message.getMsgShow(tr("tip"), text);
}

bool CVoipManage::canPlaceCall()
{
    if (!getIsHasAudioInputDevice()) {
        showMessage(QStringLiteral("未检测到麦克风，无法发起呼叫"));
        return false;
    }
    if (isExistCall()) {
        showMessage(tr("soundfailedinsound"));
        return false;
    }
    if (!m_bSocketConnected) {
        showMessage(QStringLiteral("音频通话初始化失败，请尝试重启客户端解决"));
        return false;
    }
    return true;
}

void CVoipManage::showCallInWindow()
{
    if (!m_pVoipWidget) {
        return;
    }
    const CVoipWidget::VoipType type = m_callData.bIsVideo ? CVoipWidget::Video : CVoipWidget::Voice;
    m_pVoipWidget->setVoipCallInfo({m_callData.peerId}, type, m_callData.bIsCaller, false);
}

void CVoipManage::callSingleUser(QString strUser, bool bVideo)
{
    LOG_DEBUG << "user singlecall touser = " << strUser << ", isVideo = " << bVideo << "\n";
    if (!canPlaceCall()) {
        return;
    }
    m_callData.bIsCaller = true;
    m_callData.peerId = strUser;

    StrangerCards stranger;
    if (stranger.test(strUser)) {
        stranger.request();
    }

    m_callData.bIsVideo = bVideo;
    sendIfConnected(SdkLine::of<Wire::Command::CallUser>(strUser, bVideo));
    showCallInWindow();
    if (m_pVoipWidget) {
        m_pVoipWidget->show();
    }
    m_inviteTimer.start(cInviteLimitMs);
}

void CVoipManage::notifyRecevieVoipCall(QString strUser, bool bIsConf, bool bIsVideo)
{
    LOG_DEBUG << "recevie call user=" << strUser << ", bIsConf=" << bIsConf << ", bIsVideo=" << bIsVideo << "\n";
    StrangerCards stranger;
    stranger.test(strUser);
    stranger.request();
    VoipManageEventProcess::notifyRecevieVoipCall(strUser, bIsConf, bIsVideo);
    m_recevieTimer.start(cRecevieLimitMs);
}

void CVoipManage::responseVoipRequest(bool bAccept)
{
    LOG_DEBUG << "use response voip request, baccept = " << bAccept << "\n";
    if (bAccept) {
        acceptVoipCall();
    } else {
        rejectVoipCall();
    }
}

void CVoipManage::acceptVoipCall()
{
    LOG_DEBUG << "accept voip call"
              << "\n";
    stopRinging();
    if (!getIsHasAudioInputDevice()) {
        showMessage(QStringLiteral("未检测到麦克风，无法接受呼叫"));
        rejectVoipCall();
        return;
    }
    // Deliberate: no test that a call came in, none of the channel, and the receive timer runs on until the connection.
    if (m_callData.bIsConf) {
        acceptConference();
    } else {
        LOG_DEBUG << "singel call accept !"
                  << "\n";
        showCallInWindow();
        sendVoipMessage(SdkLine::of<Wire::Command::AcceptCall>());
    }
    if (m_pVoipWidget) {
        m_pVoipWidget->show();
    }
}

void CVoipManage::rejectVoipCall()
{
    LOG_DEBUG << "reject call!"
              << "\n";
    sendIfConnected(m_callData.bIsConf ? SdkLine::of<Wire::Command::RejectConf>()
                                       : SdkLine::of<Wire::Command::RejectCall>());
    callFinished(CallData::FinishRejected);
}

void CVoipManage::hangupVoipCall()
{
    LOG_DEBUG << "hangup voip call!"
              << "\n";
    stopRinging();
    if (!isExistCall()) {
        return;
    }
    if (!m_callData.bIsConnected && !m_callData.bIsCaller) {
        rejectVoipCall();
        return;
    }
    sendIfConnected(m_callData.bIsConf ? SdkLine::of<Wire::Command::HangupConf>()
                                       : SdkLine::of<Wire::Command::HangUpCall>());
    callFinished(m_callData.bIsConnected ? CallData::FinishHangup : CallData::FinishCanceled);
}

void CVoipManage::slot_HangupCurrentCall()
{
    hangupVoipCall();
}

void CVoipManage::stopCallTimers()
{
    if (m_inviteTimer.isActive()) {
        m_inviteTimer.stop();
    }
    if (m_recevieTimer.isActive()) {
        m_recevieTimer.stop();
    }
}

void CVoipManage::callFinished(CallData::FinishResult result)
{
    stopRinging();
    stopCallTimers();
    if (!isExistCall()) {
        return;
    }
    LOG_DEBUG << "call finish!"
              << "\n";
    if (!m_callData.peerId.isEmpty()) {
        VoipManageEventProcess::closeAVMsgBox(UserIds::getJidByUid(m_callData.peerId));
    }
    qint64 iSeconds = 0;
    if (!m_callData.connectTime.isNull()) {
        iSeconds = m_callData.connectTime.secsTo(QDateTime::currentDateTimeUtc());
    }
    if (m_callData.bIsConf) {
        recordConference(iSeconds);
    } else if (!m_callData.peerId.isEmpty()) {
        VoipManageEventProcess::notifyCallFinished(m_callData.bIsVideo, m_callData.peerId, result, m_callData.bIsCaller,
                                                   m_callData.bIsConnected, iSeconds);
    }
    // The window reports its closing as a hang-up, so the call must be forgotten before.
    clearLocalCallData();
    if (m_pVoipWidget) {
        m_pVoipWidget->close();
    }
}

void CVoipManage::clientConnectStatus(bool bConnected)
{
    if (bConnected) {
        LOG_DEBUG << "client connected, regedit user!"
                  << "\n";
        const FriendData me = VoipManageEventProcess::getFriendInfoByJid(UserIds::getLoginMyJID());
        const LoginData *login = SharedContext::getLoginData();
        regeditVoipUser(UserIds::getLoginUID(), me.displayName(), login ? login->m_strRegValue : QString());
    } else {
        LOG_DEBUG << "client disconnect, hangupcall, unrededit user!"
                  << "\n";
        hangupVoipCall();
        unRegeditCurrentVoipUser();
    }
}

bool CVoipManage::isVideoCall()
{
    return false;
}
