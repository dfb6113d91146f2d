#include "store/ExpectedSchema.h"

#include <algorithm>
#include <iterator>

namespace {

struct Creation
{
    const char *table;
    void (*creator)();
};

// In the order of a fresh file.
constexpr Creation cCreations[] = {
    {"loginInfo", &DB::createLoginTable},
    {"latestfriendnew", &DB::createLatestFrdTable},
    {"deletedfriendnew", &DB::creatDeletedFrdTable},
    {"msgrecord", &DB::createMessageTable},
    {"message_session", &DB::createSessionTable},
    {"message_unread_session", &DB::createUnreadSessionTable},
    {"last_time", &DB::createLastTimeTable},
    {"localfriendNew", &DB::createLocalFrdTable},
    {"mucrecord", &DB::createMuctable},
    {"mucmembers", &DB::createMucMembersTable},
    {"grouptable", &DB::createGroupTable},
    {"groupfriendversionNew", &DB::createGroupFriendVersion},
    {"friendGrouptable", &DB::createFriendGroupTable},
    {"outsidegroupfriendversionNew", &DB::createOutsideGroupFriendVersion},
    {"filereceviestatus", &DB::createFileRecevieStatusTable},
    {"cloudfilelocalinfo", &DB::creatCloudFileLocalInfo},
    {"sharefilelocalinfo", &DB::creatShareFileLocalInfo},
    {"filestatuslocalinfo", &DB::creatFileStatusLocalInfo},
    {"videoinfo", &DB::creatVideoInfo},
    {"filedisplayinfo", &DB::creatFileDisplayStatusInfo},
    {"servicenumber", &DB::createServiceTable},
    {"localservicenumber", &DB::createServiceTable},
    {"servicenumberversion", &DB::createServiceVersion},
    {"appnumbernew", &DB::createApplicationNewTableNew},
    {"appnumberversionnew", &DB::createApplicationVersionNew},
    {"favorite", &DB::createFavoriteTable},
    {"favoriteFileLocalInfo", &DB::createFavoriteFileTable},
    {"unclosesession", &DB::createUnCloseSessionTable},
    {"unclosesessionorder", &DB::createUnCloseSessionTable},
    {"roomnotice", &DB::createRoomNoticeTable},
    {"voipConferenceInfo", &DB::creatVoipConferenceInfoTable},
    {"cs_agentInfo", &DB::creatAgentInfoTable},
    {"cs_channel", &DB::createCSChannelTable},
    {"cs_workgroup", &DB::createCSWorkgroupTable},
    {"cs_quikrply", &DB::createCSQuickrplyTable},
    {"cs_agent_session", &DB::createCSAgentSessionTable},
    {"cs_comment", &DB::createCSCommentTable},
    {"cs_chatsummary", &DB::createCSChatSumTable},
    {"cs_channelquikrply", &DB::createCSChannelQuickrplyTable},
    {"cs_topchannelIdlist", &DB::createCSChannelTopListTable},
    {"cs_chatsum", &DB::createCSChatSumAgentTable},
    {"cs_chatandquickversion", &DB::createCSChatAndQuickVersionTable},
    {"dingmsginfo", &DB::createDingMsgTable},
    {"dingsmsgfileoinfo", &DB::createDingMsgTable},
};
constexpr Creation cDingVersion = {"dingmsgversion", &DB::createDingVersion};

ExpectedTable documented(const Creation &creation)
{
    static const QVector<DocumentedTable> tables = readSchemaDocument(schemaDocumentText()).tables;
    const auto found = std::find_if(tables.begin(), tables.end(),
                                    [&creation](const DocumentedTable &table) { return table.name == creation.table; });
    if (found == tables.end()) {
        qFatal("The document tells nothing of %s.", creation.table);
    }
    return {*found, creation.creator};
}

} // namespace

QString ExpectedTable::createSql() const
{
    return createSql(columns);
}

QString ExpectedTable::createSql(const QStringList &ofColumns) const
{
    return "CREATE TABLE " + name + "(" + ofColumns.join(", ") + ")";
}

QString ExpectedTable::indexSql(const ExpectedIndex &index) const
{
    return "CREATE INDEX " + index.name + " on " + name + "(" + index.columns + ")";
}

QStringList ExpectedTable::indexNames() const
{
    QStringList names;
    for (const ExpectedIndex &index : indexes) {
        names.append(index.name);
    }
    names.sort();
    return names;
}

QStringList ExpectedTable::oldestColumns() const
{
    QStringList oldest;
    for (const QString &column : columns) {
        const bool addedLater = std::any_of(later.begin(), later.end(), [&column](const QString &text) {
            return columnName(text) == columnName(column);
        });
        if (!addedLater) {
            oldest.append(column);
        }
    }
    return oldest;
}

const QVector<ExpectedTable> &expectedTables()
{
    static const QVector<ExpectedTable> tables = [] {
        QVector<ExpectedTable> all;
        std::transform(std::begin(cCreations), std::end(cCreations), std::back_inserter(all), &documented);
        return all;
    }();
    return tables;
}

const ExpectedTable &expectedTable(const QString &name)
{
    const QVector<ExpectedTable> &all = expectedTables();
    const auto found =
        std::find_if(all.begin(), all.end(), [&name](const ExpectedTable &table) { return table.name == name; });
    Q_ASSERT(found != all.end());
    return *found;
}

const ExpectedTable &expectedDingVersionTable()
{
    static const ExpectedTable table = documented(cDingVersion);
    return table;
}
