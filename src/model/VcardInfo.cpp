#include "model/VcardInfo.h"

#include "common/BuiltInPictures.h"
#include "model/AvatarFiles.h"
#include "model/DistinctParts.h"

#include <QStringList>

void VcardInfo::setDisPlayMobile(const QString &strMobile)
{
    // A number inside a longer one counts as its repeat, deliberately.
    const QStringList listNumber = DistinctParts::of(strMobile.split(QLatin1Char(' ')));
    m_strDisplayMobile = listNumber.join(QLatin1Char(' ')).trimmed();
}

void VcardInfo::setPhotoName(const QString &strName)
{
    m_strPhotoName = strName.isEmpty() ? strDEFAULT_HEAD_PATH : strName;
    m_bSystemAvatar = true;
    if (m_strPhotoName == strDEFAULT_HEAD_PATH || m_strPhotoName == AvatarFiles::cServiceHead) {
        m_strPhotoPath = m_strPhotoName;
        return;
    }
    const QString strFile = AvatarFiles::withSuffix(strName);
    const QString strSystemAvatar = AvatarFiles::systemAvatar(strFile);
    m_bSystemAvatar = !strSystemAvatar.isEmpty();
    m_strPhotoPath = m_bSystemAvatar ? strSystemAvatar : AvatarFiles::headImageFolder() + strFile;
}
