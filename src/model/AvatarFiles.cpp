#include "model/AvatarFiles.h"

#include "common/BuiltInPictures.h"
#include "model/SharedContext.h"
#include "model/SystemSetData.h"

#include <QCoreApplication>
#include <QFile>

const QString AvatarFiles::cServiceHead = QStringLiteral("Resources/images/FriendDetail/ic_portrait_server_90.png");

QString AvatarFiles::withSuffix(const QString &name)
{
    return name.contains(QLatin1Char('.')) ? name : name + QLatin1String(".jpg");
}

QString AvatarFiles::systemAvatar(const QString &file)
{
    const QString strPath = strSYSTEM_AVATAR_PATH + file;
    const bool bExists = QFile::exists(QCoreApplication::applicationDirPath() + QLatin1Char('/') + strPath);
    return bExists ? strPath : QString();
}

QString AvatarFiles::headImageFolder()
{
    const SystemSetData *pSettings = SharedContext::getSystemSetData();
    return pSettings != nullptr ? pSettings->m_strHeadImageFolder : QString();
}
