// The local store: opening a file that is up to date, at 0 and 100,000 rows, making a fresh one, saving and listing
// conference records. Beside each the same statements through SQLite's C interface, and through bare QSqlQuery. What an
// open asks of SQLite is taken down once and played back, so that the peer does what the store does at any time.

#include "model/SharedContext.h"
#include "store/DB.h"
#include "store/DBConfInfo.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QVariant>

#include <benchmark/benchmark.h>
#include <sqlite3.h>

namespace {

const QString cUser = QStringLiteral("user");

QString baseOf(const QString &name)
{
    return QDir::current().absoluteFilePath(name);
}

QString fileOf(const QString &base)
{
    return base + QLatin1Char('/') + cUser + QStringLiteral("/localData.db");
}

ConfInfoData recordOf(int number)
{
    ConfInfoData record;
    record.m_strConfID = QStringLiteral("conf%1").arg(number, 7, 10, QLatin1Char('0'));
    record.m_strCreatUserID = QStringLiteral("30010001");
    record.m_strCreatTime = QStringLiteral("2024-03-01 10:11:12");
    record.m_strCallTime = QString::number(number);
    for (int i = 0; i < 8; ++i) {
        record.m_listMember.append(QString::number(30010000 + number + i));
    }
    record.m_bIsConnect = true;
    return record;
}

// The statements of each connection made while a recording is on.
std::vector<std::string> *g_statements = nullptr;

int noteStatement(unsigned, void *, void *statement, void *)
{
    if (g_statements) {
        char *text = sqlite3_expanded_sql(static_cast<sqlite3_stmt *>(statement));
        g_statements->emplace_back(text);
        sqlite3_free(text);
    }
    return 0;
}

int watchConnection(sqlite3 *db, const char **, const sqlite3_api_routines *)
{
    return g_statements ? sqlite3_trace_v2(db, SQLITE_TRACE_STMT, noteStatement, nullptr) : SQLITE_OK;
}

/// What an open of that user's store asks.
std::vector<std::string> statementsOfOpen(const QString &base)
{
    std::vector<std::string> statements;
    g_statements = &statements;
    DB::initByUserName(cUser, base, true);
    g_statements = nullptr;
    DB::closeDB();
    return statements;
}

sqlite3 *openBare(const QString &file)
{
    sqlite3 *db = nullptr;
    sqlite3_open(QFile::encodeName(file).constData(), &db);
    return db;
}

void runBare(sqlite3 *db, const std::vector<std::string> &statements)
{
    for (const std::string &text : statements) {
        sqlite3_exec(db, text.c_str(), nullptr, nullptr, nullptr);
    }
}

void bindText(sqlite3_stmt *statement, int place, const QString &text)
{
    sqlite3_bind_text16(statement, place, text.utf16(), text.size() * int(sizeof(QChar)), SQLITE_TRANSIENT);
}

void saveBare(sqlite3 *db, const ConfInfoData &record)
{
    const QByteArray look =
        "SELECT ConfID FROM voipConferenceInfo WHERE ConfID = '" + record.m_strConfID.toUtf8() + '\'';
    sqlite3_stmt *statement = nullptr;
    sqlite3_prepare_v2(db, look.constData(), -1, &statement, nullptr);
    const bool known = sqlite3_step(statement) == SQLITE_ROW;
    sqlite3_finalize(statement);
    if (known) {
        return;
    }
    sqlite3_prepare_v2(db,
                       "INSERT INTO voipConferenceInfo (ConfID,CreatUserID,CreatTime,CallTime,MemberList,IsConnect) "
                       "VALUES (?, ?, ?, ?, ?, ?)",
                       -1, &statement, nullptr);
    bindText(statement, 1, record.m_strConfID);
    bindText(statement, 2, record.m_strCreatUserID);
    bindText(statement, 3, record.m_strCreatTime);
    bindText(statement, 4, record.m_strCallTime);
    bindText(statement, 5, record.m_listMember.join(QLatin1Char(',')) + QLatin1Char(','));
    sqlite3_bind_int(statement, 6, record.m_bIsConnect ? 1 : 0);
    sqlite3_step(statement);
    sqlite3_finalize(statement);
}

QString textBare(sqlite3_stmt *statement, int column)
{
    return QString(static_cast<const QChar *>(sqlite3_column_text16(statement, column)),
                   sqlite3_column_bytes16(statement, column) / int(sizeof(QChar)));
}

QList<ConfInfoData> listBare(sqlite3 *db)
{
    QList<ConfInfoData> list;
    sqlite3_stmt *statement = nullptr;
    sqlite3_prepare_v2(db,
                       "SELECT ConfID,CreatUserID,CreatTime,CallTime,MemberList,IsConnect FROM voipConferenceInfo "
                       "ORDER BY ConfID DESC",
                       -1, &statement, nullptr);
    while (sqlite3_step(statement) == SQLITE_ROW) {
        ConfInfoData record;
        record.m_strConfID = textBare(statement, 0);
        record.m_strCreatUserID = textBare(statement, 1);
        record.m_strCreatTime = textBare(statement, 2);
        record.m_strCallTime = textBare(statement, 3);
        record.m_listMember = textBare(statement, 4).split(QLatin1Char(','), Qt::SkipEmptyParts);
        record.m_bIsConnect = sqlite3_column_int(statement, 5) == 1;
        list.append(record);
    }
    sqlite3_finalize(statement);
    return list;
}

/// The same through Qt's own driver, the least that a Qt program can do.
QList<ConfInfoData> listBareQuery(const QSqlDatabase &db)
{
    QList<ConfInfoData> list;
    QSqlQuery query(db);
    query.setForwardOnly(true);
    query.exec(QStringLiteral("SELECT ConfID,CreatUserID,CreatTime,CallTime,MemberList,IsConnect "
                              "FROM voipConferenceInfo ORDER BY ConfID DESC"));
    while (query.next()) {
        ConfInfoData record;
        record.m_strConfID = query.value(0).toString();
        record.m_strCreatUserID = query.value(1).toString();
        record.m_strCreatTime = query.value(2).toString();
        record.m_strCallTime = query.value(3).toString();
        record.m_listMember = query.value(4).toString().split(QLatin1Char(','), Qt::SkipEmptyParts);
        record.m_bIsConnect = query.value(5).toInt() == 1;
        list.append(record);
    }
    return list;
}

/// A connection of Qt's driver to that file, of the name "bare".
QSqlDatabase openedByQt(const QString &file)
{
    QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("bare"));
    db.setDatabaseName(file);
    db.open();
    return db;
}

