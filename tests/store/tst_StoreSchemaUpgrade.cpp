// What becomes of files of every age: each form of a table that files in the field have, with rows in it, opened,
// closed and opened again.

#include "store/DB.h"
#include "store/ExpectedSchema.h"
#include "store/SchemaFile.h"

#include <QTest>

#include <algorithm>

class tst_StoreSchemaUpgrade : public QObject
{
    Q_OBJECT

private slots:
    void columnsAndRowsOfAnOldTable_data();
    void columnsAndRowsOfAnOldTable();
    void statementsThatUpgradeAnOldTable_data();
    void statementsThatUpgradeAnOldTable();
    void missingTablesJoinAnOldFile();
    void foreignColumnsTablesAndIndexesStay();

    void oldMessagesLoseTheirOldIndexesAndGainTheCompositeOnes();
    void oldMessagesWithoutIndexesGetOnlyTheCompositeOnes();
    void changeOfMessageIndexesRidesOnTheSequenceColumn();
    void misspelledMessageIndexIsDroppedAtEachOpen();
    void sequenceIndexIsMadeAtEachOpenThatFindsItMissing();
    void statementsOfAMessageUpgrade();

    void roomIndexIsMadeAlsoWhenNoColumnIsMissing_data();
    void roomIndexIsMadeAlsoWhenNoColumnIsMissing();
    void existenceOfARoomIsNotConfusedWithItsLocalOne();

    void sessionOrderComesOnItsOwnTest();
    void openSessionsComeWhereOnlyTheirOrderIsThere();

    void localServiceNumbersAreNeverAltered();
    void localServiceNumbersComeBesideOldServiceNumbers();

    void oldApplicationsReadZeroInTheDeletionMark();
    void dingFilesNeverJoinAnOldFile();
    void dingFilesAreKeptWhenTheirMessagesAreMadeAnew();

    void lastTimeIsSeededOnlyWithItsTable();

    void aColumnIsTakenForThereWhenItsNameStandsInAnother_data();
    void aColumnIsTakenForThereWhenItsNameStandsInAnother();

private:
    void eachOldForm();
};

namespace {

// Two rows with a text of their own in every column, and one with nothing but its first column.
QStringList insertRows(const QString &table, const QStringList &columns)
{
    QStringList names;
    QStringList first;
    QStringList second;
    for (const QString &column : columns) {
        const QString name = columnName(column);
        names.append(name);
        first.append("'first " + name + "'");
        second.append("'" + name + " 第二'");
    }
    const QString insert = "insert into " + table + " (" + names.join(',') + ") values (";
    return {insert + first.join(',') + ")", insert + second.join(',') + ")",
            "insert into " + table + " (" + names.first() + ") values ('alone')"};
}

QString quotedColumns(const QStringList &columns)
{
    QStringList quoted;
    for (const QString &column : columns)
        quoted.append("quote(" + columnName(column) + ")");
    return quoted.join(',');
}

// The columns of `later` that are not among `columns`, in their order.
QStringList missingFrom(const QStringList &columns, const QStringList &later)
{
    QStringList missing;
    for (const QString &text : later) {
        const bool there = std::any_of(columns.begin(), columns.end(), [&text](const QString &column) {
            return columnName(column) == columnName(text);
        });
        if (!there)
            missing.append(text);
    }
    return missing;
}

QStringList without(const QStringList &columns, const QString &name)
{
    QStringList rest;
    for (const QString &column : columns) {
        if (columnName(column) != name)
            rest.append(column);
    }
    return rest;
}

QString trimmedEnd(QString text)
{
    while (text.endsWith(' '))
        text.chop(1);
    return text;
}

// The statements for a table of the oldest form.
QStringList oldest(const QString &table)
{
    const ExpectedTable &expected = expectedTable(table);
    return QStringList(expected.createSql(expected.oldestColumns())) + insertRows(table, expected.oldestColumns());
}

} // namespace

// The oldest form, that form with the first few later columns behind it, and a fresh one that lacks a single column.
void tst_StoreSchemaUpgrade::eachOldForm()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<QStringList>("columns");
    int forms = 0;
    for (const ExpectedTable &table : expectedTables()) {
        if (table.later.isEmpty())
            continue;
        for (int there = 0; there < table.later.size(); ++there, ++forms) {
            QTest::addRow("%s with the first %d", qPrintable(table.name), there)
                << table.name << table.oldestColumns() + table.later.mid(0, there);
        }
        for (const QString &text : table.later) {
            const QString name = columnName(text);
            QTest::addRow("%s without %s", qPrintable(table.name), qPrintable(name))
                << table.name << without(table.columns, name);
            ++forms;
        }
    }
    QCOMPARE(forms, 76);
}

