#include "store/SchemaFile.h"

#include <QFileInfo>
#include <QSqlDriver>

#include <sqlite3.h>

namespace {

using Note = int (*)(unsigned, void *, void *, void *);

int noteWrite(unsigned, void *list, void *statement, void *)
{
    const QString text = QString::fromUtf8(sqlite3_sql(static_cast<sqlite3_stmt *>(statement)));
    if (!text.startsWith("SELECT", Qt::CaseInsensitive)) {
        static_cast<QStringList *>(list)->append(text);
    }
    return 0;
}

QString textWithValues(void *statement)
{
    char *text = sqlite3_expanded_sql(static_cast<sqlite3_stmt *>(statement));
    QString copy = QString::fromUtf8(text);
    sqlite3_free(text);
    return copy;
}

int noteStatement(unsigned, void *list, void *statement, void *)
{
    static_cast<QStringList *>(list)->append(textWithValues(statement));
    return 0;
}

int noteBothTexts(unsigned, void *list, void *statement, void *)
{
    const QString text = QString::fromUtf8(sqlite3_sql(static_cast<sqlite3_stmt *>(statement)));
    const QString withValues = textWithValues(statement);
    static_cast<QStringList *>(list)->append(withValues == text ? text : text + " | " + withValues);
    return 0;
}

// As long as the program, as a connection may outlive the function that opened it.
QStringList &notedOnNewConnections()
{
    static QStringList statements;
    return statements;
}

int noteNewConnection(sqlite3 *pDatabase, char **, const struct sqlite3_api_routines *)
{
    return sqlite3_trace_v2(pDatabase, SQLITE_TRACE_STMT, &noteBothTexts, &notedOnNewConnections());
}

QStringList noted(Note note, void (*work)())
{
    const QSqlDatabase session = DB::getDB();
    const QVariant handle = session.driver()->handle();
    sqlite3 *pDatabase = *static_cast<sqlite3 *const *>(handle.constData());
    QStringList statements;
    sqlite3_trace_v2(pDatabase, SQLITE_TRACE_STMT, note, &statements);
    work();
    sqlite3_trace_v2(pDatabase, 0, nullptr, nullptr);
    return statements;
}

} // namespace

bool SchemaFile::openForSignIn() const
{
    return DB::initByUserName(QFileInfo(folder()).fileName(), base(), false);
}

bool SchemaFile::openTwice() const
{
    const bool first = open();
    DB::closeDB();
    const bool second = open();
    DB::closeDB();
    return first && second && messages.warnings.isEmpty();
}

void SchemaFile::run(const QStringList &statements) const
{
    if (!QFileInfo::exists(file())) {
        make({});
    }
    BesideFile beside(file());
    for (const QString &statement : statements) {
        if (!beside.run(statement)) {
            qFatal("this statement fails: %s", qPrintable(statement));
        }
    }
}

QStringList SchemaFile::rows(const QString &statement) const
{
    return BesideFile(file()).rows(statement);
}

QStringList SchemaFile::tables() const
{
    return rows("select name from sqlite_master where type = 'table' order by rowid");
}

QStringList SchemaFile::columnsOf(const QString &table) const
{
    return rows("select name, type, \"notnull\", quote(dflt_value), pk from pragma_table_info('" + table +
                "') order by cid");
}

QStringList SchemaFile::indexesOf(const QString &table) const
{
    return rows("select name from pragma_index_list('" + table + "') where origin = 'c' order by name");
}

QString SchemaFile::storedSql(const QString &name) const
{
    return rows("select sql from sqlite_master where name = '" + name + "'").value(0);
}

QStringList SchemaFile::schema() const
{
    return rows("select type, name, tbl_name, sql from sqlite_master order by rowid") + rows("PRAGMA schema_version");
}

QByteArray SchemaFile::bytes() const
{
    QFile store(file());
    if (!store.open(QIODevice::ReadOnly)) {
        qFatal("cannot read %s", qPrintable(file()));
    }
    return store.readAll();
}

QStringList SchemaFile::writesOf(void (*work)())
{
    return noted(&noteWrite, work);
}

QStringList SchemaFile::statementsOf(void (*work)())
{
    return noted(&noteStatement, work);
}

QStringList SchemaFile::statementsOfNewConnections(const std::function<void()> &work)
{
    const auto hook = reinterpret_cast<void (*)()>(&noteNewConnection);
    notedOnNewConnections().clear();
    sqlite3_auto_extension(hook);
    work();
    sqlite3_cancel_auto_extension(hook);
    return notedOnNewConnections();
}
