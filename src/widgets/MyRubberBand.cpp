#include "widgets/MyRubberBand.h"

#include <QBrush>
#include <QPaintEvent>
#include <QPainter>

namespace {

constexpr int cBarWidth = 5;

} // namespace

MyRubberBand::MyRubberBand(Shape shape, QWidget *parent) : QRubberBand(shape, parent) {}

void MyRubberBand::paintEvent(QPaintEvent *event)
{
    const QRect rect = event->rect();
    const QBrush dots(Qt::Dense4Pattern);
    QPainter painter;
    painter.begin(this);
    painter.fillRect(QRect(rect.left(), rect.top(), rect.width(), cBarWidth), dots);
    painter.fillRect(QRect(rect.left(), rect.top(), cBarWidth, rect.height()), dots);
    painter.fillRect(QRect(rect.left(), rect.bottom() + 1 - cBarWidth, rect.width(), cBarWidth), dots);
    painter.fillRect(QRect(rect.right() + 1 - cBarWidth, rect.top(), cBarWidth, rect.height()), dots);
    painter.end();
}
