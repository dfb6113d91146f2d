#include "common/PictureFun.h"

#include "common/AppPaths.h"
#include "common/BuiltInPictures.h"
#include "common/pictures/PictureFolders.h"
#include "common/pictures/PictureKinds.h"
#include "model/AvatarFiles.h"

#include <QDir>

namespace {

constexpr int cFirstNumberedAvatar = 1;
constexpr int cLastNumberedAvatar = 20;

QString systemAvatarPath(const QString &strFile)
{
    const int iNumber = strFile.section(QLatin1Char('.'), 0, 0).toInt();
    if (iNumber >= cFirstNumberedAvatar && iNumber <= cLastNumberedAvatar) {
        return strSYSTEM_AVATAR_PATH + strFile;
    }
    const QString strAvatar = AvatarFiles::systemAvatar(strFile);
    return strAvatar.isEmpty() ? PictureFolders::headImages() + strFile : strAvatar;
}

} // namespace

int PictureFun::getFileType(const QByteArray &data)
{
    return PictureKinds::of(data);
}

QString PictureFun::getSuffixOfType(int iType)
{
    return PictureKinds::suffix(iType);
}

QString PictureFun::saveByteArrayToLocalFile(const QByteArray &data, const QString &strName)
{
    if (data.size() < PictureKinds::cSignatureLength || strName.isEmpty()) {
        return strDEFAULT_HEAD_PATH;
    }
    QDir().mkpath(strAPP_DOCUMENT_IM_FILES_PATH());
    // Deliberately nothing is written and a known picture gives an empty text: callers save the picture themselves.
    return getFileType(data) == 0 ? strDEFAULT_HEAD_PATH : QString();
}

QString PictureFun::savePhotoToLocalFile(const QString &strName, int iKind, const QString & /*strUnused*/,
                                         const QString &strLast)
{
    if (strName.isEmpty() || strLast.isEmpty()) {
        return strDEFAULT_HEAD_PATH;
    }
    const QString strFile = AvatarFiles::withSuffix(strName);
    switch (iKind) {
    case 0:
        return systemAvatarPath(strFile);
    case 1:
        return PictureFolders::headImages() + QLatin1String("hf") + strFile;
    case 2:
        return PictureFolders::headImages() + QLatin1String("hs") + strFile;
    default:
        return {};
    }
}
