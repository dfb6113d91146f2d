#include "widgets/MyRubberBand.h"

#include "widgets/Compositor.h"

#include <QBitmap>
#include <QBrush>
#include <QPaintEvent>
#include <QPainter>

namespace {

constexpr int cBarWidth = 5;

void fillBars(QPainter &painter, const QRect &rect, const QBrush &dots)
{
    painter.fillRect(QRect(rect.left(), rect.top(), rect.width(), cBarWidth), dots);
    painter.fillRect(QRect(rect.left(), rect.top(), cBarWidth, rect.height()), dots);
    painter.fillRect(QRect(rect.left(), rect.bottom() + 1 - cBarWidth, rect.width(), cBarWidth), dots);
    painter.fillRect(QRect(rect.right() + 1 - cBarWidth, rect.top(), cBarWidth, rect.height()), dots);
}

QBitmap dotsOfTheBars(const QSize &size)
{
    QBitmap dots(size);
    dots.clear();
    QPainter painter(&dots);
    fillBars(painter, QRect(QPoint(), size), QBrush(Qt::color1, Qt::Dense4Pattern));
    return dots;
}

} // namespace

MyRubberBand::MyRubberBand(Shape shape, QWidget *parent) : QRubberBand(shape, parent)
{
    if (isWindow()) {
        setAttribute(Qt::WA_TranslucentBackground);
    }
}

bool MyRubberBand::event(QEvent *event)
{
    const QEvent::Type type = event->type();
    const bool bHandled = QRubberBand::event(event);
    // After any other event the band may no longer exist: a deferred deletion is one of them.
    if (type != QEvent::Show && type != QEvent::Resize && type != QEvent::StyleChange) {
        return bHandled;
    }
    if (!isWindow() || !isVisible()) {
        return bHandled;
    }
    if (type == QEvent::Show) {
        m_bComposited = Compositor::isRunning();
    }
    // After the base class has handled the event, because it puts the style's own mask on the band.
    cutToTheBars();
    return bHandled;
}

// Cuts the band's window to its bars. Without a compositor one sees through a window only where it is cut away, so it
// is cut down to the dots of the bars. A compositor shows what lies between the dots anyway, and would take long over
// the thousands of rectangles of such a mask.
void MyRubberBand::cutToTheBars()
{
    if (m_bComposited) {
        setMask(QRegion(rect()) - rect().adjusted(cBarWidth, cBarWidth, -cBarWidth, -cBarWidth));
    } else {
        setMask(dotsOfTheBars(size()));
    }
}

void MyRubberBand::paintEvent(QPaintEvent *event)
{
    QPainter painter;
    painter.begin(this);
    fillBars(painter, event->rect(), QBrush(Qt::Dense4Pattern));
    painter.end();
}
