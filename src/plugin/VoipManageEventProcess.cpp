#include "plugin/VoipManageEventProcess.h"

#include "model/FriendData.h"
#include "model/SharedContext.h"
#include "plugin/BaseEvent.h"
#include "plugin/EventPayload.h"
#include "plugin/HostRequests.h"
#include "plugin/VoipManageMessageProcess.h"

#include <memory>

namespace {

// Sends one request. The result is the event as its receiver left it, for the answer to be read; it is null when the
// event is no longer the sender's or stays undeleted.
template <EMsgId msgId>
std::unique_ptr<BaseEvent> requestWith(const QByteArray &payload)
{
    constexpr const HostRequest &route = hostRequest(msgId);
    auto event = std::make_unique<BaseEvent>(msgId, route.senderId(), route.receiverId(),
                                             route.delivery == Delivery::Queued, payload);
    if (route.delivery == Delivery::AtOnce) {
        VoipManageMessageProcess::instance()->sendCommand(event.get());
        return event;
    }
    VoipManageMessageProcess::instance()->sendCommand(event.release());
    return nullptr;
}

template <EMsgId msgId, typename... Fields>
std::unique_ptr<BaseEvent> request(const Fields &...fields)
{
    return requestWith<msgId>(packPayload(fields...));
}

} // namespace

void VoipManageEventProcess::notifyRecevieVoipCall(QString strUserId, bool bIsConf, bool bIsVideo)
{
    request<MSG_RECEVIE_VOIP_CALL>(strUserId, bIsConf, bIsVideo);
}

void VoipManageEventProcess::notifyCallFinished(bool bIsVideo, QString strUserId, int iResult, bool bIsCaller,
                                                bool bIsConnected, qint64 iSeconds)
{
    request<MSG_CALL_FINISHED>(bIsVideo, strUserId, iResult, bIsCaller, bIsConnected, iSeconds);
}

void VoipManageEventProcess::notifyCreateVoiceConference(QStringList list)
{
    request<MSG_CREATE_VOICE_CONFERENCE>(list);
}

QStringList VoipManageEventProcess::addMemberToConference(QStringList list)
{
    const auto event = request<MSG_ADD_CONFERENCE_MEMBER>(list);
    PayloadReader reader(event->data);
    const QStringList members = reader.takeTexts();
    return reader.isComplete() ? members : QStringList();
}

FriendData VoipManageEventProcess::getFriendInfoByJid(QString strJid)
{
    const auto friends = SharedContext::getFriendDataMap();
    const auto known = friends.constFind(strJid);
    if (known != friends.constEnd()) {
        return known.value();
    }
    const QByteArray question = packPayload(strJid);
    const auto event = requestWith<MSG_GET_FRIEND_INFO>(question);
    // When nobody has answered, the payload is still the question, and its bytes must not be taken for an address.
    if (event->data == question) {
        return {};
    }
    return recordAt<FriendData>(firstNumber(event->data));
}

bool VoipManageEventProcess::isExistFriend(QString strJid)
{
    return firstFlag(request<MSG_IS_EXIST_FRIEND>(strJid)->data);
}

void VoipManageEventProcess::getStrangerSmallVCard(QStringList ids, QStringList versions, bool flag)
{
    request<MSG_GET_STRANGER_SMALL_VCARD>(ids, versions, flag);
}

void VoipManageEventProcess::closeAVMsgBox(QString strJid)
{
    request<MSG_CLOSE_AV_MSGBOX>(strJid);
}

void VoipManageEventProcess::showSignList(QString text, int x, int y, int height, bool b1, bool b2)
{
    request<MSG_SHOW_SIGN_LIST>(text, x, y, height, b1, b2);
}

void VoipManageEventProcess::closeSignList()
{
    request<MSG_CLOSE_SIGN_LIST>();
}
