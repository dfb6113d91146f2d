#include "common/system/ScreenPlace.h"

#include <QGuiApplication>
#include <QRect>
#include <QScreen>

namespace {

constexpr int cVisible = 10;

} // namespace

QRect ScreenPlace::workArea()
{
    const QScreen *pScreen = QGuiApplication::primaryScreen();
    return pScreen == nullptr ? QRect() : pScreen->availableGeometry();
}

QPoint ScreenPlace::getAvailableMovePos(QPoint point, QRect rect)
{
    const QRect area = workArea();
    if (area.isNull()) {
        return point;
    }
    const int iLeft = area.left() - rect.width() + cVisible;
    const int iTop = area.top() - rect.height() + cVisible;
    const int iRight = area.left() + area.width() - cVisible;
    const int iBottom = area.top() + area.height() - cVisible;
    return {qMin(qMax(iLeft, point.x()), iRight), qMin(qMax(iTop, point.y()), iBottom)};
}
