#include "store/LockWait.h"

#include "store/SqliteCode.h"

#include <QElapsedTimer>
#include <QSqlError>
#include <QSqlQuery>
#include <QThread>

namespace {

// What Qt's driver gives a statement by default, in milliseconds.
constexpr int cDriverMs = 5000;
// The rests grow: what holds a file for a moment delays no longer than that, what holds it for long is not asked often.
constexpr int cFirstRestMs = 1;
constexpr int cLongestRestMs = 32;

} // namespace

bool LockWait::open(QSqlDatabase &db)
{
    db.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=0"));
    const bool bOpen = db.open();
    db.setConnectOptions();
    return bOpen;
}

bool LockWait::isLockedOut(const QSqlError &error)
{
    return SqliteCode::of(error) == SqliteCode::cBusy;
}

LockWait::LockWait(const QSqlDatabase &db) : m_db(db) {}

bool LockWait::execute(QSqlQuery &query, const QString &statement)
{
    return execute(query, [&query, &statement] { return query.exec(statement); });
}

bool LockWait::execute(const QSqlQuery &query, const std::function<bool()> &tryOnce)
{
    for (int iRest = cFirstRestMs; !tryOnce(); iRest = qMin(2 * iRest, cLongestRestMs)) {
        if (m_iLeft <= 0 || !isLockedOut(query.lastError())) {
            return false;
        }
        rest(iRest);
    }
    return true;
}

void LockWait::end()
{
    QSqlQuery(m_db).exec(QStringLiteral("PRAGMA busy_timeout = %1").arg(cDriverMs));
}

void LockWait::rest(int iMilliseconds)
{
    QElapsedTimer clock;
    clock.start();
    QThread::msleep(static_cast<unsigned long>(iMilliseconds));
    m_iLeft -= qMax<qint64>(iMilliseconds, clock.elapsed());
}
