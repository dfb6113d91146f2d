#pragma once

// Picture files for the tests, good ones and bad ones, written where the test runs. Each writer gives the file's path,
// or an empty text when it could not be written.

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QString>
#include <QTest>
#include <QtEndian>

#include <limits>

namespace PictureFiles {

inline QString writeBytes(const QString &strName, const QByteArray &bytes)
{
    const QString strPath = QDir::current().absoluteFilePath(strName);
    QFile file(strPath);
    const bool bWritten = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    return bWritten ? strPath : QString();
}

/// The bytes of a picture file in that format.
inline QByteArray encoded(const QImage &image, const char *pFormat)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, pFormat, 100);
    return bytes;
}

inline QImage plain(const QSize &size, const QColor &color)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

/// Four bytes, big-endian.
inline QByteArray be32(quint32 uValue)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(uValue, bytes.data());
    return bytes;
}

/// Two bytes, little-endian.
inline QByteArray le16(quint16 uValue)
{
    QByteArray bytes(2, '\0');
    qToLittleEndian(uValue, bytes.data());
    return bytes;
}

/// Four bytes, little-endian.
inline QByteArray le32(quint32 uValue)
{
    return le16(static_cast<quint16>(uValue)) + le16(static_cast<quint16>(uValue >> 16));
}

/// The checksum of a PNG chunk.
inline quint32 pngChecksum(const QByteArray &bytes)
{
    quint32 uSum = 0xFFFFFFFF;
    for (const char cByte : bytes) {
        uSum ^= uchar(cByte);
        for (int i = 0; i < 8; ++i) {
            uSum = (uSum >> 1) ^ ((uSum & 1) != 0 ? 0xEDB88320 : 0);
        }
    }
    return ~uSum;
}

/// A small PNG that declares another size in its header.
inline QByteArray pngThatDeclares(quint32 uWidth, quint32 uHeight)
{
    QByteArray bytes = encoded(plain(QSize(4, 4), Qt::red), "PNG");
    bytes.replace(16, 8, be32(uWidth) + be32(uHeight));
    return bytes.replace(29, 4, be32(pngChecksum(bytes.mid(12, 17))));
}

/// The same as a JPEG.
inline QByteArray jpegThatDeclares(quint16 uWidth, quint16 uHeight)
{
    QByteArray bytes = encoded(plain(QSize(4, 4), Qt::red), "JPG");
    const int iFrame = bytes.indexOf(QByteArray::fromHex("ffc0"));
    return bytes.replace(iFrame + 5, 4, be32((quint32(uHeight) << 16) | uWidth));
}

/// A GIF of that size whose data end after one red pixel.
inline QByteArray gifThatDeclares(quint16 uWidth, quint16 uHeight)
{
    const QByteArray size = le16(uWidth) + le16(uHeight);
    return QByteArray("GIF89a") + size + QByteArray::fromHex("800000ff0000000000") + QByteArray::fromHex("2c00000000") +
           size + QByteArray::fromHex("000202440100") + QByteArray(";");
}

/// A small BMP that declares another size in its header.
inline QByteArray bmpThatDeclares(quint16 uWidth, quint16 uHeight)
{
    QByteArray bytes = encoded(plain(QSize(4, 4), Qt::red), "BMP");
    return bytes.replace(18, 8, le32(uWidth) + le32(uHeight));
}

/// `image` as a BMP whose rows are stored from the top down, which it tells by a height of that negative number.
inline QByteArray bmpFromTheTopDown(const QImage &image, qint32 iHeight)
{
    QByteArray bytes = encoded(image.mirrored(), "BMP");
    QByteArray height(4, '\0');
    qToLittleEndian(iHeight, height.data());
    return bytes.replace(22, 4, height);
}

/// Rows of paths at which there is no picture that may be read.
inline void addBadPictureRows()
{
    const QByteArray png = encoded(plain(QSize(40, 40), Qt::red), "PNG");
    QTest::addColumn<QString>("path");
    QTest::newRow("no path") << QString();
    QTest::newRow("no such file") << QStringLiteral("no/such/picture.png");
    QTest::newRow("a folder") << QDir::currentPath();
    QTest::newRow("a device") << QStringLiteral("/dev/zero");
    QTest::newRow("empty") << writeBytes(QStringLiteral("empty.png"), {});
    QTest::newRow("no picture") << writeBytes(QStringLiteral("text.png"), "not a picture");
    QTest::newRow("cut within the header") << writeBytes(QStringLiteral("cut.png"), png.left(20));
    QTest::newRow("cut within the data") << writeBytes(QStringLiteral("cutdata.png"), png.left(png.size() / 2));
    QTest::newRow("no size") << writeBytes(QStringLiteral("zero.png"), pngThatDeclares(0, 0));
    QTest::newRow("huge png") << writeBytes(QStringLiteral("huge.png"), pngThatDeclares(20000, 20000));
    QTest::newRow("huge jpeg") << writeBytes(QStringLiteral("huge.jpg"), jpegThatDeclares(20000, 20000));
    QTest::newRow("huge gif") << writeBytes(QStringLiteral("huge.gif"), gifThatDeclares(20000, 20000));
    QTest::newRow("huge bmp") << writeBytes(QStringLiteral("huge.bmp"), bmpThatDeclares(20000, 20000));
    QTest::newRow("highest bmp from the top down") << writeBytes(
        QStringLiteral("down.bmp"), bmpFromTheTopDown(plain(QSize(4, 4), Qt::red), std::numeric_limits<qint32>::min()));
    QTest::newRow("widest png") << writeBytes(QStringLiteral("wide.png"), pngThatDeclares(0x7FFFFFFF, 0x7FFFFFFF));
}

} // namespace PictureFiles
