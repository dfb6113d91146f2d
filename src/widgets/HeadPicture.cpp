#include "widgets/HeadPicture.h"

#include <QFileInfo>
#include <QPainter>

namespace {

const QColor cHeadBack(0xc9, 0xd6, 0xe3);
const QColor cHeadFront(0xff, 0xff, 0xff);

void drawNeutralHead(QPainter &painter, qreal side)
{
    painter.fillRect(QRectF(0, 0, side, side), cHeadBack);
    painter.setPen(Qt::NoPen);
    painter.setBrush(cHeadFront);
    painter.drawEllipse(QPointF(side * 0.5, side * 0.4), side * 0.18, side * 0.18);
    painter.drawEllipse(QPointF(side * 0.5, side * 0.96), side * 0.34, side * 0.32);
}

} // namespace

QString HeadPicture::readablePath(const QString &strPhotoPath)
{
    const QFileInfo photo(strPhotoPath);
    if (photo.isFile() && photo.isReadable() && photo.size() > 0)
        return strPhotoPath;
    return QStringLiteral("Resources/images/FriendDetail/defaultHead.png");
}

QPixmap HeadPicture::round(const QString &strPath, int iSide, qreal dRatio)
{
    const int iPixels = qMax(1, qRound(iSide * dRatio));
    const QPixmap photo(strPath);
    QPixmap face(iPixels, iPixels);
    QPainter facePainter(&face);
    facePainter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    if (photo.isNull())
        drawNeutralHead(facePainter, iPixels);
    else
        facePainter.drawPixmap(0, 0, photo.scaled(face.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    facePainter.end();

    // A brush in an ellipse has a smooth edge; a clip path has none.
    QPixmap head(iPixels, iPixels);
    head.fill(Qt::transparent);
    QPainter painter(&head);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QBrush(face));
    painter.drawEllipse(QRectF(0, 0, iPixels, iPixels));
    painter.end();
    head.setDevicePixelRatio(dRatio);
    return head;
}
