#include "GalleryUser.h"

#include "model/SharedContext.h"
#include "robots/RobotIds.h"

GalleryUser::GalleryUser()
{
    m_login.m_strUid = QLatin1String(Robots::cOwnUser);
    m_settings.m_strUserFolder = m_folder.path();
    m_settings.m_strHeadImageFolder = m_folder.filePath(QStringLiteral("heads/"));
    m_context.setLoginData(&m_login);
    m_context.setSystemSetData(&m_settings);
    SharedContext::setCommonData(&m_context);
}

GalleryUser::~GalleryUser()
{
    SharedContext::setCommonData(nullptr);
}
