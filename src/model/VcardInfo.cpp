#include "model/VcardInfo.h"

#include "common/BuiltInPictures.h"
#include "model/AvatarFiles.h"

#include <QStringList>

void VcardInfo::setDisPlayMobile(const QString &strMobile)
{
    const QStringList listNumber = strMobile.split(QLatin1Char(' '), Qt::KeepEmptyParts);
    m_strDisplayMobile = listNumber.first();
    for (const QString &strNumber : listNumber) {
        // Tested as a part of the text, deliberately: a number inside a longer one counts as its repeat.
        if (!strNumber.isEmpty() && !m_strDisplayMobile.contains(strNumber)) {
            m_strDisplayMobile += QLatin1Char(' ') + strNumber;
        }
    }
    m_strDisplayMobile = m_strDisplayMobile.trimmed();
}

void VcardInfo::setPhotoName(const QString &strName)
{
    m_strPhotoName = strName.isEmpty() ? strDEFAULT_HEAD_PATH : strName;
    m_bSystemAvatar = true;
    if (m_strPhotoName == strDEFAULT_HEAD_PATH || m_strPhotoName == AvatarFiles::SERVICE_HEAD) {
        m_strPhotoPath = m_strPhotoName;
        return;
    }
    const QString strFile = AvatarFiles::withSuffix(strName);
    const QString strSystemAvatar = AvatarFiles::systemAvatar(strFile);
    m_bSystemAvatar = !strSystemAvatar.isEmpty();
    m_strPhotoPath = m_bSystemAvatar ? strSystemAvatar : AvatarFiles::headImageFolder() + strFile;
}
