// Conference records and the one time stamp over all sessions.

#include "store/DB.h"
#include "store/DBLastTime.h"
#include "store/StoreSchema.h"

// clang-format off
constexpr StoreColumn voipConferenceInfoColumns[] = {
    {"ConfID", "VARCHAR(100) primary key"},
    {"CreatUserID", "VARCHAR(100)"},
    {"CreatTime", "VARCHAR(100)"},
    {"CallTime", "VARCHAR(100)"},
    {"MemberList", "VARCHAR(1000)"},
    {"IsConnect", "INT"},
};
// clang-format on
constexpr StoreTable voipConferenceInfo{"voipConferenceInfo", voipConferenceInfoColumns};

void DB::creatVoipConferenceInfoTable()
{
    StoreSchema::createOrUpgrade(voipConferenceInfo);
}

constexpr StoreColumn last_timeColumns[] = {
    {"sessionId", "VARCHAR(40) primary key"},
    {"lastTime", "VARCHAR(20)"},
};
constexpr StoreTable last_time{"last_time", last_timeColumns};

// The table's one row is made with it, empty, and only then.
void DB::createLastTimeTable()
{
    if (StoreSchema::exists(last_time)) {
        return;
    }
    StoreSchema::create(last_time);
    DBLastTime::saveLastTime(QStringLiteral(""));
}
