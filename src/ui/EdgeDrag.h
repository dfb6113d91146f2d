#pragma once

// The sums behind a window without a system frame: at which edges the cursor stands, which rectangle a drag of these
// edges gives, where a drag of the window's inside puts it, and the rectangle that fills the work area. Pure
// functions of global pixels; no state, any thread. The scale helpers are asked at each call.

#include <QPoint>
#include <QRect>
#include <QSize>

/// The size of the call window and of the conference centre before scaling.
constexpr QSize cWindowSize(523, 403);

class EdgeDrag
{
public:
    /// The bits of a window's edges; a corner is the sum of two.
    enum Edge : int
    {
        Left = 1,
        Top = 2,
        Right = 4,
        Bottom = 8
    };

    /// The smallest size that a drag leaves: cWindowSize, scaled.
    static QSize minimumSize();

    /// The sum of the edges of a window of `size` that are less than 5 pixels away from `position`, which is local to
    /// the window. 0 for a place away from all edges.
    static int edgesAt(QPoint position, QSize size);

    /// What a drag of `iEdges` to `cursor` makes of `window`, held to the smallest size and to the size of `workArea`.
    /// A sum that is no edge and no corner takes `previous` instead, held to the same limits.
    static QRect resized(int iEdges, const QRect &window, QPoint cursor, const QRect &workArea, const QRect &previous);

    /// Where the window's top left corner goes when `cursor` drags it by a point `grip` pixels away from that corner.
    /// 10 pixels of the window stay above the height of `workArea`; nothing else is limited.
    static QPoint moved(QPoint cursor, QPoint grip, const QRect &workArea);

    /// The rectangle of a window that fills `workArea`: it stands over by 4 pixels at the left and the top and by 8 at
    /// the right and the bottom, which hides the margin of its shadow.
    static QRect overWorkArea(const QRect &workArea);
};
