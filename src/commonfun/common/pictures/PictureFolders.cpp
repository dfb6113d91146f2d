#include "common/pictures/PictureFolders.h"

#include "common/AppPaths.h"
#include "model/SharedContext.h"
#include "model/SystemSetData.h"

#include <QFileInfo>
#include <QStandardPaths>

namespace {

QString subFolder(QString strFolder, const QString &strName)
{
    while (strFolder.endsWith(QLatin1Char('/'))) {
        strFolder.chop(1);
    }
    return strName.isEmpty() ? strFolder : strFolder + QLatin1Char('/') + strName;
}

// The user's folder as the settings name it; empty when they name none.
QString ownUserFolder()
{
    const SystemSetData *pSettings = SharedContext::getSystemSetData();
    return pSettings != nullptr ? pSettings->m_strUserFolder : QString();
}

QString documentsUserFolder()
{
    const SystemSetData *pSettings = SharedContext::getSystemSetData();
    return subFolder(strAPP_DOCUMENT_IM_FILES_PATH(), pSettings != nullptr ? pSettings->m_strUserName : QString());
}

QString dataFolder(const QString &strName)
{
    const QString strData = QStandardPaths::writableLocation(QStandardPaths::DataLocation);
    return subFolder(QFileInfo(strData).absoluteFilePath(), strName) + QLatin1Char('/');
}

} // namespace

QString PictureFolders::headImages()
{
    const QString strOwn = ownUserFolder();
    const bool bOwn = !strOwn.isEmpty() && QFileInfo(strOwn).isDir();
    return subFolder(bOwn ? strOwn : documentsUserFolder(), QStringLiteral("designHeadImage")) + QLatin1Char('/');
}

QString PictureFolders::waterMarks()
{
    const QString strOwn = ownUserFolder();
    const QString strUser = strOwn.isEmpty() ? documentsUserFolder() : strOwn;
    return QFileInfo(subFolder(strUser, QStringLiteral("waterMark"))).absoluteFilePath() + QLatin1Char('/');
}

QString PictureFolders::icons()
{
    return dataFolder(QStringLiteral("icon"));
}

QString PictureFolders::cloudIcons()
{
    return dataFolder(QStringLiteral("CloudIcon"));
}
