#pragma once

// Limits how long the statements of one flow wait for locks of other processes, all of them together. SQLite gives each
// statement a waiting time of its own, so a flow of many over a file that stays locked would keep its thread for
// minutes. A value for the length of one flow, on the thread of its connection.

#include <QElapsedTimer>
#include <QSqlDatabase>
#include <QString>

class QSqlError;

class LockWait
{
public:
    /// What all statements may wait, in milliseconds.
    static constexpr int kLimitMs = 1800;

    /// What a connection has to be opened with: its first statement may then wait for all of that time.
    static QString connectOption();
    /// Whether the statement failed because another connection has locked the file.
    static bool isLockedOut(const QSqlError &error);

    /// The time begins now. `db` is open, by that option.
    explicit LockWait(const QSqlDatabase &db);

    /// To be called between two statements: leaves the next one what the ones before have not used up, which may be
    /// nothing. Executes no statement of its own as long as none has waited.
    void shorten();
    /// Gives the connection, for whatever follows, the waiting time of Qt's driver for each statement.
    void end();

private:
    void give(int iMilliseconds);

    QSqlDatabase m_db;
    QElapsedTimer m_clock;
    int m_iGiven = kLimitMs;
};
