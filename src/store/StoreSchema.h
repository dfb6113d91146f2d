#pragma once

// How a table of the store is described, and the statements that follow from a description. The descriptions stand in
// the Schema*.cpp files, one for each family of tables, a column a line; DB's creators beside them call the functions
// here. All of them work on the session connection, on its thread, and do nothing while it is not open.

#include <QString>

/// One column of a table.
struct StoreColumn
{
    const char *name;            ///< as it stands in the file
    const char *type;            ///< type text of a new table, its key words included
    int added = 0;               ///< 0: in the table from the first; n: the n-th of those that old files gain
    const char *alter = nullptr; ///< for those: the type text that an old table gains, to the last blank
};

/// One index of a table.
struct StoreIndex
{
    const char *suffix;  ///< what its name has behind the table's
    const char *columns; ///< comma-separated
};

/// The columns of the tables that hold one version for each account.
inline constexpr StoreColumn cVersionColumns[] = {
    {"myjid", "VARCHAR(20) PRIMARY KEY"},
    {"version", "VARCHAR(20)"},
};

/// The rows of a constant array.
template <typename Row>
struct StoreRows
{
    constexpr StoreRows() = default;
    template <int N>
    constexpr StoreRows(const Row (&rows)[N]) : first(rows), count(N)
    {
    }
    constexpr const Row *begin() const { return first; }
    constexpr const Row *end() const { return first + count; }

    const Row *first = nullptr;
    int count = 0;
};

/// One table. When and how its indexes are made is told by its creator.
struct StoreTable
{
    const char *name;
    StoreRows<StoreColumn> columns;  ///< in the order of a new table
    StoreRows<StoreIndex> indexes{}; ///< in the order of their making
};

namespace StoreSchema {

/// Executes one statement with a query of its own; false when it fails.
bool run(const QString &statement);

/// Whether the file has the table.
bool exists(const StoreTable &table);

/// CREATE TABLE with all columns, without the indexes; false when it fails.
bool create(const StoreTable &table);

/// ALTER TABLE for the column with that place in the order of adding, if the table lacks it; true when it did, whatever
/// became of the statement. False also when no column has that place.
bool addIfMissing(const StoreTable &table, int added);

/// The same for each later column, in the order of their adding.
void addLaterColumns(const StoreTable &table);

/// CREATE INDEX, also when there is one already: the statement then fails.
void createIndex(const StoreTable &table, const StoreIndex &index);

/// CREATE INDEX for each index that is missing.
void createMissingIndexes(const StoreTable &table);

/// Creates the table when it is missing, else adds its later columns; no index. What most tables need.
void createOrUpgrade(const StoreTable &table);

} // namespace StoreSchema
