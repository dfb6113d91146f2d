// The document for readers of the file tells the schema as it is.

#include "store/ExpectedSchema.h"

#include <QFile>
#include <QRegularExpression>
#include <QTest>

Q_DECLARE_METATYPE(ExpectedTable)

class tst_StoreSchemaDocument : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void tellsEachTableColumnByColumn_data();
    void tellsEachTableColumnByColumn();
    void tellsTheIndexes_data();
    void tellsTheIndexes();
    void tellsNoOtherTable();

private:
    void eachTable();
    QStringList sectionOf(const QString &table) const;

    QStringList m_lines;
};

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
    if (table.later.isEmpty())
        return row;
    for (int i = 0; i < table.later.size(); ++i) {
        if (columnName(table.later[i]) != columnName(column))
            continue;
        const QString added = table.later[i].section(' ', 1).trimmed();
        return row + ' ' + QString::number(i + 1) + (added == type ? QString() : ", as `" + added + '`') + " |";
    }
    return row + " |";
}

} // namespace

void tst_StoreSchemaDocument::initTestCase()
{
    QFile document(VOIP_SCHEMA_DOCUMENT);
    QVERIFY(document.open(QIODevice::ReadOnly));
    m_lines = QString::fromUtf8(document.readAll()).split('\n');
}

void tst_StoreSchemaDocument::eachTable()
{
    QTest::addColumn<ExpectedTable>("table");
    for (const ExpectedTable &table : allTables())
        QTest::newRow(qPrintable(table.name)) << table;
}

QStringList tst_StoreSchemaDocument::sectionOf(const QString &table) const
{
    QStringList section;
    for (int i = m_lines.indexOf("### " + table) + 1; i > 0 && i < m_lines.size() && !m_lines[i].startsWith('#'); ++i)
        section.append(m_lines[i]);
    return section;
}

void tst_StoreSchemaDocument::tellsEachTableColumnByColumn_data()
{
    eachTable();
}

void tst_StoreSchemaDocument::tellsEachTableColumnByColumn()
{
    QFETCH(ExpectedTable, table);
    QStringList rows;
    for (const QString &line : sectionOf(table.name)) {
        if (line.startsWith("| ") && !line.startsWith("| `") && !line.startsWith("| column ") &&
            !line.startsWith("| index "))
            rows.append(line);
    }
    QCOMPARE(rows.size(), table.columns.size());
    for (int i = 0; i < rows.size(); ++i) {
        const QString expected = documentRow(table, table.columns[i]);
        QCOMPARE(rows[i].left(expected.size()), expected);
    }
}

void tst_StoreSchemaDocument::tellsTheIndexes_data()
{
    eachTable();
}

void tst_StoreSchemaDocument::tellsTheIndexes()
{
    QFETCH(ExpectedTable, table);
    QStringList expected;
    for (const ExpectedIndex &index : table.indexes)
        expected.append("| `" + index.name + "` | " + QString(index.columns).replace(",", ", ") + " |");
    QStringList rows;
    for (const QString &line : sectionOf(table.name)) {
        if (line.startsWith("| `"))
            rows.append(line);
    }
    QCOMPARE(rows, expected);
}

void tst_StoreSchemaDocument::tellsNoOtherTable()
{
    QCOMPARE(m_lines.filter(QRegularExpression("^### ")).size(), allTables().size());
}

#include "support/TestProgram.h"
VOIP_TEST(tst_StoreSchemaDocument, Appless)
#include "tst_StoreSchemaDocument.moc"