void closeByQt(QSqlDatabase &db)
{
    db = QSqlDatabase();
    QSqlDatabase::removeDatabase(QStringLiteral("bare"));
}

/// The base folder of a store with that many records, made at the first call.
QString storeWith(int records)
{
    QString base = baseOf(QStringLiteral("with%1").arg(records));
    if (!QFile::exists(fileOf(base))) {
        DB::initByUserName(cUser, base, true);
        DB::closeDB();
        sqlite3 *db = openBare(fileOf(base));
        sqlite3_exec(db, "BEGIN", nullptr, nullptr, nullptr);
        for (int i = 0; i < records; ++i) {
            saveBare(db, recordOf(i));
        }
        sqlite3_exec(db, "COMMIT", nullptr, nullptr, nullptr);
        sqlite3_close(db);
    }
    return base;
}

/// A user's folder without a store in it.
QString emptyFolder()
{
    QString base = baseOf(QStringLiteral("fresh"));
    QFile::remove(fileOf(base));
    QDir().mkpath(base + QLatin1Char('/') + cUser);
    return base;
}

void openStore(benchmark::State &state)
{
    const QString base = storeWith(int(state.range(0)));
    for (auto _ : state) {
        DB::initByUserName(cUser, base, true);
        DB::closeDB();
    }
}
BENCHMARK(openStore)->Arg(0)->Arg(100000)->Unit(benchmark::kMillisecond);

void openBareSqlite(benchmark::State &state)
{
    const QString base = storeWith(int(state.range(0)));
    const std::vector<std::string> statements = statementsOfOpen(base);
    for (auto _ : state) {
        sqlite3 *db = openBare(fileOf(base));
        runBare(db, statements);
        sqlite3_close(db);
    }
    state.counters["statements"] = double(statements.size());
}
BENCHMARK(openBareSqlite)->Arg(0)->Arg(100000)->Unit(benchmark::kMillisecond);

