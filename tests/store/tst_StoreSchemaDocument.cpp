// The document for readers of the file tells the schema as it is.

#include "store/ExpectedSchema.h"

#include <QFile>
#include <QRegularExpression>
#include <QTest>

Q_DECLARE_METATYPE(ExpectedTable)

namespace {

QVector<ExpectedTable> allTables()
{
    return expectedTables() + QVector<ExpectedTable>{expectedDingVersionTable()};
}

// The row of the document that begins with a column's name, type and place among the later ones.
QString documentRow(const ExpectedTable &table, const QString &column)
{
    const QString type = column.section(' ', 1);
    QString row = "| " + columnName(column) + " | " + type + " |";
    if (table.later.isEmpty()) {
        return row;
    }
    for (int i = 0; i < table.later.size(); ++i) {
        if (columnName(table.later[i]) != columnName(column)) {
            continue;
        }
        const QString added = table.later[i].section(' ', 1).trimmed();
        return row + ' ' + QString::number(i + 1) + (added == type ? QString() : ", as `" + added + '`') + " |";
    }
    return row + " |";
}

} // namespace

class tst_StoreSchemaDocument : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QFile document(VOIP_SCHEMA_DOCUMENT);
        QVERIFY(document.open(QIODevice::ReadOnly));
        m_lines = QString::fromUtf8(document.readAll()).split('\n');
    }

    void tellsEachTableColumnByColumn_data() { eachTable(); }

    void tellsEachTableColumnByColumn()
    {
        QFETCH(ExpectedTable, table);
        QStringList rows;
        for (const QString &line : sectionOf(table.name)) {
            if (line.startsWith("| ") && !line.startsWith("| `") && !line.startsWith("| column ") &&
                !line.startsWith("| index ")) {
                rows.append(line);
            }
        }
        QCOMPARE(rows.size(), table.columns.size());
        for (int i = 0; i < rows.size(); ++i) {
            const QString expected = documentRow(table, table.columns[i]);
            QCOMPARE(rows[i].left(expected.size()), expected);
        }
    }

    void tellsTheIndexes_data() { eachTable(); }

    void tellsTheIndexes()
    {
        QFETCH(ExpectedTable, table);
        QStringList expected;
        for (const ExpectedIndex &index : table.indexes) {
            expected.append("| `" + index.name + "` | " + QString(index.columns).replace(",", ", ") + " |");
        }
        QStringList rows;
        for (const QString &line : sectionOf(table.name)) {
            if (line.startsWith("| `")) {
                rows.append(line);
            }
        }
        QCOMPARE(rows, expected);
    }

    void tellsNoOtherTable() { QCOMPARE(m_lines.filter(QRegularExpression("^### ")).size(), allTables().size()); }

private:
    void eachTable()
    {
        QTest::addColumn<ExpectedTable>("table");
        for (const ExpectedTable &table : allTables()) {
            QTest::newRow(qPrintable(table.name)) << table;
        }
    }

    QStringList sectionOf(const QString &table) const
    {
        QStringList section;
        for (int i = m_lines.indexOf("### " + table) + 1; i > 0 && i < m_lines.size() && !m_lines[i].startsWith('#');
             ++i) {
            section.append(m_lines[i]);
        }
        return section;
    }

    QStringList m_lines;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_StoreSchemaDocument, Appless)
#include "tst_StoreSchemaDocument.moc"
