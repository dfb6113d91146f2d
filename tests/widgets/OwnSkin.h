#pragma once

// A skin of the test's own in a context of the test's own, so that a test can give each member a colour that no other
// one has and change it while widgets live.

#include "fakes/GivenContext.h"
#include "model/CommonData.h"
#include "model/SysUIData.h"

class OwnSkin
{
public:
    OwnSkin() { m_context.setSkinData(&m_skin); }
    Q_DISABLE_COPY_MOVE(OwnSkin)

    SysUIData *operator->() { return &m_skin; }

private:
    SysUIData m_skin;
    CommonData m_context;
    GivenContext m_given{m_context};
};
