#pragma once

// The schema of a user's store as files in the field have it, written down once more for the tests and on purpose not
// derived from the production description: a table a block, a column a line, in the order in which they are created.

#include "store/DB.h"

#include <QString>
#include <QStringList>
#include <QVector>

/// One index: its name and what stands between the brackets.
struct ExpectedIndex
{
    QString name;
    QString columns;
};

/// One table.
struct ExpectedTable
{
    QString name;
    /// The operation that creates it, alone or together with the table in front of it or behind it.
    void (*creator)();
    /// The columns of a fresh table: name, a blank, the definition.
    QStringList columns;
    /// What older tables gain, in the order in which it is added: the exact text behind ADD.
    QStringList later;
    QVector<ExpectedIndex> indexes;

    /// The text that a fresh file keeps of the table.
    QString createSql() const;
    /// The text that the file keeps of a table with only these of its columns.
    QString createSql(const QStringList &ofColumns) const;
    /// The statement that makes one of its indexes.
    QString indexSql(const ExpectedIndex &index) const;
    /// The names of its indexes, sorted.
    QStringList indexNames() const;
    /// The columns of the first release.
    QStringList oldestColumns() const;
};

/// All tables of a fresh file.
const QVector<ExpectedTable> &expectedTables();
/// The one of that name; it must be there.
const ExpectedTable &expectedTable(const QString &name);
/// The table that has a creator and is no part of a fresh file.
const ExpectedTable &expectedDingVersionTable();

/// The first word of a column's line.
QString columnName(const QString &column);
/// What PRAGMA table_info says of a column's line: name, type, not null, default as SQL, place in the primary key.
QString columnInfo(const QString &column);
