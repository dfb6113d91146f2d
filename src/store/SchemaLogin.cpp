// The table of saved sign-ins; the only one of a file that is opened for signing in.

#include "store/DB.h"
#include "store/StoreSchema.h"

constexpr StoreColumn cLoginInfoColumns[] = {
    {"trueAccount", "VARCHAR(100) primary key"},
    {"password", "VARCHAR(1000)"},
    {"showType", "INTEGER"},
    {"isSavePassword", "INTEGER"},
    {"isAutoLogin", "INTEGER"},
    {"photoUrl", "VARCHAR(100)"},
    {"loginTime", "VARCHAR(100)"},
    {"password2", "VARCHAR(1000)"},
    {"displayname", "VARCHAR(100)"},
    {"signature", "VARCHAR(100)"},
    {"empphonenum", "VARCHAR(100)"},
    {"RemCookie", "VARCHAR(100)"},
    {"PasswordLength", "VARCHAR(100)"},
};
constexpr StoreTable cLoginInfo{"loginInfo", cLoginInfoColumns};

void DB::createLoginTable()
{
    StoreSchema::createOrUpgrade(cLoginInfo);
}
