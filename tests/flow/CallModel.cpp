#include "flow/CallModel.h"

#include "engine/ConferenceDocument.h"
#include "engine/SdkLine.h"
#include "model/UserIds.h"
#include "wire/Notifications.h"

#include <QJsonArray>
#include <QJsonDocument>

using Wire::Code;

namespace {

QString word(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

} // namespace

QString shownJson(const QString &text)
{
    const QString array = QString::fromUtf8(QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact));
    return array.mid(1, array.size() - 2);
}

QString shownJson(const QStringList &texts)
{
    if (texts.isEmpty()) {
        return QStringLiteral("null");
    }
    return QString::fromUtf8(QJsonDocument(QJsonArray::fromStringList(texts)).toJson(QJsonDocument::Compact));
}

QString shownCall(const CallData &call)
{
    return QStringList{call.bIsConf ? "conference" : "single",
                       call.bIsVideo ? "video" : "voice",
                       call.bIsCaller ? "caller" : "called",
                       call.bIsConnected ? "connected" : "not connected",
                       "peer " + call.peerId,
                       "members " + call.memberList.join('+'),
                       "connected " + call.connectedList.join('+'),
                       "id " + call.confId,
                       call.connectTime.isNull() ? "no connect time" : "connect time",
                       "created " + QString::number(call.createTime.isNull() ? 0 : call.createTime.toMSecsSinceEpoch())}
        .join(" | ");
}

void CallModel::send(const QString &command)
{
    if (channelUp) {
        journal += command;
    }
}

bool CallModel::mayCall()
{
    if (exists()) {
        boxes += QStringLiteral("soundfailedinsound");
    } else if (!channelUp) {
        boxes += QStringLiteral("音频通话初始化失败，请尝试重启客户端解决");
    }
    return !exists() && channelUp;
}

void CallModel::callSingleUser(const QString &uid, bool video)
{
    if (!mayCall()) {
        return;
    }
    call.bIsCaller = true;
    call.peerId = uid;
    call.bIsVideo = video;
    send("CallUser " + shownJson(uid) + ' ' + word(video));
    windowShows = true;
    inviteRuns = true;
}

void CallModel::callConference(const QStringList &uids, bool flag, const QString &text)
{
    if (!mayCall()) {
        return;
    }
    call.bIsCaller = true;
    call.bIsConf = true;
    call.memberList = uids;
    if (!uids.contains(m_strOwnId)) {
        call.memberList.append(m_strOwnId);
    }
    QStringList called = uids;
    called.removeAll(m_strOwnId);
    send("RequestConference " + shownJson(m_strOwnId) + ' ' + shownJson(called) + ' ' + word(flag) + ' ' +
         shownJson(text));
    windowShows = true;
    inviteRuns = true;
}

void CallModel::accept()
{
    send(call.bIsConf ? QStringLiteral("AcceptConf") : QStringLiteral("AcceptCall"));
    windowShows = true;
}

void CallModel::reject()
{
    send(call.bIsConf ? QStringLiteral("RejectConf") : QStringLiteral("RejectCall"));
    finish(CallData::FinishRejected);
}

void CallModel::online(const QString &nickName, const QString &value)
{
    send("RegeditUser " + shownJson(m_strOwnId) + ' ' + shownJson(nickName) + ' ' + shownJson(value) + " false");
}

void CallModel::offline()
{
    hangUp();
    send("UnReg " + shownJson(m_strOwnId));
}

void CallModel::exit()
{
    hangUp();
    send(QStringLiteral("quit"));
    channelUp = false;
}

void CallModel::hangUp()
{
    if (!exists()) {
        return;
    }
    if (!call.bIsConnected && !call.bIsCaller) {
        reject();
        return;
    }
    send(call.bIsConf ? QStringLiteral("HangupConf") : QStringLiteral("HangUpCall"));
    finish(call.bIsConnected ? CallData::FinishHangup : CallData::FinishCanceled);
}

void CallModel::finish(int result)
{
    inviteRuns = false;
    recevieRuns = false;
    if (!exists()) {
        return;
    }
    if (!call.peerId.isEmpty()) {
        journal += "4345 " + UserIds::getJidByUid(call.peerId);
        if (!call.bIsConf) {
            journal += QStringList{"4478",
                                   word(call.bIsVideo),
                                   call.peerId,
                                   QString::number(result),
                                   word(call.bIsCaller),
                                   word(call.bIsConnected)}
                           .join(' ');
        }
    }
    call = CallData();
    if (!m_bClosing) {
        closeShownWindow();
    }
}

void CallModel::closeShownWindow()
{
    send(QStringLiteral("SetMicEnable true"));
    send(QStringLiteral("SetSpeakerEnble true"));
    windowShows = false;
}

void CallModel::closeWindow()
{
    m_bClosing = true;
    closeShownWindow();
    hangUp();
    m_bClosing = false;
}

void CallModel::cancel()
{
    hangUp();
    closeWindow();
}

