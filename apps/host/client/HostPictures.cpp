#include "client/HostPictures.h"

#include "common/BuiltInPictures.h"
#include "common/pictures/HeadImages.h"
#include "model/AvatarFiles.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>

namespace {

QPixmap canvas(int iSize)
{
    const qreal ratio = qGuiApp->devicePixelRatio();
    QPixmap pixmap(QSize(iSize, iSize) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    return pixmap;
}

QPixmap photoOf(const QString &strPhoto, int iSize)
{
    const bool bNone = strPhoto.isEmpty() || strPhoto == strDEFAULT_HEAD_PATH;
    return bNone ? QPixmap() : HeadImages::getRoundedImage(strPhoto, iSize);
}

void drawInitial(QPainter &painter, const QString &strName, const QString &strUid, int iSize)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromHsv(int(strUid.toULongLong() * 67 % 360), 110, 190));
    painter.drawEllipse(QRectF(0, 0, iSize, iSize));
    QFont font = painter.font();
    font.setPixelSize(iSize * 45 / 100);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(QRectF(0, 0, iSize, iSize), Qt::AlignCenter, strName.left(1));
}

} // namespace

QPixmap HostPictures::head(const QString &strName, const QString &strUid, int iSize, Presence presence,
                           const QString &strPhoto)
{
    QPixmap pixmap = canvas(iSize);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPixmap photo = photoOf(strPhoto, qRound(iSize * pixmap.devicePixelRatioF()));
    if (photo.isNull()) {
        drawInitial(painter, strName, strUid, iSize);
    } else {
        painter.drawPixmap(QRect(0, 0, iSize, iSize), photo);
    }

    const QColor colour = presenceColour(presence);
    if (!colour.isValid()) {
        return pixmap;
    }
    const qreal dot = iSize * 0.28;
    painter.setPen(QPen(Qt::white, iSize * 0.05));
    painter.setBrush(colour);
    painter.drawEllipse(QRectF(iSize - dot - 1, iSize - dot - 1, dot, dot));
    return pixmap;
}

QPixmap HostPictures::head(const ContactBook::Entry &entry, int iSize)
{
    return entry.known ? head(entry.nick, entry.uid, iSize, entry.presence, AvatarFiles::systemAvatar(entry.photo))
                       : head(QStringLiteral("?"), entry.uid, iSize, entry.presence, QString());
}

QString HostPictures::windowIcon()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/Resources/Images/SysTrayIcon/MiniToTaskBar.png");
}

QIcon HostPictures::call(const QColor &colour)
{
    constexpr int size = 36;
    QPixmap pixmap = canvas(size);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(size / 2.0, size / 2.0);
    painter.rotate(-135);
    painter.setPen(QPen(colour, 5, Qt::SolidLine, Qt::FlatCap));
    painter.drawArc(QRectF(-13, -7, 26, 26), 25 * 16, 130 * 16);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawRoundedRect(QRectF(-16, -3, 9, 9), 3, 3);
    painter.drawRoundedRect(QRectF(7, -3, 9, 9), 3, 3);
    return QIcon(pixmap);
}

QIcon HostPictures::video(const QColor &colour)
{
    constexpr int size = 36;
    QPixmap pixmap = canvas(size);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawRoundedRect(QRectF(3, 9, 19, 18), 4, 4);
    QPainterPath lens;
    lens.moveTo(24, 16);
    lens.lineTo(33, 10);
    lens.lineTo(33, 26);
    lens.lineTo(24, 20);
    lens.closeSubpath();
    painter.drawPath(lens);
    return QIcon(pixmap);
}

QIcon HostPictures::swatch(const QColor &colour, int iSize)
{
    QPixmap pixmap = canvas(iSize);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawEllipse(QRectF(0, 0, iSize, iSize));
    return QIcon(pixmap);
}
