#include "common/system/FolderCopy.h"

#include <QFile>
#include <QFileInfo>
#include <QFileInfoList>
#include <QStringList>

namespace {

// The folder's path without links, whether it is there already or only some folder above it.
QString realPath(const QDir &dir)
{
    const QFileInfo info(dir.absolutePath());
    QString strReal = info.canonicalFilePath();
    if (!strReal.isEmpty() || info.isRoot()) {
        return strReal;
    }
    return realPath(info.dir()) + QLatin1Char('/') + info.fileName();
}

bool isInside(const QString &strPath, const QString &strFolder)
{
    const QString strBelow = strFolder.endsWith(QLatin1Char('/')) ? strFolder : strFolder + QLatin1Char('/');
    return strPath == strFolder || strPath.startsWith(strBelow);
}

bool copyFile(const QFileInfo &file, const QDir &to, bool bOverwrite)
{
    if (bOverwrite && QFileInfo::exists(to.filePath(file.fileName()))) {
        QDir(to).remove(file.fileName());
    }
    return QFile::copy(file.absoluteFilePath(), to.filePath(file.fileName()));
}

// `listUnderWay`: the folders that are being copied, outermost first, without links.
bool copyFolder(const QDir &from, const QDir &to, bool bOverwrite, QStringList listUnderWay)
{
    const QString strFrom = realPath(from);
    if (listUnderWay.contains(strFrom) || isInside(realPath(to), strFrom)) {
        return false;
    }
    listUnderWay.append(strFrom);
    if (!to.exists() && !QDir().mkdir(to.absolutePath())) {
        return false;
    }
    const QFileInfoList listEntry = from.entryInfoList();
    for (const QFileInfo &entry : listEntry) {
        if (entry.fileName() == QLatin1String(".") || entry.fileName() == QLatin1String("..")) {
            continue;
        }
        const bool bCopied =
            entry.isDir() ? copyFolder(QDir(entry.filePath()), QDir(to.filePath(entry.fileName())), true, listUnderWay)
                          : copyFile(entry, to, bOverwrite);
        if (!bCopied) {
            return false;
        }
    }
    return true;
}

} // namespace

bool FolderCopy::copyDirectory(const QDir &from, const QDir &to, bool overwrite)
{
    return copyFolder(from, to, overwrite, {});
}
