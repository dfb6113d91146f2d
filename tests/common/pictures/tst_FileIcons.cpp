#include "common/pictures/FileIcons.h"
#include "common/pictures/PictureFolders.h"
#include "fakes/PictureFiles.h"

#include <QFileIconProvider>
#include <QtTest>

using namespace PictureFiles;

class tst_FileIcons : public QObject
{
    Q_OBJECT

private:
    // Makes the client's own icons beside the test program, as long as it lives.
    class OwnIcons
    {
    public:
        OwnIcons() : m_strFolder(QCoreApplication::applicationDirPath() + "/Resources/Html/messageTemplate/images")
        {
            QDir().mkpath(m_strFolder);
        }
        ~OwnIcons()
        {
            QFile::remove(m_strFolder + "/exe.png");
            QFile::remove(m_strFolder + "/unknown.png");
        }
        Q_DISABLE_COPY(OwnIcons)
        QString pathOf(const QString &strName) const { return m_strFolder + "/" + strName; }
        QString write(const QString &strName, const QColor &color) const
        {
            return writeBytes(pathOf(strName), encoded(plain(QSize(32, 32), color), "PNG"));
        }

    private:
        QString m_strFolder;
    };

    static QStringList filesIn(const QString &strFolder)
    {
        return QDir(strFolder).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

private slots:
    void init()
    {
        QDir(PictureFolders::icons()).removeRecursively();
        QDir(PictureFolders::cloudIcons()).removeRecursively();
    }

    void missingFileStillHasAnIcon()
    {
        const QStringList before = QDir::temp().entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
        const QPixmap icon = FileIcons::getFileIcon(QStringLiteral("/no/such/folder/report.txt"));
        QCOMPARE(icon.size(), QSize(32, 32));
        QCOMPARE(QDir::temp().entryList(QDir::AllEntries | QDir::NoDotAndDotDot), before);
    }

    void existingFileIsAskedForItself()
    {
        // What looks like a text by its name is a folder, and shows as one.
        QVERIFY(QDir().mkpath(QStringLiteral("box.txt")));
        const QIcon folder = QFileIconProvider().icon(QFileInfo(QStringLiteral("box.txt")));
        const QPixmap missing = FileIcons::getFileIcon(QStringLiteral("/no/such/box.txt"));
        QVERIFY(QFile::remove(PictureFolders::icons() + "txt.png"));
        const QPixmap icon = FileIcons::getFileIcon(QStringLiteral("box.txt"));
        QCOMPARE(icon.toImage(), folder.pixmap(32, 32).toImage());
        QVERIFY(icon.toImage() != missing.toImage());
    }

    void programsWithoutTheClientsIconGetTheSystemsInItsPlace()
    {
        const OwnIcons own;
        const QPixmap icon = FileIcons::getFileIcon(QStringLiteral("/no/such/setup.exe"));
        QCOMPARE(icon.size(), QSize(32, 32));
        QCOMPARE(QImage(own.pathOf("exe.png")).size(), QSize(32, 32));
        QVERIFY(filesIn(PictureFolders::icons()).isEmpty());
    }

    void fileOfThatNameInTheTemporaryFolderStays()
    {
        const QString strMine = writeBytes(QDir::temp().filePath("report.txt"), "mine");
        FileIcons::getFileIcon(QStringLiteral("/no/such/folder/report.txt"));
        QCOMPARE(QFileInfo(strMine).size(), qint64(4));
        QVERIFY(QFile::remove(strMine));
    }

    void iconIsKeptBySuffix()
    {
        const QPixmap icon = FileIcons::getFileIcon(QStringLiteral("a.b.txt"));
        QCOMPARE(filesIn(PictureFolders::icons()), QStringList("txt.png"));
        QCOMPARE(QImage(PictureFolders::icons() + "txt.png").size(), icon.size());
        FileIcons::getFileIcon(QStringLiteral("no suffix"));
        QCOMPARE(filesIn(PictureFolders::icons()), QStringList({".png", "txt.png"}));
    }

    void keptIconIsReadAndNotVerified()
    {
        QVERIFY(QDir().mkpath(PictureFolders::icons()));
        writeBytes(PictureFolders::icons() + "txt.png", encoded(plain(QSize(5, 5), Qt::red), "PNG"));
        QCOMPARE(FileIcons::getFileIcon("x.txt").size(), QSize(5, 5));
        writeBytes(PictureFolders::icons() + "txt.png", "damaged");
        QVERIFY(FileIcons::getFileIcon("x.txt").isNull());
        QCOMPARE(QFileInfo(PictureFolders::icons() + "txt.png").size(), qint64(7));
    }

    void programsHaveTheClientsOwnIcon()
    {
        const OwnIcons own;
        const QString strPath = own.write("exe.png", Qt::magenta);
        QCOMPARE(FileIcons::getFileIcon("setup.exe").toImage().pixelColor(3, 3), QColor(Qt::magenta));
        QCOMPARE(FileIcons::getFileIconPath("setup.exe", 32), strPath);
        QVERIFY(filesIn(PictureFolders::icons()).isEmpty());
        QCOMPARE(FileIcons::getFileIconPath("setup.exe", 48), PictureFolders::icons() + "exe_x48.png");
    }

    void iconPathHoldsTheSize_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<QString>("file");
        QTest::newRow("common size") << 32 << "txt.png";
        QTest::newRow("small") << 16 << "txt_x16.png";
        QTest::newRow("larger") << 48 << "txt_x48.png";
    }
    void iconPathHoldsTheSize()
    {
        QFETCH(int, size);
        QFETCH(QString, file);
        const QString strPath = FileIcons::getFileIconPath("/no/such/report.txt", size);
        QCOMPARE(strPath, PictureFolders::icons() + file);
        QCOMPARE(filesIn(PictureFolders::icons()), QStringList(file));
        const QImage icon(strPath);
        QVERIFY(!icon.isNull());
        QVERIFY(icon.width() <= size && icon.height() <= size);
        writeBytes(strPath, "kept");
        QCOMPARE(FileIcons::getFileIconPath("/other/report.txt", size), strPath);
        QCOMPARE(QFileInfo(strPath).size(), qint64(4));
    }

