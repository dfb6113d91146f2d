#include "fakes/GivenContext.h"

#include "model/SharedContext.h"

GivenContext::GivenContext(CommonData &context)
{
    SharedContext::setCommonData(&context);
}

GivenContext::~GivenContext()
{
    SharedContext::setCommonData(nullptr);
}
