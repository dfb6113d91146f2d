#pragma once

// The pictures that the painting tests compare: the ground a view's picture by numbers is painted on, and where a
// picture is left for a person to look at. GUI thread.

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
