#include "common/system/FolderCopy.h"
#include "fakes/FileBytes.h"

#include <QDir>
#include <QFile>
#include <QTest>

class tst_FolderCopy : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QVERIFY(QDir("from").removeRecursively());
        QVERIFY(QDir("to").removeRecursively());
        QVERIFY(writeFile("from/a.txt", "a"));
        QVERIFY(writeFile("from/sub/b.txt", "b"));
        QVERIFY(writeFile("from/sub/deep/c.txt", "c"));
        QVERIFY(QDir("from").mkdir("empty"));
    }

    void everythingGoesIntoAFolderThatIsMade()
    {
        QVERIFY(FolderCopy::copyDirectory(QDir("from"), QDir("to"), false));
        QCOMPARE(readBytes("to/a.txt"), QByteArray("a"));
        QCOMPARE(readBytes("to/sub/deep/c.txt"), QByteArray("c"));
        QVERIFY(QDir("to/empty").exists());
    }

    void onlyTheLastFolderIsMade()
    {
        QVERIFY(!FolderCopy::copyDirectory(QDir("from"), QDir("to/missing"), false));
        QVERIFY(!QDir("to").exists());
    }

    void withoutOverwriteAPresentFileEndsTheCopy()
    {
        QVERIFY(writeFile("to/a.txt", "old"));
        QVERIFY(!FolderCopy::copyDirectory(QDir("from"), QDir("to"), false));
        QCOMPARE(readBytes("to/a.txt"), QByteArray("old"));
        QVERIFY(!QDir("to/sub").exists());
    }

    void inSubFoldersFilesAreOverwrittenInAnyCase()
    {
        QVERIFY(writeFile("to/sub/b.txt", "old"));
        QVERIFY(FolderCopy::copyDirectory(QDir("from"), QDir("to"), false));
        QCOMPARE(readBytes("to/sub/b.txt"), QByteArray("b"));
    }

    void withOverwriteAPresentFileIsReplaced()
    {
        QVERIFY(writeFile("to/a.txt", "old"));
        QVERIFY(FolderCopy::copyDirectory(QDir("from"), QDir("to"), true));
        QCOMPARE(readBytes("to/a.txt"), QByteArray("a"));
    }

    void aFileInPlaceOfAFolderFails()
    {
        QVERIFY(writeFile("to/sub", "a file"));
        QVERIFY(!FolderCopy::copyDirectory(QDir("from"), QDir("to"), true));
    }

    void aFolderThatFailsEndsTheWholeCopy_data()
    {
        QTest::addColumn<QString>("blocked");
        QTest::newRow("in the top folder") << "to/sub";
        QTest::newRow("further down") << "to/sub/deep";
    }

    void aFolderThatFailsEndsTheWholeCopy()
    {
        QFETCH(QString, blocked);
        QVERIFY(writeFile("from/z.txt", "z"));
        QVERIFY(writeFile("from/sub/z.txt", "z"));
        QVERIFY(writeFile(blocked, "a file"));
        QVERIFY(!FolderCopy::copyDirectory(QDir("from"), QDir("to"), true));
        QCOMPARE(readBytes("to/a.txt"), QByteArray("a"));
        QVERIFY(!QFile::exists("to/z.txt") && !QFile::exists("to/sub/z.txt"));
    }

    void aFolderIsNotCopiedIntoItself_data()
    {
        QTest::addColumn<QString>("to");
        QTest::newRow("itself") << "from";
        QTest::newRow("its own folder") << "from/sub";
        QTest::newRow("a new folder in it") << "from/new";
        QTest::newRow("by another way") << "from/../from/new";
    }

    void aFolderIsNotCopiedIntoItself()
    {
        QFETCH(QString, to);
        QVERIFY(!FolderCopy::copyDirectory(QDir("from"), QDir(to), true));
        QCOMPARE(readBytes("from/a.txt"), QByteArray("a"));
        QVERIFY(!QDir("from/new").exists());
    }

    void aFolderWhoseNameGoesOnIsAnother()
    {
        QVERIFY(QDir("from2").removeRecursively());
        QVERIFY(FolderCopy::copyDirectory(QDir("from"), QDir("from2"), true));
        QCOMPARE(readBytes("from2/sub/b.txt"), QByteArray("b"));
    }

    void aLinkLoopFails()
    {
        QVERIFY(QFile::link(QDir("from").absolutePath(), "from/sub/loop"));
        QVERIFY(!FolderCopy::copyDirectory(QDir("from"), QDir("to"), true));
    }

    void aLinkToAFolderThatHoldsTheTargetFails()
    {
        QVERIFY(QFile::link(QDir::currentPath(), "from/up"));
        QVERIFY(!FolderCopy::copyDirectory(QDir("from"), QDir("to"), true));
    }

    void aMissingFolderCopiesNothing()
    {
        QVERIFY(FolderCopy::copyDirectory(QDir("nothing here"), QDir("to"), true));
        QVERIFY(QDir("to").isEmpty());
    }

    void hiddenFilesAreLeftOutUnlessTheFolderListsThem()
    {
        QVERIFY(writeFile("from/.hidden", "h"));
        QVERIFY(writeFile("from/sub/.hidden", "h"));
        QDir from("from");
        QVERIFY(FolderCopy::copyDirectory(from, QDir("to"), true));
        QVERIFY(!QFile::exists("to/.hidden"));
        from.setFilter(QDir::AllEntries | QDir::Hidden);
        QVERIFY(FolderCopy::copyDirectory(from, QDir("to"), true));
        QCOMPARE(readBytes("to/.hidden"), QByteArray("h"));
        QVERIFY(!QFile::exists("to/sub/.hidden"));
    }

    void theOwnFiltersOfTheFolderHoldForItsEntries()
    {
        QVERIFY(writeFile("from/b.log", "b"));
        QVERIFY(writeFile("from/folder.txt/c.txt", "c"));
        QDir from("from");
        from.setFilter(QDir::Files);
        from.setNameFilters({"*.txt"});
        QVERIFY(FolderCopy::copyDirectory(from, QDir("to"), true));
        QCOMPARE(QDir("to").entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList("a.txt"));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_FolderCopy, Guiless)
#include "tst_FolderCopy.moc"
