#include "common/pictures/ImagePath.h"
#include "fakes/Allocations.h"
#include "fakes/FileBytes.h"
#include "fakes/PictureFiles.h"

#include <QtTest>

using namespace PictureFiles;

namespace {

const QByteArray cPng = QByteArray::fromHex("89504E470D0A1A0A0000");
const QByteArray cJpeg = QByteArray::fromHex("FFD8FFE000104A46");
const QString cFallback = QStringLiteral("fallback.png");

} // namespace

class tst_ImagePath : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
    }

    void rightSuffixStands_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("png") << "a.png" << cPng;
        QTest::newRow("jpg") << "a.jpg" << cJpeg;
        QTest::newRow("gif") << "a.gif" << QByteArray("GIF89a");
        QTest::newRow("bmp") << "a.bmp" << QByteArray::fromHex("424DE652");
        QTest::newRow("unknown kind") << "a.png" << QByteArray("text");
        QTest::newRow("one byte") << "a.png" << QByteArray("t");
        QTest::newRow("unknown kind without a suffix") << "a" << QByteArray("text");
    }
    void rightSuffixStands()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, bytes);
        QString strPath = writeBytes(m_folder->filePath(name), bytes);
        QCOMPARE(ImagePath::getTrueImagePath(strPath, cFallback), strPath);
        QString strFixed = strPath;
        QVERIFY(!ImagePath::getIsImageFixError(strFixed));
        QCOMPARE(strFixed, strPath);
        QCOMPARE(readBytes(strPath), bytes);
    }

    void wrongSuffixIsCorrected_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("corrected");
        QTest::newRow("jpeg called png") << "a.png" << cJpeg << "a.jpg";
        QTest::newRow("png called jpg") << "a.jpg" << cPng << "a.png";
        QTest::newRow("jpeg suffix too") << "a.jpeg" << cJpeg << "a.jpg";
        QTest::newRow("upper case") << "a.PNG" << cPng << "a.png";
        QTest::newRow("two dots") << "a.b.c" << cPng << "a.b.png";
        QTest::newRow("no suffix") << "head" << cPng << "head.png";
        QTest::newRow("dot at the end") << "head." << cPng << "head.png";
        QTest::newRow("dot in the folder alone") << "x.y/head" << cPng << "x.y/head.png";
    }
    void wrongSuffixIsCorrected()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, bytes);
        QFETCH(QString, corrected);
        QVERIFY(QDir(m_folder->path()).mkpath("x.y"));
        const QString strPath = writeBytes(m_folder->filePath(name), bytes);
        const QString strTrue = m_folder->filePath(corrected);
        QCOMPARE(ImagePath::getTrueImagePath(strPath, cFallback), strTrue);
        QVERIFY(!QFile::exists(strPath));
        QCOMPARE(readBytes(strTrue), bytes);

        QVERIFY(QFile::rename(strTrue, strPath));
        QString strFixed = strPath;
        QVERIFY(ImagePath::getIsImageFixError(strFixed));
        QCOMPARE(strFixed, strTrue);
        QVERIFY(!QFile::exists(strPath));
        QCOMPARE(readBytes(strTrue), bytes);
    }

    void fileOfTheTrueNameStays()
    {
        const QString strPath = writeBytes(m_folder->filePath("a.png"), cJpeg);
        const QString strTrue = writeBytes(m_folder->filePath("a.jpg"), "another");
        QCOMPARE(ImagePath::getTrueImagePath(strPath, cFallback), strTrue);
        QString strFixed = strPath;
        QVERIFY(ImagePath::getIsImageFixError(strFixed));
        QCOMPARE(strFixed, strTrue);
        QCOMPARE(readBytes(strPath), cJpeg);
        QCOMPARE(readBytes(strTrue), QByteArray("another"));
    }

    void fileThatCannotBeCopiedIsNotLost()
    {
        // A link to nothing stands where the copy would go: there is no such file, and none can be made.
        const QString strPath = writeBytes(m_folder->filePath("a.png"), cJpeg);
        QVERIFY(QFile::link("/no/such/folder/file", m_folder->filePath("a.jpg")));
        QString strFixed = strPath;
        QCOMPARE(ImagePath::getTrueImagePath(strPath, cFallback), strPath);
        QVERIFY(!ImagePath::getIsImageFixError(strFixed));
        QCOMPARE(strFixed, strPath);
        QCOMPARE(readBytes(strPath), cJpeg);
    }

    void unreadableFileGivesTheFallback_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("no path") << QString();
        QTest::newRow("no such file") << QStringLiteral("no/such/picture.png");
        QTest::newRow("a folder") << QDir::currentPath();
        QTest::newRow("a device") << QStringLiteral("/dev/zero");
        QTest::newRow("empty") << writeBytes(QStringLiteral("empty.png"), {});
    }
    void unreadableFileGivesTheFallback()
    {
        QFETCH(QString, path);
        QCOMPARE(ImagePath::getTrueImagePath(path, cFallback), cFallback);
        QString strFixed = path;
        QVERIFY(!ImagePath::getIsImageFixError(strFixed));
        QCOMPARE(strFixed, path);
    }

    void memberWithoutAPictureAsksForNoFile()
    {
        QString strPath;
        // Not even an object that could open one.
        QCOMPARE(Allocations::during([&] { strPath = ImagePath::getTrueImagePath(QString(), cFallback); }), 0);
        QCOMPARE(strPath, cFallback);
        QVERIFY(Allocations::during([&] { ImagePath::getTrueImagePath(cFallback, cFallback); }) > 0);
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ImagePath, Guiless)
#include "tst_ImagePath.moc"
