#include "common/ScreenPlace.h"

#include <QGuiApplication>
#include <QRect>
#include <QScreen>

namespace {

constexpr int VISIBLE = 10;

} // namespace

QPoint ScreenPlace::getAvailableMovePos(QPoint point, QRect rect)
{
    const QScreen *pScreen = QGuiApplication::primaryScreen();
    if (pScreen == nullptr) {
        return point;
    }
    const QRect area = pScreen->availableGeometry();
    const int iLeft = area.left() - rect.width() + VISIBLE;
    const int iTop = area.top() - rect.height() + VISIBLE;
    const int iRight = area.left() + area.width() - VISIBLE;
    const int iBottom = area.top() + area.height() - VISIBLE;
    return {qMin(qMax(iLeft, point.x()), iRight), qMin(qMax(iTop, point.y()), iBottom)};
}
