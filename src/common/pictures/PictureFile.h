#pragma once

// Reads picture files that come from elsewhere: heads of other users, received files, caches that anyone may have
// touched. The size that a file declares is looked at before any of it is decoded, so that a small file cannot claim
// the host's memory. GUI thread, as pixmaps are.

#include <QPixmap>
#include <QString>

/// The most pixels that a picture may have to be read: 64 Mi, 256 MB once decoded.
constexpr qint64 iMOST_PICTURE_PIXELS = Q_INT64_C(64) * 1024 * 1024;

/// The first image of the picture file at `strPath`, in one of the client's picture formats; its content counts, not
/// its suffix. Null when there is no such file, when it is a folder or no such picture, when it is damaged, and when it
/// declares no size, more pixels than are allowed, or more than its bytes can hold.
QPixmap readPictureFile(const QString &strPath);
