#pragma once

// Limits how long the statements of one flow wait for locks of other processes, all of them together. SQLite gives each
// statement a waiting time of its own, so a flow of many over a file that stays locked would keep its thread for
// minutes. Here a statement that meets a lock is tried again, and the rests between the tries are what counts: work
// that takes long, on a slow disk or over a large file, uses nothing up. A value for the length of one flow, on the
// thread of its connection.

#include <QSqlDatabase>
#include <QString>

#include <functional>

class QSqlError;
class QSqlQuery;

class LockWait
{
public:
    /// What all statements may wait, in milliseconds.
    static constexpr int cLimitMs = 1800;

    /// Opens the connection for such a flow; false when it cannot be opened. Opened so, the
    /// connection's statements do not wait for locks by themselves; after a plain open they do.
    static bool open(QSqlDatabase &db);

    /// Whether the statement failed because another connection has locked the file.
    static bool isLockedOut(const QSqlError &error);

    /// Begins over `db`, which has been opened by open().
    explicit LockWait(const QSqlDatabase &db);

    /// Executes a statement on the connection; whether it ran. One that a lock keeps from it is tried again until what
    /// all statements together may wait is used up; the error in `query` is the last try's.
    bool execute(QSqlQuery &query, const QString &statement);

    /// The same for one that is made ready in some way: `tryOnce` executes `query`, each time from the beginning, and
    /// returns whether it ran.
    bool execute(const QSqlQuery &query, const std::function<bool()> &tryOnce);

    /// Gives the connection, for whatever follows, the waiting time of Qt's driver for each statement.
    void end();

private:
    void rest(int iMilliseconds);

    QSqlDatabase m_db;
    qint64 m_iLeft = cLimitMs;
};
