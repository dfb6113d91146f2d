#pragma once

// Round head pictures: a contact's own picture, or a neutral head drawn in its place. No state; any thread that may
// paint pixmaps, which is the GUI thread.

#include <QPixmap>
#include <QString>

class HeadPicture
{
public:
    /// `strPhotoPath` when that file can be read, else the path of the default head.
    static QString readablePath(const QString &strPhotoPath);

    /// The picture at `strPath` cut to a circle of `iSide` logical pixels for a screen of `dRatio` device pixels per
    /// logical one. A path that holds no picture gives the neutral head.
    static QPixmap round(const QString &strPath, int iSide, qreal dRatio);
};
