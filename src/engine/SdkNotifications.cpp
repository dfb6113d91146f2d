// What the call process reports, one handler for each notification, named by the table.

#include "common/CLogManger.h"
#include "engine/ConferenceDocument.h"
#include "engine/VoipManage.h"
#include "model/MemberRoles.h"
#include "plugin/StrangerCards.h"
#include "ui/VoipWidget.h"
#include "wire/Notifications.h"

#include <QDebug>

#include <algorithm>
#include <iterator>

/// A code and what is done about it. Open codes and unknown ones have no action.
struct CVoipManage::NotificationRow
{
    Wire::Code code;
    void (CVoipManage::*act)(const QString &content);
};

constexpr CVoipManage::NotificationRow CVoipManage::cNotifications[] = {
    {Wire::Code::IncomingCall, &CVoipManage::onIncomingCall},
    {Wire::Code::IncomingCallAlt, &CVoipManage::onIncomingCall},
    {Wire::Code::IncomingConf, &CVoipManage::onIncomingConf},
    {Wire::Code::RejectRequest, &CVoipManage::onRejectRequest},
    {Wire::Code::PeerCanceled, &CVoipManage::onPeerCanceled},
    {Wire::Code::UserRejected, &CVoipManage::onUserRejected},
    {Wire::Code::CallEnded, &CVoipManage::onCallEnded},
    {Wire::Code::PeerHangup, &CVoipManage::onPeerHangup},
    {Wire::Code::PeerHangupAlt, &CVoipManage::onPeerHangup},
    {Wire::Code::PeerRejected, &CVoipManage::onPeerRejected},
    {Wire::Code::ConfUpdate, &CVoipManage::onConfUpdate},
    {Wire::Code::ConfMemberLeft, &CVoipManage::onConfMemberLeft},
    {Wire::Code::SdkFlag, &CVoipManage::onSdkFlag},
    {Wire::Code::CallConnected, &CVoipManage::onCallConnected},
    {Wire::Code::CallFailed, &CVoipManage::onCallFailed},
    {Wire::Code::ConfCreated, &CVoipManage::onConfCreated},
    {Wire::Code::ConfAddResult, &CVoipManage::onConfAddResult},
    {Wire::Code::PeerBusy, &CVoipManage::onPeerBusy},
    {Wire::Code::CallFailedAlt, &CVoipManage::onCallFailed},
    {Wire::Code::CallFailedAlt2, &CVoipManage::onCallFailed},
    {Wire::Code::ConfMemberRejected, &CVoipManage::onConfMemberRejected},
    {Wire::Code::SdkLog, &CVoipManage::onSdkLog},
};

void CVoipManage::callbackMessage(int iCode, QString content)
{
    static_assert(Wire::tellOfEveryNotification(cNotifications), "a notification without its handler");
    LOG_DEBUG << "Voip Sdk call back msg iCode=" << iCode << ", string=" << content << "\n";
    const auto row =
        std::find_if(std::begin(cNotifications), std::end(cNotifications),
                     [iCode](const NotificationRow &candidate) { return candidate.code == Wire::Code(iCode); });
    if (row != std::end(cNotifications)) {
        (this->*row->act)(content);
    }
}

void CVoipManage::voipLogPrint(QString, QString) {}

void CVoipManage::onIncomingCall(const QString &content)
{
    // Deliberate: no test for an existing call, and bIsConnected keeps its value. A second call must be refused by the
    // call process.
    m_callData.bIsConf = false;
    m_callData.bIsVideo = false;
    m_callData.bIsCaller = false;
    m_callData.peerId = content;
    playReceviceCall();
    notifyRecevieVoipCall(content, false, false);
}

void CVoipManage::onIncomingConf(const QString &content)
{
    // Deliberate: the flags are set before anything is parsed and stay when the invitation is refused.
    m_callData.bIsConf = true;
    m_callData.bIsVideo = false;
    m_callData.bIsCaller = false;
    const ConferenceDocument document = ConferenceDocument::read(content);
    if (!isOurConference(document)) {
        return;
    }
    m_callData.confId = document.confId;
    takeCreateTime(document.createTime);
    if (!document.from.isEmpty()) {
        m_callData.peerId = document.from;
    }
    playReceviceCall();
    if (m_pVoipWidget) {
        m_pVoipWidget->setConferenceCreator(document.from);
    }
    notifyRecevieVoipCall(document.from, true, false);
}

void CVoipManage::onRejectRequest(const QString &)
{
    rejectVoipCall();
}

