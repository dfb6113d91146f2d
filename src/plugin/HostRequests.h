#pragma once

// The plug-in's requests to the host's other plug-ins as one table: which command goes to whom, in whose name, and how.
// VoipManageEventProcess holds the operations that fill in the payloads.

#include "plugin/HostEvents.h"
#include "plugin/PluginIds.h"

/// How a request is delivered, and whose the event is afterwards.
enum class Delivery
{
    AtOnce,     ///< handled on return, then deleted
    AtOnceKept, ///< handled on return, never deleted
    Queued,     ///< posted: Qt owns the event
};

/// One request.
struct HostRequest
{
    EMsgId msgId;
    const QString &(*receiverId)();
    const QString &(*senderId)();
    Delivery delivery;
};

/// All requests, one a line. Deliberate: MSG_CREATE_VOICE_CONFERENCE alone names another plug-in, the vCard one, as its
/// sender; and the events of MSG_CLOSE_AV_MSGBOX and MSG_CLOSE_SIGN_LIST stay undeleted after their delivery.
inline constexpr HostRequest cHostRequests[] = {
    {MSG_RECEVIE_VOIP_CALL, sessionPluginId, voipPluginId, Delivery::AtOnce},
    {MSG_CALL_FINISHED, sessionPluginId, voipPluginId, Delivery::AtOnce},
    {MSG_CREATE_VOICE_CONFERENCE, sessionPluginId, vcardPluginId, Delivery::AtOnce},
    {MSG_ADD_CONFERENCE_MEMBER, sessionPluginId, voipPluginId, Delivery::AtOnce},
    {MSG_GET_FRIEND_INFO, contactPluginId, voipPluginId, Delivery::AtOnce},
    {MSG_IS_EXIST_FRIEND, contactPluginId, voipPluginId, Delivery::AtOnce},
    {MSG_GET_STRANGER_SMALL_VCARD, vcardPluginId, voipPluginId, Delivery::Queued},
    {MSG_CLOSE_AV_MSGBOX, msgBoxPluginId, voipPluginId, Delivery::AtOnceKept},
    {MSG_SHOW_SIGN_LIST, signListPluginId, voipPluginId, Delivery::AtOnce},
    {MSG_CLOSE_SIGN_LIST, signListPluginId, voipPluginId, Delivery::AtOnceKept},
};

static_assert(tellOfEveryEvent(cHostRequests, EventWay::Request), "a request that nobody can deliver");

/// The row of `msgId`, which must be one of the table's.
constexpr const HostRequest &hostRequest(EMsgId msgId)
{
    const HostRequest *row = cHostRequests;
    while (row->msgId != msgId) {
        ++row;
    }
    return *row;
}
