#pragma once

// A skin of the test's own in a context of the test's own, so that a test can give each member a colour that no other
// one has and change it while widgets live.

#include "model/SharedContext.h"
#include "model/SysUIData.h"

class OwnSkin
{
public:
    OwnSkin()
    {
        m_context.setSkinData(&m_skin);
        SharedContext::setCommonData(&m_context);
    }
    ~OwnSkin() { SharedContext::setCommonData(nullptr); }
    Q_DISABLE_COPY_MOVE(OwnSkin)

    SysUIData *operator->() { return &m_skin; }

private:
    SysUIData m_skin;
    CommonData m_context;
};
