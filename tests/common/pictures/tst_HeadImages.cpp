#include "common/pictures/HeadImages.h"
#include "fakes/GivenContext.h"
#include "fakes/PaintedPicture.h"
#include "fakes/PictureFiles.h"
#include "model/CommonData.h"
#include "model/SystemSetData.h"

#include <QPainter>
#include <QtTest>

#include <optional>

using namespace PictureFiles;

namespace {

// Every pixel tells where it stood: red its column, green its row.
QImage mapOf(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            image.setPixel(x, y, qRgb(x, y, 0));
        }
    }
    return image;
}

QString writePng(const QString &strName, const QImage &image)
{
    return writeBytes(strName, encoded(image, "PNG"));
}

QImage roundOf(const QImage &image, int iSide)
{
    return pixelsOf(roundByNumbers(QPixmap::fromImage(image), iSide));
}

} // namespace

class tst_HeadImages : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_settings.m_strUserFolder = QDir::current().absoluteFilePath(QStringLiteral("me"));
        m_context.setSystemSetData(&m_settings);
        m_given.emplace(m_context);
        QDir(m_settings.m_strUserFolder).removeRecursively();
        QVERIFY(QDir().mkpath(m_settings.m_strUserFolder));
    }
    void cleanup() { m_given.reset(); }

    void scaledPictureIsCutAroundTheMiddle_data()
    {
        QTest::addColumn<QSize>("picture");
        QTest::addColumn<QSize>("target");
        QTest::addColumn<QRect>("cut");
        QTest::addColumn<QSize>("result");
        QTest::newRow("smaller stays") << QSize(100, 100) << QSize(200, 200) << QRect(0, 0, 100, 100)
                                       << QSize(100, 100);
        QTest::newRow("equal stays") << QSize(50, 60) << QSize(50, 60) << QRect(0, 0, 50, 60) << QSize(50, 60);
        QTest::newRow("wider") << QSize(100, 40) << QSize(30, 50) << QRect(35, 0, 30, 40) << QSize(30, 40);
        QTest::newRow("wider, as high") << QSize(100, 50) << QSize(31, 50) << QRect(34, 0, 31, 50) << QSize(31, 50);
        QTest::newRow("taller") << QSize(40, 100) << QSize(50, 30) << QRect(0, 35, 40, 30) << QSize(40, 30);
        QTest::newRow("taller, as wide") << QSize(50, 100) << QSize(50, 31) << QRect(0, 34, 50, 31) << QSize(50, 31);
        QTest::newRow("twice the size") << QSize(100, 100) << QSize(50, 50) << QRect(0, 0, 100, 100) << QSize(50, 50);
        QTest::newRow("larger, of a wider shape")
            << QSize(200, 100) << QSize(50, 50) << QRect(50, 0, 100, 100) << QSize(50, 50);
        QTest::newRow("larger, of a higher shape")
            << QSize(100, 200) << QSize(50, 50) << QRect(0, 50, 100, 100) << QSize(50, 50);
        // 100 times (3 / 7) is 42.86: a column of 42 is cut, which the ratio makes 2 wide at a height of 7.
        QTest::newRow("lengths are cut off") << QSize(90, 100) << QSize(3, 7) << QRect(24, 0, 42, 100) << QSize(2, 7);
    }
    void scaledPictureIsCutAroundTheMiddle()
    {
        QFETCH(QSize, picture);
        QFETCH(QSize, target);
        QFETCH(QRect, cut);
        QFETCH(QSize, result);
        const QString strPath = writePng(QStringLiteral("map.png"), mapOf(picture));
        const QImage scaled = HeadImages::getScaledPixmap(strPath, target).toImage();
        QCOMPARE(scaled.convertToFormat(QImage::Format_RGB32), mapOf(picture).copy(cut).scaled(result));
    }

    void largerPictureIsCutAndThenScaledFast()
    {
        const QImage map = mapOf(QSize(200, 90));
        const QImage cut = map.copy(55, 0, 90, 90);
        const QString strPath = writePng(QStringLiteral("map.png"), map);
        const QImage scaled = HeadImages::getScaledPixmap(strPath, QSize(20, 20)).toImage();
        const QImage fast = cut.scaled(20, 20, Qt::KeepAspectRatio, Qt::FastTransformation);
        QVERIFY(fast != cut.scaled(20, 20, Qt::KeepAspectRatio, Qt::SmoothTransformation));
        QCOMPARE(scaled.convertToFormat(QImage::Format_RGB32), fast);
    }

    void scalingIsToldOnTheDebugChannel()
    {
        QTest::ignoreMessage(QtDebugMsg, "CommonFun::getScaledPixmap \"some/path.png\" ,resultSize: QSize(-1, 7)");
        QVERIFY(HeadImages::getScaledPixmap(QStringLiteral("some/path.png"), QSize(-1, 7)).isNull());
    }

    void scalingToNothingGivesANullPixmap_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("negative width") << QSize(-1, 10);
        QTest::newRow("negative height") << QSize(10, -1);
        QTest::newRow("no width") << QSize(0, 10);
        QTest::newRow("no height") << QSize(10, 0);
        QTest::newRow("nothing") << QSize(0, 0);
    }
    void scalingToNothingGivesANullPixmap()
    {
        QFETCH(QSize, size);
        QVERIFY(HeadImages::getScaledPixmap(writePng("map.png", mapOf(QSize(20, 20))), size).isNull());
    }

    void badPictureGivesANullPixmap_data() { addBadPictureRows(); }
    void badPictureGivesANullPixmap()
    {
        QFETCH(QString, path);
        writeMask();
        QVERIFY(HeadImages::getScaledPixmap(path, QSize(20, 20)).isNull());
        QVERIFY(HeadImages::getRoundedImage(path, 20).isNull());
        QVERIFY(HeadImages::getIrregularPix(path, 20).isNull());
    }

    void roundedHeadIsAsNumbersSay_data()
    {
        QTest::addColumn<int>("radius");
        QTest::addColumn<QSize>("picture");
        for (const int iRadius : {22, 40, 45, 100}) {
            QTest::addRow("%d from a wide picture", iRadius) << iRadius << QSize(90, 30);
            QTest::addRow("%d from a small picture", iRadius) << iRadius << QSize(8, 8);
        }
    }
    void roundedHeadIsAsNumbersSay()
    {
        QFETCH(int, radius);
        QFETCH(QSize, picture);
        const QString strPath = writePng(QStringLiteral("map.png"), mapOf(picture));
        const QImage head = pixelsOf(HeadImages::getRoundedImage(strPath, radius));
        comparePictures(head, roundOf(mapOf(picture), radius),
                        qPrintable(QStringLiteral("head-") + QLatin1String(QTest::currentDataTag())));
    }

    void roundedHeadKeepsTheTransparencyOfThePicture()
    {
        QImage image(40, 40, QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        QCOMPARE(pixelsOf(HeadImages::getRoundedImage(writePng("clear.png", image), 20)),
                 paintedOnNothing(QSize(20, 20), [](QPainter &) {}));
    }

    void changedFileShowsAtTheNextCall()
    {
        const QString strPath = writePng(QStringLiteral("head.png"), plain(QSize(30, 30), Qt::blue));
        HeadImages::getRoundedImage(strPath, 20);
        const QImage green = plain(QSize(30, 30), Qt::green);
        writePng(QStringLiteral("head.png"), green);
        QCOMPARE(pixelsOf(HeadImages::getRoundedImage(strPath, 20)), roundOf(green, 20));
    }

    void noRadiusGivesANullPixmap()
    {
        writeMask();
        const QString strPath = writePng(QStringLiteral("blue.png"), plain(QSize(30, 30), Qt::blue));
        QVERIFY(HeadImages::getRoundedImage(strPath, 0).isNull());
        QVERIFY(HeadImages::getRoundedImage(strPath, -5).isNull());
        QVERIFY(HeadImages::getIrregularPix(strPath, 0).isNull());
        QVERIFY(HeadImages::getIrregularPix(strPath, -5).isNull());
    }

    void irregularPictureHasTheShapeOfTheMask_data()
    {
        QTest::addColumn<QSize>("picture");
        QTest::addColumn<QSize>("result");
        QTest::newRow("square") << QSize(64, 64) << QSize(32, 32);
        QTest::newRow("wide, which keeps its proportions") << QSize(80, 40) << QSize(32, 16);
    }
    void irregularPictureHasTheShapeOfTheMask()
    {
        QFETCH(QSize, picture);
        QFETCH(QSize, result);
        writeMask();
        const QString strPath = writePng(QStringLiteral("blue.png"), plain(picture, Qt::blue));
        const QImage kept =
            paintedOnNothing(result, [&](QPainter &painter) { painter.fillRect(0, 0, 16, result.height(), Qt::blue); });
        QCOMPARE(pixelsOf(HeadImages::getIrregularPix(strPath, 32)), kept);
    }

    void irregularPictureNeedsTheMask()
    {
        QFile::remove(QStringLiteral("Resources/images/Dynamic/topic_mask.png"));
        const QString strPath = writePng(QStringLiteral("blue.png"), plain(QSize(64, 64), Qt::blue));
        QVERIFY(HeadImages::getIrregularPix(strPath, 32).isNull());
    }

    void headImageIsStoredUnderTheAccount_data()
    {
        QTest::addColumn<QString>("jid");
        QTest::addColumn<QString>("suffix");
        QTest::addColumn<QString>("file");
        QTest::newRow("jid") << "1001@im.local"
                             << "jpg"
                             << "1001.jpg";
        QTest::newRow("jid with a resource") << "1001@im.local/pc@home"
                                             << "png"
                                             << "1001.png";
        QTest::newRow("uid") << "1001"
                             << "bmp"
                             << "1001.bmp";
    }
    void headImageIsStoredUnderTheAccount()
    {
        QFETCH(QString, jid);
        QFETCH(QString, suffix);
        QFETCH(QString, file);
        const QPixmap pixmap = QPixmap::fromImage(plain(QSize(30, 10), Qt::blue));
        const QString strPath = HeadImages::getFormattedImage("unused", jid, pixmap, QSize(20, 20), suffix);
        QCOMPARE(strPath, folder() + file);
        QCOMPARE(QImage(strPath).size(), QSize(20, 20));
    }

    void headImageIsStretchedFast()
    {
        const QPixmap pixmap = QPixmap::fromImage(mapOf(QSize(40, 20)));
        const QString strPath = HeadImages::getFormattedImage({}, "1001@d", pixmap, QSize(10, 10), "png");
        QCOMPARE(QImage(strPath).convertToFormat(QImage::Format_RGB32),
                 mapOf(QSize(40, 20)).scaled(10, 10, Qt::IgnoreAspectRatio, Qt::FastTransformation));
    }

    void headImageIsStoredAtTheBestQuality()
    {
        const QPixmap pixmap = QPixmap::fromImage(mapOf(QSize(40, 40)));
        QFile file(HeadImages::getFormattedImage({}, "1001@d", pixmap, QSize(40, 40), "jpg"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), encoded(mapOf(QSize(40, 40)), "JPG"));
    }

    void otherFilesOfTheAccountAreRemoved_data()
    {
        QTest::addColumn<QString>("suffix");
        QTest::addColumn<QStringList>("left");
        // The png is removed unless a jpg is stored: its test goes by the jpg's name.
        QTest::newRow("jpg") << "jpg" << QStringList{"1001.jpg", "1001.png", "1002.jpg"};
        QTest::newRow("png") << "png" << QStringList{"1001.png", "1002.jpg"};
        QTest::newRow("jpeg") << "jpeg" << QStringList{"1001.jpeg", "1002.jpg"};
        QTest::newRow("bmp") << "bmp" << QStringList{"1001.bmp", "1002.jpg"};
    }
    void otherFilesOfTheAccountAreRemoved()
    {
        QFETCH(QString, suffix);
        QVERIFY(QDir().mkpath(folder()));
        for (const char *pName : {"1001.jpg", "1001.png", "1001.jpeg", "1002.jpg"}) {
            QVERIFY(!writeBytes(folder() + pName, "old").isEmpty());
        }
        const QPixmap pixmap = QPixmap::fromImage(plain(QSize(30, 30), Qt::blue));
        const QString strPath = HeadImages::getFormattedImage({}, "1001@d", pixmap, QSize(20, 20), suffix);
        QTEST(QDir(folder()).entryList(QDir::Files, QDir::Name), "left");
        QVERIFY(!QImage(strPath).isNull());
    }

    void existingPngIsRemovedBeforeItIsWrittenAnew()
    {
        // An open handle tells: writing into the file would change what it reads.
        QVERIFY(QDir().mkpath(folder()));
        const QString strOld = writeBytes(folder() + "1001.png", "old");
        QFile kept(strOld);
        QVERIFY(kept.open(QIODevice::ReadOnly));
        const QPixmap pixmap = QPixmap::fromImage(plain(QSize(30, 30), Qt::blue));
        HeadImages::getFormattedImage({}, "1001@d", pixmap, QSize(20, 20), "png");
        QCOMPARE(kept.readAll(), QByteArray("old"));
        QCOMPARE(QImage(strOld).size(), QSize(20, 20));
    }

    void noPictureKeepsTheOldHead()
    {
        QVERIFY(QDir().mkpath(folder()));
        writeBytes(folder() + "1001.jpg", "old");
        const QPixmap pixmap = QPixmap::fromImage(plain(QSize(30, 30), Qt::blue));
        QCOMPARE(HeadImages::getFormattedImage({}, "1001@d", QPixmap(), QSize(20, 20), "png"), folder() + "1001.png");
        QCOMPARE(HeadImages::getFormattedImage({}, "1001@d", pixmap, QSize(0, 20), "png"), folder() + "1001.png");
        QCOMPARE(QDir(folder()).entryList(QDir::Files), QStringList("1001.jpg"));
    }

    void formatThatCannotBeWrittenKeepsTheOldHead()
    {
        QVERIFY(QDir().mkpath(folder()));
        writeBytes(folder() + "1001.jpg", "old");
        const QPixmap pixmap = QPixmap::fromImage(plain(QSize(30, 30), Qt::blue));
        QCOMPARE(HeadImages::getFormattedImage({}, "1001@d", pixmap, QSize(20, 20), "gif"), folder() + "1001.gif");
        QCOMPARE(HeadImages::getFormattedImage({}, "1001@d", pixmap, QSize(20, 20), ""), folder() + "1001.");
        QCOMPARE(HeadImages::getFormattedImage({}, "1001@d", pixmap, QSize(20, 20), "x/png"), QString());
        QCOMPARE(QDir(folder()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList("1001.jpg"));
    }

    void jidCannotLeadOutOfTheFolder()
    {
        QVERIFY(QDir().mkpath(folder()));
        const QString strOutside = writeBytes(m_settings.m_strUserFolder + "/x.jpg", "mine");
        const QPixmap pixmap = QPixmap::fromImage(plain(QSize(30, 30), Qt::blue));
        QCOMPARE(HeadImages::getFormattedImage({}, "../x@d", pixmap, QSize(20, 20), "png"), QString());
        QVERIFY(QFile::exists(strOutside));
        QVERIFY(!QFile::exists(m_settings.m_strUserFolder + "/x.png"));
    }

private:
    QString folder() const { return m_settings.m_strUserFolder + QStringLiteral("/designHeadImage/"); }

    // Black on the left, which is kept, and white on the right.
    static void writeMask()
    {
        QImage mask = plain(QSize(50, 50), Qt::white);
        QPainter(&mask).fillRect(0, 0, 25, 50, Qt::black);
        QVERIFY(QDir().mkpath(QStringLiteral("Resources/images/Dynamic")));
        QVERIFY(!writePng(QStringLiteral("Resources/images/Dynamic/topic_mask.png"), mask).isEmpty());
    }

    CommonData m_context;
    std::optional<GivenContext> m_given;
    SystemSetData m_settings;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_HeadImages, Widgets)
#include "tst_HeadImages.moc"
