// A voice call among several: starting it, joining it, its members and their control.

#include "common/CLogManger.h"
#include "engine/SdkLine.h"
#include "engine/VoipManage.h"
#include "model/MemberRoles.h"
#include "plugin/StrangerCards.h"
#include "plugin/VoipManageEventProcess.h"
#include "store/DBConfInfo.h"
#include "ui/VoiceConferenceWidget.h"
#include "ui/VoipWidget.h"

namespace {

const char *operationText(CVoipManage::ConfControlSignal operation)
{
    switch (operation) {
    case CVoipManage::Kick:
        return Wire::cKick;
    case CVoipManage::Mute:
        return Wire::cMute;
    case CVoipManage::UnMute:
        return Wire::cUnmute;
    }
    return "";
}

QString joined(const QStringList &list)
{
    return list.join(QLatin1Char(','));
}

/// Empty for a time that was never reported, but never null: the text goes into a row.
QString creationText(const QDateTime &time)
{
    return time.isNull() ? QStringLiteral("") : time.toString(QStringLiteral("yyyy-MM-dd hh:mm:ss"));
}

/// Asks the host about each of the users, and for the cards of those who are strangers.
void askForStrangers(const QStringList &users)
{
    StrangerCards strangers;
    for (const QString &id : users) {
        strangers.test(id);
    }
    strangers.request();
}

} // namespace

void CVoipManage::callConference(QList<QString> userList, bool bFlag, QString strText)
{
    LOG_DEBUG << "call conf uselist = " << joined(userList) << "\n";
    if (!canPlaceCall()) {
        return;
    }
    m_callData.bIsCaller = true;
    m_callData.bIsConf = true;
    m_callData.memberList = userList;

    askForStrangers(userList);

    if (!m_memberIndex.contains(m_callData.memberList, m_strUserId)) {
        m_memberIndex.append(m_callData.memberList, m_strUserId);
    }
    QStringList called = m_callData.memberList;
    called.removeAll(m_strUserId);
    sendIfConnected(SdkLine::of<Wire::Command::RequestConference>(m_strUserId, called, bFlag, strText));
    if (m_pVoipWidget) {
        m_pVoipWidget->setVoipCallInfo(called, CVoipWidget::Conference, m_callData.bIsCaller, false);
        m_pVoipWidget->setConferenceCreator(m_strUserId);
        m_pVoipWidget->show();
    }
    m_inviteTimer.start(cInviteLimitMs);
}

void CVoipManage::acceptConference()
{
    LOG_DEBUG << "conf accepted!"
              << "\n";
    QStringList others = m_callData.memberList;
    others.removeOne(m_strUserId);
    if (m_pVoipWidget) {
        m_pVoipWidget->setVoipCallInfo(others, CVoipWidget::Conference, m_callData.bIsCaller, false);
    }
    sendVoipMessage(SdkLine::of<Wire::Command::AcceptConf>());
}

void CVoipManage::slot_AddConfMember()
{
    QStringList others = m_callData.memberList;
    others.removeOne(m_strUserId);
    QStringList answer = VoipManageEventProcess::addMemberToConference(others);
    if (answer.isEmpty()) {
        return;
    }
    // The host's picker may have run an event loop: what counts is the list as it is now.
    QStringList rest;
    for (const QString &id : qAsConst(answer)) {
        if (!m_memberIndex.contains(m_callData.memberList, id)) {
            rest.append(id);
        }
    }
    // Deliberate: with nobody left too, the call process gets its request.
    addConferenceMember(rest);
}

void CVoipManage::addConferenceMember(QList<QString> userList)
{
    LOG_DEBUG << "add conf member = " << joined(userList) << "\n";
    for (const QString &id : qAsConst(userList)) {
        if (!m_memberIndex.contains(m_callData.memberList, id)) {
            m_memberIndex.append(m_callData.memberList, id);
        }
    }
    askForStrangers(userList);
    if (m_pVoipWidget) {
        for (const QString &id : qAsConst(userList)) {
            m_pVoipWidget->addConferenceMember(id);
        }
    }
    if (m_callData.bIsConf) {
        // Deliberate: the own id stands twice.
        sendIfConnected(SdkLine::of<Wire::Command::Add2Conference>(
            userList, m_strUserId, m_strUserId, m_callData.bIsVideo, QString(), m_callData.connectedList));
    }
}

