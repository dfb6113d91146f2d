#pragma once

// A shared context with a signed-in user, in place for as long as the object lives.

#include "model/CommonData.h"
#include "model/LoginData.h"
#include "model/SharedContext.h"

#include <QString>

struct SignedInContext
{
    SignedInContext(const QString &strUid, const QString &strDomain)
    {
        m_login.m_strUid = strUid;
        m_login.m_strDomain = strDomain;
        m_context.setLoginData(&m_login);
        SharedContext::setCommonData(&m_context);
    }
    ~SignedInContext() { SharedContext::setCommonData(nullptr); }
    SignedInContext(const SignedInContext &) = delete;
    SignedInContext &operator=(const SignedInContext &) = delete;

    LoginData m_login;
    CommonData m_context;
};