void CallModel::addMembers(const QStringList &uids)
{
    for (const QString &uid : uids) {
        if (!call.memberList.contains(uid)) {
            call.memberList.append(uid);
        }
    }
    if (call.bIsConf) {
        const QString own = shownJson(m_strOwnId);
        send(QStringList{"Add2Conference", shownJson(uids), own, own, word(call.bIsVideo), "\"\"",
                         shownJson(call.connectedList)}
                 .join(' '));
    }
}

void CallModel::addChosenMembers(const QStringList &chosen)
{
    if (chosen.isEmpty()) {
        return;
    }
    QStringList rest;
    for (const QString &uid : chosen) {
        if (!call.memberList.contains(uid)) {
            rest.append(uid);
        }
    }
    addMembers(rest);
}

void CallModel::inviteAgain(const QString &uid)
{
    if (call.bIsConf && call.bIsCaller) {
        addMembers({uid});
    }
}

void CallModel::removeMember(const QString &uid)
{
    if (call.memberList.removeOne(uid) && call.connectedList.contains(uid)) {
        control(QStringLiteral("kick"), uid);
    }
}

void CallModel::control(const QString &operation, const QString &uid)
{
    if (call.bIsConf && !uid.isEmpty()) {
        send("ControlConf " + shownJson(operation) + ' ' + shownJson(uid));
    }
}

void CallModel::inviteTimeout()
{
    inviteRuns = false;
    if (call.bIsCaller) {
        hangUp();
    }
}

void CallModel::recevieTimeout()
{
    recevieRuns = false;
    if (!call.bIsCaller) {
        hangUp();
    }
}

void CallModel::receiveLine(const QString &line)
{
    // What of a line counts is held by the reader's own test.
    const SdkLine::Notification read = SdkLine::read(line);
    if (read.code >= 0) {
        notify(read.code, read.content);
    }
}

void CallModel::ring(const QString &uid)
{
    journal += "4639 " + uid + ' ' + word(call.bIsConf) + " false";
    recevieRuns = true;
}

void CallModel::notify(int code, const QString &content)
{
    switch (Code{code}) {
    case Code::IncomingCall:
    case Code::IncomingCallAlt:
        call.bIsConf = call.bIsVideo = call.bIsCaller = false;
        call.peerId = content;
        return ring(content);
    case Code::IncomingConf:
        return invitation(content);
    case Code::RejectRequest:
        return reject();
    case Code::PeerCanceled:
        return finish(21);
    case Code::UserRejected:
        if (content == m_strOwnId || !call.bIsConf) {
            finish(content == m_strOwnId ? 21 : 26);
        }
        return;
    case Code::CallEnded:
        return finish(call.bIsConnected ? 24 : 21);
    case Code::PeerHangup:
    case Code::PeerHangupAlt:
        return finish(24);
    case Code::PeerRejected:
        return finish(26);
    case Code::ConfUpdate:
        return update(content);
    case Code::ConfMemberLeft:
        return memberLeft(content);
    case Code::CallConnected:
        return connected();
    case Code::ConfCreated:
        return created(content);
    case Code::PeerBusy:
        return finish(25);
    case Code::CallFailed:
    case Code::CallFailedAlt:
    case Code::CallFailedAlt2:
        return finish(22);
    default:
        return;
    }
}

void CallModel::connected()
{
    call.bIsConnected = true;
    call.connectTime = QDateTime::currentDateTimeUtc();
    inviteRuns = recevieRuns = false;
}

void CallModel::created(const QString &content)
{
    if (content.isEmpty()) {
        return finish(22);
    }
    call.confId = createdConferenceId(content);
}

void CallModel::invitation(const QString &content)
{
    call.bIsConf = true;
    call.bIsVideo = call.bIsCaller = false;
    const ConferenceDocument document = ConferenceDocument::read(content);
    if (!isOurs(document.confId)) {
        return;
    }
    call.confId = document.confId;
    takeCreateTime(document.createTime);
    if (!document.from.isEmpty()) {
        call.peerId = document.from;
    }
    ring(document.from);
}

void CallModel::update(const QString &content)
{
    const ConferenceDocument document = ConferenceDocument::read(content);
    if (!isOurs(document.confId)) {
        return;
    }
    call.confId = document.confId;
    takeCreateTime(document.createTime);
    for (const QString &uid : document.conventioneer) {
        if (!call.memberList.contains(uid)) {
            call.memberList.append(uid);
        }
    }
    call.connectedList = document.conventioneer;
}

void CallModel::memberLeft(const QString &content)
{
    const ConferenceDocument document = ConferenceDocument::read(content);
    if (!isOurs(document.confId)) {
        return;
    }
    call.confId = document.confId;
    call.connectedList = document.conventioneer;
}

bool CallModel::isOurs(const QString &confId) const
{
    return !confId.isEmpty() && (call.confId.isEmpty() || call.confId == confId);
}

void CallModel::takeCreateTime(qint64 msecs)
{
    if (msecs > 0) {
        call.createTime = QDateTime::fromMSecsSinceEpoch(msecs);
    }
}