void openBareQuery(benchmark::State &state)
{
    const QString base = storeWith(int(state.range(0)));
    QStringList statements;
    for (const std::string &text : statementsOfOpen(base)) {
        statements.append(QString::fromStdString(text));
    }
    for (auto _ : state) {
        QSqlDatabase db = openedByQt(fileOf(base));
        for (const QString &text : qAsConst(statements)) {
            QSqlQuery query(db);
            query.exec(text);
            query.next();
        }
        closeByQt(db);
    }
}
BENCHMARK(openBareQuery)->Arg(0)->Arg(100000)->Unit(benchmark::kMillisecond);

void createStore(benchmark::State &state)
{
    for (auto _ : state) {
        state.PauseTiming();
        const QString base = emptyFolder();
        state.ResumeTiming();
        DB::initByUserName(cUser, base, true);
        DB::closeDB();
    }
}
BENCHMARK(createStore)->Unit(benchmark::kMillisecond);

void createBareSqlite(benchmark::State &state)
{
    const std::vector<std::string> statements = statementsOfOpen(emptyFolder());
    for (auto _ : state) {
        state.PauseTiming();
        const QString base = emptyFolder();
        state.ResumeTiming();
        sqlite3 *db = openBare(fileOf(base));
        runBare(db, statements);
        sqlite3_close(db);
    }
    state.counters["statements"] = double(statements.size());
}
BENCHMARK(createBareSqlite)->Unit(benchmark::kMillisecond);

void saveRecords(benchmark::State &state)
{
    const auto count = int(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        DB::initByUserName(cUser, emptyFolder(), true);
        state.ResumeTiming();
        for (int i = 0; i < count; ++i) {
            DBConfInfo::saveConfInfo(recordOf(i));
        }
        state.PauseTiming();
        DB::closeDB();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * count);
}
BENCHMARK(saveRecords)->Arg(10000)->Arg(100000)->Iterations(1)->Unit(benchmark::kMillisecond);

void saveRecordsBareSqlite(benchmark::State &state)
{
    const auto count = int(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        const QString base = emptyFolder();
        DB::initByUserName(cUser, base, true);
        DB::closeDB();
        sqlite3 *db = openBare(fileOf(base));
        runBare(db, {"PRAGMA synchronous = OFF"});
        state.ResumeTiming();
        for (int i = 0; i < count; ++i) {
            saveBare(db, recordOf(i));
        }
        state.PauseTiming();
        sqlite3_close(db);
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * count);
}
BENCHMARK(saveRecordsBareSqlite)->Arg(10000)->Arg(100000)->Iterations(1)->Unit(benchmark::kMillisecond);

void listRecords(benchmark::State &state)
{
    DB::initByUserName(cUser, storeWith(int(state.range(0))), true);
    for (auto _ : state) {
        if (DBConfInfo::getAllConfInfo().size() != state.range(0)) {
            state.SkipWithError("records are missing");
            break;
        }
    }
    DB::closeDB();
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(listRecords)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

void listRecordsBareSqlite(benchmark::State &state)
{
    sqlite3 *db = openBare(fileOf(storeWith(int(state.range(0)))));
    for (auto _ : state) {
        if (listBare(db).size() != state.range(0)) {
            state.SkipWithError("records are missing");
            break;
        }
    }
    sqlite3_close(db);
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(listRecordsBareSqlite)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

void listRecordsBareQuery(benchmark::State &state)
{
    QSqlDatabase db = openedByQt(fileOf(storeWith(int(state.range(0)))));
    for (auto _ : state) {
        if (listBareQuery(db).size() != state.range(0)) {
            state.SkipWithError("records are missing");
            break;
        }
    }
    closeByQt(db);
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(listRecordsBareQuery)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    CommonData data;
    SharedContext::setCommonData(&data);
    sqlite3_auto_extension(reinterpret_cast<void (*)()>(watchConnection));

    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    SharedContext::setCommonData(nullptr);
    return 0;
}
