#include "common/PictureFun.h"

#include "common/AppPaths.h"
#include "common/BuiltInPictures.h"
#include "common/pictures/PictureFolders.h"
#include "model/AvatarFiles.h"

#include <QDir>

namespace {

constexpr int cSignatureLength = 4;

constexpr int cFirstNumberedAvatar = 1;
constexpr int cLastNumberedAvatar = 20;

struct TypeRow
{
    int m_iType;
    const char *m_pSuffix;
    // Null for a kind that is not told by its first bytes.
    const char *m_pSignature;
};

// Deliberately all four bytes count: the client's callers rely on bitmaps of other sizes and JPEGs of other markers
// being unknown.
// clang-format off
constexpr TypeRow cTypeRows[] = {
    {1, "bmp",  "\x42\x4D\xE6\x52"},
    {2, "jpg",  "\xFF\xD8\xFF\xE0"},
    {3, "gif",  "\x47\x49\x46\x38"},
    {4, "png",  "\x89\x50\x4E\x47"},
    {5, "jpeg", nullptr},
};
// clang-format on

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
    for (const TypeRow &row : cTypeRows) {
        if (row.m_pSignature != nullptr && data.startsWith(QByteArray(row.m_pSignature, cSignatureLength))) {
            return row.m_iType;
        }
    }
    return 0;
}

QString PictureFun::getSuffixOfType(int iType)
{
    for (const TypeRow &row : cTypeRows) {
        if (row.m_iType == iType) {
            return QLatin1String(row.m_pSuffix);
        }
    }
    return {};
}

QString PictureFun::saveByteArrayToLocalFile(const QByteArray &data, const QString &strName)
{
    if (data.size() < cSignatureLength || strName.isEmpty()) {
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
