// The statements themselves, as they reach the database: an existing file is read and written by exactly these.

#include "store/DBConfInfo.h"
#include "store/DBLastTime.h"
#include "store/SchemaFile.h"

#include <QTest>

class tst_StoreStatements : public QObject
{
    Q_OBJECT

private slots:
    void existenceIsAskedInTheseWords()
    {
        SchemaFile store;
        QVERIFY(store.open());
        const QStringList statements = store.statementsOf([] {
            DB::isExistTable("it's");
            DB::isExistFiled("fa'vorite", "own");
            DB::isExistIndex("msgrecord", "_index1");
        });
        QCOMPARE(statements, QStringList({"SELECT 1 FROM sqlite_master where type = 'table' and  name = 'its'",
                                          "SELECT 1 FROM sqlite_master where type = 'table' and name= 'favorite'"
                                          " and sql like '%own%'",
                                          "SELECT * FROM sqlite_master WHERE type = 'index' AND tbl_name = 'msgrecord'"
                                          " AND name = 'msgrecord_index1'"}));
    }

    void retiredTablesAreDroppedInThisOrder()
    {
        const QStringList retired{"deletedfriend", "grouptableNew",   "groupfriendversion", "localfriend",
                                  "latestfriend",  "friendlist",      "muclocalmsg",        "msglist",
                                  "appnumber",     "appnumberversion"};
        SchemaFile store;
        QStringList drops;
        for (const QString &table : retired) {
            store.run({"CREATE TABLE " + table + "(id TEXT)"});
            drops << "drop table " + table + ";";
        }
        QVERIFY(store.open());
        QCOMPARE(store.writesOf(&DB::dropNoUseTable), drops);
        QCOMPARE(store.writesOf(&DB::dropNoUseTable), QStringList());
    }

    void textIsReplacedWithTwoBlanksAfterTheEqualsSign()
    {
        SchemaFile store;
        QVERIFY(store.open());
        const QStringList writes =
            store.writesOf([] { DB::replaceFiled(DB::getDB(), "grouptable", "groupName", "old", "new"); });
        QCOMPARE(writes, QStringList("UPDATE grouptable SET groupName =  REPLACE(groupName,'old','new')"));
    }

    void recordIsLookedUpBeforeItIsInserted()
    {
        SchemaFile store;
        QVERIFY(store.open());
        const QStringList statements = store.statementsOf([] {
            ConfInfoData record;
            record.m_strConfID = "c'1";
            record.m_strCreatUserID = "anna";
            record.m_strCreatTime = "2024-02-03 04:05:06";
            record.m_strCallTime = "61";
            record.m_listMember = QStringList{"a", "b"};
            record.m_bIsConnect = true;
            DBConfInfo::saveConfInfo(record);
        });
        QCOMPARE(statements, QStringList({"SELECT ConfID FROM voipConferenceInfo WHERE ConfID = 'c1'",
                                          "INSERT INTO voipConferenceInfo (ConfID,CreatUserID,CreatTime,CallTime,"
                                          "MemberList,IsConnect) VALUES ('c''1', 'anna', '2024-02-03 04:05:06', '61', "
                                          "'a,b,', 1)"}));
    }

    void knownRecordIsLookedUpOnly()
    {
        SchemaFile store;
        QVERIFY(store.open());
        ConfInfoData record;
        record.m_strConfID = "c1";
        QVERIFY(DBConfInfo::saveConfInfo(record));
        const QStringList statements = store.statementsOf([] {
            ConfInfoData again;
            again.m_strConfID = "c1";
            DBConfInfo::saveConfInfo(again);
        });
        QCOMPARE(statements, QStringList("SELECT ConfID FROM voipConferenceInfo WHERE ConfID = 'c1'"));
    }

    void recordsAreListedAndDeletedInTheseWords()
    {
        SchemaFile store;
        QVERIFY(store.open());
        const QStringList statements = store.statementsOf([] {
            DBConfInfo::getAllConfInfo();
            DBConfInfo::deleteConfInfo("c'1");
        });
        QCOMPARE(statements, QStringList({"SELECT ConfID,CreatUserID,CreatTime,CallTime,MemberList,IsConnect "
                                          "FROM voipConferenceInfo ORDER BY ConfID DESC",
                                          "DELETE FROM voipConferenceInfo WHERE ConfID = 'c1'"}));
    }

    void lastTimeIsKeptInTheseWords()
    {
        SchemaFile store;
        QVERIFY(store.open());
        store.run({"DELETE FROM last_time"});
        const QStringList statements = store.statementsOf([] {
            DBLastTime::saveLastTime("17");
            DBLastTime::updateLastTime("18");
            DBLastTime::getLastTime();
        });
        QCOMPARE(statements, QStringList({"INSERT INTO last_time (sessionId, lastTime) VALUES ('all_session', '17')",
                                          "UPDATE last_time SET lastTime = '18' WHERE sessionId = 'all_session'",
                                          "SELECT lastTime FROM last_time WHERE sessionId = 'all_session'"}));
    }

    void waitingForTheDiskIsSwitchedOffBeforeAnyTable()
    {
        const QString off = "PRAGMA synchronous = OFF";
        SchemaFile store;
        const QStringList full = store.statementsOfNewConnections([&store] { QVERIFY(store.open()); });
        QCOMPARE(full.value(0), off);
        QCOMPARE(full.count(off), 1);
        const QStringList signIn = store.statementsOfNewConnections([&store] { QVERIFY(store.openForSignIn()); });
        // Last, the session's statements get their own waiting time.
        const QString wait = "PRAGMA busy_timeout = 5000";
        QCOMPARE(signIn,
                 QStringList({off, "SELECT 1 FROM sqlite_master where type = 'table' and  name = 'loginInfo'", wait}));
        QCOMPARE(full.filter("busy_timeout"), QStringList(wait));
        QCOMPARE(full.last(), wait);
    }

    void checkWritesAndDeletesInTheseWords()
    {
        // Qt gives the question mark a name on the way.
        const QString insert = "INSERT INTO msgrecord (id)VALUES (:a) | INSERT INTO msgrecord (id)VALUES ('checkid')";
        const QString trialDelete = "DELETE FROM msgrecord WHERE id = 'checkid'";
        SchemaFile store;
        QVERIFY(store.open());
        DB::closeDB();
        const auto check = [&store] { QVERIFY(DB::checkDB(store.folder(), false)); };
        QCOMPARE(store.statementsOfNewConnections(check), QStringList({insert, trialDelete}));
        store.run({"INSERT INTO msgrecord (id) VALUES ('checkid')"});
        QCOMPARE(store.statementsOfNewConnections(check), QStringList({insert, "PRAGMA quick_check", trialDelete}));
    }

    void quickCheckIsAskedInTheseWords()
    {
        SchemaFile store;
        store.run({"CREATE TABLE others(id TEXT)"});
        for (const bool quickOnly : {true, false}) {
            const QStringList statements = store.statementsOfNewConnections(
                [&store, quickOnly] { QVERIFY(DB::checkDB(store.folder(), quickOnly)); });
            QCOMPARE(statements, QStringList("PRAGMA quick_check"));
        }
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_StoreStatements, Guiless)
#include "tst_StoreStatements.moc"
