// What a fresh file of the store holds, compared with the schema as the tests have it written down.

#include "store/DB.h"
#include "store/ExpectedSchema.h"
#include "store/SchemaFile.h"

#include <QRegularExpression>
#include <QTest>

#include <algorithm>

namespace {

QStringList expectedTableNames()
{
    QStringList names;
    for (const ExpectedTable &table : expectedTables()) {
        names.append(table.name);
    }
    return names;
}

// A file that is open with nothing but the login table in it.
void openWithLoginTableOnly(SchemaFile &store)
{
    store.run({});
    QVERIFY(store.openForSignIn());
}

} // namespace

class tst_StoreSchemaFresh : public QObject
{
    Q_OBJECT

private slots:
    void aFreshFileHas44TablesOf298ColumnsAnd8IndexesAnd38ColumnsCameLater()
    {
        int columns = 0;
        int indexes = 0;
        int later = 0;
        int tablesWithLaterColumns = 0;
        for (const ExpectedTable &table : expectedTables()) {
            columns += table.columns.size();
            indexes += table.indexes.size();
            later += table.later.size();
            tablesWithLaterColumns += table.later.isEmpty() ? 0 : 1;
        }
        QCOMPARE(expectedTables().size(), 44);
        QCOMPARE(columns, 298);
        QCOMPARE(indexes, 8);
        QCOMPARE(later, 38);
        QCOMPARE(tablesWithLaterColumns, 12);

        SchemaFile store;
        QVERIFY(store.open());
        QCOMPARE(store.rows("select count(*) from sqlite_master where type = 'table'"), QStringList("44"));
        QCOMPARE(store.rows("select count(*) from sqlite_master m, pragma_table_info(m.name) where m.type = 'table'"),
                 QStringList("298"));
        QCOMPARE(store.rows("select count(*) from sqlite_master where type = 'index' and sql is not null"),
                 QStringList("8"));
        QCOMPARE(store.rows("select count(*) from sqlite_master where type not in ('table', 'index')"),
                 QStringList("0"));
    }

    void aFreshFileHasTheseTablesInThisOrderAndNoOther()
    {
        SchemaFile store;
        QVERIFY(store.open());
        QCOMPARE(store.tables(), expectedTableNames());
    }

    void columnsOfAFreshTable_data() { eachTable(); }

    void columnsOfAFreshTable()
    {
        QFETCH(QString, table);
        SchemaFile store;
        QVERIFY(store.open());
        QStringList columns;
        for (const QString &column : expectedTable(table).columns) {
            columns.append(columnInfo(column));
        }
        QCOMPARE(store.columnsOf(table), columns);
    }

    void storedTextOfAFreshTable_data() { eachTable(); }

    void storedTextOfAFreshTable()
    {
        QFETCH(QString, table);
        SchemaFile store;
        QVERIFY(store.open());
        QCOMPARE(store.storedSql(table), expectedTable(table).createSql());
    }

    void indexesOfAFreshTable_data() { eachTable(); }

    void indexesOfAFreshTable()
    {
        QFETCH(QString, table);
        SchemaFile store;
        QVERIFY(store.open());
        const ExpectedTable &expected = expectedTable(table);
        QCOMPARE(store.indexesOf(table), expected.indexNames());
        for (const ExpectedIndex &index : expected.indexes) {
            QCOMPARE(store.storedSql(index.name), expected.indexSql(index));
            QCOMPARE(store.rows("select name from pragma_index_info('" + index.name + "') order by seqno"),
                     index.columns.split(','));
        }
        const bool keyed = expected.columns.first().contains("primary key", Qt::CaseInsensitive);
        QCOMPARE(store.rows("select origin from pragma_index_list('" + table + "') where origin <> 'c'"),
                 keyed ? QStringList("pk") : QStringList());
    }

    void aFreshFileIsMadeByTheseStatements()
    {
        QStringList statements;
        const QVector<ExpectedTable> &all = expectedTables();
        for (int first = 1; first < all.size();) {
            int last = first;
            while (last + 1 < all.size() && all[last + 1].creator == all[first].creator) {
                ++last;
            }
            for (int i = first; i <= last; ++i) {
                statements.append(all[i].createSql());
            }
            for (int i = first; i <= last; ++i) {
                for (const ExpectedIndex &index : all[i].indexes) {
                    statements.append(all[i].indexSql(index));
                }
            }
            if (all[first].name == "last_time") {
                statements.append("INSERT INTO last_time (sessionId, lastTime)");
            }
            first = last + 1;
        }

        SchemaFile store;
        openWithLoginTableOnly(store);
        QStringList writes = store.writesOf(&DB::createTable);
        writes.replaceInStrings(QRegularExpression(" VALUES .*"), QString());
        QCOMPARE(writes, statements);
    }

