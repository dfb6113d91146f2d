#include "widgets/SymbolButton.h"

#include <QPainter>
#include <QPainterPath>

namespace {

// All shapes are drawn in a square of this side, whatever the button's size.
constexpr qreal cSide = 26.0;
constexpr qreal cStroke = 1.6;

void drawCross(QPainter &painter)
{
    painter.drawLine(QPointF(8.5, 8.5), QPointF(17.5, 17.5));
    painter.drawLine(QPointF(17.5, 8.5), QPointF(8.5, 17.5));
}

void drawMicrophone(QPainter &painter)
{
    QPainterPath capsule;
    capsule.addRoundedRect(QRectF(10.5, 4.5, 5, 10), 2.5, 2.5);
    painter.fillPath(capsule, painter.pen().color());
    painter.drawArc(QRectF(7.5, 7.5, 11, 10.5), 180 * 16, 180 * 16);
    painter.drawLine(QPointF(13, 18), QPointF(13, 21));
    painter.drawLine(QPointF(9.5, 21.5), QPointF(16.5, 21.5));
}

void drawSpeaker(QPainter &painter, bool bWaves)
{
    QPainterPath body(QPointF(4.5, 10));
    for (const QPointF &corner :
         {QPointF(8, 10), QPointF(13, 5.5), QPointF(13, 20.5), QPointF(8, 16), QPointF(4.5, 16)})
        body.lineTo(corner);
    body.closeSubpath();
    painter.fillPath(body, painter.pen().color());
    if (bWaves) {
        painter.drawArc(QRectF(11.5, 9.5, 6, 7), -60 * 16, 120 * 16);
        painter.drawArc(QRectF(10.5, 6, 11, 14), -60 * 16, 120 * 16);
    }
}

void drawCamera(QPainter &painter)
{
    QPainterPath body;
    body.addRoundedRect(QRectF(4, 8, 12.5, 10.5), 2, 2);
    QPainterPath lens(QPointF(17.5, 12));
    for (const QPointF &corner : {QPointF(22, 9), QPointF(22, 17.5), QPointF(17.5, 14.5)})
        lens.lineTo(corner);
    lens.closeSubpath();
    painter.fillPath(body.united(lens), painter.pen().color());
}

void drawStroke(QPainter &painter)
{
    painter.drawLine(QPointF(5.5, 4.5), QPointF(21, 21.5));
}

void drawSilence(QPainter &painter)
{
    painter.drawLine(QPointF(16, 10.5), QPointF(21, 15.5));
    painter.drawLine(QPointF(21, 10.5), QPointF(16, 15.5));
}

void drawSymbol(QPainter &painter, SymbolButton::Symbol symbol)
{
    using Symbol = SymbolButton::Symbol;
    switch (symbol) {
    case Symbol::Close:
        return drawCross(painter);
    case Symbol::Microphone:
        return drawMicrophone(painter);
    case Symbol::MicrophoneOff:
        drawMicrophone(painter);
        return drawStroke(painter);
    case Symbol::Speaker:
        return drawSpeaker(painter, true);
    case Symbol::SpeakerOff:
        drawSpeaker(painter, false);
        return drawSilence(painter);
    case Symbol::Camera:
        return drawCamera(painter);
    case Symbol::CameraOff:
        drawCamera(painter);
        return drawStroke(painter);
    }
}

} // namespace

SymbolButton::SymbolButton(QWidget *parent)
    : QPushButton(parent), m_color(palette().color(QPalette::ButtonText)), m_hoverColor(m_color)
{
    setCursor(Qt::PointingHandCursor);
    setFlat(true);
    setAttribute(Qt::WA_Hover);
}

void SymbolButton::setSymbol(Symbol symbol, const QColor &color)
{
    m_symbol = symbol;
    m_color = color;
    update();
}

void SymbolButton::setHoverColor(const QColor &color)
{
    m_hoverColor = color;
    update();
}

void SymbolButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal side = qMin(width(), height());
    painter.translate((width() - side) / 2, (height() - side) / 2);
    painter.scale(side / cSide, side / cSide);
    QPen pen(underMouse() ? m_hoverColor : m_color, cStroke);
    pen.setCapStyle(Qt::RoundCap);
    painter.setPen(pen);
    if (isDown())
        painter.setOpacity(0.6);
    drawSymbol(painter, m_symbol);
}
