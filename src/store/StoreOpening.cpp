#include "store/StoreOpening.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

StoreOpening *StoreOpening::s_pCurrent = nullptr;

StoreOpening::StoreOpening(const QSqlDatabase &db) : m_wait(db)
{
    s_pCurrent = this;
    QSqlQuery query(db);
    // No later statement would show that this setting is missing.
    if (!execute(query, QStringLiteral("PRAGMA synchronous = OFF"))) {
        shutOutBy(query.lastError());
    }
}

StoreOpening::~StoreOpening()
{
    m_wait.end();
    s_pCurrent = nullptr;
}

bool StoreOpening::isShutOut()
{
    return s_pCurrent && s_pCurrent->m_bShutOut;
}

bool StoreOpening::execute(QSqlQuery &query, const QString &statement)
{
    if (!s_pCurrent) {
        return query.exec(statement);
    }
    // The schema could not be read, so it is not known what is missing, and nothing is made.
    if (s_pCurrent->m_bShutOut) {
        return false;
    }
    return s_pCurrent->m_wait.execute(query, statement);
}

bool StoreOpening::ask(QSqlQuery &query, const QString &statement)
{
    const bool bDone = execute(query, statement);
    if (!bDone) {
        shutOutBy(query.lastError());
    }
    return bDone && query.next();
}

void StoreOpening::shutOutBy(const QSqlError &error)
{
    if (s_pCurrent && LockWait::isLockedOut(error)) {
        s_pCurrent->m_bShutOut = true;
    }
}
