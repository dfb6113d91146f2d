#include "common/pictures/ImagePath.h"

#include "common/pictures/PictureKinds.h"

#include <QFile>
#include <QFileInfo>

namespace {

constexpr int cHeadLength = 8;

QByteArray firstBytes(const QString &strPath)
{
    if (strPath.isEmpty()) {
        return {};
    }
    QFile file(strPath);
    // Anything but a plain file could keep the reader waiting.
    if (!QFileInfo(strPath).isFile() || !file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return file.peek(cHeadLength);
}

// The "." of a folder's name is none of the file's.
QString withSuffix(const QString &strPath, const QString &strSuffix)
{
    const int iDot = strPath.lastIndexOf(QLatin1Char('.'));
    const bool bInFileName = iDot > strPath.lastIndexOf(QLatin1Char('/'));
    return (bInFileName ? strPath.left(iDot) : strPath) + QLatin1Char('.') + strSuffix;
}

// The path of the file once its suffix is right. A file that cannot be copied keeps its name, so that it is not lost.
QString corrected(const QString &strPath, const QByteArray &head)
{
    const int iType = PictureKinds::of(head);
    const QString strSuffix = PictureKinds::suffix(iType);
    if (iType == 0 || QFileInfo(strPath).suffix() == strSuffix) {
        return strPath;
    }
    QString strTrue = withSuffix(strPath, strSuffix);
    if (!QFile::exists(strTrue)) {
        if (!QFile::copy(strPath, strTrue)) {
            return strPath;
        }
        QFile::remove(strPath);
    }
    return strTrue;
}

} // namespace

QString ImagePath::getTrueImagePath(const QString &strPath, const QString &strFallback)
{
    const QByteArray head = firstBytes(strPath);
    return head.isEmpty() ? strFallback : corrected(strPath, head);
}

bool ImagePath::getIsImageFixError(QString &strPath)
{
    const QByteArray head = firstBytes(strPath);
    if (head.isEmpty()) {
        return false;
    }
    const QString strTrue = corrected(strPath, head);
    const bool bWrong = strTrue != strPath;
    strPath = strTrue;
    return bWrong;
}