void tst_StoreSchemaUpgrade::columnsAndRowsOfAnOldTable_data()
{
    eachOldForm();
}

void tst_StoreSchemaUpgrade::columnsAndRowsOfAnOldTable()
{
    QFETCH(QString, table);
    QFETCH(QStringList, columns);
    const QStringList missing = missingFrom(columns, expectedTable(table).later);

    SchemaFile store;
    store.run(QStringList(expectedTable(table).createSql(columns)) + insertRows(table, columns));
    const QString select = "select " + quotedColumns(columns) + " from " + table + " order by rowid";
    const QStringList rows = store.rows(select);
    QVERIFY(store.open());
    DB::closeDB();

    QStringList infos;
    QString sql = expectedTable(table).createSql(columns);
    sql.chop(1);
    for (const QString &column : columns + missing)
        infos.append(columnInfo(column));
    for (const QString &column : missing)
        sql += ", " + trimmedEnd(column);
    QCOMPARE(store.columnsOf(table), infos);
    QCOMPARE(store.storedSql(table), sql + ")");

    QCOMPARE(rows.size(), 3);
    QCOMPARE(store.rows(select), rows);
    for (const QString &column : missing) {
        const QString value = columnName(column) == "isdelete" ? "0" : "NULL";
        QCOMPARE(store.rows("select quote(" + columnName(column) + ") from " + table),
                 QStringList({value, value, value}));
    }

    const QStringList schema = store.schema();
    const QByteArray bytes = store.bytes();
    QVERIFY(store.open());
    DB::closeDB();
    QCOMPARE(store.schema(), schema);
    QVERIFY(store.bytes() == bytes);
}

void tst_StoreSchemaUpgrade::statementsThatUpgradeAnOldTable_data()
{
    eachOldForm();
}

void tst_StoreSchemaUpgrade::statementsThatUpgradeAnOldTable()
{
    QFETCH(QString, table);
    QFETCH(QStringList, columns);
    QStringList expected;
    for (const QString &text : missingFrom(columns, expectedTable(table).later))
        expected.append("ALTER TABLE " + table + " ADD " + text);

    SchemaFile store;
    store.run({expectedTable(table).createSql(columns)});
    QVERIFY(store.openForSignIn());
    QCOMPARE(store.writesOf(expectedTable(table).creator).filter("ALTER"), expected);
    QCOMPARE(store.writesOf(expectedTable(table).creator), QStringList());
}

void tst_StoreSchemaUpgrade::missingTablesJoinAnOldFile()
{
    SchemaFile store;
    store.run(oldest("mucmembers"));
    QVERIFY(store.openTwice());
    QStringList names("mucmembers");
    for (const ExpectedTable &table : expectedTables()) {
        if (table.name != "mucmembers")
            names.append(table.name);
    }
    QCOMPARE(store.tables(), names);
}

void tst_StoreSchemaUpgrade::foreignColumnsTablesAndIndexesStay()
{
    const QStringList statements = {
        "CREATE TABLE message_session (sessionId INTEGER primary key, mine TEXT default 'x')",
        "CREATE INDEX message_session_mine on message_session(mine)", "CREATE TABLE friendlist (a, b)"};
    SchemaFile store;
    store.run(statements + QStringList{"insert into message_session (sessionId) values (7)",
                                       "insert into friendlist values (1, 2)"});
    QVERIFY(store.openTwice());
    QCOMPARE(store.storedSql("message_session"),
             QString("CREATE TABLE message_session (sessionId INTEGER primary key, mine TEXT default 'x', recall TEXT, "
                     "noticeid VARCHAR(100), noticestatus INT)"));
    QCOMPARE(store.storedSql("message_session_mine"), statements[1]);
    QCOMPARE(store.storedSql("friendlist"), statements[2]);
    QCOMPARE(store.rows("select * from friendlist"), QStringList("1|2"));
    QCOMPARE(store.rows("select sessionId, mine, quote(recall) from message_session"), QStringList("7|x|NULL"));
}

void tst_StoreSchemaUpgrade::oldMessagesLoseTheirOldIndexesAndGainTheCompositeOnes()
{
    SchemaFile store;
    store.run(oldest("msgrecord") + QStringList{"CREATE INDEX msgrecord_index1 on msgrecord(unique_jid)",
                                                "CREATE INDEX msgrecord_index2 on msgrecord(ztime)",
                                                "CREATE INDEX msgrecord_index3 on msgrecord(messageid)",
                                                "CREATE INDEX msgrecord_index_sqeuenceId on msgrecord(burnFlag)"});
    QVERIFY(store.open());
    QCOMPARE(store.indexesOf("msgrecord"), expectedTable("msgrecord").indexNames());
    for (const ExpectedIndex &index : expectedTable("msgrecord").indexes)
        QCOMPARE(store.storedSql(index.name), expectedTable("msgrecord").indexSql(index));
    QCOMPARE(store.rows("PRAGMA integrity_check"), QStringList("ok"));
}

