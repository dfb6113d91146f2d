#include "client/ContactSearch.h"

#include "common/text/ChineseSpell.h"

bool ContactSearch::finds(const ContactBook::Entry &entry, const QString &strText)
{
    const QString wanted = strText.trimmed();
    const auto has = [&](const QString &strWhere) { return strWhere.contains(wanted, Qt::CaseInsensitive); };
    return has(entry.uid) || (entry.known && (has(entry.nick) || has(ChineseSpell::toChineseSpell(entry.nick))));
}
