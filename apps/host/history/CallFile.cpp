#include "history/CallFile.h"

#include "client/FileAside.h"

#include "store/SqliteCode.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

#include <algorithm>
#include <iterator>

namespace {

// How long a statement waits for another program, in milliseconds.
constexpr int cPatience = 1800;

constexpr const char *cFirstTable =
    "CREATE TABLE calls (id INTEGER PRIMARY KEY AUTOINCREMENT, begun INTEGER NOT NULL, seconds INTEGER NOT NULL, "
    "uid TEXT NOT NULL, members TEXT NOT NULL, outcome INTEGER NOT NULL, conference INTEGER NOT NULL, "
    "video INTEGER NOT NULL, caller INTEGER NOT NULL, connected INTEGER NOT NULL, seen INTEGER NOT NULL)";

/// What takes a file from a schema to the next: those of version n begin behind the n-th null.
constexpr const char *cSteps[] = {
    cFirstTable,
    nullptr,
    // The conferences that stand in the store: which of them have an entry here, or had one that was deleted.
    "ALTER TABLE calls ADD COLUMN confid TEXT NOT NULL DEFAULT ''",
    "CREATE TABLE conferences (confid TEXT PRIMARY KEY)",
    nullptr,
};

constexpr const char *cColumns = "id,begun,seconds,uid,members,outcome,conference,video,caller,connected,seen,confid";

/// The texts of a list in one, no user id has a line feed.
QString joined(const QStringList &texts)
{
    return texts.join(QLatin1Char('\n'));
}

CallEntry entryOf(const QSqlQuery &query)
{
    CallEntry entry;
    int column = 0;
    const auto next = [&] { return query.value(column++); };
    entry.id = next().toLongLong();
    const qint64 begun = next().toLongLong();
    entry.begun = begun == 0 ? QDateTime() : QDateTime::fromMSecsSinceEpoch(begun);
    entry.seconds = next().toLongLong();
    entry.uid = next().toString();
    entry.members = next().toString().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    entry.outcome = next().toInt();
    entry.conference = next().toBool();
    entry.video = next().toBool();
    entry.caller = next().toBool();
    entry.connected = next().toBool();
    entry.seen = next().toBool();
    entry.confId = next().toString();
    return entry;
}

/// Binds all columns, the id behind the others where it is the last place of the statement.
void bind(QSqlQuery &query, const CallEntry &entry, bool bIdFirst)
{
    // A null text would be a NULL, which no column takes.
    const auto text = [](const QString &strText) { return strText.isNull() ? QStringLiteral("") : strText; };
    const QVariant id = entry.id == 0 ? QVariant(QVariant::LongLong) : QVariant(entry.id);
    if (bIdFirst) {
        query.addBindValue(id);
    }
    query.addBindValue(entry.begun.isValid() ? entry.begun.toMSecsSinceEpoch() : qint64(0));
    query.addBindValue(entry.seconds);
    query.addBindValue(text(entry.uid));
    query.addBindValue(text(joined(entry.members)));
    query.addBindValue(entry.outcome);
    for (const bool flag : {entry.conference, entry.video, entry.caller, entry.connected, entry.seen}) {
        query.addBindValue(int(flag));
    }
    query.addBindValue(text(entry.confId));
    if (!bIdFirst) {
        query.addBindValue(id);
    }
}

} // namespace

int CallFile::newestVersion()
{
    return int(std::count(std::begin(cSteps), std::end(cSteps), nullptr));
}

CallFile::~CallFile()
{
    close();
}

bool CallFile::open(const QString &strFolder)
{
    close();
    m_reports.clear();
    m_bWriteReported = false;
    m_strFile = strFolder + QStringLiteral("/callHistory.db");
    State state = tryOpen(m_strFile);
    if (state == State::Damaged) {
        letGo();
        const QString aside = FileAside::path(m_strFile, QDateTime::currentDateTime());
        if (!FileAside::move(m_strFile, aside)) {
            report(QT_TRANSLATE_NOOP(
                       "CallFile",
                       "The list of calls %1 is damaged and cannot be moved aside. Calls of this session will not be "
                       "kept."),
                   m_strFile);
            return false;
        }
        report(QT_TRANSLATE_NOOP("CallFile",
                                 "The list of calls was damaged. The file is kept as %1; a new one has been started."),
               aside);
        state = tryOpen(m_strFile);
    }
    m_bOpen = state == State::Sound;
    if (!m_bOpen) {
        letGo();
        reportUnusable(state, m_strFile);
    }
    return m_bOpen;
}

