#include "HostStore.h"

#include "common/CLogManger.h"
#include "store/DB.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

#include <algorithm>
#include <iterator>

namespace {

// What SQLite keeps beside a file. It belongs to that file: it may hold the half of a write that was cut short.
constexpr const char *companions[] = {"-journal", "-wal", "-shm"};
// SQLite's primary result code for a file that another connection has locked; the upper bytes tell details.
constexpr int busyCode = 5;
constexpr int primaryCodeMask = 0xff;

/// Whether another connection keeps this one from reading the file.
bool isHeldByAnother(const QString &strFile)
{
    const QString name = QStringLiteral("kelvarim-demo-probe");
    bool held = false;
    {
        QSqlDatabase probe = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
        probe.setDatabaseName(strFile);
        probe.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY;QSQLITE_BUSY_TIMEOUT=0"));
        if (probe.open()) {
            QSqlQuery query(probe);
            held = !query.exec(QStringLiteral("PRAGMA schema_version")) &&
                   (query.lastError().nativeErrorCode().toInt() & primaryCodeMask) == busyCode;
        }
    }
    QSqlDatabase::removeDatabase(name);
    return held;
}

/// The first check reads every page, the second one tries a write.
bool isSound(const QString &strFolder)
{
    return DB::checkDB(strFolder, true) && DB::checkDB(strFolder, false);
}

/// Moves the file with its companions, or nothing at all.
bool moveFile(const QString &strFrom, const QString &strTo)
{
    QStringList moved;
    const auto move = [&](const QString &strSuffix) {
        const bool ok = QFile::rename(strFrom + strSuffix, strTo + strSuffix);
        if (ok) {
            moved.append(strSuffix);
        }
        return ok;
    };
    // Companions first: one that were left behind would be taken for the next file's own.
    const bool all = std::all_of(std::begin(companions), std::end(companions),
                                 [&](const char *companion) {
                                     const QString suffix = QLatin1String(companion);
                                     return !QFileInfo::exists(strFrom + suffix) || move(suffix);
                                 }) &&
                     move(QString());
    if (!all) {
        for (const QString &suffix : moved) {
            QFile::rename(strTo + suffix, strFrom + suffix);
        }
    }
    return all;
}

/// Whether a write to the open store would succeed, found by one that is taken back. It also finds a folder that takes
/// no journal and a disk without room, which a look at the file's rights does not.
bool takesWrites()
{
    QSqlQuery query(DB::getDB());
    const bool ok = query.exec(QStringLiteral("BEGIN IMMEDIATE")) &&
                    query.exec(QStringLiteral("CREATE TABLE hostwritetrial (id INTEGER)"));
    query.exec(QStringLiteral("ROLLBACK"));
    return ok;
}

} // namespace

HostStore::~HostStore()
{
    close();
}

QString HostStore::asidePath(const QString &strFolder, const QDateTime &when)
{
    const QString stem =
        strFolder + QStringLiteral("/localData.damaged-") + when.toString(QStringLiteral("yyyyMMdd-hhmmss"));
    const auto isTaken = [](const QString &strPath) {
        return QFileInfo::exists(strPath) ||
               std::any_of(std::begin(companions), std::end(companions), [&](const char *companion) {
                   return QFileInfo::exists(strPath + QLatin1String(companion));
               });
    };
    QString path = stem + QStringLiteral(".db");
    for (int i = 2; isTaken(path); ++i) {
        path = QStringLiteral("%1-%2.db").arg(stem).arg(i);
    }
    return path;
}

bool HostStore::open(const QString &strUid, const QString &strBase)
{
    close();
    m_reports.clear();
    const QString folder = QDir(strBase + QLatin1Char('/') + strUid).absolutePath();
    const QString file = folder + QStringLiteral("/localData.db");
    if (!isSound(folder) && !putAside(folder, file)) {
        return false;
    }
    if (DB::isNeedUpdate(folder)) {
        report(tr("%1 is the store of an older client. It stays as it is; what it holds is not shown here.")
                   .arg(folder + QStringLiteral("/data.db")));
    }
    m_bOpen = DB::initByUserName(strUid, strBase, true);
    if (!m_bOpen) {
        // Even a failed open leaves its connection with the shared context.
        DB::closeDB();
        report(tr("The local store %1 cannot be opened. Nothing of this session will be kept.").arg(file));
    } else if (!takesWrites()) {
        report(tr("The local store %1 cannot be written to. Nothing of this session will be kept.").arg(file));
    }
    return m_bOpen;
}

void HostStore::close()
{
    if (m_bOpen) {
        m_bOpen = false;
        DB::closeDB();
    }
}

/// Returns whether the way is free for a new file.
bool HostStore::putAside(const QString &strFolder, const QString &strFile)
{
    if (isHeldByAnother(strFile)) {
        report(
            tr("The local store %1 is in use by another program. Nothing of this session will be kept.").arg(strFile));
        return false;
    }
    const QString aside = asidePath(strFolder, QDateTime::currentDateTime());
    if (!moveFile(strFile, aside)) {
        report(tr("The local store %1 is damaged and cannot be moved aside. Nothing of this session will be kept.")
                   .arg(strFile));
        return false;
    }
    report(tr("The local store was damaged. The file is kept as %1; a new one has been started.").arg(aside));
    return true;
}

void HostStore::report(const QString &strWords)
{
    m_reports.append(strWords);
    LOG_WARN << strWords << "\n";
}
