#include "common/pictures/PictureNames.h"

#include "common/pictures/PictureFile.h"
#include "common/pictures/PictureKinds.h"

#include <QFile>
#include <QFileInfo>

namespace {

struct FilterRow
{
    const char *m_pSuffix;
    const char *m_pFilter;
};

// The first row serves every other suffix too.
// clang-format off
constexpr FilterRow cFilterRows[] = {
    {"png",  "PNG (*.png);;JPEG (*.jpg *.jpeg);;BMP (*.bmp)"},
    {"jpg",  "JPEG (*.jpg *.jpeg);;PNG (*.png);;BMP (*.bmp)"},
    {"jpeg", "JPEG (*.jpg *.jpeg);;PNG (*.png);;BMP (*.bmp)"},
    {"bmp",  "BMP (*.bmp);;PNG (*.png);;JPEG (*.jpg *.jpeg)"},
    {"gif",  "GIF (*.gif);;PNG (*.png);;JPEG (*.jpg *.jpeg);;BMP (*.bmp)"},
};
// clang-format on

} // namespace

QString PictureNames::getImageType(const QString &strPath)
{
    const QFileInfo info(strPath);
    QFile file(strPath);
    if (!readPictureFile(strPath).isNull() || !info.isFile() || !file.open(QIODevice::ReadOnly)) {
        return info.suffix();
    }
    const int iType = PictureKinds::of(file.read(PictureKinds::cSignatureLength));
    return iType == 0 ? info.suffix() : PictureKinds::suffix(iType);
}

QStringList PictureNames::GetPictureSuffix()
{
    return {QStringLiteral("png"), QStringLiteral("jpg"), QStringLiteral("jpeg"), QStringLiteral("bmp"),
            QStringLiteral("gif")};
}

QString PictureNames::getPicSaveSuffixes(const QString &strSuffix)
{
    for (const FilterRow &row : cFilterRows) {
        if (strSuffix == QLatin1String(row.m_pSuffix)) {
            return QLatin1String(row.m_pFilter);
        }
    }
    return QLatin1String(cFilterRows[0].m_pFilter);
}
