#include "StoreFixture.h"

#include "model/SharedContext.h"

StoreFixture::StoreFixture()
{
    SharedContext::setCommonData(&context);
}

StoreFixture::~StoreFixture()
{
    // A test may have taken context or session away.
    SharedContext::setCommonData(&context);
    if (!context.getSqlDatabase()) {
        context.setSqlDatabase(&DB::m_db);
    }
    DB::closeDB();
    SharedContext::setCommonData(nullptr);
}
