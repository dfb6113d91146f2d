#include "widgets/HeadPicture.h"

#include "common/CommonFun.h"

#include <QPainter>

namespace {

const QColor cHeadBack(0xdc, 0xe5, 0xee);
const QColor cHeadFront(0x93, 0xa9, 0xbf);

// A disc with a head and shoulders that stay within it.
QPixmap neutralHead(int iSide)
{
    QPixmap head(iSide, iSide);
    head.fill(Qt::transparent);
    QPainter painter(&head);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(cHeadBack);
    painter.drawEllipse(head.rect());
    painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
    painter.setBrush(cHeadFront);
    painter.drawEllipse(QPointF(iSide * 0.5, iSide * 0.4), iSide * 0.18, iSide * 0.18);
    painter.drawEllipse(QPointF(iSide * 0.5, iSide * 0.96), iSide * 0.34, iSide * 0.32);
    return head;
}

} // namespace

QPixmap HeadPicture::round(const QString &strPath, int iSide, qreal dRatio)
{
    const int iPixels = qMax(1, qRound(iSide * dRatio));
    QPixmap head = CommonFun::getRoundedImage(strPath, iPixels);
    if (head.isNull())
        head = neutralHead(iPixels);
    head.setDevicePixelRatio(dRatio);
    return head;
}
