#include "store/SchemaFixture.h"

#include "model/SharedContext.h"
#include "store/DB.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlDriver>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>

#include <sqlite3.h>

namespace {

const QString kUser = "anna";
const QString kConnection = "beside the session";

// A connection to the file for the time of one call.
class Connection
{
public:
    explicit Connection(const QString &file)
    {
        QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE", kConnection);
        database.setDatabaseName(file);
        if (!database.open())
            qFatal("cannot open %s", qPrintable(file));
    }
    ~Connection() { QSqlDatabase::removeDatabase(kConnection); }
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;

    QVector<QStringList> rows(const QString &statement) const
    {
        QSqlQuery query(QSqlDatabase::database(kConnection));
        if (!query.exec(statement))
            qFatal("%s: %s", qPrintable(statement), qPrintable(query.lastError().text()));
        QVector<QStringList> all;
        while (query.next()) {
            QStringList row;
            for (int i = 0; i < query.record().count(); ++i)
                row.append(query.value(i).toString());
            all.append(row);
        }
        return all;
    }
};

int noteStatement(unsigned, void *list, void *statement, void *)
{
    const QString text = QString::fromUtf8(sqlite3_sql(static_cast<sqlite3_stmt *>(statement)));
    if (!text.startsWith("SELECT", Qt::CaseInsensitive))
        static_cast<QStringList *>(list)->append(text);
    return 0;
}

} // namespace

SchemaFixture::SchemaFixture()
{
    SharedContext::setCommonData(&context);
}

SchemaFixture::~SchemaFixture()
{
    DB::closeDB();
    SharedContext::setCommonData(nullptr);
}

bool SchemaFixture::open(bool createAll)
{
    return DB::initByUserName(kUser, m_folder.path(), createAll);
}

void SchemaFixture::close()
{
    DB::closeDB();
}

bool SchemaFixture::openTwice()
{
    const bool first = open();
    close();
    const bool second = open();
    close();
    return first && second;
}

void SchemaFixture::run(const QStringList &statements)
{
    QDir().mkpath(QFileInfo(file()).path());
    const Connection connection(file());
    for (const QString &statement : statements)
        connection.rows(statement);
}

QVector<QStringList> SchemaFixture::rows(const QString &statement)
{
    return Connection(file()).rows(statement);
}

QStringList SchemaFixture::column(const QString &statement)
{
    QStringList first;
    for (const QStringList &row : rows(statement))
        first.append(row.first());
    return first;
}

QStringList SchemaFixture::tables()
{
    return column("select name from sqlite_master where type = 'table' order by rowid");
}

QStringList SchemaFixture::columnsOf(const QString &table)
{
    return column("select name || '|' || type || '|' || \"notnull\" || '|' || quote(dflt_value) || '|' || pk"
                  " from pragma_table_info('" +
                  table + "') order by cid");
}

QStringList SchemaFixture::indexesOf(const QString &table)
{
    return column("select name from pragma_index_list('" + table + "') where origin = 'c' order by name");
}

QString SchemaFixture::storedSql(const QString &name)
{
    return column("select sql from sqlite_master where name = '" + name + "'").value(0);
}

QStringList SchemaFixture::schema()
{
    return column("select type || '|' || name || '|' || tbl_name || '|' || coalesce(sql, '') from sqlite_master"
                  " order by rowid") +
           column("PRAGMA schema_version");
}

QByteArray SchemaFixture::bytes() const
{
    QFile store(file());
    if (!store.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(file()));
    return store.readAll();
}

QStringList SchemaFixture::writesOf(void (*work)())
{
    const QSqlDatabase session = DB::getDB();
    const QVariant handle = session.driver()->handle();
    sqlite3 *pDatabase = *static_cast<sqlite3 *const *>(handle.constData());
    QStringList statements;
    sqlite3_trace_v2(pDatabase, SQLITE_TRACE_STMT, &noteStatement, &statements);
    work();
    sqlite3_trace_v2(pDatabase, 0, nullptr, nullptr);
    return statements;
}

QString SchemaFixture::file() const
{
    return m_folder.path() + "/" + kUser + "/localData.db";
}
