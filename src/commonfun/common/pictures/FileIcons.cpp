#include "common/pictures/FileIcons.h"

#include "common/pictures/PictureFile.h"
#include "common/pictures/PictureFolders.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QIcon>
#include <QTemporaryDir>

namespace {

constexpr int cCommonSize = 32;

// No icon is larger than this.
constexpr int cAnySize = 1000;

const QString cPngSuffix = QStringLiteral(".png");

QString builtInIcon(const QString &strName)
{
    return QCoreApplication::applicationDirPath() + QLatin1String("/Resources/Html/messageTemplate/images/") + strName;
}

QString iconFile(const QString &strPath, int iSize)
{
    const QString strSuffix = QFileInfo(strPath).suffix();
    if (iSize == cCommonSize) {
        return strSuffix == QLatin1String("exe") ? builtInIcon(QStringLiteral("exe.png"))
                                                 : PictureFolders::icons() + strSuffix + cPngSuffix;
    }
    return PictureFolders::icons() + strSuffix + QLatin1String("_x") + QString::number(iSize) + cPngSuffix;
}

// Makes an empty file of that name in a folder of its own, where no other file is in its way. Empty on failure.
QString emptyFile(const QTemporaryDir &folder, const QString &strPath)
{
    const QString strEmpty = folder.filePath(QFileInfo(strPath).fileName());
    QFile file(strEmpty);
    return file.open(QIODevice::WriteOnly) ? strEmpty : QString();
}

QIcon systemIcon(const QString &strPath)
{
    const QFileInfo info(strPath);
    if (info.exists()) {
        return QFileIconProvider().icon(info);
    }
    const QTemporaryDir folder;
    const QString strEmpty = emptyFile(folder, strPath);
    return strEmpty.isEmpty() ? QIcon() : QFileIconProvider().icon(QFileInfo(strEmpty));
}

void saveIcon(const QPixmap &icon, const QString &strFile)
{
    QDir().mkpath(QFileInfo(strFile).path());
    icon.save(strFile, "PNG");
}

QString cloudIconName(const QString &strName, bool bFolder)
{
    if (bFolder) {
        return QStringLiteral("folder");
    }
    const QString strSuffix = QFileInfo(strName).suffix();
    return strSuffix.isEmpty() ? QStringLiteral("unknown") : strSuffix;
}

} // namespace

QPixmap FileIcons::getFileIcon(const QString &strPath)
{
    const QString strFile = iconFile(strPath, cCommonSize);
    if (QFile::exists(strFile)) {
        return readPictureFile(strFile);
    }
    const QIcon icon = systemIcon(strPath);
    if (icon.isNull()) {
        return readPictureFile(builtInIcon(QStringLiteral("unknown.png")));
    }
    const QPixmap picture = icon.pixmap(cCommonSize, cCommonSize);
    saveIcon(picture, strFile);
    return picture;
}

QString FileIcons::getFileIconPath(const QString &strPath, int iSize)
{
    if (iSize < 1) {
        return {};
    }
    QString strFile = iconFile(strPath, iSize);
    if (QFile::exists(strFile)) {
        return strFile;
    }
    const QIcon icon = systemIcon(strPath);
    if (icon.isNull()) {
        const QString strUnknown = builtInIcon(QStringLiteral("unknown.png"));
        return QFile::exists(strUnknown) ? strUnknown : QString();
    }
    saveIcon(icon.pixmap(iSize, iSize), strFile);
    return strFile;
}

QPixmap FileIcons::extractFileIcon(QString strPath, bool bBig)
{
    const QFileInfo info(strPath);
    if (!info.exists()) {
        return {};
    }
    const QIcon icon = QFileIconProvider().icon(info);
    const QSize size = icon.actualSize(QSize(cAnySize, cAnySize));
    return icon.pixmap(bBig ? size : size / 2);
}

QPixmap FileIcons::getFileImg(QString strName, bool bBig, bool bFolder)
{
    const QString strFile = PictureFolders::cloudIcons() + cloudIconName(strName, bFolder) +
                            (bBig ? QStringLiteral("B") : QString()) + cPngSuffix;
    if (QFile::exists(strFile)) {
        return readPictureFile(strFile);
    }
    const QTemporaryDir folder;
    const QPixmap icon = extractFileIcon(bFolder ? folder.path() : emptyFile(folder, strName), bBig);
    if (!icon.isNull()) {
        saveIcon(icon, strFile);
    }
    return icon;
}
