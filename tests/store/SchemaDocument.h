#pragma once

// The document for readers of the file, docs/store-schema.md, read as a schema: a section "### name" a table, in it a
// row a column and a row an index.

#include <QString>
#include <QStringList>
#include <QVector>

/// One index: its name and what stands between the brackets.
struct ExpectedIndex
{
    QString name;
    QString columns;
};

/// One table as the document tells it.
struct DocumentedTable
{
    QString name;
    /// The columns of a fresh table: name, a blank, the definition.
    QStringList columns;
    /// What older tables gain, in the order in which it is added: the exact text behind ADD.
    QStringList later;
    QVector<ExpectedIndex> indexes;
};

/// What a document says.
struct SchemaDocument
{
    /// The tables in the document's order, each as far as its section is understood.
    QVector<DocumentedTable> tables;
    /// The rows and sections that say nothing or contradict themselves.
    QStringList complaints;
};

/// The text of docs/store-schema.md; empty when it cannot be read.
QString schemaDocumentText();
SchemaDocument readSchemaDocument(const QString &text);

/// The first word of a column's line.
QString columnName(const QString &column);

/// What PRAGMA table_info says of a column's line: name, type, not null, default as SQL, place in the primary key;
/// empty for a text that is no column.
QString columnInfo(const QString &column);
