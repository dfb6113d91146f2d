#include "store/LockWait.h"

#include <QSqlError>
#include <QSqlQuery>

namespace {

// What Qt's driver gives a statement by default, in milliseconds.
constexpr int kDriverMs = 5000;
// A statement that did not wait takes less than this. So short a time is not taken off what is left, because that would
// cost a statement of its own.
constexpr int kStepMs = 50;
// SQLite's primary result code for a file that another connection has locked; the upper bytes tell details.
constexpr int kBusyCode = 5;
constexpr int kPrimaryCodeMask = 0xff;

} // namespace

QString LockWait::connectOption()
{
    return QStringLiteral("QSQLITE_BUSY_TIMEOUT=%1").arg(kLimitMs);
}

bool LockWait::isLockedOut(const QSqlError &error)
{
    return (error.nativeErrorCode().toInt() & kPrimaryCodeMask) == kBusyCode;
}

LockWait::LockWait(const QSqlDatabase &db) : m_db(db)
{
    m_clock.start();
}

void LockWait::shorten()
{
    const int left = static_cast<int>(qMax<qint64>(0, kLimitMs - m_clock.elapsed()));
    if (m_iGiven - left >= kStepMs || (left == 0 && m_iGiven > 0))
        give(left);
}

void LockWait::end()
{
    give(kDriverMs);
}

void LockWait::give(int iMilliseconds)
{
    QSqlQuery(m_db).exec(QStringLiteral("PRAGMA busy_timeout = %1").arg(iMilliseconds));
    m_iGiven = iMilliseconds;
}