void CVoipManage::onPeerCanceled(const QString &)
{
    callFinished(CallData::FinishCanceled);
}

void CVoipManage::onUserRejected(const QString &content)
{
    if (content == m_strUserId) {
        callFinished(CallData::FinishCanceled);
    } else if (!m_callData.bIsConf) {
        callFinished(CallData::FinishRejected);
    } else if (m_pVoipWidget) {
        m_pVoipWidget->updateConferenceUserStatus(content, ConferenceRejected);
    }
}

void CVoipManage::onCallEnded(const QString &)
{
    callFinished(m_callData.bIsConnected ? CallData::FinishHangup : CallData::FinishCanceled);
}

void CVoipManage::onPeerHangup(const QString &)
{
    callFinished(CallData::FinishHangup);
}

void CVoipManage::onPeerRejected(const QString &)
{
    callFinished(CallData::FinishRejected);
}

void CVoipManage::onConfUpdate(const QString &content)
{
    const ConferenceDocument document = ConferenceDocument::read(content);
    if (!isOurConference(document)) {
        return;
    }
    m_callData.confId = document.confId;
    takeCreateTime(document.createTime);

    StrangerCards strangers;
    for (const QString &id : document.conventioneer) {
        // Looked up each time: the host's answers may run an event loop, in which the list changes under this walk.
        if (m_memberIndex.contains(m_callData.memberList, id)) {
            continue;
        }
        m_memberIndex.append(m_callData.memberList, id);
        if (m_pVoipWidget && id != m_strUserId) {
            m_pVoipWidget->addConferenceMember(id);
        }
        strangers.test(id);
    }
    m_callData.connectedList = document.conventioneer;
    strangers.request();
    updateConferenceListStatus();
}

void CVoipManage::onConfMemberLeft(const QString &content)
{
    const ConferenceDocument document = ConferenceDocument::read(content);
    if (!isOurConference(document)) {
        return;
    }
    m_callData.confId = document.confId;
    if (!document.from.isEmpty() && m_callData.bIsConf && m_pVoipWidget) {
        m_pVoipWidget->updateConferenceUserStatus(document.from, ConferenceHungUp);
    }
    m_callData.connectedList = document.conventioneer;
    updateConferenceListStatus();
}

void CVoipManage::onSdkFlag(const QString &content)
{
    m_bSdkFlag = content == QLatin1String("true");
}

void CVoipManage::onCallConnected(const QString &)
{
    m_callData.bIsConnected = true;
    if (m_pVoipWidget) {
        m_pVoipWidget->setVoipCallStatus(true);
    }
    m_callData.connectTime = QDateTime::currentDateTimeUtc();
    stopCallTimers();
}

void CVoipManage::onCallFailed(const QString &)
{
    callFinished(CallData::FinishFailed);
}

void CVoipManage::onConfCreated(const QString &content)
{
    if (content.isEmpty()) {
        callFinished(CallData::FinishFailed);
        return;
    }
    // Deliberate: an answer that does not parse clears the id.
    m_callData.confId = createdConferenceId(content);
}

void CVoipManage::onConfAddResult(const QString &content)
{
    if (content.isEmpty()) {
        return;
    }
    qDebug().noquote().nospace() << content;
    LOG_DEBUG << "add conf member result=" << content << "\n";
    const QStringList failed = failedNumbers(content);
    if (!failed.isEmpty() && m_pVoipWidget) {
        m_pVoipWidget->setaddConfFailedList(failed);
    }
}

void CVoipManage::onPeerBusy(const QString &)
{
    callFinished(CallData::FinishBusy);
}

void CVoipManage::onConfMemberRejected(const QString &content)
{
    if (m_callData.bIsConf && m_pVoipWidget) {
        m_pVoipWidget->updateConferenceUserStatus(content, ConferenceRejected);
    }
    onSdkLog(content);
}

void CVoipManage::onSdkLog(const QString &content)
{
    qDebug().noquote().nospace() << "voipsdk:" << content;
    LOG_DEBUG << "voipsdk:" << content << "\n";
}

/// A document counts when it names a conference and this side is in none or in that one; anything else is silently
/// ignored.
bool CVoipManage::isOurConference(const ConferenceDocument &document) const
{
    return !document.confId.isEmpty() && (m_callData.confId.isEmpty() || m_callData.confId == document.confId);
}

void CVoipManage::takeCreateTime(qint64 msecs)
{
    if (msecs > 0) {
        m_callData.createTime = QDateTime::fromMSecsSinceEpoch(msecs);
    }
}
