// What older files have and newer ones have no more.

#include "store/DB.h"
#include "store/StoreSchema.h"

// Whole tables that newer ones have taken the place of.
constexpr const char *cRetiredTables[] = {
    "deletedfriend", "grouptableNew", "groupfriendversion", "localfriend",      "latestfriend", "friendlist",
    "muclocalmsg",   "msglist",       "appnumber",          "appnumberversion",
};

void DB::dropNoUseTable()
{
    for (const char *table : cRetiredTables) {
        if (isExistTable(table)) {
            StoreSchema::run(QStringLiteral("drop table %1;").arg(table));
        }
    }
}
