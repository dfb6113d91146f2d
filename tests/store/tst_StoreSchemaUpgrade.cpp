// What becomes of files of every age: each form of a table that files in the field have, with rows in it, gains the
// missing columns when it is opened, and nothing when it is opened again.

#include "store/DB.h"
#include "store/ExpectedSchema.h"
#include "store/OldTables.h"
#include "store/SchemaFile.h"

#include <QTest>

#include <algorithm>

namespace {

QString quotedColumns(const QStringList &columns)
{
    QStringList quoted;
    for (const QString &column : columns) {
        quoted.append("quote(" + columnName(column) + ")");
    }
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
        if (!there) {
            missing.append(text);
        }
    }
    return missing;
}

QString trimmedEnd(QString text)
{
    while (text.endsWith(' ')) {
        text.chop(1);
    }
    return text;
}

} // namespace

class tst_StoreSchemaUpgrade : public QObject
{
    Q_OBJECT

private slots:
    void columnsAndRowsOfAnOldTable_data() { eachOldForm(); }

    void columnsAndRowsOfAnOldTable()
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
        for (const QString &column : columns + missing) {
            infos.append(columnInfo(column));
        }
        for (const QString &column : missing) {
            sql += ", " + trimmedEnd(column);
        }
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

    void statementsThatUpgradeAnOldTable_data() { eachOldForm(); }

    void statementsThatUpgradeAnOldTable()
    {
        QFETCH(QString, table);
        QFETCH(QStringList, columns);
        QStringList expected;
        for (const QString &text : missingFrom(columns, expectedTable(table).later)) {
            expected.append("ALTER TABLE " + table + " ADD " + text);
        }

        SchemaFile store;
        store.run({expectedTable(table).createSql(columns)});
        QVERIFY(store.openForSignIn());
        QCOMPARE(store.writesOf(expectedTable(table).creator).filter("ALTER"), expected);
        QCOMPARE(store.writesOf(expectedTable(table).creator), QStringList());
    }

    void missingTablesJoinAnOldFile()
    {
        SchemaFile store;
        store.run(oldestTable("mucmembers"));
        QVERIFY(store.openTwice());
        QStringList names("mucmembers");
        for (const ExpectedTable &table : expectedTables()) {
            if (table.name != "mucmembers") {
                names.append(table.name);
            }
        }
        QCOMPARE(store.tables(), names);
    }

    void foreignColumnsTablesAndIndexesStay()
    {
        const QStringList statements = {
            "CREATE TABLE message_session (sessionId INTEGER primary key, mine TEXT default 'x')",
            "CREATE INDEX message_session_mine on message_session(mine)", "CREATE TABLE friendlist (a, b)"};
        SchemaFile store;
        store.run(statements + QStringList{"insert into message_session (sessionId) values (7)",
                                           "insert into friendlist values (1, 2)"});
        QVERIFY(store.openTwice());
        QCOMPARE(
            store.storedSql("message_session"),
            QString("CREATE TABLE message_session (sessionId INTEGER primary key, mine TEXT default 'x', recall TEXT, "
                    "noticeid VARCHAR(100), noticestatus INT)"));
        QCOMPARE(store.storedSql("message_session_mine"), statements[1]);
        QCOMPARE(store.storedSql("friendlist"), statements[2]);
        QCOMPARE(store.rows("select * from friendlist"), QStringList("1|2"));
        QCOMPARE(store.rows("select sessionId, mine, quote(recall) from message_session"), QStringList("7|x|NULL"));
    }

    // Deliberate: the test for a column is a search in the stored text, without regard to case.
    void aColumnIsTakenForThereWhenItsNameStandsInAnother_data()
    {
        QTest::addColumn<QString>("sql");
        QTest::newRow("another case") << "CREATE TABLE mucmembers (roomJid, memberJid, MucSignature)";
        QTest::newRow("part of a longer name") << "CREATE TABLE mucmembers (roomJid, memberJid, mymucsignatures)";
        QTest::newRow("a default value") << "CREATE TABLE mucmembers (roomJid, memberJid, a default 'mucsignature')";
    }

    void aColumnIsTakenForThereWhenItsNameStandsInAnother()
    {
        QFETCH(QString, sql);
        SchemaFile store;
        store.run({sql});
        QVERIFY(store.openTwice());
        QCOMPARE(store.storedSql("mucmembers"), sql);
    }

private:
    // The oldest form, that form with the first few later columns behind it, and a fresh one that lacks a single
    // column.
    void eachOldForm()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<QStringList>("columns");
        int forms = 0;
        for (const ExpectedTable &table : expectedTables()) {
            if (table.later.isEmpty()) {
                continue;
            }
            for (int there = 0; there < table.later.size(); ++there, ++forms) {
                QTest::addRow("%s with the first %d", qPrintable(table.name), there)
                    << table.name << table.oldestColumns() + table.later.mid(0, there);
            }
            for (const QString &text : table.later) {
                const QString name = columnName(text);
                QTest::addRow("%s without %s", qPrintable(table.name), qPrintable(name))
                    << table.name << columnsWithout(table.columns, name);
                ++forms;
            }
        }
        QCOMPARE(forms, 76);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_StoreSchemaUpgrade, Guiless)
#include "tst_StoreSchemaUpgrade.moc"