void CallFile::close()
{
    m_bOpen = false;
    letGo();
}

void CallFile::letGo()
{
    const QString name = m_db.connectionName();
    m_db = QSqlDatabase();
    if (!name.isEmpty()) {
        QSqlDatabase::removeDatabase(name);
    }
}

CallFile::State CallFile::tryOpen(const QString &strFile)
{
    letGo();
    // One connection for each object, as two files may be open at a time.
    m_db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"),
                                     QStringLiteral("kelvarim-calls-%1").arg(quintptr(this), 0, 16));
    m_db.setDatabaseName(strFile);
    m_db.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=%1").arg(cPatience));
    if (!m_db.open()) {
        return State::Unusable;
    }
    QSqlQuery check(m_db);
    if (!noted(check.exec(QStringLiteral("PRAGMA quick_check(1)")) && check.next(), check)) {
        return verdict();
    }
    if (check.value(0).toString() != QLatin1String("ok")) {
        return State::Damaged;
    }
    check.finish();
    return upgrade();
}

/// What the code of the last failure says of the file.
CallFile::State CallFile::verdict() const
{
    switch (m_iError) {
    case SqliteCode::cBusy:
    case SqliteCode::cLocked:
        return State::Held;
    case SqliteCode::cError: // a table that is not as its version says
    case SqliteCode::cCorrupt:
    case SqliteCode::cNoDatabase:
        return State::Damaged;
    default:
        return State::Unusable;
    }
}

CallFile::State CallFile::upgrade()
{
    QSqlQuery query(m_db);
    if (!query.exec(QStringLiteral("PRAGMA user_version")) || !query.next()) {
        return State::Unusable;
    }
    const int version = query.value(0).toInt();
    query.finish();
    if (version > newestVersion()) {
        return State::Newer;
    }
    // The end of the process takes nothing away; only that of the machine may.
    const bool ok = run(QStringLiteral("PRAGMA synchronous = NORMAL")) && inOne([&] {
                        int at = 0;
                        for (const char *step : cSteps) {
                            if (step == nullptr) {
                                ++at;
                            } else if (at >= version && !run(QLatin1String(step))) {
                                return false;
                            }
                        }
                        // What ran when the client ended has its end now. This also tries to write.
                        const QString ended =
                            QStringLiteral("UPDATE calls SET seen = 0, outcome = %1 WHERE outcome = %2");
                        return run(QStringLiteral("PRAGMA user_version = %1").arg(newestVersion())) &&
                               run(ended.arg(outcomeCutOff).arg(outcomeRunning)) &&
                               run(ended.arg(outcomeMissed).arg(outcomeRunningIn)) &&
                               run(QStringLiteral("SELECT %1 FROM calls LIMIT 1").arg(QLatin1String(cColumns))) &&
                               run(QStringLiteral("SELECT confid FROM conferences LIMIT 1"));
                    });
    return ok ? State::Sound : verdict();
}

/// Notes why a statement has failed.
bool CallFile::noted(bool bOk, const QSqlQuery &query)
{
    if (!bOk) {
        m_iError = SqliteCode::of(query.lastError());
    }
    return bOk;
}

bool CallFile::run(QSqlQuery &query)
{
    return noted(query.exec(), query);
}

bool CallFile::run(const QString &strStatement)
{
    QSqlQuery query(m_db);
    return noted(query.exec(strStatement), query);
}

