#pragma once

// The pictures that the painting tests compare: the ground a picture by numbers is painted on, a head by its numbers,
// and where a picture is left for a person to look at. GUI thread.

#include <QBitmap>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QTest>
#include <QWidget>

/// What `paint` makes of an empty picture of `port`'s size and pixel ratio, in its ground colour and with its text's
/// pen.
template <typename Paint>
QImage paintedLike(const QWidget &port, Paint paint)
{
    QPixmap picture(port.size() * port.devicePixelRatioF());
    picture.setDevicePixelRatio(port.devicePixelRatioF());
    picture.fill(port.palette().color(port.backgroundRole()));
    QPainter painter(&picture);
    painter.setPen(port.palette().color(port.foregroundRole()));
    paint(painter);
    painter.end();
    return picture.toImage().convertToFormat(QImage::Format_RGB32);
}

/// What `paint` makes of an empty picture of that size, of which nothing is opaque.
template <typename Paint>
QImage paintedOnNothing(const QSize &size, Paint paint)
{
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(painter);
    painter.end();
    return picture;
}

/// Its pixels, in one format for all.
inline QImage pixelsOf(const QPixmap &picture)
{
    return picture.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

/// The picture as a round head of that many pixels: cut at twice the size, so that its edge becomes smooth. None of
/// none.
inline QPixmap roundByNumbers(const QPixmap &picture, int iSide)
{
    if (picture.isNull()) {
        return {};
    }
    QBitmap mask(2 * iSide, 2 * iSide);
    mask.fill(Qt::color0);
    QPainter painter(&mask);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::color1);
    painter.drawEllipse(mask.rect());
    painter.end();
    QPixmap head = picture.scaled(mask.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    head.setMask(mask);
    return head.scaled(iSide, iSide, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/// Paints the file's picture as a round head at that place, `iSide` wide in the painter's own units.
inline void paintHeadByNumbers(QPainter &painter, const QPoint &place, const QString &strPath, int iSide)
{
    const qreal dRatio = painter.device()->devicePixelRatioF();
    QPixmap head = roundByNumbers(QPixmap(strPath), qRound(iSide * dRatio));
    head.setDevicePixelRatio(dRatio);
    painter.drawPixmap(place, head);
}

/// Leaves `picture` as NAME@1x.png or NAME@2x.png in the folder that the environment variable VOIP_PICTURES names; does
/// nothing where it names none.
inline void leavePicture(const QImage &picture, const QString &strName)
{
    const QString strFolder = qEnvironmentVariable("VOIP_PICTURES");
    if (!strFolder.isEmpty()) {
        picture.save(QStringLiteral("%1/%2@%3x.png").arg(strFolder, strName).arg(picture.devicePixelRatio()));
    }
}

/// Compares a view's picture with the one by numbers. Both are left for a person to look at, NAME and NAME-numbers.
inline void comparePictures(const QImage &actual, const QImage &byNumbers, const char *pName)
{
    leavePicture(actual, QLatin1String(pName));
    leavePicture(byNumbers, QLatin1String(pName) + QStringLiteral("-numbers"));
    QCOMPARE(actual, byNumbers);
}
