#pragma once

#include <QtGlobal>

class CommonData;

/// Makes a context the shared one for as long as it lives; behind it there is none. The context belongs to the caller.
class GivenContext
{
public:
    explicit GivenContext(CommonData &context);
    ~GivenContext();
    Q_DISABLE_COPY_MOVE(GivenContext)
};
