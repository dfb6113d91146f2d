#pragma once

// The schema of a user's store as files in the field have it: the tables that docs/store-schema.md tells, in the order
// in which they are created, each with the operation that creates it. On purpose not derived from the production
// description.

#include "store/DB.h"
#include "store/SchemaDocument.h"

/// One table.
struct ExpectedTable : DocumentedTable
{
    /// The operation that creates it, alone or together with the table in front of it or behind it.
    void (*creator)();

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
