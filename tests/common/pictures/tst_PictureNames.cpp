#include "common/pictures/PictureNames.h"
#include "fakes/PictureFiles.h"

#include <QtTest>

using namespace PictureFiles;

class tst_PictureNames : public QObject
{
    Q_OBJECT

private slots:
    void readablePictureHasItsOwnSuffix_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("format");
        QTest::addColumn<QString>("type");
        QTest::newRow("png") << "a.png" << QByteArray("PNG") << "png";
        QTest::newRow("upper case") << "a.PNG" << QByteArray("PNG") << "PNG";
        QTest::newRow("wrong suffix") << "a.gif" << QByteArray("PNG") << "gif";
        QTest::newRow("no suffix") << "a" << QByteArray("JPG") << "";
        QTest::newRow("two suffixes") << "a.b.jpeg" << QByteArray("JPG") << "jpeg";
    }
    void readablePictureHasItsOwnSuffix()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, format);
        QTEST(PictureNames::getImageType(writeBytes(name, encoded(plain(QSize(2, 2), Qt::red), format))), "type");
    }

    void unreadableFileHasTheSuffixOfItsFirstBytes_data()
    {
        QTest::addColumn<QByteArray>("hex");
        QTest::addColumn<QString>("type");
        QTest::newRow("bmp") << QByteArray("424DE652") << "bmp";
        QTest::newRow("jpg") << QByteArray("FFD8FFE0") << "jpg";
        QTest::newRow("gif") << QByteArray("47494638") << "gif";
        QTest::newRow("png") << QByteArray("89504E47") << "png";
        QTest::newRow("unknown") << QByteArray("00010203") << "dat";
        QTest::newRow("empty") << QByteArray() << "dat";
    }
    void unreadableFileHasTheSuffixOfItsFirstBytes()
    {
        QFETCH(QByteArray, hex);
        QTEST(PictureNames::getImageType(writeBytes("broken.dat", QByteArray::fromHex(hex))), "type");
    }

    void fileThatIsNoneHasItsOwnSuffix()
    {
        QCOMPARE(PictureNames::getImageType("no/such/file.xyz"), QStringLiteral("xyz"));
        QCOMPARE(PictureNames::getImageType(QString()), QString());
        QVERIFY(QDir().mkdir("folder.png"));
        QCOMPARE(PictureNames::getImageType("folder.png"), QStringLiteral("png"));
        QCOMPARE(PictureNames::getImageType("/dev/zero"), QString());
    }

    void hugePictureHasTheSuffixOfItsFirstBytes()
    {
        QCOMPARE(PictureNames::getImageType(writeBytes("huge.dat", jpegThatDeclares(20000, 20000))),
                 QStringLiteral("jpg"));
    }

    void pictureSuffixes()
    {
        QCOMPARE(PictureNames::GetPictureSuffix(), QStringList({"png", "jpg", "jpeg", "bmp", "gif"}));
    }

    void saveFilterStartsWithItsOwnType_data()
    {
        QTest::addColumn<QString>("suffix");
        QTest::addColumn<QString>("filter");
        const QString png = QStringLiteral("PNG (*.png);;JPEG (*.jpg *.jpeg);;BMP (*.bmp)");
        const QString jpg = QStringLiteral("JPEG (*.jpg *.jpeg);;PNG (*.png);;BMP (*.bmp)");
        QTest::newRow("png") << "png" << png;
        QTest::newRow("jpg") << "jpg" << jpg;
        QTest::newRow("jpeg") << "jpeg" << jpg;
        QTest::newRow("bmp") << "bmp"
                             << "BMP (*.bmp);;PNG (*.png);;JPEG (*.jpg *.jpeg)";
        QTest::newRow("gif") << "gif"
                             << "GIF (*.gif);;PNG (*.png);;JPEG (*.jpg *.jpeg);;BMP (*.bmp)";
        QTest::newRow("another") << "webp" << png;
        QTest::newRow("none") << "" << png;
    }
    void saveFilterStartsWithItsOwnType()
    {
        QFETCH(QString, suffix);
        QTEST(PictureNames::getPicSaveSuffixes(suffix), "filter");
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_PictureNames, Widgets)
#include "tst_PictureNames.moc"
