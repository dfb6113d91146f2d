#include "ComparedPicture.h"

#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QWidget>

namespace {

const QColor cBackdrop(0x5a, 0x78, 0x96);

// Smoothed edges may come out a shade apart, a few pixels may differ; a stroke through a glyph is more than that.
constexpr int cShade = 32;
constexpr int cFewPixels = 8;

QString fileName(const QString &strName)
{
    const int iDensity = qRound(qApp->devicePixelRatio());
    return iDensity == 1 ? strName + QStringLiteral(".png") : QStringLiteral("%1@%2x.png").arg(strName).arg(iDensity);
}

QString saved(const QString &strFolder, const QString &strName, const QImage &picture)
{
    const QString strFile = strFolder + QLatin1Char('/') + fileName(strName);
    if (!QDir().mkpath(strFolder) || !picture.save(strFile)) {
        return QStringLiteral("cannot write ") + strFile;
    }
    return {};
}

int furthest(QRgb one, QRgb other)
{
    return qMax(qAbs(qRed(one) - qRed(other)),
                qMax(qAbs(qGreen(one) - qGreen(other)), qAbs(qBlue(one) - qBlue(other))));
}

} // namespace

QImage ComparedPicture::of(QWidget *pWindow)
{
    const QPixmap content = pWindow->grab();
    QImage picture(content.size(), QImage::Format_RGB32);
    picture.fill(cBackdrop);
    picture.setDevicePixelRatio(content.devicePixelRatio());
    QPainter painter(&picture);
    painter.drawPixmap(0, 0, content);
    return picture;
}

QImage ComparedPicture::committed(const QString &strName)
{
    return QImage(QStringLiteral(VOIP_PICTURES "/") + fileName(strName)).convertToFormat(QImage::Format_RGB32);
}

int ComparedPicture::differingPixels(const QImage &one, const QImage &other)
{
    if (one.size() != other.size()) {
        return qMax(one.width() * one.height(), other.width() * other.height());
    }
    int iDiffering = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            if (furthest(one.pixel(x, y), other.pixel(x, y)) > cShade) {
                ++iDiffering;
            }
        }
    }
    return iDiffering;
}

QString ComparedPicture::complaint(const QString &strName, const QImage &picture)
{
    if (qEnvironmentVariableIsSet("VOIP_REMAKE_PICTURES")) {
        return saved(QStringLiteral(VOIP_PICTURES), strName, picture);
    }
    const int iDiffering = differingPixels(picture, committed(strName));
    if (iDiffering <= cFewPixels) {
        return {};
    }
    const QString strTrouble = saved(QStringLiteral(VOIP_PICTURES_FOUND), strName, picture);
    return QStringLiteral("%1: %2 pixels differ; see " VOIP_PICTURES_FOUND " %3")
        .arg(fileName(strName), QString::number(iDiffering), strTrouble);
}
