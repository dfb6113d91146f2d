// The document for readers of the file says a whole schema, and a row that says nothing does not pass for one.

#include "store/ExpectedSchema.h"

#include <QTest>

namespace {

QStringList namesOf(const SchemaDocument &document)
{
    QStringList names;
    for (const DocumentedTable &table : document.tables) {
        names.append(table.name);
    }
    names.sort();
    return names;
}

} // namespace

class tst_StoreSchemaDocument : public QObject
{
    Q_OBJECT

private slots:
    void saysSomethingInEachRow()
    {
        const SchemaDocument document = readSchemaDocument(schemaDocumentText());
        QCOMPARE(document.complaints, QStringList());
    }

    void tellsEachTableOnceAndNoOther()
    {
        QStringList names(expectedDingVersionTable().name);
        for (const ExpectedTable &table : expectedTables()) {
            names.append(table.name);
        }
        names.sort();
        QCOMPARE(namesOf(readSchemaDocument(schemaDocumentText())), names);
    }

    void countsTheTablesOfAFreshFile()
    {
        const QString sentence = "\nA fresh file has the %1 tables below, all but `%2`.\n";
        QVERIFY(
            schemaDocumentText().contains(sentence.arg(expectedTables().size()).arg(expectedDingVersionTable().name)));
    }

    void isReadRowByRow()
    {
        const SchemaDocument document = readSchemaDocument("| no | table |\n"
                                                           "### rooms\n"
                                                           "What is known.\n"
                                                           "\n"
                                                           "| column | type | added later | meaning |\n"
                                                           "|---|---|---|---|\n"
                                                           "| id | VARCHAR(20) PRIMARY KEY | | |\n"
                                                           "| mark | INT | 2, as `INT default 0` | a mark |\n"
                                                           "| text | TEXT | 1, as `TEXT ` | |\n"
                                                           "\n"
                                                           "| index | on |\n"
                                                           "|---|---|\n"
                                                           "| rooms_index | text, mark |\n"
                                                           "## More\n"
                                                           "### notes\n"
                                                           "| column | type |\n"
                                                           "|---|---|\n"
                                                           "| id | INT64 |\n");
        QCOMPARE(document.complaints, QStringList());
        QCOMPARE(document.tables.size(), 2);
        const DocumentedTable &rooms = document.tables.first();
        QCOMPARE(rooms.name, QString("rooms"));
        QCOMPARE(rooms.columns, QStringList({"id VARCHAR(20) PRIMARY KEY", "mark INT", "text TEXT"}));
        QCOMPARE(rooms.later, QStringList({"text TEXT ", "mark INT default 0"}));
        QCOMPARE(rooms.indexes.size(), 1);
        QCOMPARE(rooms.indexes.first().name, QString("rooms_index"));
        QCOMPARE(rooms.indexes.first().columns, QString("text,mark"));
        QCOMPARE(document.tables.last().name, QString("notes"));
        QCOMPARE(document.tables.last().columns, QStringList("id INT64"));
        QVERIFY(document.tables.last().later.isEmpty() && document.tables.last().indexes.isEmpty());
    }

    void aRowThatSaysNothingIsAComplaint_data()
    {
        QTest::addColumn<QString>("row");
        QTest::newRow("a cell missing") << "| b | INT |";
        QTest::newRow("a cell too many") << "| b | INT | | |";
        QTest::newRow("no bar at its end") << "| b | INT | 2";
        QTest::newRow("no name") << "| | INT | |";
        QTest::newRow("no type") << "| b | | |";
        QTest::newRow("a type in words") << "| b | a whole number | |";
        QTest::newRow("a column a second time") << "| A | INT | |";
        QTest::newRow("later at no place") << "| b | INT | yes |";
        QTest::newRow("later at place 0") << "| b | INT | 0 |";
        QTest::newRow("later at a place that is taken") << "| b | INT | 1 |";
        QTest::newRow("a gap behind the place before") << "| b | INT | 3 |";
        QTest::newRow("added as no type") << "| b | INT | 2, as `a whole number` |";
        QTest::newRow("an index without a name") << "\n| index | on |\n| | a |";
        QTest::newRow("an index on no column") << "\n| index | on |\n| t_index | b |";
        QTest::newRow("a table of another kind") << "\n| operation | makes |";
        QTest::newRow("a table without a column") << "\n### u\nNothing.";
    }

    void aRowThatSaysNothingIsAComplaint()
    {
        QFETCH(QString, row);
        const QString table = "### t\n| column | type | added later |\n|---|---|---|\n| a | INT | 1 |\n";
        QCOMPARE(readSchemaDocument(table).complaints, QStringList());
        QCOMPARE(readSchemaDocument(table + row).complaints.size(), 1);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_StoreSchemaDocument, Appless)
#include "tst_StoreSchemaDocument.moc"
