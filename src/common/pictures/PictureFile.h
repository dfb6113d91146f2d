#pragma once

// Reads picture files from outside: heads of other users, received files, files in caches that anyone may have changed.
// The size that a file declares is tested before the picture is decoded, so that a small file cannot make the host take
// up all its memory. GUI thread, because it makes pixmaps.

#include <QPixmap>
#include <QString>

/// The most pixels that a picture may have to be read: 64 Mi, 256 MB once decoded.
constexpr qint64 cMostPicturePixels = Q_INT64_C(64) * 1024 * 1024;

/// The first image of the picture file at `strPath`. Its content tells the format, not its suffix: png, jpeg, bmp or
/// gif. Null when there is no such file, or it is a folder, in another format or damaged; also when it declares no
/// size, more than cMostPicturePixels, or more pixels than a file of its length can hold.
QPixmap readPictureFile(const QString &strPath);
