// Service numbers and applications, favourites, what is known of files, urgent messages.

#include "store/DB.h"
#include "store/StoreSchema.h"

constexpr StoreColumn servicenumberColumns[] = {
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
constexpr StoreTable servicenumber{"servicenumber", servicenumberColumns};
constexpr StoreTable localservicenumber{"localservicenumber", servicenumberColumns};

// Deliberately never altered, the local one: an old file keeps the columns it was made with.
void DB::createServiceTable()
{
    StoreSchema::createOrUpgrade(servicenumber);
    if (!StoreSchema::exists(localservicenumber)) {
        StoreSchema::create(localservicenumber);
    }
}

// Only the added isdelete has a default, deliberately: it reads 0 in old rows, null in a new table.
constexpr StoreColumn appnumbernewColumns[] = {
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
constexpr StoreTable appnumbernew{"appnumbernew", appnumbernewColumns};

void DB::createApplicationNewTableNew()
{
    StoreSchema::createOrUpgrade(appnumbernew);
}

constexpr StoreTable servicenumberversion{"servicenumberversion", versionColumns};
constexpr StoreTable appnumberversionnew{"appnumberversionnew", versionColumns};
constexpr StoreTable dingmsgversion{"dingmsgversion", versionColumns};

void DB::createServiceVersion()
{
    StoreSchema::createOrUpgrade(servicenumberversion);
}

void DB::createApplicationVersionNew()
{
    StoreSchema::createOrUpgrade(appnumberversionnew);
}

void DB::createDingVersion()
{
    StoreSchema::createOrUpgrade(dingmsgversion);
}

constexpr StoreColumn favoriteColumns[] = {
    {"favoriteCode", "INT64 primary key"},
    {"createTime", "INT64"},
    {"favoriteType", "VARCHAR(30)"},
    {"content", "TEXT"},
};
constexpr StoreTable favorite{"favorite", favoriteColumns};

void DB::createFavoriteTable()
{
    StoreSchema::createOrUpgrade(favorite);
}

constexpr StoreColumn favoriteFileLocalInfoColumns[] = {
    {"fileId", "VARCHAR(100) primary key"},
    {"filePath", "VARCHAR(256)"},
};
constexpr StoreTable favoriteFileLocalInfo{"favoriteFileLocalInfo", favoriteFileLocalInfoColumns};

void DB::createFavoriteFileTable()
{
    StoreSchema::createOrUpgrade(favoriteFileLocalInfo);
}

constexpr StoreColumn filereceviestatusColumns[] = {
    {"fileid", "VARCHAR(20) PRIMARY KEY"},
    {"status", "VARCHAR(100)"},
};
constexpr StoreTable filereceviestatus{"filereceviestatus", filereceviestatusColumns};

void DB::createFileRecevieStatusTable()
{
    StoreSchema::createOrUpgrade(filereceviestatus);
}

constexpr StoreColumn cloudfilelocalinfoColumns[] = {
    {"cloudfileid", "VARCHAR(20) PRIMARY KEY"},
    {"localpath", "VARCHAR(256)"},
};
constexpr StoreTable cloudfilelocalinfo{"cloudfilelocalinfo", cloudfilelocalinfoColumns};

void DB::creatCloudFileLocalInfo()
{
    StoreSchema::createOrUpgrade(cloudfilelocalinfo);
}

constexpr StoreColumn sharefilelocalinfoColumns[] = {
    {"sharefileid", "VARCHAR(20) PRIMARY KEY"},
    {"localpath", "VARCHAR(256)"},
};
constexpr StoreTable sharefilelocalinfo{"sharefilelocalinfo", sharefilelocalinfoColumns};

void DB::creatShareFileLocalInfo()
{
    StoreSchema::createOrUpgrade(sharefilelocalinfo);
}

constexpr StoreColumn filestatuslocalinfoColumns[] = {
    {"fileid", "VARCHAR(20) PRIMARY KEY"},
    {"downloadstatus", "VARCHAR(256)"},
    {"savetocloud", "VARCHAR(256)"},
    {"transmit", "VARCHAR(256)"},
};
constexpr StoreTable filestatuslocalinfo{"filestatuslocalinfo", filestatuslocalinfoColumns};

void DB::creatFileStatusLocalInfo()
{
    StoreSchema::createOrUpgrade(filestatuslocalinfo);
}

// clang-format off
constexpr StoreColumn videoinfoColumns[] = {
    {"msgId", "VARCHAR(20) PRIMARY KEY"},
    {"videoUrl", "VARCHAR(256)"},
    {"picUrl", "VARCHAR(256)"},
    {"videoName", "VARCHAR(256)"},
    {"videoPicName", "VARCHAR(256)"},
};
// clang-format on
constexpr StoreTable videoinfo{"videoinfo", videoinfoColumns};

void DB::creatVideoInfo()
{
    StoreSchema::createOrUpgrade(videoinfo);
}

constexpr StoreColumn filedisplayinfoColumns[] = {
    {"msgid", "VARCHAR(20) PRIMARY KEY"},
    {"displaystatus", "VARCHAR(256)"},
};
constexpr StoreTable filedisplayinfo{"filedisplayinfo", filedisplayinfoColumns};

void DB::creatFileDisplayStatusInfo()
{
    StoreSchema::createOrUpgrade(filedisplayinfo);
}

// Urgent messages.
constexpr StoreColumn dingmsginfoColumns[] = {
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
constexpr StoreIndex dingmsginfoIndexes[] = {
    {"_index1", "sessionId"},
    {"_index2", "time"},
};
constexpr StoreTable dingmsginfo{"dingmsginfo", dingmsginfoColumns, dingmsginfoIndexes};

constexpr StoreColumn dingsmsgfileoinfoColumns[] = {
    {"fileId", "VARCHAR(100) primary key"},
    {"filePath", "VARCHAR(512)"},
};
constexpr StoreTable dingsmsgfileoinfo{"dingsmsgfileoinfo", dingsmsgfileoinfoColumns};

// The files' table has no existence test of its own, deliberately: it comes with `dingmsginfo` or never.
void DB::createDingMsgTable()
{
    if (!StoreSchema::exists(dingmsginfo)) {
        StoreSchema::create(dingmsginfo);
        StoreSchema::create(dingsmsgfileoinfo);
        for (const StoreIndex &index : dingmsginfo.indexes) {
            StoreSchema::createIndex(dingmsginfo, index);
        }
    }
    StoreSchema::addLaterColumns(dingmsginfo);
}
