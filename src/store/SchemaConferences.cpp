// Conference records and the one time stamp over all sessions.

#include "store/DB.h"
#include "store/DBLastTime.h"
#include "store/StoreSchema.h"

// clang-format off
constexpr StoreColumn cVoipConferenceInfoColumns[] = {
    {"ConfID", "VARCHAR(100) primary key"},
    {"CreatUserID", "VARCHAR(100)"},
    {"CreatTime", "VARCHAR(100)"},
    {"CallTime", "VARCHAR(100)"},
    {"MemberList", "VARCHAR(1000)"},
    {"IsConnect", "INT"},
};
// clang-format on
constexpr StoreTable cVoipConferenceInfo{"voipConferenceInfo", cVoipConferenceInfoColumns};

void DB::creatVoipConferenceInfoTable()
{
    StoreSchema::createOrUpgrade(cVoipConferenceInfo);
}

constexpr StoreColumn cLastTimeColumns[] = {
    {"sessionId", "VARCHAR(40) primary key"},
    {"lastTime", "VARCHAR(20)"},
};
constexpr StoreTable cLastTime{"last_time", cLastTimeColumns};

// The table's one row is made with it, empty, and only then.
void DB::createLastTimeTable()
{
    if (StoreSchema::exists(cLastTime)) {
        return;
    }
    StoreSchema::create(cLastTime);
    DBLastTime::saveLastTime(QStringLiteral(""));
}
