// What single tables of old files have of their own when they are opened: their indexes, the tables beside them, the
// values of their new columns and rows.

#include "store/DB.h"
#include "store/ExpectedSchema.h"
#include "store/OldTables.h"
#include "store/SchemaFile.h"

#include <QTest>

class tst_StoreTableUpgrades : public QObject
{
    Q_OBJECT

private slots:
    void oldMessagesLoseTheirOldIndexesAndGainTheCompositeOnes()
    {
        SchemaFile store;
        store.run(oldestTable("msgrecord") +
                  QStringList{"CREATE INDEX msgrecord_index1 on msgrecord(unique_jid)",
                              "CREATE INDEX msgrecord_index2 on msgrecord(ztime)",
                              "CREATE INDEX msgrecord_index3 on msgrecord(messageid)",
                              "CREATE INDEX msgrecord_index_sqeuenceId on msgrecord(burnFlag)"});
        QVERIFY(store.open());
        QCOMPARE(store.indexesOf("msgrecord"), expectedTable("msgrecord").indexNames());
        for (const ExpectedIndex &index : expectedTable("msgrecord").indexes) {
            QCOMPARE(store.storedSql(index.name), expectedTable("msgrecord").indexSql(index));
        }
        QCOMPARE(store.rows("PRAGMA integrity_check"), QStringList("ok"));
    }

    void oldMessagesWithoutIndexesGetOnlyTheCompositeOnes()
    {
        SchemaFile store;
        store.run(oldestTable("msgrecord"));
        QVERIFY(store.openTwice());
        QCOMPARE(store.indexesOf("msgrecord"),
                 QStringList({"msgrecord_index_uniquejid_sequenceId", "msgrecord_index_uniquejid_time"}));
    }

    void changeOfMessageIndexesRidesOnTheSequenceColumn()
    {
        SchemaFile store;
        const ExpectedTable &messages = expectedTable("msgrecord");
        store.run({messages.createSql(columnsWithout(messages.columns, "atlist")),
                   "CREATE INDEX msgrecord_index2 on msgrecord(ztime)"});
        QVERIFY(store.openTwice());
        QVERIFY(store.columnsOf("msgrecord").contains(columnInfo("atlist TEXT")));
        QCOMPARE(store.indexesOf("msgrecord"),
                 QStringList({"msgrecord_index2", "msgrecord_index_uniquejid_sequenceId"}));
    }

    void misspelledMessageIndexIsDroppedAtEachOpen()
    {
        SchemaFile store;
        QVERIFY(store.open());
        for (int i = 0; i < 2; ++i) {
            DB::closeDB();
            store.run({"CREATE INDEX msgrecord_index_sqeuenceId on msgrecord(sequenceId)"});
            QVERIFY(store.open());
            QCOMPARE(store.indexesOf("msgrecord"), expectedTable("msgrecord").indexNames());
        }
    }

    void misspelledIndexOfAnotherTableStays()
    {
        SchemaFile store;
        store.run(oldestTable("msgrecord") +
                  QStringList{"CREATE TABLE others(id TEXT)", "CREATE INDEX msgrecord_index_sqeuenceId on others(id)"});
        QVERIFY(store.openTwice());
        QCOMPARE(store.indexesOf("others"), QStringList("msgrecord_index_sqeuenceId"));
    }

    void sequenceIndexIsMadeAtEachOpenThatFindsItMissing()
    {
        SchemaFile store;
        QVERIFY(store.open());
        for (int i = 0; i < 2; ++i) {
            DB::closeDB();
            store.run({"DROP INDEX msgrecord_index_uniquejid_sequenceId"});
            QVERIFY(store.open());
            QCOMPARE(store.indexesOf("msgrecord"), expectedTable("msgrecord").indexNames());
        }
    }

    void statementsOfAMessageUpgrade()
    {
        SchemaFile store;
        store.run(oldestTable("msgrecord") +
                  QStringList{"CREATE INDEX msgrecord_index2 on msgrecord(ztime)",
                              "CREATE INDEX msgrecord_index_sqeuenceId on msgrecord(burnFlag)"});
        QVERIFY(store.openForSignIn());
        QCOMPARE(
            store.writesOf(&DB::createMessageTable),
            QStringList({"ALTER TABLE msgrecord ADD atlist TEXT", "ALTER TABLE msgrecord ADD sequenceId INT64",
                         "DROP INDEX msgrecord_index2;",
                         "CREATE INDEX msgrecord_index_uniquejid_time on msgrecord(unique_jid,ztime)",
                         "DROP INDEX msgrecord_index_sqeuenceId;",
                         "CREATE INDEX msgrecord_index_uniquejid_sequenceId on msgrecord(unique_jid,sequenceId)"}));
    }

