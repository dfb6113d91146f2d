#include "traffic/TraceFolder.h"

#include <QDir>
#include <QFileInfo>
#include <QTest>

class tst_TraceFolder : public QObject
{
    Q_OBJECT

private slots:
    void init() { qunsetenv("VOIPSDK_TRACE"); }
    void cleanup() { qunsetenv("VOIPSDK_TRACE"); }

    void withoutAFolderThereIsNothingToFollow() { QCOMPARE(TraceFolder::file(), QString()); }

    void folderIsThereUntilItsEnd()
    {
        QString folder;
        {
            const TraceFolder traces;
            folder = QFileInfo(TraceFolder::file()).path();
            QVERIFY(QFileInfo(folder).isAbsolute());
            QVERIFY(QDir(folder).exists());
        }
        QVERIFY(!QDir(folder).exists());
    }

    void placeOfTheEnvironmentStays()
    {
        qputenv("VOIPSDK_TRACE", "/some/where.txt");
        const TraceFolder traces;
        QCOMPARE(TraceFolder::file(), QStringLiteral("/some/where.txt"));
    }

    void standardErrorIsNotFollowed()
    {
        qputenv("VOIPSDK_TRACE", "-");
        const TraceFolder traces;
        QCOMPARE(TraceFolder::file(), QString());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_TraceFolder, Guiless)
#include "tst_TraceFolder.moc"
