// The conversation history and the state of the session list.

#include "store/DB.h"
#include "store/StoreSchema.h"

// Indexes are made only when the CREATE succeeded. No index 2, deliberately: it belongs to older files.
constexpr StoreColumn cMsgrecordColumns[] = {
    {"id", "VARCHAR(20) PRIMARY KEY"},
    {"jid", "VARCHAR(100)"},
    {"unique_jid", "VARCHAR(100)"},
    {"sender", "VARCHAR(100)"},
    {"time", "VARCHAR(100)"},
    {"content", "TEXT"},
    {"true_content", "TEXT"},
    {"message_flag", "VARCHAR(20)"},
    {"title_color", "VARCHAR(20)"},
    {"message_type", "INT"},
    {"receivetime", "VARCHAR(100)"},
    {"readed", "INT"},
    {"senderJid", "VARCHAR(100)"},
    {"ztime", "VARCHAR(100)"},
    {"msgStatus", "VARCHAR(20)"},
    {"burnFlag", "VARCHAR(10)"},
    {"messageid", "VARCHAR(100)"},
    {"videoRotate", "VARCHAR(5)"},
    {"extension1", "VARCHAR(100)"},
    {"extension2", "VARCHAR(100)"},
    {"extension3", "VARCHAR(20)"},
    {"atlist", "TEXT", 1, "TEXT"},
    {"sequenceId", "INT64", 2, "INT64"},
};
constexpr StoreIndex cTimeIndex{"_index_uniquejid_time", "unique_jid,ztime"};
constexpr StoreIndex cSequenceIndex{"_index_uniquejid_sequenceId", "unique_jid,sequenceId"};
constexpr StoreIndex cMsgrecordIndexes[] = {
    {"_index1", "unique_jid"},
    {"_index3", "messageid"},
    cTimeIndex,
    cSequenceIndex,
};
constexpr StoreTable cMsgrecord{"msgrecord", cMsgrecordColumns, cMsgrecordIndexes};

namespace {

// Two index changes ride on the adding of sequenceId and so are made once; two more are looked after at every open.
void upgradeMessageTable()
{
    StoreSchema::addIfMissing(cMsgrecord, 1);
    const bool bNewSequence = StoreSchema::addIfMissing(cMsgrecord, 2);
    if (bNewSequence) {
        StoreSchema::run(QStringLiteral("DROP INDEX msgrecord_index2;"));
        StoreSchema::createIndex(cMsgrecord, cTimeIndex);
    }
    // The misspelled name is that of an index of older files.
    if (DB::isExistIndex(cMsgrecord.name, QStringLiteral("_index_sqeuenceId"))) {
        StoreSchema::run(QStringLiteral("DROP INDEX msgrecord_index_sqeuenceId;"));
    }
    if (!DB::isExistIndex(cMsgrecord.name, cSequenceIndex.suffix)) {
        StoreSchema::createIndex(cMsgrecord, cSequenceIndex);
    }
}

} // namespace

void DB::createMessageTable()
{
    if (StoreSchema::exists(cMsgrecord)) {
        upgradeMessageTable();
        return;
    }
    if (StoreSchema::create(cMsgrecord)) {
        for (const StoreIndex &index : cMsgrecord.indexes) {
            StoreSchema::createIndex(cMsgrecord, index);
        }
    }
}

constexpr StoreColumn cMessageSessionColumns[] = {
    {"sessionId", "VARCHAR(40) primary key"},
    {"localDelete", "TEXT"},
    {"serverDelete", "TEXT"},
    {"localRead", "TEXT"},
    {"serverRead", "TEXT"},
    {"localReadStatus", "TEXT"},
    {"serverReadStatus", "TEXT"},
    {"archSeq", "VARCHAR(20)"},
    {"startSeq", "VARCHAR(20)"},
    {"endSeq", "VARCHAR(20)"},
    {"maxSeq", "VARCHAR(20)"},
    {"recall", "TEXT", 1, "TEXT"},
    {"noticeid", "VARCHAR(100)", 2, "VARCHAR(100)"},
    {"noticestatus", "INT", 3, "INT"},
};
constexpr StoreTable cMessageSession{"message_session", cMessageSessionColumns};

void DB::createSessionTable()
{
    StoreSchema::createOrUpgrade(cMessageSession);
}

constexpr StoreColumn cMessageUnreadSessionColumns[] = {
    {"sessionId", "VARCHAR(40) primary key"},
};
constexpr StoreTable cMessageUnreadSession{"message_unread_session", cMessageUnreadSessionColumns};

void DB::createUnreadSessionTable()
{
    StoreSchema::createOrUpgrade(cMessageUnreadSession);
}

// clang-format off
constexpr StoreColumn cLatestfriendnewColumns[] = {
    {"jid", "VARCHAR(100) primary key"},
    {"displayname", "VARCHAR(100)"},
    {"accountNo", "VARCHAR(100)"},
    {"icon", "VARCHAR(100)"},
    {"signature", "VARCHAR(100)"},
    {"time", "VARCHAR(100)"},
    {"lastcontent", "VARCHAR(1000)"},
    {"onjob", "VARCHAR(100)"},
    {"issystemnotice", "INT"},
    {"appkey", "VARCHAR(100)"},
    {"isTop", "INT", 1, "INT"},
    {"isLocalSession", "INT", 2, "INT"},
};
// clang-format on
constexpr StoreTable cLatestfriendnew{"latestfriendnew", cLatestfriendnewColumns};

void DB::createLatestFrdTable()
{
    StoreSchema::createOrUpgrade(cLatestfriendnew);
}

constexpr StoreColumn cDeletedfriendnewColumns[] = {
    {"jid", "VARCHAR(100) primary key"},
    {"displayname", "VARCHAR(100)"},
    {"accountNo", "VARCHAR(100)"},
    {"time", "VARCHAR(100)"},
    {"icon", "VARCHAR(100)"},
    {"onjob", "VARCHAR(100)"},
};
constexpr StoreTable cDeletedfriendnew{"deletedfriendnew", cDeletedfriendnewColumns};

void DB::creatDeletedFrdTable()
{
    StoreSchema::createOrUpgrade(cDeletedfriendnew);
}

constexpr StoreColumn cUnclosesessionColumns[] = {
    {"Jid", "VARCHAR(100) primary key"},
    {"Displayname", "VARCHAR(100)"},
    {"Icon", "VARCHAR(100)"},
    {"Time", "VARCHAR(100)"},
    {"Lastcontent", "VARCHAR(1000)"},
    {"Issystemnotice", "INT"},
    {"Appkey", "VARCHAR(100)"},
    {"IsTop", "INT"},
    {"isFold", "INT", 1, "INT"},
    {"DisplayTime", "VARCHAR(100)", 2, "VARCHAR(100)"},
};
constexpr StoreTable cUnclosesession{"unclosesession", cUnclosesessionColumns};

constexpr StoreColumn cUnclosesessionorderColumns[] = {
    {"UserID", "VARCHAR(100) primary key"},
    {"SessionOrderString", "VARCHAR(200)"},
};
constexpr StoreTable cUnclosesessionorder{"unclosesessionorder", cUnclosesessionorderColumns};

// The order has an existence test of its own: it is made also for an old file that has the sessions only.
void DB::createUnCloseSessionTable()
{
    StoreSchema::createOrUpgrade(cUnclosesession);
    StoreSchema::createOrUpgrade(cUnclosesessionorder);
}
