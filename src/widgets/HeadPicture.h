#pragma once

// Round head pictures for screens of any resolution: a contact's own picture, or a neutral head drawn in its place. No
// state; GUI thread.

#include <QPixmap>
#include <QString>

class HeadPicture
{
public:
    /// The picture at `strPath` cut to a circle of `iSide` logical pixels for a screen of `dRatio` device pixels per
    /// logical one. A path that holds no picture gives the neutral head.
    static QPixmap round(const QString &strPath, int iSide, qreal dRatio);
};
