#include "store/Hardship.h"
#include "store/StoreFolder.h"

#include <QDir>
#include <QFile>
#include <QSqlQuery>
#include <QTest>

/// The store where it may not write or has no room: what is answered and what stays.
class tst_StoreHardship : public StoreFolder
{
    Q_OBJECT

private slots:
    void readOnlyFileIsReadAndRefusesRecords_data()
    {
        QTest::addColumn<bool>("createAll");
        QTest::newRow("the whole store") << true;
        QTest::newRow("the login table only") << false;
    }

    void readOnlyFileIsReadAndRefusesRecords()
    {
        QFETCH(bool, createAll);
        QVERIFY(putFile(m_sound));
        QVERIFY(QFile::setPermissions(m_strFile, QFile::ReadOwner));
        const OrdinaryRights rights;
        QVERIFY(DB::checkDB(m_strFolder, true));
        QVERIFY(DB::checkDB(m_strFolder, false));
        QVERIFY(DB::initByUserName(m_strUser, m_strBase, createAll));
        QCOMPARE(DBConfInfo::getAllConfInfo().size(), m_iRecords);
        QVERIFY(!DBConfInfo::saveConfInfo(numberedRecord(m_iRecords)));
        QVERIFY(!DBConfInfo::deleteConfInfo(numberedRecord(1).m_strConfID));
        DB::closeDB();
        QCOMPARE(fileBytes(), m_sound);
    }

    void readOnlyFolderRefusesRecordsAndFreshUsers()
    {
        QVERIFY(putFile(m_sound));
        for (const QString &folder : {m_strFolder, m_strBase}) {
            QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
        }
        {
            const OrdinaryRights rights;
            QVERIFY(DB::checkDB(m_strFolder, true));
            QVERIFY(DB::checkDB(m_strFolder, false));
            QVERIFY(DB::initByUserName(m_strUser, m_strBase, true));
            QCOMPARE(DBConfInfo::getAllConfInfo().size(), m_iRecords);
            QVERIFY(!DBConfInfo::saveConfInfo(numberedRecord(m_iRecords)));
            QVERIFY(!DB::initByUserName(QStringLiteral("fresh"), m_strBase, true));
            DB::closeDB();
        }
        QCOMPARE(fileBytes(), m_sound);
        QCOMPARE(QDir(m_strBase).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList(m_strUser));
        for (const QString &folder : {m_strFolder, m_strBase}) {
            QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        }
    }

    void fullDiskRefusesTheRecordAndKeepsTheOthers_data()
    {
        QTest::addColumn<int>("room");
        QTest::newRow("nothing can be written") << 0;
        QTest::newRow("the journal has no room") << m_iPageSize;
        QTest::newRow("the file cannot grow") << m_sound.size();
    }

    void fullDiskRefusesTheRecordAndKeepsTheOthers()
    {
        QFETCH(int, room);
        QVERIFY(putFile(m_sound));
        // Several pages long, so that the file has to grow.
        const ConfInfoData big = numberedRecord(m_iRecords);
        {
            const FullDisk full(static_cast<rlim_t>(room));
            QVERIFY(DB::checkDB(m_strFolder, true));
            QVERIFY(DB::checkDB(m_strFolder, false));
            QVERIFY(DB::initByUserName(m_strUser, m_strBase, true));
            QVERIFY(!DBConfInfo::saveConfInfo(big));
            QCOMPARE(DBConfInfo::getAllConfInfo().size(), m_iRecords);
        }
        QVERIFY(DBConfInfo::saveConfInfo(big));
        QCOMPARE(DBConfInfo::getAllConfInfo().size(), m_iRecords + 1);
        DB::closeDB();
        QCOMPARE(ask(QStringLiteral("PRAGMA integrity_check")), QStringLiteral("ok"));
    }

    void fileBegunOnAFullDiskIsFinishedByTheNextOpen_data()
    {
        QTest::addColumn<int>("room");
        for (const int room : {0, 1000, 5000, 20000, 60000, 100000}) {
            QTest::addRow("%d bytes", room) << room;
        }
    }

    void fileBegunOnAFullDiskIsFinishedByTheNextOpen()
    {
        QFETCH(int, room);
        QVERIFY(putFile(m_sound));
        const QString all = tables();
        QVERIFY(QFile::remove(m_strFile));
        {
            const FullDisk full(static_cast<rlim_t>(room));
            QVERIFY(DB::initByUserName(m_strUser, m_strBase, true));
            DB::closeDB();
            QVERIFY(DB::checkDB(m_strFolder, true));
        }
        QVERIFY(tables() != all);
        QVERIFY(DB::initByUserName(m_strUser, m_strBase, true));
        DB::closeDB();
        QCOMPARE(tables(), all);
        QCOMPARE(ask(QStringLiteral("PRAGMA integrity_check")), QStringLiteral("ok"));
    }

    void fileThatAnotherMakesMeanwhileStays()
    {
        {
            const MadeMeanwhile other(m_strFile, m_sound);
            QVERIFY(DB::initByUserName(m_strUser, m_strBase, true));
        }
        QCOMPARE(DBConfInfo::getAllConfInfo().size(), m_iRecords);
        DB::closeDB();
        QCOMPARE(fileBytes(), m_sound);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_StoreHardship, Guiless)
#include "tst_StoreHardship.moc"
