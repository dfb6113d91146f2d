// Service numbers and applications, favourites, what is known of files, urgent messages.

#include "store/DB.h"
#include "store/StoreSchema.h"

constexpr StoreColumn cServicenumberColumns[] = {
    {"servicecode", "VARCHAR(100) primary key"},
    {"name", "VARCHAR(100)"},
    {"description", "VARCHAR(100)"},
    {"serviceicon", "VARCHAR(100)"},
    {"subtype", "INT"},
    {"isbindapp", "INT"},
    {"issub", "INT"},
    {"isInteractive", "CHAR(1)", 1, "CHAR(1)"},
    {"menu", "TEXT", 2, "TEXT"},
    {"subject", "VARCHAR(100)", 3, "VARCHAR(100)"},
    {"contactWay", "VARCHAR(100)", 4, "VARCHAR(100)"},
    {"isFold", "INT", 5, "INT"},
    {"channelId", "VARCHAR(20)", 6, "VARCHAR(20)"},
    {"version", "VARCHAR(100)", 7, "VARCHAR(100)"},
};
constexpr StoreTable cServicenumber{"servicenumber", cServicenumberColumns};
constexpr StoreTable cLocalservicenumber{"localservicenumber", cServicenumberColumns};

// Deliberately never altered, the local one: an old file keeps the columns it was made with.
void DB::createServiceTable()
{
    StoreSchema::createOrUpgrade(cServicenumber);
    if (!StoreSchema::exists(cLocalservicenumber)) {
        StoreSchema::create(cLocalservicenumber);
    }
}

// Only the added isdelete has a default, deliberately: it reads 0 in old rows, null in a new table.
constexpr StoreColumn cAppnumbernewColumns[] = {
    {"appcode", "VARCHAR(100) primary key"},
    {"name", "VARCHAR(100)"},
    {"description", "VARCHAR(100)"},
    {"appmenuname", "VARCHAR(100)", 2, "VARCHAR(100)"},
    {"pcappurl", "VARCHAR(100)"},
    {"appicon", "VARCHAR(100)"},
    {"subtype", "INT"},
    {"isbindservice", "INT"},
    {"parentid", "VARCHAR(100)"},
    {"grouptype", "INT"},
    {"level", "INT"},
    {"sortid", "VARCHAR(100)"},
    {"remindversion", "INT"},
    {"istip", "INT"},
    {"isdelete", "INT", 1, "INT default 0"},
};
constexpr StoreTable cAppnumbernew{"appnumbernew", cAppnumbernewColumns};

void DB::createApplicationNewTableNew()
{
    StoreSchema::createOrUpgrade(cAppnumbernew);
}

constexpr StoreTable cServicenumberversion{"servicenumberversion", cVersionColumns};
constexpr StoreTable cAppnumberversionnew{"appnumberversionnew", cVersionColumns};
constexpr StoreTable cDingmsgversion{"dingmsgversion", cVersionColumns};

void DB::createServiceVersion()
{
    StoreSchema::createOrUpgrade(cServicenumberversion);
}

void DB::createApplicationVersionNew()
{
    StoreSchema::createOrUpgrade(cAppnumberversionnew);
}

void DB::createDingVersion()
{
    StoreSchema::createOrUpgrade(cDingmsgversion);
}

constexpr StoreColumn cFavoriteColumns[] = {
    {"favoriteCode", "INT64 primary key"},
    {"createTime", "INT64"},
    {"favoriteType", "VARCHAR(30)"},
    {"content", "TEXT"},
};
constexpr StoreTable cFavorite{"favorite", cFavoriteColumns};

void DB::createFavoriteTable()
{
    StoreSchema::createOrUpgrade(cFavorite);
}

constexpr StoreColumn cFavoriteFileLocalInfoColumns[] = {
    {"fileId", "VARCHAR(100) primary key"},
    {"filePath", "VARCHAR(256)"},
};
constexpr StoreTable cFavoriteFileLocalInfo{"favoriteFileLocalInfo", cFavoriteFileLocalInfoColumns};

void DB::createFavoriteFileTable()
{
    StoreSchema::createOrUpgrade(cFavoriteFileLocalInfo);
}

constexpr StoreColumn cFilereceviestatusColumns[] = {
    {"fileid", "VARCHAR(20) PRIMARY KEY"},
    {"status", "VARCHAR(100)"},
};
constexpr StoreTable cFilereceviestatus{"filereceviestatus", cFilereceviestatusColumns};

void DB::createFileRecevieStatusTable()
{
    StoreSchema::createOrUpgrade(cFilereceviestatus);
}

