#pragma once

// A frame of any size from one small picture: the corners stay, the edges and the middle are stretched.
// GUI thread; no state.

#include <QPixmap>
#include <QSize>

class NinePatch
{
public:
    /// A picture of `size` pixels, transparent but for the frame that `source` gives. `source` is cut after 10 and 19
    /// pixels both ways: what lies between is stretched, the rest is copied as it is. A part whose source or place has
    /// no room is left out; so a null `source` gives a transparent picture. An empty size gives a null pixmap.
    static QPixmap drawNinePatch(QSize size, const QPixmap &source);
};
