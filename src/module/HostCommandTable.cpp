// The host's commands as rows. Every row calls CVoipManage::instance(), so the first recognised command, a query too,
// creates the call manager.

#include "engine/VoipManage.h"
#include "model/VcardInfo.h"
#include "plugin/BaseEvent.h"
#include "plugin/EventPayload.h"
#include "plugin/HostCommands.h"
#include "plugin/HostEvents.h"

#include <iterator>

namespace {

void updateUserInfo(BaseEvent &event)
{
    PayloadReader reader(event.data);
    const auto userId = reader.take<QString>();
    // The card travels by its address: host and plug-in share one process.
    const auto address = reader.take<qint64>();
    CVoipManage::instance()->updateUserInfo(userId, recordAt<VcardInfo>(address));
}

void clientConnectStatus(BaseEvent &event)
{
    CVoipManage::instance()->clientConnectStatus(PayloadReader(event.data).take<bool>());
}

void callSingleUser(BaseEvent &event)
{
    // Deliberate: the host writes the video flag first, the call takes it last.
    PayloadReader reader(event.data);
    const auto isVideo = reader.take<bool>();
    const auto userId = reader.take<QString>();
    CVoipManage::instance()->callSingleUser(userId, isVideo);
}

void isExistCall(BaseEvent &event)
{
    event.data = packPayload(CVoipManage::instance()->isExistCall());
}

void isVideoCall(BaseEvent &event)
{
    event.data = packPayload(CVoipManage::instance()->isVideoCall());
}

void responseVoipRequest(BaseEvent &event)
{
    CVoipManage::instance()->responseVoipRequest(PayloadReader(event.data).take<bool>());
}

void callConference(BaseEvent &event)
{
    // Deliberate: the host writes the text before the flag, the call takes it last.
    PayloadReader reader(event.data);
    const QStringList members = reader.takeTexts();
    const auto text = reader.take<QString>();
    const auto flag = reader.take<bool>();
    CVoipManage::instance()->callConference(members, flag, text);
}

void showVoiceConf(BaseEvent &)
{
    CVoipManage::instance()->showVoiceConf();
}

void exitVoip(BaseEvent &)
{
    CVoipManage::instance()->exitVoip();
}

constexpr HostCommand cCommands[] = {
    {MSG_UPDATE_USER_INFO, updateUserInfo},
    {MSG_CLIENT_CONNECT_STATUS, clientConnectStatus},
    {MSG_CALL_SINGLE_USER, callSingleUser},
    {MSG_IS_EXIST_CALL, isExistCall},
    {MSG_IS_VIDEO_CALL, isVideoCall},
    {MSG_RESPONSE_VOIP_REQUEST, responseVoipRequest},
    {MSG_CALL_CONFERENCE, callConference},
    {MSG_SHOW_VOICE_CONF, showVoiceConf},
    {MSG_EXIT_VOIP, exitVoip},
};

static_assert(tellOfEveryEvent(cCommands, EventWay::Command), "a command that nobody carries out");

// The mailbox stands below the engine and cannot name these rows, and programs use it without the plug-in's root
// object, which could hand them over: so the rows enter themselves.
[[maybe_unused]] const bool cCommandsAreSet =
    (setHostCommands(cCommands, static_cast<int>(std::size(cCommands))), true);

} // namespace
