#include "common/CustomLogger.h"
#include "common/log/ClientLogFile.h"

#include <QtTest>

class tst_CustomLoggerRollOver : public QObject
{
    Q_OBJECT

private slots:
    void init() { removeFiles(); }

    void sizeLimitIsInKiB_data()
    {
        QTest::addColumn<int>("kilobytes");
        QTest::addColumn<qint64>("size");
        QTest::addColumn<bool>("rolls");
        QTest::newRow("1 KiB reached") << 1 << qint64(1024) << true;
        QTest::newRow("1 KiB less one byte") << 1 << qint64(1023) << false;
        QTest::newRow("1024 KiB reached") << 1024 << qint64(1048576) << true;
        QTest::newRow("1024 KiB less one byte") << 1024 << qint64(1048575) << false;
        QTest::newRow("10 MiB unless set") << 0 << qint64(10485760) << true;
        QTest::newRow("10 MiB less one byte") << 0 << qint64(10485759) << false;
    }
    void sizeLimitIsInKiB()
    {
        QFETCH(int, kilobytes);
        QFETCH(qint64, size);
        QFile file(cLog);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.resize(size));
        file.close();
        CustomLogger logger(cLog);
        if (kilobytes > 0) {
            logger.setMaxFileSize(kilobytes);
        }
        logger.printLog(CustomLog::Info, "place", "text");
        QTEST(QFile::exists(backup(1)), "rolls");
    }

    void limitOfZeroRollsOverAfterEachRecord()
    {
        CustomLogger logger(cLog);
        logger.setMaxFileSize(0);
        logger.printLog(CustomLog::Info, "place", "first");
        logger.printLog(CustomLog::Info, "place", "second");
        QCOMPARE(readBytes(cLog), QByteArray());
        QVERIFY(readBytes(backup(1)).endsWith(": second\n"));
        QVERIFY(readBytes(backup(2)).endsWith(": first\n"));
        QVERIFY(!QFile::exists(backup(3)));
    }

    void sizeSeenLagsBehindWhatIsBuffered()
    {
        CustomLogger logger(cLog);
        logger.setMaxFileSize(1);
        logger.printLog(CustomLog::Info, "place", QString(2000, 'x'));
        logger.printLog(CustomLog::Info, "place", QString(2000, 'x'));
        QVERIFY(!QFile::exists(backup(1)));
        logger.flush();
        logger.printLog(CustomLog::Info, "place", "last");
        QCOMPARE(readBytes(backup(1)).count('\n'), 3);
        QVERIFY(readBytes(backup(1)).endsWith(": last\n"));
        QCOMPARE(readBytes(cLog), QByteArray());
    }

    void rollOverMovesEachBackupOneUp_data()
    {
        QTest::addColumn<unsigned int>("backups");
        QTest::newRow("one") << 1U;
        QTest::newRow("two") << 2U;
        QTest::newRow("three") << 3U;
        QTest::newRow("ten") << 10U;
    }
    void rollOverMovesEachBackupOneUp()
    {
        QFETCH(unsigned int, backups);
        const int count = static_cast<int>(backups);
        for (int i = 1; i <= count + 1; ++i) {
            QVERIFY(writeFile(backup(i), "backup " + QByteArray::number(i)));
        }
        QVERIFY(writeFile(cLog, "current\n"));
        CustomLogger logger(cLog);
        logger.setMaxBackupIndex(backups);
        logger.rollOver();
        QCOMPARE(readBytes(cLog), QByteArray());
        QCOMPARE(readBytes(backup(1)), QByteArray("current\n"));
        for (int i = 2; i <= count; ++i) {
            QCOMPARE(readBytes(backup(i)), "backup " + QByteArray::number(i - 1));
        }
        QCOMPARE(readBytes(backup(count + 1)), "backup " + QByteArray::number(count + 1));
    }

    void withOneBackupOnlyNumberOneIsMade()
    {
        CustomLogger logger(cLog);
        logger.setMaxBackupIndex(1);
        logger.printLog(CustomLog::Info, "place", "first");
        logger.rollOver();
        logger.printLog(CustomLog::Info, "place", "second");
        logger.rollOver();
        QVERIFY(readBytes(backup(1)).endsWith(": second\n"));
        QCOMPARE(QDir().entryList(QDir::Files), (QStringList{cLog, backup(1)}));
    }

    void withNoBackupsARollOverEmptiesTheLog()
    {
        CustomLogger logger(cLog);
        logger.setMaxBackupIndex(0);
        logger.printLog(CustomLog::Info, "place", "text");
        logger.rollOver();
        QCOMPARE(QDir().entryList(QDir::Files), QStringList{cLog});
        QCOMPARE(readBytes(cLog), QByteArray());
        logger.printLog(CustomLog::Info, "place", "next");
        logger.flush();
        QCOMPARE(lines().size(), 1);
    }

    void tenBackupsAreKeptUnlessSet()
    {
        CustomLogger logger(cLog);
        for (int i = 1; i <= 12; ++i) {
            logger.printLog(CustomLog::Info, "place", QString::number(i));
            logger.rollOver();
        }
        QCOMPARE(QDir().entryList(QDir::Files).size(), 11);
        QVERIFY(readBytes(backup(1)).endsWith(": 12\n"));
        QVERIFY(readBytes(backup(10)).endsWith(": 3\n"));
    }

    void gapInTheBackupsMovesUpToo()
    {
        QVERIFY(writeFile(backup(1), "one"));
        QVERIFY(writeFile(backup(3), "three"));
        CustomLogger logger(cLog);
        logger.setMaxBackupIndex(4);
        logger.rollOver();
        QCOMPARE(readBytes(backup(2)), QByteArray("one"));
        QVERIFY(!QFile::exists(backup(3)));
        QCOMPARE(readBytes(backup(4)), QByteArray("three"));
    }

    void removedFileIsMadeAnewByTheNextRollOver()
    {
        CustomLogger logger(cLog);
        QVERIFY(QFile::remove(cLog));
        logger.printLog(CustomLog::Info, "place", "lost");
        logger.flush();
        QVERIFY(!QFile::exists(cLog));
        logger.rollOver();
        logger.printLog(CustomLog::Info, "place", "kept");
        logger.flush();
        QVERIFY(!QFile::exists(backup(1)));
        QCOMPARE(lines().size(), 1);
        QVERIFY(readBytes(cLog).endsWith(": kept\n"));
    }

    void failedRenameIsIgnored()
    {
        QVERIFY(QDir().mkpath(backup(1) + "/occupied"));
        CustomLogger logger(cLog);
        logger.setMaxBackupIndex(1);
        logger.printLog(CustomLog::Info, "place", "lost");
        logger.rollOver();
        logger.printLog(CustomLog::Info, "place", "kept");
        logger.flush();
        QVERIFY(QDir(backup(1) + "/occupied").exists());
        QVERIFY(QDir(backup(1)).removeRecursively());
        QCOMPARE(lines().size(), 1);
        QVERIFY(readBytes(cLog).endsWith(": kept\n"));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CustomLoggerRollOver, Guiless)
#include "tst_CustomLoggerRollOver.moc"
