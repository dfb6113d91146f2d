#pragma once

// The icons of file types as the system draws them, asked once per suffix and kept as PNG files, which are read from
// then on and never verified: a damaged one stays until the user removes it and reads as a null pixmap. The folders of
// the caches are made when first needed. GUI thread; no state.

#include <QPixmap>
#include <QString>

class FileIcons
{
public:
    /// The icon of the file at `strPath`, which need not exist, at 32 by 32 pixels. The client's own for programs,
    /// and its "unknown.png" where the system has none; null without that too.
    static QPixmap getFileIcon(const QString &strPath);

    /// The path of the picture of that icon at `iSize` pixels, made when it is missing; empty when there is no icon or
    /// the size is below 1.
    static QString getFileIconPath(const QString &strPath, int iSize);

    /// The system's icon of the file or folder at `strPath` as large as it has it, or half as large unless `bBig`.
    /// Null when there is no such file.
    static QPixmap extractFileIcon(QString strPath, bool bBig);

    /// The icon for an entry of that name in the cloud's list, from a cache of its own: a folder's, or that of the
    /// name's suffix, in the sizes of extractFileIcon. The file itself need not exist.
    static QPixmap getFileImg(QString strName, bool bBig, bool bFolder);
};
