#include "ui/SignCard.h"

#include <QRect>
#include <QWidget>

QPoint signCardPlace(const QWidget &view, const QRect &head)
{
    constexpr int cFromLeft = 2;
    return view.mapToGlobal(head.topLeft()) + QPoint(cFromLeft - head.left(), 0);
}