void tst_StoreSchemaUpgrade::oldMessagesWithoutIndexesGetOnlyTheCompositeOnes()
{
    SchemaFile store;
    store.run(oldest("msgrecord"));
    QVERIFY(store.openTwice());
    QCOMPARE(store.indexesOf("msgrecord"),
             QStringList({"msgrecord_index_uniquejid_sequenceId", "msgrecord_index_uniquejid_time"}));
}

void tst_StoreSchemaUpgrade::changeOfMessageIndexesRidesOnTheSequenceColumn()
{
    SchemaFile store;
    const ExpectedTable &messages = expectedTable("msgrecord");
    store.run(
        {messages.createSql(without(messages.columns, "atlist")), "CREATE INDEX msgrecord_index2 on msgrecord(ztime)"});
    QVERIFY(store.openTwice());
    QVERIFY(store.columnsOf("msgrecord").contains(columnInfo("atlist TEXT")));
    QCOMPARE(store.indexesOf("msgrecord"), QStringList({"msgrecord_index2", "msgrecord_index_uniquejid_sequenceId"}));
}

void tst_StoreSchemaUpgrade::misspelledMessageIndexIsDroppedAtEachOpen()
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

void tst_StoreSchemaUpgrade::sequenceIndexIsMadeAtEachOpenThatFindsItMissing()
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

void tst_StoreSchemaUpgrade::statementsOfAMessageUpgrade()
{
    SchemaFile store;
    store.run(oldest("msgrecord") + QStringList{"CREATE INDEX msgrecord_index2 on msgrecord(ztime)",
                                                "CREATE INDEX msgrecord_index_sqeuenceId on msgrecord(burnFlag)"});
    QVERIFY(store.openForSignIn());
    QCOMPARE(store.writesOf(&DB::createMessageTable),
             QStringList({"ALTER TABLE msgrecord ADD atlist TEXT", "ALTER TABLE msgrecord ADD sequenceId INT64",
                          "DROP INDEX msgrecord_index2;",
                          "CREATE INDEX msgrecord_index_uniquejid_time on msgrecord(unique_jid,ztime)",
                          "DROP INDEX msgrecord_index_sqeuenceId;",
                          "CREATE INDEX msgrecord_index_uniquejid_sequenceId on msgrecord(unique_jid,sequenceId)"}));
}

void tst_StoreSchemaUpgrade::roomIndexIsMadeAlsoWhenNoColumnIsMissing_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<QStringList>("columns");
    for (const QString &table : {QString("mucrecord"), QString("mucmembers")}) {
        QTest::addRow("%s up to date", qPrintable(table)) << table << expectedTable(table).columns;
        QTest::addRow("%s of the oldest form", qPrintable(table)) << table << expectedTable(table).oldestColumns();
    }
}

void tst_StoreSchemaUpgrade::roomIndexIsMadeAlsoWhenNoColumnIsMissing()
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

void tst_StoreSchemaUpgrade::existenceOfARoomIsNotConfusedWithItsLocalOne()
{
    SchemaFile store;
    store.run({"CREATE TABLE mucrecord (roomJid VARCHAR(100), localExist VARCHAR(1))"});
    QVERIFY(store.open());
    QVERIFY(DB::isExistFiled("mucrecord", "isExist"));
    QCOMPARE(store.columnsOf("mucrecord").mid(0, 3),
             QStringList({columnInfo("roomJid VARCHAR(100)"), columnInfo("localExist VARCHAR(1)"),
                          columnInfo("isExist VARCHAR(1)")}));
}

void tst_StoreSchemaUpgrade::sessionOrderComesOnItsOwnTest()
{
    SchemaFile store;
    store.run(oldest("unclosesession"));
    QVERIFY(store.openTwice());
    QCOMPARE(store.storedSql("unclosesessionorder"), expectedTable("unclosesessionorder").createSql());
    QCOMPARE(store.rows("select Jid from unclosesession order by rowid"),
             QStringList({"first Jid", "Jid 第二", "alone"}));
}

