#pragma once

// Tables of files that earlier releases wrote, as statements that make them.

#include "store/ExpectedSchema.h"

/// Two rows with a text of their own in every column, and one with nothing but its first column.
inline QStringList insertRows(const QString &table, const QStringList &columns)
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

/// The lines of `columns` but that of the column with this name.
inline QStringList columnsWithout(const QStringList &columns, const QString &name)
{
    QStringList rest;
    for (const QString &column : columns) {
        if (columnName(column) != name) {
            rest.append(column);
        }
    }
    return rest;
}

/// The statements for a table of the oldest form.
inline QStringList oldestTable(const QString &table)
{
    const ExpectedTable &expected = expectedTable(table);
    return QStringList(expected.createSql(expected.oldestColumns())) + insertRows(table, expected.oldestColumns());
}
