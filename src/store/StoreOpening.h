#pragma once

// One object lives while the session's store is being opened. All statements of the opening together wait for
// locks of other processes no longer than LockWait allows, and the opening fails when such a lock kept it from reading
// the schema. The statements of the schema go through the functions here, also when no opening is under way. One
// opening at a time; on the session's thread.

#include "store/LockWait.h"

#include <QString>

class QSqlDatabase;
class QSqlError;
class QSqlQuery;

class StoreOpening
{
public:
    /// Begins over `db`, opened by LockWait::open(), with the session's setting: SQLite does not wait for the disk.
    /// Setting it reads the schema, so a lock that stays makes the opening fail here.
    explicit StoreOpening(const QSqlDatabase &db);

    /// The session's statements wait again as Qt's driver lets them.
    ~StoreOpening();
    StoreOpening(const StoreOpening &) = delete;
    StoreOpening &operator=(const StoreOpening &) = delete;

    /// Whether there is an opening whose setting or whose question about the schema met a lock that stayed. It goes no
    /// further then.
    static bool isShutOut();

    /// Executes a statement that changes something; true when it ran. When a lock kept it from running, the opening
    /// goes on.
    static bool execute(QSqlQuery &query, const QString &statement);

    /// Executes a question about the schema; true when there is a row, on which `query` then stands.
    static bool ask(QSqlQuery &query, const QString &statement);

private:
    static void shutOutBy(const QSqlError &error);

    static StoreOpening *s_pCurrent;

    LockWait m_wait;
    bool m_bShutOut = false;
};
