// Customer service: channels, agents, work groups, quick replies, summaries of chats.

#include "store/DB.h"
#include "store/StoreSchema.h"

constexpr StoreColumn cCsChannelColumns[] = {
    {"channelId", "VARCHAR(20) primary key"},
    {"channelName", "VARCHAR(20)"},
    {"photoName", "VARCHAR(100)", 1, "VARCHAR(100)"},
    {"welcome", "TEXT"},
    {"status", "INT", 2, "INT"},
    {"allowClose", "INT", 3, "INT"},
    {"version", "INT64", 4, "INT64"},
    {"allowOpen", "INT", 5, "INT"},
};
constexpr StoreTable cCsChannel{"cs_channel", cCsChannelColumns};

void DB::createCSChannelTable()
{
    StoreSchema::createOrUpgrade(cCsChannel);
}

constexpr StoreColumn cCsAgentInfoColumns[] = {
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
constexpr StoreTable cCsAgentInfo{"cs_agentInfo", cCsAgentInfoColumns};

void DB::creatAgentInfoTable()
{
    StoreSchema::createOrUpgrade(cCsAgentInfo);
}

constexpr StoreColumn cCsWorkgroupColumns[] = {
    {"workgroupId", "VARCHAR(40) primary key"},
    {"workgroupName", "VARCHAR(20)"},
    {"channelId", "VARCHAR(20)"},
};
constexpr StoreTable cCsWorkgroup{"cs_workgroup", cCsWorkgroupColumns};

void DB::createCSWorkgroupTable()
{
    StoreSchema::createOrUpgrade(cCsWorkgroup);
}

// clang-format off
constexpr StoreColumn cQuikrplyColumns[] = {
    {"quikrplyId", "VARCHAR(40) primary key"},
    {"quikrplyIsGrp", "INT"},
    {"quikrplyName", "VARCHAR(20)"},
    {"quikrplyCont", "VARCHAR(20)"},
    {"quikrplyPId", "VARCHAR(20)"},
};
// clang-format on
constexpr StoreTable cCsQuikrply{"cs_quikrply", cQuikrplyColumns};
constexpr StoreTable cCsChannelquikrply{"cs_channelquikrply", cQuikrplyColumns};

void DB::createCSQuickrplyTable()
{
    StoreSchema::createOrUpgrade(cCsQuikrply);
}

void DB::createCSChannelQuickrplyTable()
{
    StoreSchema::createOrUpgrade(cCsChannelquikrply);
}

constexpr StoreColumn cCsAgentSessionColumns[] = {
    {"sessionId", "VARCHAR(40) primary key"},
    {"agentSessionId", "VARCHAR(50)"},
};
constexpr StoreTable cCsAgentSession{"cs_agent_session", cCsAgentSessionColumns};

void DB::createCSAgentSessionTable()
{
    StoreSchema::createOrUpgrade(cCsAgentSession);
}

constexpr StoreColumn cCsCommentColumns[] = {
    {"agentSessionId", "VARCHAR(40) primary key"},
};
constexpr StoreTable cCsComment{"cs_comment", cCsCommentColumns};

void DB::createCSCommentTable()
{
    StoreSchema::createOrUpgrade(cCsComment);
}

// clang-format off
constexpr StoreColumn cCsChatsummaryColumns[] = {
    {"chatsumId", "VARCHAR(40) primary key"},
    {"chatsumIsGrp", "INT"},
    {"chatsumName", "VARCHAR(20)"},
    {"chatsumCont", "VARCHAR(20)"},
    {"chatsumPId", "VARCHAR(20)"},
};
// clang-format on
constexpr StoreTable cCsChatsummary{"cs_chatsummary", cCsChatsummaryColumns};

void DB::createCSChatSumTable()
{
    StoreSchema::createOrUpgrade(cCsChatsummary);
}

constexpr StoreColumn cCsTopchannelIdlistColumns[] = {
    {"UserID", "VARCHAR(100) primary key"},
    {"TopChannelList", "VARCHAR(200)"},
};
constexpr StoreTable cCsTopchannelIdlist{"cs_topchannelIdlist", cCsTopchannelIdlistColumns};

void DB::createCSChannelTopListTable()
{
    StoreSchema::createOrUpgrade(cCsTopchannelIdlist);
}

constexpr StoreColumn cCsChatsumColumns[] = {
    {"agentSessionId", "VARCHAR(40) primary key"},
};
constexpr StoreTable cCsChatsum{"cs_chatsum", cCsChatsumColumns};

void DB::createCSChatSumAgentTable()
{
    StoreSchema::createOrUpgrade(cCsChatsum);
}

constexpr StoreColumn cCsChatandquickversionColumns[] = {
    {"jid", "VARCHAR(40) primary key"},
    {"ChatSumVersion", "VARCHAR(20)"},
    {"QuickRplyVersion", "VARCHAR(20)"},
    {"ChnelQuickRplyVersion", "VARCHAR(20)"},
};
constexpr StoreTable cCsChatandquickversion{"cs_chatandquickversion", cCsChatandquickversionColumns};

void DB::createCSChatAndQuickVersionTable()
{
    StoreSchema::createOrUpgrade(cCsChatandquickversion);
}
