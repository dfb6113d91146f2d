#include "widgets/HotLabel.h"

#include <QMouseEvent>

HotLabel::HotLabel(QWidget *parent) : QLabel(parent) {}

void HotLabel::enterEvent(QEvent *)
{
    setText(QStringLiteral("<a href=\"#\">") + QObject::tr("modifyhotkey") + QStringLiteral("</a>"));
}

void HotLabel::leaveEvent(QEvent *)
{
    setText(QObject::tr("modifyhotkey"));
}

void HotLabel::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton) {
        emit signal_clickNameLabel(text());
    }
    QLabel::mouseReleaseEvent(event);
}