    void roomIndexIsMadeAlsoWhenNoColumnIsMissing_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<QStringList>("columns");
        for (const QString &table : {QString("mucrecord"), QString("mucmembers")}) {
            QTest::addRow("%s up to date", qPrintable(table)) << table << expectedTable(table).columns;
            QTest::addRow("%s of the oldest form", qPrintable(table)) << table << expectedTable(table).oldestColumns();
        }
    }

    void roomIndexIsMadeAlsoWhenNoColumnIsMissing()
    {
        QFETCH(QString, table);
        QFETCH(QStringList, columns);
        const ExpectedTable &expected = expectedTable(table);
        SchemaFile store;
        store.run({expected.createSql(columns)});
        QVERIFY(store.open());
        QCOMPARE(store.indexesOf(table), expected.indexNames());
        QCOMPARE(store.storedSql(expected.indexes.first().name), expected.indexSql(expected.indexes.first()));
    }

    void existenceOfARoomIsNotConfusedWithItsLocalOne()
    {
        SchemaFile store;
        store.run({"CREATE TABLE mucrecord (roomJid VARCHAR(100), localExist VARCHAR(1))"});
        QVERIFY(store.open());
        QVERIFY(DB::isExistFiled("mucrecord", "isExist"));
        QCOMPARE(store.columnsOf("mucrecord").mid(0, 3),
                 QStringList({columnInfo("roomJid VARCHAR(100)"), columnInfo("localExist VARCHAR(1)"),
                              columnInfo("isExist VARCHAR(1)")}));
    }

    void sessionOrderComesOnItsOwnTest()
    {
        SchemaFile store;
        store.run(oldestTable("unclosesession"));
        QVERIFY(store.openTwice());
        QCOMPARE(store.storedSql("unclosesessionorder"), expectedTable("unclosesessionorder").createSql());
        QCOMPARE(store.rows("select Jid from unclosesession order by rowid"),
                 QStringList({"first Jid", "Jid 第二", "alone"}));
    }

    void openSessionsComeWhereOnlyTheirOrderIsThere()
    {
        SchemaFile store;
        store.run(oldestTable("unclosesessionorder"));
        QVERIFY(store.openTwice());
        QCOMPARE(store.storedSql("unclosesession"), expectedTable("unclosesession").createSql());
        QCOMPARE(store.rows("select count(*) from unclosesessionorder"), QStringList("3"));
    }

    void localServiceNumbersAreNeverAltered()
    {
        const QStringList columns = expectedTable("servicenumber").oldestColumns();
        const QString sql = expectedTable("localservicenumber").createSql(columns);
        SchemaFile store;
        store.run(oldestTable("servicenumber") + QStringList(sql) + insertRows("localservicenumber", columns));
        QVERIFY(store.openTwice());
        QCOMPARE(store.columnsOf("servicenumber").size(), 14);
        QCOMPARE(store.storedSql("localservicenumber"), sql);
        QCOMPARE(store.rows("select count(*) from localservicenumber"), QStringList("3"));
    }

    void localServiceNumbersComeBesideOldServiceNumbers()
    {
        SchemaFile store;
        store.run({expectedTable("servicenumber").createSql(expectedTable("servicenumber").oldestColumns())});
        QVERIFY(store.openForSignIn());
        QStringList statements;
        for (const QString &text : expectedTable("servicenumber").later) {
            statements.append("ALTER TABLE servicenumber ADD " + text);
        }
        statements.append(expectedTable("localservicenumber").createSql());
        QCOMPARE(store.writesOf(&DB::createServiceTable), statements);
    }

    void oldApplicationsReadZeroInTheDeletionMark()
    {
        SchemaFile store;
        store.run(oldestTable("appnumbernew"));
        QVERIFY(store.openTwice());
        store.run({"insert into appnumbernew (appcode) values ('new')"});
        QCOMPARE(store.rows("select quote(isdelete) from appnumbernew"), QStringList({"0", "0", "0", "0"}));
    }

    void dingFilesNeverJoinAnOldFile()
    {
        SchemaFile store;
        store.run(oldestTable("dingmsginfo"));
        for (int i = 0; i < 3; ++i) {
            QVERIFY(store.open());
            DB::closeDB();
            QVERIFY(!store.tables().contains("dingsmsgfileoinfo"));
            QCOMPARE(store.indexesOf("dingmsginfo"), QStringList());
        }
    }

    void dingFilesAreKeptWhenTheirMessagesAreMadeAnew()
    {
        SchemaFile store;
        store.run(oldestTable("dingsmsgfileoinfo"));
        QVERIFY(store.openTwice());
        QCOMPARE(store.rows("select count(*) from dingsmsgfileoinfo"), QStringList("3"));
        QCOMPARE(store.storedSql("dingmsginfo"), expectedTable("dingmsginfo").createSql());
        QCOMPARE(store.indexesOf("dingmsginfo"), expectedTable("dingmsginfo").indexNames());
    }

    void lastTimeIsSeededOnlyWithItsTable()
    {
        SchemaFile store;
        store.run({expectedTable("last_time").createSql()});
        QVERIFY(store.openTwice());
        QCOMPARE(store.rows("select count(*) from last_time"), QStringList("0"));
        store.run({"insert into last_time values ('all_session', '1700000000')"});
        QVERIFY(store.openTwice());
        QCOMPARE(store.rows("select * from last_time"), QStringList("all_session|1700000000"));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_StoreTableUpgrades, Guiless)
#include "tst_StoreTableUpgrades.moc"
