#include "model/CSChannelData.h"

#include "model/JsonMember.h"

using JsonMember::text;

bool CSWorkGroupData::operator==(const CSWorkGroupData &other) const
{
    return m_strWorkGroupId == other.m_strWorkGroupId && m_strChannelId == other.m_strChannelId &&
           m_strName == other.m_strName;
}

CSChannelData CSChannelData::fromJson(const Json::Value &value)
{
    CSChannelData channel;
    channel.m_strChannelId = text(value, "id");
    channel.m_strChannelName = text(value, "name");
    channel.m_strWelcome = text(value, "welcome");
    channel.m_strPhotoName = text(value, "photoName");
    channel.m_iStatus = 1;
    channel.m_iVersion = value["version"].asInt64();
    channel.m_bAllowClose = value["agentCloseSession"].asBool();
    channel.m_bAllowOpen = value["agentOpenSession"].asBool();
    JsonMember::forEachItem(value["workgroupList"], [&channel](const Json::Value &group) {
        channel.m_listWorkGroup.append({text(group, "id"), text(group, "name"), channel.m_strChannelId});
    });
    return channel;
}
