#include "common/pictures/HeadImages.h"

#include "common/BuiltInPictures.h"
#include "common/pictures/PictureFile.h"
#include "common/pictures/PictureFolders.h"
#include "model/UserIds.h"

#include <QBitmap>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageWriter>
#include <QPainter>

namespace {

// A mask cuts without a smooth edge. So the picture is cut at this multiple of its size, and scaling it down makes the
// edge smooth.
constexpr int cMaskScale = 2;

constexpr int cBestQuality = 100;

// The column of that width around the middle.
QPixmap middleColumn(const QPixmap &picture, int iWidth)
{
    return picture.copy((picture.width() - iWidth) / 2, 0, iWidth, picture.height());
}

// The row of that height around the middle.
QPixmap middleRow(const QPixmap &picture, int iHeight)
{
    return picture.copy(0, (picture.height() - iHeight) / 2, picture.width(), iHeight);
}

QPixmap cutToShape(const QPixmap &picture, const QSize &size)
{
    const int iWidth = int(picture.height() * (double(size.width()) / size.height()));
    if (picture.width() > iWidth) {
        return middleColumn(picture, iWidth);
    }
    return middleRow(picture, int(picture.width() * (double(size.height()) / size.width())));
}

// Whether a picture can be written in the format that the suffix tells.
bool canBeSaved(const QString &strPath)
{
    return QImageWriter::supportedImageFormats().contains(QFileInfo(strPath).suffix().toLower().toLatin1());
}

} // namespace

QString HeadImages::getFormattedImage(const QString & /*strUnused*/, const QString &strJid, const QPixmap &pixmap,
                                      const QSize &size, const QString &strSuffix)
{
    const QString strName = UserIds::getUidByJid(strJid);
    if (strName.contains(QLatin1Char('/')) || strSuffix.contains(QLatin1Char('/'))) {
        return {};
    }
    const QString strFolder = PictureFolders::headImages();
    QString strTarget = strFolder + strName + QLatin1Char('.') + strSuffix;
    if (pixmap.isNull() || size.isEmpty() || !canBeSaved(strTarget)) {
        return strTarget;
    }
    const QString strJpg = strFolder + strName + QLatin1String(".jpg");
    const QString strJpeg = strFolder + strName + QLatin1String(".jpeg");
    if (strJpg != strTarget) {
        QFile::remove(strJpg);
        // Deliberately tested by the name of the jpg, not of the png; the host's head cache relies on it: a png is
        // removed also when it is the target, and then written anew below, and it stays when a jpg is stored.
        QFile::remove(strFolder + strName + QLatin1String(".png"));
    }
    if (strJpeg != strTarget) {
        QFile::remove(strJpeg);
    }
    QDir().mkpath(strFolder);
    pixmap.scaled(size, Qt::IgnoreAspectRatio, Qt::FastTransformation).save(strTarget, nullptr, cBestQuality);
    return strTarget;
}

QPixmap HeadImages::getScaledPixmap(const QString &strPath, const QSize &size)
{
    qDebug() << "CommonFun::getScaledPixmap" << strPath << ",resultSize:" << size;
    if (size.isEmpty()) {
        return {};
    }
    const QPixmap picture = readPictureFile(strPath);
    const bool bWider = picture.width() > size.width();
    const bool bTaller = picture.height() > size.height();
    if (bWider && bTaller) {
        return cutToShape(picture, size).scaled(size, Qt::KeepAspectRatio, Qt::FastTransformation);
    }
    if (bWider) {
        return middleColumn(picture, size.width());
    }
    return bTaller ? middleRow(picture, size.height()) : picture;
}

QPixmap HeadImages::getRoundedImage(const QString &strPath, int iRadius)
{
    const QPixmap picture = iRadius < 1 ? QPixmap() : readPictureFile(strPath);
    if (picture.isNull()) {
        return {};
    }
    QBitmap mask(cMaskScale * iRadius, cMaskScale * iRadius);
    mask.fill(Qt::color0);
    QPainter painter(&mask);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QBrush(Qt::color1, Qt::SolidPattern));
    painter.drawEllipse(mask.rect());
    painter.end();
    QPixmap head = picture.scaled(mask.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    head.setMask(mask);
    return head.scaled(iRadius, iRadius, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QPixmap HeadImages::getIrregularPix(const QString &strPath, int iRadius)
{
    const QPixmap picture = iRadius < 1 ? QPixmap() : readPictureFile(strPath);
    const QPixmap shape = picture.isNull() ? QPixmap() : readPictureFile(strTOPIC_MASK_PATH);
    if (shape.isNull()) {
        return {};
    }
    const QSize area(cMaskScale * iRadius, cMaskScale * iRadius);
    const QPixmap mask = shape.scaled(area, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QPixmap head = picture.scaled(mask.size(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
    // The picture keeps its proportions, so that its size may differ from that of the mask; the mask is then stretched,
    // because it has to be as large as what it cuts.
    head.setMask(QBitmap(
        head.size() == mask.size() ? mask : mask.scaled(head.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)));
    return head.scaled(iRadius, iRadius, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}
