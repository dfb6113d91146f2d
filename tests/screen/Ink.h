#pragma once

// Where a picture of a window is inked, in the window's own pixels. GUI thread; no state.

#include <QImage>
#include <QRect>
#include <QRectF>

namespace Ink {

/// Darker than the ground of the windows, lighter than any stroke of a text or a glyph.
constexpr int cLightest = 205;

inline bool isAt(const QImage &picture, int x, int y)
{
    return qGray(picture.pixel(x, y)) < cLightest;
}

/// The smallest rectangle that holds all the ink of `place`; empty without any.
inline QRectF within(const QImage &picture, const QRect &place)
{
    const int iDensity = qRound(picture.devicePixelRatio());
    QRect ink;
    for (int y = place.top() * iDensity; y < (place.bottom() + 1) * iDensity; ++y) {
        for (int x = place.left() * iDensity; x < (place.right() + 1) * iDensity; ++x) {
            if (isAt(picture, x, y)) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return {QPointF(ink.topLeft()) / iDensity, QSizeF(ink.size()) / iDensity};
}

/// How far the middle of the ink in one place lies below that in the other, in pixels.
inline qreal below(const QImage &picture, const QRect &one, const QRect &other)
{
    return within(picture, one).center().y() - within(picture, other).center().y();
}

} // namespace Ink
