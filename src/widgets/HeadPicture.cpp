#include "widgets/HeadPicture.h"

#include <QFileInfo>
#include <QImageReader>
#include <QPainter>

namespace {

const QColor cHeadBack(0xdc, 0xe5, 0xee);
const QColor cHeadFront(0x93, 0xa9, 0xbf);

// A picture of more pixels than this is not read: it is no head, and its memory could bring the host down.
constexpr qint64 cMaxPixels = Q_INT64_C(64) * 1024 * 1024;

void drawNeutralHead(QPainter &painter, qreal side)
{
    painter.fillRect(QRectF(0, 0, side, side), cHeadBack);
    painter.setPen(Qt::NoPen);
    painter.setBrush(cHeadFront);
    painter.drawEllipse(QPointF(side * 0.5, side * 0.4), side * 0.18, side * 0.18);
    painter.drawEllipse(QPointF(side * 0.5, side * 0.96), side * 0.34, side * 0.32);
}

QImage readPhoto(const QString &strPath, const QSize &size)
{
    if (strPath.isEmpty())
        return {};
    QImageReader reader(strPath);
    // Pictures come under all kinds of names: what the file holds counts, not its suffix.
    reader.setDecideFormatFromContent(true);
    const QSize whole = reader.size();
    if (!whole.isValid() || qint64(whole.width()) * whole.height() > cMaxPixels)
        return {};
    return reader.read().scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
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
    QPixmap face(iPixels, iPixels);
    const QImage photo = readPhoto(strPath, face.size());
    QPainter facePainter(&face);
    facePainter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    if (photo.isNull())
        drawNeutralHead(facePainter, iPixels);
    else
        facePainter.drawImage(0, 0, photo);
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
