// People, rooms and their members, contact groups with their sync versions, room notices.

#include "store/DB.h"
#include "store/StoreSchema.h"

constexpr StoreColumn cLocalfriendNewColumns[] = {
    {"jid", "VARCHAR(100) primary key"},
    {"mysetname", "VARCHAR(100)"},
    {"nickname", "VARCHAR(100)"},
    {"accountuid", "VARCHAR(100)"},
    {"accountno", "VARCHAR(100)"},
    {"issys", "VARCHAR(100)"},
    {"signature", "VARCHAR(100)"},
    {"samllversion", "INT"},
    {"birthday", "VARCHAR(100)"},
    {"sex", "VARCHAR(100)"},
    {"photoname", "VARCHAR(100)"},
    {"groupid", "VARCHAR(100)"},
    {"department", "VARCHAR(100)"},
    {"fulldepartment", "VARCHAR(100)"},
    {"profession", "VARCHAR(100)"},
    {"systemmobile", "VARCHAR(100)"},
    {"otherphone", "VARCHAR(100)"},
    {"extensionnum", "VARCHAR(100)"},
    {"mail", "VARCHAR(100)"},
    {"leadername", "VARCHAR(100)"},
    {"leaderuid", "VARCHAR(100)"},
    {"worklocation", "VARCHAR(100)"},
    {"isemployee", "VARCHAR(100)"},
    {"isadmin", "VARCHAR(10)"},
    {"iscooperate", "INT"},
    {"companycode", "VARCHAR(100)"},
    {"ismyfriend", "INT"},
    {"fullversion", "INT"},
    {"isoutsidefriend", "INT", 1, "INT"},
    {"extension1", "VARCHAR(100)"},
    {"extension2", "VARCHAR(100)"},
};
constexpr StoreTable cLocalfriendNew{"localfriendNew", cLocalfriendNewColumns};

void DB::createLocalFrdTable()
{
    StoreSchema::createOrUpgrade(cLocalfriendNew);
}

// No primary key, deliberately: rows are found through the index. Old files gain the columns in another order than
// that of a new table.
constexpr StoreColumn cMucrecordColumns[] = {
    {"jid", "VARCHAR(100)"},
    {"roomJid", "VARCHAR(100)"},
    {"roomName", "VARCHAR(100)"},
    {"ownerJid", "VARCHAR(100)"},
    {"managerJid", "VARCHAR(100)"},
    {"memberCount", "VARCHAR(100)"},
    {"createTime", "VARCHAR(100)"},
    {"version", "VARCHAR(100)"},
    {"topsigntype", "INT"},
    {"topsigndate", "VARCHAR(100)"},
    {"classify", "VARCHAR(20)"},
    {"noticesubject", "VARCHAR(100)"},
    {"noticecontent", "VARCHAR(1000)"},
    {"localExist", "VARCHAR(1)"},
    {"isExist", "VARCHAR(1)", 1, "VARCHAR(1)"},
    {"headImage", "VARCHAR(256)", 7, "VARCHAR(256)"},
    {"isOpenBarCode", "INT", 2, "INT"},
    {"isOpenJoinValidate", "INT", 3, "INT"},
    {"isAutoRelease", "INT", 6, "INT"},
    {"isOpenWaterMark", "INT", 4, "INT"},
    {"isInnerMuc", "INT", 5, "INT"},
    {"companyCode", "VARCHAR(100)", 8, "VARCHAR(100)"},
};
constexpr StoreIndex cMucrecordIndexes[] = {
    {"_index_roomJid", "roomJid"},
};
constexpr StoreTable cMucrecord{"mucrecord", cMucrecordColumns, cMucrecordIndexes};

// The index is looked after at every open, whether a column was missing or not.
void DB::createMuctable()
{
    StoreSchema::createOrUpgrade(cMucrecord);
    StoreSchema::createMissingIndexes(cMucrecord);
}

// No primary key; the index as above.
constexpr StoreColumn cMucmembersColumns[] = {
    {"roomJid", "VARCHAR(100)"},
    {"memberJid", "VARCHAR(100)"},
    {"memberName", "VARCHAR(100)"},
    {"memberHead", "VARCHAR(100)"},
    {"mucsignature", "VARCHAR(100)", 1, "VARCHAR(100)"},
};
constexpr StoreIndex cMucmembersIndexes[] = {
    {"_index_roomJid_memberJid", "roomJid,memberJid"},
};
constexpr StoreTable cMucmembers{"mucmembers", cMucmembersColumns, cMucmembersIndexes};

void DB::createMucMembersTable()
{
    StoreSchema::createOrUpgrade(cMucmembers);
    StoreSchema::createMissingIndexes(cMucmembers);
}

constexpr StoreColumn cGroupColumns[] = {
    {"groupId", "VARCHAR(100) PRIMARY KEY"},
    {"groupName", "VARCHAR(100)"},
};
constexpr StoreTable cGrouptable{"grouptable", cGroupColumns};
constexpr StoreTable cFriendGrouptable{"friendGrouptable", cGroupColumns};

void DB::createGroupTable()
{
    StoreSchema::createOrUpgrade(cGrouptable);
}

void DB::createFriendGroupTable()
{
    StoreSchema::createOrUpgrade(cFriendGrouptable);
}

constexpr StoreTable cGroupfriendversionNew{"groupfriendversionNew", cVersionColumns};
constexpr StoreTable cOutsidegroupfriendversionNew{"outsidegroupfriendversionNew", cVersionColumns};

void DB::createGroupFriendVersion()
{
    StoreSchema::createOrUpgrade(cGroupfriendversionNew);
}

void DB::createOutsideGroupFriendVersion()
{
    StoreSchema::createOrUpgrade(cOutsidegroupfriendversionNew);
}

constexpr StoreColumn cRoomnoticeColumns[] = {
    {"roomjid", "VARCHAR(100) primary key"},
    {"noticeid", "VARCHAR(100)"},
    {"noticetitle", "VARCHAR(100)"},
    {"noticecontent", "VARCHAR(1000)"},
    {"readstatus", "INT"},
    {"userid", "VARCHAR(100)", 1, "VARCHAR(100)"},
    {"updatetime", "VARCHAR(100)", 2, "VARCHAR(100)"},
};
constexpr StoreTable cRoomnotice{"roomnotice", cRoomnoticeColumns};

void DB::createRoomNoticeTable()
{
    StoreSchema::createOrUpgrade(cRoomnotice);
}
