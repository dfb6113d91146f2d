#include "StoreFixture.h"

StoreFixture::~StoreFixture()
{
    // A test may have taken context or session away.
    given.emplace(context);
    if (!context.getSqlDatabase()) {
        context.setSqlDatabase(&DB::m_db);
    }
    DB::closeDB();
    given.reset();
}