/// Does all of it or nothing.
bool CallFile::inOne(const std::function<bool()> &deed)
{
    const bool ok = run(QStringLiteral("BEGIN IMMEDIATE")) && deed() && run(QStringLiteral("COMMIT"));
    if (!ok) {
        const int error = m_iError;
        run(QStringLiteral("ROLLBACK"));
        m_iError = error;
        if (m_bOpen && !m_bWriteReported) {
            m_bWriteReported = true;
            report(
                QT_TRANSLATE_NOOP("CallFile",
                                  "The list of calls %1 cannot be written to. Calls of this session will not be kept."),
                m_strFile);
        }
    }
    return ok;
}

std::vector<CallEntry> CallFile::load()
{
    std::vector<CallEntry> entries;
    if (!m_bOpen) {
        return entries;
    }
    QSqlQuery query(m_db);
    query.setForwardOnly(true);
    query.exec(QStringLiteral("SELECT %1 FROM calls ORDER BY begun, id").arg(QLatin1String(cColumns)));
    while (query.next()) {
        entries.push_back(entryOf(query));
    }
    return entries;
}

QSet<QString> CallFile::knownConferences()
{
    QSet<QString> ids;
    if (!m_bOpen) {
        return ids;
    }
    QSqlQuery query(m_db);
    query.setForwardOnly(true);
    query.exec(QStringLiteral("SELECT confid FROM conferences"));
    while (query.next()) {
        ids.insert(query.value(0).toString());
    }
    return ids;
}

bool CallFile::add(std::vector<CallEntry> &entries)
{
    return m_bOpen && inOne([&] {
               QSqlQuery query(m_db);
               query.prepare(QStringLiteral("INSERT INTO calls (%1) VALUES (?,?,?,?,?,?,?,?,?,?,?,?)")
                                 .arg(QLatin1String(cColumns)));
               return std::all_of(entries.begin(), entries.end(), [&](CallEntry &entry) {
                   bind(query, entry, true);
                   if (!run(query)) {
                       return false;
                   }
                   entry.id = query.lastInsertId().toLongLong();
                   return noteConference(entry.confId);
               });
           });
}

bool CallFile::change(const CallEntry &entry)
{
    return m_bOpen && inOne([&] {
               QSqlQuery query(m_db);
               query.prepare(QStringLiteral("UPDATE calls SET begun=?,seconds=?,uid=?,members=?,outcome=?,conference=?,"
                                            "video=?,caller=?,connected=?,seen=?,confid=? WHERE id=?"));
               bind(query, entry, false);
               return run(query) && noteConference(entry.confId);
           });
}

bool CallFile::noteConference(const QString &strConfId)
{
    if (strConfId.isEmpty()) {
        return true;
    }
    QSqlQuery query(m_db);
    query.prepare(QStringLiteral("INSERT OR IGNORE INTO conferences (confid) VALUES (?)"));
    query.addBindValue(strConfId);
    return run(query);
}

bool CallFile::remove(const QSet<qint64> &ids)
{
    return m_bOpen && inOne([&] {
               QSqlQuery query(m_db);
               query.prepare(QStringLiteral("DELETE FROM calls WHERE id=?"));
               return std::all_of(ids.begin(), ids.end(), [&](qint64 id) {
                   query.addBindValue(id);
                   return run(query);
               });
           });
}

bool CallFile::setAllSeen()
{
    return m_bOpen && inOne([this] { return run(QStringLiteral("UPDATE calls SET seen = 1 WHERE seen = 0")); });
}

void CallFile::reportUnusable(State state, const QString &strFile)
{
    switch (state) {
    case State::Held:
        report(QT_TRANSLATE_NOOP(
                   "CallFile",
                   "The list of calls %1 is in use by another program. Calls of this session will not be kept."),
               strFile);
        break;
    case State::Newer:
        report(QT_TRANSLATE_NOOP(
                   "CallFile",
                   "The list of calls %1 was written by a newer client and stays as it is. Calls of this session will "
                   "not be kept."),
               strFile);
        break;
    default:
        report(QT_TRANSLATE_NOOP("CallFile",
                                 "The list of calls %1 cannot be opened. Calls of this session will not be kept."),
               strFile);
    }
}

void CallFile::report(const char *words, const QString &strFile)
{
    m_reports.add("CallFile", words, strFile);
}
