#include "common/system/ScreenPlace.h"

#include <QGuiApplication>
#include <QRect>
#include <QScreen>

namespace {

constexpr int VISIBLE = 10;

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
    const int iLeft = area.left() - rect.width() + VISIBLE;
    const int iTop = area.top() - rect.height() + VISIBLE;
    const int iRight = area.left() + area.width() - VISIBLE;
    const int iBottom = area.top() + area.height() - VISIBLE;
    return {qMin(qMax(iLeft, point.x()), iRight), qMin(qMax(iTop, point.y()), iBottom)};
}
