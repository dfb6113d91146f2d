#include "ui/EdgeDrag.h"

#include "common/system/DpiScale.h"

#include <cstdlib>

namespace {

constexpr int cEdgeBand = 5;
constexpr int cReachable = 10;
constexpr int cOverhang = 4;

QRect draggedLeft(const QRect &window, QPoint cursor, const QRect &workArea)
{
    const int iMinimum = EdgeDrag::minimumSize().width();
    const int iWidth = window.right() + 1 - cursor.x();
    QRect dragged = window;
    if (iWidth < iMinimum) {
        dragged.setLeft(window.right() + 1 - iMinimum);
        dragged.setRight(dragged.left() - cursor.x() + window.right());
    } else {
        dragged.setLeft(cursor.x());
    }
    if (iWidth > workArea.width()) {
        dragged.setLeft(window.right() + 1 - workArea.width());
        dragged.setRight(dragged.left() + workArea.width() - 1);
    }
    return dragged;
}

QRect draggedTop(const QRect &window, QPoint cursor, const QRect &workArea)
{
    const int iMinimum = EdgeDrag::minimumSize().height();
    const int iHeight = window.bottom() + 1 - cursor.y();
    QRect dragged = window;
    if (iHeight < iMinimum) {
        dragged.setTop(window.bottom() + 1 - iMinimum);
        dragged.setBottom(dragged.top() - cursor.y() + window.bottom());
    } else if (iHeight >= workArea.height()) {
        dragged.setTop(window.bottom() + 1 - workArea.height());
        dragged.setBottom(dragged.top() + workArea.height() - 1);
    } else {
        dragged.setTop(cursor.y());
    }
    return dragged;
}

QRect withCorners(int iLeft, int iTop, int iRight, int iBottom)
{
    return {QPoint(iLeft, iTop), QPoint(iRight, iBottom)};
}

QRect dragged(int iEdges, const QRect &window, QPoint cursor, const QRect &workArea, const QRect &previous)
{
    const QSize minimum = EdgeDrag::minimumSize();
    const int iLeft = qMin(cursor.x(), window.right() + 1 - minimum.width());
    const int iTop = qMin(cursor.y(), window.bottom() + 1 - minimum.height());
    switch (iEdges) {
    case EdgeDrag::Left:
        return draggedLeft(window, cursor, workArea);
    case EdgeDrag::Top:
        return draggedTop(window, cursor, workArea);
    case EdgeDrag::Left + EdgeDrag::Top:
        return withCorners(iLeft, iTop, window.right(), window.bottom());
    case EdgeDrag::Right:
        return withCorners(window.left(), window.top(), cursor.x() - 1, window.bottom());
    case EdgeDrag::Top + EdgeDrag::Right:
        return withCorners(window.left(), iTop, cursor.x() - 1, window.bottom());
    case EdgeDrag::Bottom:
        return withCorners(window.left(), window.top(), window.right(), cursor.y() - 1);
    case EdgeDrag::Left + EdgeDrag::Bottom:
        return withCorners(iLeft, window.top(), window.right(), cursor.y() - 1);
    case EdgeDrag::Right + EdgeDrag::Bottom:
        // Deliberate: here the cursor's own pixel is the corner, unlike at the other edges.
        return withCorners(window.left(), window.top(), cursor.x(), cursor.y());
    default:
        return previous;
    }
}

QRect limited(QRect rect, const QRect &workArea)
{
    const QSize minimum = EdgeDrag::minimumSize();
    if (rect.width() < minimum.width()) {
        rect.setRight(rect.left() + minimum.width() - 1);
    }
    if (rect.height() < minimum.height()) {
        rect.setBottom(rect.top() + minimum.height() - 1);
    } else if (rect.height() > workArea.height()) {
        rect.setBottom(workArea.bottom() + rect.top() - workArea.top());
    }
    if (rect.width() > workArea.width()) {
        rect.setRight(workArea.right() + rect.left() - workArea.left());
    }
    return rect;
}

} // namespace

QSize EdgeDrag::minimumSize()
{
    return {ADAPT_DPI_INT(cWindowSize.width()), ADAPT_DPI_INT(cWindowSize.height())};
}

int EdgeDrag::edgesAt(QPoint position, QSize size)
{
    const int iBand = ADAPT_DPI_INT(cEdgeBand);
    int iEdges = 0;
    if (std::abs(position.x()) < iBand) {
        iEdges += Left;
    }
    if (std::abs(position.y()) < iBand) {
        iEdges += Top;
    }
    if (std::abs(size.width() - 1 - position.x()) < iBand) {
        iEdges += Right;
    }
    if (std::abs(size.height() - 1 - position.y()) < iBand) {
        iEdges += Bottom;
    }
    return iEdges;
}

QRect EdgeDrag::resized(int iEdges, const QRect &window, QPoint cursor, const QRect &workArea, const QRect &previous)
{
    return limited(dragged(iEdges, window, cursor, workArea, previous), workArea);
}

QPoint EdgeDrag::moved(QPoint cursor, QPoint grip, const QRect &workArea)
{
    const QPoint position = cursor - grip;
    return {position.x(), qMin(position.y(), workArea.height() - ADAPT_DPI_INT(cReachable))};
}

QRect EdgeDrag::overWorkArea(const QRect &workArea)
{
    const int iOverhang = ADAPT_DPI_INT(cOverhang);
    const int iLeft = workArea.left() - iOverhang;
    const int iTop = workArea.top() - iOverhang;
    return withCorners(iLeft, iTop, iLeft + (workArea.right() - workArea.left()) + 3 * iOverhang,
                       iTop + (workArea.bottom() - workArea.top()) + 3 * iOverhang);
}
