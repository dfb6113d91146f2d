#include "client/HostStore.h"

#include "client/FileAside.h"

#include "model/StoreFileName.h"
#include "store/DB.h"
#include "store/SqliteCode.h"

#include <QDateTime>
#include <QDir>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

namespace {

// How long the first look at the file waits for another program, in milliseconds.
constexpr int cPatience = 1800;

/// A connection to the file beside the session's own.
class Probe
{
public:
    Probe(const QString &strFile, const QString &strOptions)
    {
        m_db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_strName);
        m_db.setDatabaseName(strFile);
        m_db.setConnectOptions(strOptions);
        m_db.open();
    }
    ~Probe()
    {
        m_db = QSqlDatabase();
        QSqlDatabase::removeDatabase(m_strName);
    }
    Probe(const Probe &) = delete;
    Probe &operator=(const Probe &) = delete;

    bool run(const char *statement)
    {
        if (!m_db.isOpen()) {
            return false;
        }
        QSqlQuery query(m_db);
        const bool ok = query.exec(QLatin1String(statement));
        if (!ok) {
            m_bMetALock = SqliteCode::of(query.lastError()) == SqliteCode::cBusy;
        }
        return ok;
    }
    /// Whether the last statement that failed did so because another program has locked the file.
    bool hasMetALock() const { return m_bMetALock; }

private:
    const QString m_strName = QStringLiteral("kelvarim-demo-probe");
    QSqlDatabase m_db;
    bool m_bMetALock = false;
};

/// Whether another program keeps this one from reading the file, for that many milliseconds.
bool isShutAgainstReading(const QString &strFile, int iMilliseconds)
{
    Probe probe(strFile, QStringLiteral("QSQLITE_OPEN_READONLY;QSQLITE_BUSY_TIMEOUT=%1").arg(iMilliseconds));
    return !probe.run("PRAGMA schema_version") && probe.hasMetALock();
}

/// The first check reads every page, the second one tries a write.
bool isSound(const QString &strFolder)
{
    return DB::checkDB(strFolder, true) && DB::checkDB(strFolder, false);
}

enum class Writing
{
    Possible,
    Refused,
    Held ///< by another program
};

/// What would become of a write to the store, found by one that is taken back. It also finds a folder that takes no
/// journal and a disk without room, which a look at the file's rights does not.
Writing tryWriting(const QString &strFile)
{
    Probe probe(strFile, QStringLiteral("QSQLITE_BUSY_TIMEOUT=0"));
    if (probe.run("BEGIN IMMEDIATE") && probe.run("CREATE TABLE hostwritetrial (id INTEGER)")) {
        return Writing::Possible;
    }
    return probe.hasMetALock() ? Writing::Held : Writing::Refused;
}

} // namespace

HostStore::~HostStore()
{
    close();
}

bool HostStore::open(const QString &strUid, const QString &strBase)
{
    close();
    m_reports.clear();
    m_bHeld = false;
    const QString folder = QDir(strBase + QLatin1Char('/') + strUid).absolutePath();
    const QString file = folder + QLatin1Char('/') + QLatin1String(cStoreFileName);
    if (isShutAgainstReading(file, cPatience)) {
        reportHeld(file);
        return false;
    }
    if (!isSound(folder) && !putAside(folder, file)) {
        return false;
    }
    if (DB::isNeedUpdate(folder)) {
        report(
            QT_TRANSLATE_NOOP(
                "HostStore", "%1 is the store of an older client. It stays as it is; what it holds is not shown here."),
            folder + QStringLiteral("/data.db"));
    }
    m_bOpen = DB::initByUserName(strUid, strBase, true);
    if (m_bOpen) {
        reportWriting(file);
        return true;
    }
    // Even a failed open leaves its connection with the shared context.
    DB::closeDB();
    if (isShutAgainstReading(file, 0)) {
        reportHeld(file);
    } else {
        report(QT_TRANSLATE_NOOP("HostStore",
                                 "The local store %1 cannot be opened. Nothing of this session will be kept."),
               file);
    }
    return false;
}

void HostStore::close()
{
    if (m_bOpen) {
        m_bOpen = false;
        DB::closeDB();
    }
}

/// Moves a damaged file aside. Returns whether a store can be opened now: the file itself, when it is sound after all,
/// or a new one.
bool HostStore::putAside(const QString &strFolder, const QString &strFile)
{
    if (isShutAgainstReading(strFile, 0)) {
        reportHeld(strFile);
        return false;
    }
    // A file that was locked while it was looked at reads as damaged, too: only now does the verdict count.
    if (isSound(strFolder)) {
        return true;
    }
    const QString aside = FileAside::path(strFile, QDateTime::currentDateTime());
    if (!FileAside::move(strFile, aside)) {
        report(QT_TRANSLATE_NOOP(
                   "HostStore",
                   "The local store %1 is damaged and cannot be moved aside. Nothing of this session will be kept."),
               strFile);
        return false;
    }
    report(QT_TRANSLATE_NOOP("HostStore",
                             "The local store was damaged. The file is kept as %1; a new one has been started."),
           aside);
    return true;
}

void HostStore::reportWriting(const QString &strFile)
{
    const Writing writing = tryWriting(strFile);
    if (writing == Writing::Held) {
        reportHeld(strFile);
    } else if (writing == Writing::Refused) {
        report(QT_TRANSLATE_NOOP("HostStore",
                                 "The local store %1 cannot be written to. Nothing of this session will be kept."),
               strFile);
    }
}

void HostStore::reportHeld(const QString &strFile)
{
    m_bHeld = true;
    report(
        QT_TRANSLATE_NOOP(
            "HostStore",
            "The local store %1 is in use by another program. Until that lets it go, nothing of this session is kept."),
        strFile);
}

void HostStore::report(const char *words, const QString &strFile)
{
    m_reports.add("HostStore", words, strFile);
}
