// Customer service: channels, agents, work groups, quick replies, summaries of chats.

#include "store/DB.h"
#include "store/StoreSchema.h"

constexpr StoreColumn cs_channelColumns[] = {
    {"channelId", "VARCHAR(20) primary key"},
    {"channelName", "VARCHAR(20)"},
    {"photoName", "VARCHAR(100)", 1, "VARCHAR(100)"},
    {"welcome", "TEXT"},
    {"status", "INT", 2, "INT"},
    {"allowClose", "INT", 3, "INT"},
    {"version", "INT64", 4, "INT64"},
    {"allowOpen", "INT", 5, "INT"},
};
constexpr StoreTable cs_channel{"cs_channel", cs_channelColumns};

void DB::createCSChannelTable()
{
    StoreSchema::createOrUpgrade(cs_channel);
}

constexpr StoreColumn cs_agentInfoColumns[] = {
    {"agentJid", "VARCHAR(20) primary key"},
    {"name", "VARCHAR(20)"},
    {"userName", "VARCHAR(20)"},
    {"workGroupId", "VARCHAR(20)"},
    {"channelId", "VARCHAR(20)"},
    {"iconName", "VARCHAR(50)"},
    {"status", "INT"},
    {"maxChats", "INT"},
    {"version", "INT64"},
};
constexpr StoreTable cs_agentInfo{"cs_agentInfo", cs_agentInfoColumns};

void DB::creatAgentInfoTable()
{
    StoreSchema::createOrUpgrade(cs_agentInfo);
}

constexpr StoreColumn cs_workgroupColumns[] = {
    {"workgroupId", "VARCHAR(40) primary key"},
    {"workgroupName", "VARCHAR(20)"},
    {"channelId", "VARCHAR(20)"},
};
constexpr StoreTable cs_workgroup{"cs_workgroup", cs_workgroupColumns};

void DB::createCSWorkgroupTable()
{
    StoreSchema::createOrUpgrade(cs_workgroup);
}

// clang-format off
constexpr StoreColumn quikrplyColumns[] = {
    {"quikrplyId", "VARCHAR(40) primary key"},
    {"quikrplyIsGrp", "INT"},
    {"quikrplyName", "VARCHAR(20)"},
    {"quikrplyCont", "VARCHAR(20)"},
    {"quikrplyPId", "VARCHAR(20)"},
};
// clang-format on
constexpr StoreTable cs_quikrply{"cs_quikrply", quikrplyColumns};
constexpr StoreTable cs_channelquikrply{"cs_channelquikrply", quikrplyColumns};

void DB::createCSQuickrplyTable()
{
    StoreSchema::createOrUpgrade(cs_quikrply);
}

void DB::createCSChannelQuickrplyTable()
{
    StoreSchema::createOrUpgrade(cs_channelquikrply);
}

constexpr StoreColumn cs_agent_sessionColumns[] = {
    {"sessionId", "VARCHAR(40) primary key"},
    {"agentSessionId", "VARCHAR(50)"},
};
constexpr StoreTable cs_agent_session{"cs_agent_session", cs_agent_sessionColumns};

void DB::createCSAgentSessionTable()
{
    StoreSchema::createOrUpgrade(cs_agent_session);
}

constexpr StoreColumn cs_commentColumns[] = {
    {"agentSessionId", "VARCHAR(40) primary key"},
};
constexpr StoreTable cs_comment{"cs_comment", cs_commentColumns};

void DB::createCSCommentTable()
{
    StoreSchema::createOrUpgrade(cs_comment);
}

// clang-format off
constexpr StoreColumn cs_chatsummaryColumns[] = {
    {"chatsumId", "VARCHAR(40) primary key"},
    {"chatsumIsGrp", "INT"},
    {"chatsumName", "VARCHAR(20)"},
    {"chatsumCont", "VARCHAR(20)"},
    {"chatsumPId", "VARCHAR(20)"},
};
// clang-format on
constexpr StoreTable cs_chatsummary{"cs_chatsummary", cs_chatsummaryColumns};

void DB::createCSChatSumTable()
{
    StoreSchema::createOrUpgrade(cs_chatsummary);
}

constexpr StoreColumn cs_topchannelIdlistColumns[] = {
    {"UserID", "VARCHAR(100) primary key"},
    {"TopChannelList", "VARCHAR(200)"},
};
constexpr StoreTable cs_topchannelIdlist{"cs_topchannelIdlist", cs_topchannelIdlistColumns};

void DB::createCSChannelTopListTable()
{
    StoreSchema::createOrUpgrade(cs_topchannelIdlist);
}

constexpr StoreColumn cs_chatsumColumns[] = {
    {"agentSessionId", "VARCHAR(40) primary key"},
};
constexpr StoreTable cs_chatsum{"cs_chatsum", cs_chatsumColumns};

void DB::createCSChatSumAgentTable()
{
    StoreSchema::createOrUpgrade(cs_chatsum);
}

constexpr StoreColumn cs_chatandquickversionColumns[] = {
    {"jid", "VARCHAR(40) primary key"},
    {"ChatSumVersion", "VARCHAR(20)"},
    {"QuickRplyVersion", "VARCHAR(20)"},
    {"ChnelQuickRplyVersion", "VARCHAR(20)"},
};
constexpr StoreTable cs_chatandquickversion{"cs_chatandquickversion", cs_chatandquickversionColumns};

void DB::createCSChatAndQuickVersionTable()
{
    StoreSchema::createOrUpgrade(cs_chatandquickversion);
}