constexpr StoreColumn cCloudfilelocalinfoColumns[] = {
    {"cloudfileid", "VARCHAR(20) PRIMARY KEY"},
    {"localpath", "VARCHAR(256)"},
};
constexpr StoreTable cCloudfilelocalinfo{"cloudfilelocalinfo", cCloudfilelocalinfoColumns};

void DB::creatCloudFileLocalInfo()
{
    StoreSchema::createOrUpgrade(cCloudfilelocalinfo);
}

constexpr StoreColumn cSharefilelocalinfoColumns[] = {
    {"sharefileid", "VARCHAR(20) PRIMARY KEY"},
    {"localpath", "VARCHAR(256)"},
};
constexpr StoreTable cSharefilelocalinfo{"sharefilelocalinfo", cSharefilelocalinfoColumns};

void DB::creatShareFileLocalInfo()
{
    StoreSchema::createOrUpgrade(cSharefilelocalinfo);
}

constexpr StoreColumn cFilestatuslocalinfoColumns[] = {
    {"fileid", "VARCHAR(20) PRIMARY KEY"},
    {"downloadstatus", "VARCHAR(256)"},
    {"savetocloud", "VARCHAR(256)"},
    {"transmit", "VARCHAR(256)"},
};
constexpr StoreTable cFilestatuslocalinfo{"filestatuslocalinfo", cFilestatuslocalinfoColumns};

void DB::creatFileStatusLocalInfo()
{
    StoreSchema::createOrUpgrade(cFilestatuslocalinfo);
}

// clang-format off
constexpr StoreColumn cVideoinfoColumns[] = {
    {"msgId", "VARCHAR(20) PRIMARY KEY"},
    {"videoUrl", "VARCHAR(256)"},
    {"picUrl", "VARCHAR(256)"},
    {"videoName", "VARCHAR(256)"},
    {"videoPicName", "VARCHAR(256)"},
};
// clang-format on
constexpr StoreTable cVideoinfo{"videoinfo", cVideoinfoColumns};

void DB::creatVideoInfo()
{
    StoreSchema::createOrUpgrade(cVideoinfo);
}

constexpr StoreColumn cFiledisplayinfoColumns[] = {
    {"msgid", "VARCHAR(20) PRIMARY KEY"},
    {"displaystatus", "VARCHAR(256)"},
};
constexpr StoreTable cFiledisplayinfo{"filedisplayinfo", cFiledisplayinfoColumns};

void DB::creatFileDisplayStatusInfo()
{
    StoreSchema::createOrUpgrade(cFiledisplayinfo);
}

// Urgent messages.
constexpr StoreColumn cDingmsginfoColumns[] = {
    {"sessionId", "VARCHAR(100) primary key"},
    {"createrJid", "VARCHAR(100)"},
    {"createrNickName", "VARCHAR(100)"},
    {"type", "INT"},
    {"msgContent", "TEXT"},
    {"fileList", "TEXT"},
    {"picList", "TEXT"},
    {"audioName", "VARCHAR(150)"},
    {"readSeq", "INT"},
    {"maxSeq", "INT"},
    {"time", "VARCHAR(100)"},
    {"ackUserIdList", "TEXT"},
    {"unAckUserIdList", "TEXT"},
    {"isRecv", "VARCHAR(10)"},
    {"newReplyTime", "VARCHAR(100)"},
    {"isMyAckFlag", "VARCHAR(10)"},
    {"pcLink", "VARCHAR(512)", 1, "VARCHAR(512)"},
    {"operatorIds", "TEXT", 2, "TEXT "},
    {"isAtMyFlag", "VARCHAR(10)", 3, "VARCHAR(10) "},
};
constexpr StoreIndex cDingmsginfoIndexes[] = {
    {"_index1", "sessionId"},
    {"_index2", "time"},
};
constexpr StoreTable cDingmsginfo{"dingmsginfo", cDingmsginfoColumns, cDingmsginfoIndexes};

constexpr StoreColumn cDingsmsgfileoinfoColumns[] = {
    {"fileId", "VARCHAR(100) primary key"},
    {"filePath", "VARCHAR(512)"},
};
constexpr StoreTable cDingsmsgfileoinfo{"dingsmsgfileoinfo", cDingsmsgfileoinfoColumns};

// The files' table has no existence test of its own, deliberately: it comes with `dingmsginfo` or never.
void DB::createDingMsgTable()
{
    if (!StoreSchema::exists(cDingmsginfo)) {
        StoreSchema::create(cDingmsginfo);
        StoreSchema::create(cDingsmsgfileoinfo);
        for (const StoreIndex &index : cDingmsginfo.indexes) {
            StoreSchema::createIndex(cDingmsginfo, index);
        }
    }
    StoreSchema::addLaterColumns(cDingmsginfo);
}