void tst_StoreSchemaUpgrade::openSessionsComeWhereOnlyTheirOrderIsThere()
{
    SchemaFile store;
    store.run(oldest("unclosesessionorder"));
    QVERIFY(store.openTwice());
    QCOMPARE(store.storedSql("unclosesession"), expectedTable("unclosesession").createSql());
    QCOMPARE(store.rows("select count(*) from unclosesessionorder"), QStringList("3"));
}

void tst_StoreSchemaUpgrade::localServiceNumbersAreNeverAltered()
{
    const QStringList columns = expectedTable("servicenumber").oldestColumns();
    const QString sql = expectedTable("localservicenumber").createSql(columns);
    SchemaFile store;
    store.run(oldest("servicenumber") + QStringList(sql) + insertRows("localservicenumber", columns));
    QVERIFY(store.openTwice());
    QCOMPARE(store.columnsOf("servicenumber").size(), 14);
    QCOMPARE(store.storedSql("localservicenumber"), sql);
    QCOMPARE(store.rows("select count(*) from localservicenumber"), QStringList("3"));
}

void tst_StoreSchemaUpgrade::localServiceNumbersComeBesideOldServiceNumbers()
{
    SchemaFile store;
    store.run({expectedTable("servicenumber").createSql(expectedTable("servicenumber").oldestColumns())});
    QVERIFY(store.openForSignIn());
    QStringList statements;
    for (const QString &text : expectedTable("servicenumber").later)
        statements.append("ALTER TABLE servicenumber ADD " + text);
    statements.append(expectedTable("localservicenumber").createSql());
    QCOMPARE(store.writesOf(&DB::createServiceTable), statements);
}

void tst_StoreSchemaUpgrade::oldApplicationsReadZeroInTheDeletionMark()
{
    SchemaFile store;
    store.run(oldest("appnumbernew"));
    QVERIFY(store.openTwice());
    store.run({"insert into appnumbernew (appcode) values ('new')"});
    QCOMPARE(store.rows("select quote(isdelete) from appnumbernew"), QStringList({"0", "0", "0", "0"}));
}

void tst_StoreSchemaUpgrade::dingFilesNeverJoinAnOldFile()
{
    SchemaFile store;
    store.run(oldest("dingmsginfo"));
    for (int i = 0; i < 3; ++i) {
        QVERIFY(store.open());
        DB::closeDB();
        QVERIFY(!store.tables().contains("dingsmsgfileoinfo"));
        QCOMPARE(store.indexesOf("dingmsginfo"), QStringList());
    }
}

void tst_StoreSchemaUpgrade::dingFilesAreKeptWhenTheirMessagesAreMadeAnew()
{
    SchemaFile store;
    store.run(oldest("dingsmsgfileoinfo"));
    QVERIFY(store.openTwice());
    QCOMPARE(store.rows("select count(*) from dingsmsgfileoinfo"), QStringList("3"));
    QCOMPARE(store.storedSql("dingmsginfo"), expectedTable("dingmsginfo").createSql());
    QCOMPARE(store.indexesOf("dingmsginfo"), expectedTable("dingmsginfo").indexNames());
}

void tst_StoreSchemaUpgrade::lastTimeIsSeededOnlyWithItsTable()
{
    SchemaFile store;
    store.run({expectedTable("last_time").createSql()});
    QVERIFY(store.openTwice());
    QCOMPARE(store.rows("select count(*) from last_time"), QStringList("0"));
    store.run({"insert into last_time values ('all_session', '1700000000')"});
    QVERIFY(store.openTwice());
    QCOMPARE(store.rows("select * from last_time"), QStringList("all_session|1700000000"));
}

// Deliberate: the test for a column is a search in the stored text, without regard to case.
void tst_StoreSchemaUpgrade::aColumnIsTakenForThereWhenItsNameStandsInAnother_data()
{
    QTest::addColumn<QString>("sql");
    QTest::newRow("another case") << "CREATE TABLE mucmembers (roomJid, memberJid, MucSignature)";
    QTest::newRow("part of a longer name") << "CREATE TABLE mucmembers (roomJid, memberJid, mymucsignatures)";
    QTest::newRow("a default value") << "CREATE TABLE mucmembers (roomJid, memberJid, a default 'mucsignature')";
}

void tst_StoreSchemaUpgrade::aColumnIsTakenForThereWhenItsNameStandsInAnother()
{
    QFETCH(QString, sql);
    SchemaFile store;
    store.run({sql});
    QVERIFY(store.openTwice());
    QCOMPARE(store.storedSql("mucmembers"), sql);
}

QTEST_GUILESS_MAIN(tst_StoreSchemaUpgrade)
#include "tst_StoreSchemaUpgrade.moc"
