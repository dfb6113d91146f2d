// What befalls the log's file and folder while the client writes: the file goes, is made read-only, a folder stands in
// its place, the disk is full. Lines may be lost; the logger goes on, warns of nothing and touches nothing else.

#include "common/CustomLogger.h"
#include "common/log/ClientLogFile.h"
#include "fakes/QtMessages.h"
#include "store/Hardship.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

class tst_LogHardship : public QObject
{
    Q_OBJECT

private slots:
    /// Every function begins with a log that holds the line "before".
    void init()
    {
        m_pFolder = std::make_unique<QTemporaryDir>();
        m_strFile = m_pFolder->filePath(cLog);
        m_pMessages = std::make_unique<QtMessages>();
        m_pLogger = std::make_unique<CustomLogger>(m_strFile);
        print(QStringLiteral("before"));
        QCOMPARE(texts(), QStringList{"before"});
    }

    void cleanup()
    {
        m_pLogger.reset();
        QVERIFY(setFolderMode(m_ownFolder) || !QDir(m_pFolder->path()).exists());
        QCOMPARE(m_pMessages->warnings, QStringList());
        m_pMessages.reset();
        m_pFolder.reset();
    }

    void removedFileLosesLinesUntilTheNextRollOver()
    {
        QVERIFY(QFile::remove(m_strFile));
        print(QStringLiteral("lost"));
        QCOMPARE(names(), QStringList());
        m_pLogger->rollOver();
        print(QStringLiteral("after"));
        QCOMPARE(names(), QStringList{cLog});
        QCOMPARE(texts(), QStringList{"after"});
    }

    void fileMadeReadOnlyIsWrittenOn()
    {
        const OrdinaryRights rights;
        QVERIFY(QFile::setPermissions(m_strFile, QFile::ReadOwner));
        print(QStringLiteral("still open"));
        QCOMPARE(texts(), QStringList({"before", "still open"}));
        // A backup keeps the mode; the file that follows it is the client's own again.
        m_pLogger->rollOver();
        print(QStringLiteral("after"));
        QCOMPARE(texts(backup(1)), QStringList({"before", "still open"}));
        QCOMPARE(texts(), QStringList{"after"});
    }

    void readOnlyFolderKeepsTheFileThatIsOpen()
    {
        const OrdinaryRights rights;
        QVERIFY(setFolderMode(m_readOnlyFolder));
        m_pLogger->setMaxFileSize(0);
        print(QStringLiteral("in the same file"));
        print(QStringLiteral("again"));
        QCOMPARE(names(), QStringList{cLog});
        // A roll-over opens the same file anew, so that the next line stands directly behind the last one.
        const QByteArray text = readBytes(m_strFile);
        QCOMPARE(text.count("[place]: "), 3);
        QVERIFY(text.contains("[place]: before\n"));
        QVERIFY(text.contains("[place]: in the same file["));
        QVERIFY(text.endsWith("[place]: again\n"));
    }

    void folderInTheFilesPlaceBecomesABackup()
    {
        QVERIFY(QFile::remove(m_strFile));
        QVERIFY(QDir(m_strFile).mkpath(QStringLiteral("somebody's")));
        print(QStringLiteral("lost"));
        m_pLogger->rollOver();
        print(QStringLiteral("after"));
        QCOMPARE(texts(), QStringList{"after"});
        QVERIFY(QDir(m_pFolder->filePath(backup(1)) + "/somebody's").exists());
    }

    void fullFolderThatCannotMoveAwaySilencesTheLog()
    {
        QVERIFY(QFile::remove(m_strFile));
        QVERIFY(QDir(m_strFile).mkpath(QStringLiteral("somebody's")));
        m_pLogger->setMaxBackupIndex(0);
        m_pLogger->rollOver();
        print(QStringLiteral("lost"));
        QVERIFY(QDir(m_strFile + "/somebody's").exists());
        QVERIFY(QDir(m_strFile).removeRecursively());
        m_pLogger->reopen();
        print(QStringLiteral("after"));
        QCOMPARE(texts(), QStringList{"after"});
    }

    void removedFolderSilencesTheLogUntilItIsBack()
    {
        QVERIFY(QDir(m_pFolder->path()).removeRecursively());
        print(QStringLiteral("lost"));
        m_pLogger->rollOver();
        print(QStringLiteral("lost too"));
        QVERIFY(!QFile::exists(m_pFolder->path()));
        QVERIFY(QDir().mkpath(m_pFolder->path()));
        m_pLogger->reopen();
        print(QStringLiteral("after"));
        QCOMPARE(texts(), QStringList{"after"});
    }

    void fullDiskLosesLinesAndNothingElse_data()
    {
        QTest::addColumn<int>("room");
        QTest::newRow("no byte") << 0;
        QTest::newRow("some bytes") << 200;
        QTest::newRow("some lines") << 20000;
    }

    void fullDiskLosesLinesAndNothingElse()
    {
        QFETCH(int, room);
        {
            const FullDisk full(static_cast<rlim_t>(room));
            for (int i = 0; i < 1000; ++i) {
                print(QString(100, QLatin1Char('x')));
            }
            QVERIFY(QFileInfo(m_strFile).size() <= qMax<qint64>(room, 100));
        }
        print(QStringLiteral("room again"));
        QCOMPARE(texts().constFirst(), QStringLiteral("before"));
        QCOMPARE(texts().constLast(), QStringLiteral("room again"));
    }

    void rollOverOnAFullDiskGoesOnWhenThereIsRoom()
    {
        {
            const FullDisk full(0);
            for (int i = 0; i < 25; ++i) {
                m_pLogger->rollOver();
                print(QStringLiteral("lost"));
            }
        }
        print(QStringLiteral("room again"));
        QCOMPARE(texts().constLast(), QStringLiteral("room again"));
    }

private:
    void print(const QString &strText)
    {
        m_pLogger->printLog(CustomLog::Info, QStringLiteral("place"), strText);
        m_pLogger->flush();
    }
    /// The texts of the log's lines, or of a backup's.

    QStringList texts(const QString &strName = cLog) const
    {
        QStringList all;
        const QList<QByteArray> lines = readBytes(m_pFolder->filePath(strName)).split('\n');
        for (const QByteArray &line : lines) {
            if (!line.isEmpty()) {
                all.append(QString::fromUtf8(line).section(QStringLiteral("[place]: "), 1));
            }
        }
        return all;
    }

    QStringList names() const { return QDir(m_pFolder->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot); }
    bool setFolderMode(QFile::Permissions mode) const { return QFile::setPermissions(m_pFolder->path(), mode); }

    const QFile::Permissions m_readOnlyFolder = QFile::ReadOwner | QFile::ExeOwner;
    const QFile::Permissions m_ownFolder = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    std::unique_ptr<QTemporaryDir> m_pFolder;
    QString m_strFile;
    std::unique_ptr<QtMessages> m_pMessages;
    std::unique_ptr<CustomLogger> m_pLogger;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_LogHardship, Guiless)
#include "tst_LogHardship.moc"