    void noSizeHasNoPath()
    {
        QCOMPARE(FileIcons::getFileIconPath("a.txt", 0), QString());
        QCOMPARE(FileIcons::getFileIconPath("a.txt", -32), QString());
        QVERIFY(filesIn(PictureFolders::icons()).isEmpty());
    }

    void noIconGivesTheUnknownOne()
    {
        // A name that no file can have, so that the system has no icon for it.
        const QString strPath = "/no/such/" + QString(300, 'n') + ".txt";
        QVERIFY(FileIcons::getFileIcon(strPath).isNull());
        QCOMPARE(FileIcons::getFileIconPath(strPath, 16), QString());
        const OwnIcons own;
        const QString strUnknown = own.write("unknown.png", Qt::cyan);
        QCOMPARE(FileIcons::getFileIcon(strPath).toImage().pixelColor(3, 3), QColor(Qt::cyan));
        QCOMPARE(FileIcons::getFileIconPath(strPath, 16), strUnknown);
        QCOMPARE(FileIcons::getFileIcon(QString()).toImage().pixelColor(3, 3), QColor(Qt::cyan));
        QVERIFY(filesIn(PictureFolders::icons()).isEmpty());
    }

    void extractedIconIsAsLargeAsTheSystemHasIt()
    {
        const QString strPath = writeBytes(QStringLiteral("here.txt"), {});
        const QIcon icon = QFileIconProvider().icon(QFileInfo(strPath));
        const QSize size = icon.actualSize(QSize(1000, 1000));
        QVERIFY(size.width() > 1);
        QCOMPARE(FileIcons::extractFileIcon(strPath, true).toImage(), icon.pixmap(size).toImage());
        QCOMPARE(FileIcons::extractFileIcon(strPath, false).toImage(), icon.pixmap(size / 2).toImage());
        QVERIFY(!FileIcons::extractFileIcon(QDir::currentPath(), true).isNull());
    }

    void missingFileHasNothingToExtract()
    {
        QVERIFY(FileIcons::extractFileIcon("no/such/file.txt", true).isNull());
        QVERIFY(FileIcons::extractFileIcon(QString(), false).isNull());
    }

    void cloudIconIsKeptByKindAndSize_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("big");
        QTest::addColumn<bool>("folder");
        QTest::addColumn<QString>("file");
        QTest::newRow("big folder") << "docs.d" << true << true << "folderB.png";
        QTest::newRow("folder") << "docs" << false << true << "folder.png";
        QTest::newRow("big file") << "a.b.txt" << true << false << "txtB.png";
        QTest::newRow("file") << "a.txt" << false << false << "txt.png";
        QTest::newRow("file in a folder") << "x/y.z/a.txt" << false << false << "txt.png";
        QTest::newRow("big file without suffix") << "a" << true << false << "unknownB.png";
        QTest::newRow("file without suffix") << "a" << false << false << "unknown.png";
    }
    void cloudIconIsKeptByKindAndSize()
    {
        QFETCH(QString, name);
        QFETCH(bool, big);
        QFETCH(bool, folder);
        QFETCH(QString, file);
        const QStringList before = QDir::temp().entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
        const QPixmap icon = FileIcons::getFileImg(name, big, folder);
        QVERIFY(!icon.isNull());
        QCOMPARE(filesIn(PictureFolders::cloudIcons()), QStringList(file));
        QCOMPARE(QDir::temp().entryList(QDir::AllEntries | QDir::NoDotAndDotDot), before);
        const QString strKept = PictureFolders::cloudIcons() + file;
        QCOMPARE(QImage(strKept).size(), icon.size());
        writeBytes(strKept, encoded(plain(QSize(5, 6), Qt::red), "PNG"));
        QCOMPARE(FileIcons::getFileImg(name, big, folder).size(), QSize(5, 6));
    }

    void bigCloudIconIsTwiceAsLarge()
    {
        QCOMPARE(FileIcons::getFileImg("a.txt", true, false).size() / 2,
                 FileIcons::getFileImg("a.txt", false, false).size());
    }

    void nameThatNoFileCanHaveHasNoCloudIcon()
    {
        QVERIFY(FileIcons::getFileImg(QString(300, 'n'), true, false).isNull());
        QVERIFY(filesIn(PictureFolders::cloudIcons()).isEmpty());
    }

    void cachesStandInTheDataLocation()
    {
        const QString strData = QStandardPaths::writableLocation(QStandardPaths::DataLocation);
        QCOMPARE(PictureFolders::icons(), QFileInfo(strData).absoluteFilePath() + "/icon/");
        QCOMPARE(PictureFolders::cloudIcons(), QFileInfo(strData).absoluteFilePath() + "/CloudIcon/");
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_FileIcons, Widgets)
#include "tst_FileIcons.moc"