    void signInModeMakesOnlyTheLoginTable()
    {
        SchemaFile store;
        openWithLoginTableOnly(store);
        QCOMPARE(store.tables(), QStringList("loginInfo"));
        QCOMPARE(store.storedSql("loginInfo"), expectedTable("loginInfo").createSql());
    }

    void aSecondCreateTableChangesNotOneByte()
    {
        SchemaFile store;
        QVERIFY(store.open());
        const QStringList schema = store.schema();
        const QByteArray bytes = store.bytes();
        DB::createTable();
        QCOMPARE(store.schema(), schema);
        QVERIFY(store.bytes() == bytes);
        DB::closeDB();
        QVERIFY(store.open());
        QCOMPARE(store.schema(), schema);
        QVERIFY(store.bytes() == bytes);
    }

    void aSecondCreateTableWritesNothing()
    {
        SchemaFile store;
        QVERIFY(store.open());
        QCOMPARE(store.writesOf(&DB::createTable), QStringList());
    }

    void eachCreatorMakesItsOwnTables_data() { eachTable(); }

    void eachCreatorMakesItsOwnTables()
    {
        QFETCH(QString, table);
        const auto creator = expectedTable(table).creator;
        QStringList names("loginInfo");
        for (const ExpectedTable &expected : expectedTables()) {
            if (expected.creator == creator && expected.name != "loginInfo") {
                names.append(expected.name);
            }
        }
        SchemaFile store;
        openWithLoginTableOnly(store);
        creator();
        QCOMPARE(store.tables(), names);
    }

    void theDingVersionTableIsMadeOnlyOnRequest()
    {
        const ExpectedTable &expected = expectedDingVersionTable();
        SchemaFile store;
        QVERIFY(store.open());
        QVERIFY(!store.tables().contains(expected.name));
        expected.creator();
        QCOMPARE(store.storedSql(expected.name), expected.createSql());
        const QStringList schema = store.schema();
        expected.creator();
        QCOMPARE(store.schema(), schema);
    }

    void theLastTimeRowIsSeededWithTheEmptyText()
    {
        SchemaFile store;
        QVERIFY(store.open());
        QCOMPARE(store.rows("select quote(sessionId), quote(lastTime) from last_time"),
                 QStringList("'all_session'|''"));
    }

    void messagesHaveNoSecondIndex()
    {
        SchemaFile store;
        QVERIFY(store.open());
        QCOMPARE(store.rows("select count(*) from sqlite_master where name like 'msgrecord_index2'"), QStringList("0"));
    }

    // A table whose name differs only in case is another one to the existence test and the same one to CREATE TABLE.
    void messagesGetNoIndexWhenTheirTableIsNotCreated()
    {
        SchemaFile store;
        store.run({expectedTable("msgrecord").createSql().replace("msgrecord", "MSGRECORD")});
        QVERIFY(store.openTwice());
        QCOMPARE(store.indexesOf("MSGRECORD"), QStringList());
    }

    void dingIndexesFilesAndColumnsComeAlsoWhenTheTableIsNotCreated()
    {
        SchemaFile store;
        const ExpectedTable &ding = expectedTable("dingmsginfo");
        store.run({ding.createSql(ding.oldestColumns()).replace("dingmsginfo", "DINGMSGINFO")});
        QVERIFY(store.openTwice());
        QCOMPARE(store.indexesOf("DINGMSGINFO"), ding.indexNames());
        QCOMPARE(store.storedSql("dingsmsgfileoinfo"), expectedTable("dingsmsgfileoinfo").createSql());
        QCOMPARE(store.columnsOf("DINGMSGINFO").size(), ding.columns.size());
    }

    void deletionMarkOfAnApplicationHasNoDefault()
    {
        SchemaFile store;
        QVERIFY(store.open());
        store.run({"insert into appnumbernew (appcode) values ('a')"});
        QCOMPARE(store.rows("select quote(isdelete) from appnumbernew"), QStringList("NULL"));
    }

private:
    void eachTable()
    {
        QTest::addColumn<QString>("table");
        for (const QString &name : expectedTableNames()) {
            QTest::newRow(qPrintable(name)) << name;
        }
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_StoreSchemaFresh, Guiless)
#include "tst_StoreSchemaFresh.moc"
