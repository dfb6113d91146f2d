#include "model/VcardInfo.h"

#include "model/SharedContext.h"
#include "model/SystemSetData.h"

#include <QCoreApplication>
#include <QFile>
#include <QStringList>

namespace {

const QString DEFAULT_HEAD = QStringLiteral("Resources/images/FriendDetail/defaultHead.png");
const QString SERVICE_HEAD = QStringLiteral("Resources/images/FriendDetail/ic_portrait_server_90.png");
const QString SYSTEM_AVATAR_FOLDER = QStringLiteral("Resources/SystemAvatar/");

QString headImageFolder()
{
    const SystemSetData *pSettings = SharedContext::getSystemSetData();
    return pSettings != nullptr ? pSettings->m_strHeadImageFolder : QString();
}

} // namespace

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
    m_strPhotoName = strName.isEmpty() ? DEFAULT_HEAD : strName;
    m_bSystemAvatar = true;
    if (m_strPhotoName == DEFAULT_HEAD || m_strPhotoName == SERVICE_HEAD) {
        m_strPhotoPath = m_strPhotoName;
        return;
    }
    const QString strFile = strName.contains(QLatin1Char('.')) ? strName : strName + QLatin1String(".jpg");
    const QString strSystemAvatar = SYSTEM_AVATAR_FOLDER + strFile;
    m_bSystemAvatar = QFile::exists(QCoreApplication::applicationDirPath() + QLatin1Char('/') + strSystemAvatar);
    m_strPhotoPath = m_bSystemAvatar ? strSystemAvatar : headImageFolder() + strFile;
}
