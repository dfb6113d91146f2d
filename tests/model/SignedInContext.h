#pragma once

// A shared context with a signed-in user, in place for as long as the object lives.

#include "fakes/GivenContext.h"
#include "model/CommonData.h"
#include "model/LoginData.h"

#include <QString>

struct SignedInContext
{
    SignedInContext(const QString &strUid, const QString &strDomain)
    {
        m_login.m_strUid = strUid;
        m_login.m_strDomain = strDomain;
        m_context.setLoginData(&m_login);
    }
    Q_DISABLE_COPY_MOVE(SignedInContext)

    LoginData m_login;
    CommonData m_context;
    GivenContext m_given{m_context};
};
