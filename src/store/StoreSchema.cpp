#include "store/StoreSchema.h"

#include "store/DB.h"
#include "store/StoreOpening.h"

#include <QSqlQuery>
#include <QStringList>

#include <algorithm>

namespace {

const StoreColumn *columnAddedAs(const StoreTable &table, int added)
{
    const auto *found = std::find_if(table.columns.begin(), table.columns.end(),
                                     [added](const StoreColumn &column) { return column.added == added; });
    return found == table.columns.end() ? nullptr : found;
}

} // namespace

bool StoreSchema::run(const QString &statement)
{
    if (!DB::m_db.isOpen()) {
        return false;
    }
    QSqlQuery query(DB::m_db);
    const bool bDone = StoreOpening::execute(query, statement);
    query.clear();
    return bDone;
}

bool StoreSchema::exists(const StoreTable &table)
{
    return DB::isExistTable(table.name);
}

bool StoreSchema::create(const StoreTable &table)
{
    QStringList definitions;
    for (const StoreColumn &column : table.columns) {
        definitions.append(QStringLiteral("%1 %2").arg(column.name, column.type));
    }
    return run(QStringLiteral("CREATE TABLE %1(%2)").arg(table.name, definitions.join(QStringLiteral(", "))));
}

bool StoreSchema::addIfMissing(const StoreTable &table, int added)
{
    const StoreColumn *column = columnAddedAs(table, added);
    if (!column || DB::isExistFiled(table.name, column->name)) {
        return false;
    }
    run(QStringLiteral("ALTER TABLE %1 ADD %2 %3").arg(table.name, column->name, column->alter));
    return true;
}

void StoreSchema::addLaterColumns(const StoreTable &table)
{
    for (int added = 1; columnAddedAs(table, added); ++added) {
        addIfMissing(table, added);
    }
}

void StoreSchema::createIndex(const StoreTable &table, const StoreIndex &index)
{
    run(QStringLiteral("CREATE INDEX %1%2 on %1(%3)").arg(table.name, index.suffix, index.columns));
}

void StoreSchema::createMissingIndexes(const StoreTable &table)
{
    for (const StoreIndex &index : table.indexes) {
        if (!DB::isExistIndex(table.name, index.suffix)) {
            createIndex(table, index);
        }
    }
}

void StoreSchema::createOrUpgrade(const StoreTable &table)
{
    if (exists(table)) {
        addLaterColumns(table);
    } else {
        create(table);
    }
}