void CVoipManage::slot_ReInviteConfUser(QString strUserID)
{
    if (!m_callData.bIsConf || !m_callData.bIsCaller) {
        return;
    }
    LOG_DEBUG << "reInvite conf user = " << strUserID << "\n";
    addConferenceMember({strUserID});
    if (m_pVoipWidget) {
        m_pVoipWidget->updateConferenceUserStatus(strUserID, ConferenceCalling);
    }
}

void CVoipManage::slot_RemoveConferenceMember(QString strUserID)
{
    LOG_DEBUG << "remove conf member = " << strUserID << "\n";
    if (m_memberIndex.removeOne(m_callData.memberList, strUserID) && m_callData.connectedList.contains(strUserID)) {
        controlConference(Kick, false, strUserID);
    }
    if (m_pVoipWidget) {
        m_pVoipWidget->removeConferenceMember(strUserID);
    }
}

void CVoipManage::slot_MuteConferenceMember(QString strUserID, bool bMute)
{
    LOG_DEBUG << "mute conf user id = " << strUserID << ", bMute = " << bMute << "\n";
    controlConference(bMute ? Mute : UnMute, false, strUserID);
}

void CVoipManage::slot_MuteAll(bool bMute)
{
    LOG_DEBUG << "bMuteAll = " << bMute << "\n";
    controlConference(bMute ? Mute : UnMute, true, QString());
}

void CVoipManage::controlConference(ConfControlSignal iOperation, bool bIsAllMember, QString strUserId)
{
    LOG_DEBUG << "control conf operation = " << static_cast<int>(iOperation) << ", isAllMember = " << bIsAllMember
              << ", userid = " << strUserId << "\n";
    if (!m_bSocketConnected || !m_callData.bIsConf) {
        return;
    }
    const QString operation = QLatin1String(operationText(iOperation));
    const QString target = bIsAllMember ? QString::fromLatin1(Wire::cEverybody) : strUserId;
    if (operation.isEmpty() || target.isEmpty()) {
        return;
    }
    sendVoipMessage(SdkLine::of<Wire::Command::ControlConf>(operation, target));
}

void CVoipManage::updateConferenceListStatus()
{
    LOG_DEBUG << "update conf connected users = " << joined(m_callData.connectedList) << "\n";
    if (m_pVoipWidget) {
        m_pVoipWidget->updateConferenceListStatus(m_callData.connectedList);
    }
}

void CVoipManage::updateUserInfo(QString strUserId, VcardInfo vcard)
{
    LOG_DEBUG << "updateUserInfo userID = " << strUserId << "\n";
    if (m_pVoipWidget) {
        m_pVoipWidget->updateUserInfo(strUserId, vcard);
    }
}

void CVoipManage::recordConference(qint64 iSeconds)
{
    // Whatever became of the conference it has a record, a rejected invitation too.
    ConfInfoData record;
    record.m_strConfID = m_callData.confId;
    record.m_strCreatUserID = m_callData.bIsCaller ? m_strUserId : m_callData.peerId;
    record.m_strCreatTime = creationText(m_callData.createTime);
    record.m_strCallTime = QString::number(iSeconds);
    record.m_listMember = m_callData.memberList;
    record.m_bIsConnect = m_callData.bIsConnected;
    DBConfInfo::saveConfInfo(record);
    if (m_pVoiceConfWidget) {
        m_pVoiceConfWidget->addConferenceInfo(record);
    }
}

void CVoipManage::showVoiceConf()
{
    LOG_DEBUG << "show voice conf detaileInfo!"
              << "\n";
    if (!m_pVoiceConfWidget) {
        m_pVoiceConfWidget = new CVoiceConferenceWidget;
        connect(m_pVoiceConfWidget, SIGNAL(signal_VoiceConfWidgetClose()), this, SLOT(slot_VoiceConfWidgetClose()));
        connect(m_pVoiceConfWidget, SIGNAL(signal_DeleteConfInfoData(QString)), this,
                SLOT(slot_DeleteConfInfoData(QString)));
    }
    m_pVoiceConfWidget->showNormal();
    m_pVoiceConfWidget->activateWindow();
}

void CVoipManage::slot_VoiceConfWidgetClose()
{
    if (m_pVoiceConfWidget) {
        m_pVoiceConfWidget->deleteLater();
    }
    m_pVoiceConfWidget = nullptr;
}

void CVoipManage::slot_DeleteConfInfoData(QString strConfID)
{
    if (!strConfID.isEmpty()) {
        DBConfInfo::deleteConfInfo(strConfID);
    }
}
