#include "common/pictures/PictureFile.h"
#include "fakes/PictureFiles.h"

#include <QtTest>

using namespace PictureFiles;

class tst_PictureFile : public QObject
{
    Q_OBJECT

private slots:
    void pictureIsRead_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("name");
        const QImage image = plain(QSize(6, 4), Qt::red);
        QTest::newRow("png") << encoded(image, "PNG") << "a.png";
        QTest::newRow("jpg") << encoded(image, "JPG") << "a.jpg";
        QTest::newRow("jpeg") << encoded(image, "JPG") << "a.jpeg";
        QTest::newRow("bmp") << encoded(image, "BMP") << "a.bmp";
        QTest::newRow("gif") << gifThatDeclares(6, 4) << "a.gif";
        QTest::newRow("wrong suffix") << encoded(image, "BMP") << "b.png";
        QTest::newRow("no picture's suffix") << encoded(image, "PNG") << "c.txt";
        QTest::newRow("no suffix") << encoded(image, "JPG") << "d";
    }
    void pictureIsRead()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, name);
        const QImage read = readPictureFile(writeBytes(name, bytes)).toImage();
        QCOMPARE(read.size(), QSize(6, 4));
        const QColor first = read.pixelColor(0, 0);
        QVERIFY(first.red() >= 0xFD && first.green() <= 2 && first.blue() <= 2);
    }

    void bitmapFromTheTopDownIsRead()
    {
        QImage image = plain(QSize(6, 4), Qt::red);
        image.setPixelColor(5, 0, Qt::blue);
        const QString strPath = writeBytes(QStringLiteral("down.bmp"), bmpFromTheTopDown(image, -4));
        QCOMPARE(readPictureFile(strPath).toImage().convertToFormat(QImage::Format_RGB32), image);
    }

    void badPictureIsNull_data() { addBadPictureRows(); }
    void badPictureIsNull()
    {
        QFETCH(QString, path);
        QVERIFY(readPictureFile(path).isNull());
    }

    void sizeIsAllowedUpToTheLimit()
    {
        // Two colours take little memory as a file; what counts is the number of pixels.
        QImage image(8192, 8193, QImage::Format_Mono);
        image.setColorTable({qRgb(0, 0, 255), qRgb(255, 0, 0)});
        image.fill(0);
        QVERIFY(readPictureFile(writeBytes(QStringLiteral("more.png"), encoded(image, "PNG"))).isNull());
        image = image.copy(0, 0, 8192, 8192);
        QCOMPARE(qint64(image.width()) * image.height(), cMostPicturePixels);
        QCOMPARE(readPictureFile(writeBytes(QStringLiteral("most.png"), encoded(image, "PNG"))).size(),
                 QSize(8192, 8192));
    }

    void bitmapHoldsAsManyPixelsAsItsBytesCanSay()
    {
        // One colour and the end: a byte of the count and one of the colour for 255 pixels.
        const int iRuns = 1000;
        QByteArray bitmap = encoded(QImage(255, 1, QImage::Format_Grayscale8), "BMP");
        const int iPixels = 14 + 40 + 4 * 256;
        bitmap.resize(iPixels);
        bitmap.replace(22, 4, le32(iRuns));
        bitmap.replace(30, 4, le32(1));
        bitmap += QByteArray::fromHex("ff070000").repeated(iRuns) + QByteArray::fromHex("0001");
        const QImage read = readPictureFile(writeBytes(QStringLiteral("runs.bmp"), bitmap)).toImage();
        QCOMPARE(read.size(), QSize(255, iRuns));
        QCOMPARE(read.pixelColor(254, 0), read.pixelColor(0, iRuns - 1));
        bitmap.replace(22, 4, le32(bitmap.size() * 128 / 255 + 1));
        QVERIFY(readPictureFile(writeBytes(QStringLiteral("claims.bmp"), bitmap)).isNull());
    }

    void pictureWithinAnIconFileIsNotRead()
    {
        // The directory says 4 by 4, the picture within says more.
        const QByteArray inner = encoded(plain(QSize(100, 100), Qt::red), "PNG");
        const QByteArray icon = QByteArray::fromHex("000001000100") + QByteArray::fromHex("0404000001002000") +
                                le16(quint16(inner.size())) + le16(0) + QByteArray::fromHex("16000000") + inner;
        QCOMPARE(QImage::fromData(icon).size(), QSize(100, 100));
        QVERIFY(readPictureFile(writeBytes(QStringLiteral("icon.png"), icon)).isNull());
        const QByteArray small = encoded(plain(QSize(4, 4), Qt::red), "PPM");
        QVERIFY(!QImage::fromData(small).isNull());
        QVERIFY(readPictureFile(writeBytes(QStringLiteral("other.png"), small)).isNull());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_PictureFile, Widgets)
#include "tst_PictureFile.moc"
