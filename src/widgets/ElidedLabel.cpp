#include "widgets/ElidedLabel.h"

#include <QStylePainter>

ElidedLabel::ElidedLabel(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
}

QString ElidedLabel::shownText() const
{
    return fontMetrics().elidedText(text().simplified(), Qt::ElideRight, contentsRect().width());
}

QSize ElidedLabel::sizeHint() const
{
    const QMargins margins = contentsMargins();
    return fontMetrics().size(Qt::TextSingleLine, text().simplified()) +
           QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {0, sizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    painter.drawItemText(contentsRect(), int(alignment()), palette(), isEnabled(), shownText(), foregroundRole());
}
