#include "store/StoreOpening.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

StoreOpening *StoreOpening::s_pCurrent = nullptr;

StoreOpening::StoreOpening(const QSqlDatabase &db) : m_wait(db)
{
    s_pCurrent = this;
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
    if (!s_pCurrent)
        return query.exec(statement);
    // The schema could not be read, so it is not known what is missing, and nothing is made.
    if (s_pCurrent->m_bShutOut)
        return false;
    const bool bDone = query.exec(statement);
    s_pCurrent->m_wait.shorten();
    return bDone;
}

bool StoreOpening::ask(QSqlQuery &query, const QString &statement)
{
    const bool bDone = execute(query, statement);
    if (s_pCurrent && !bDone && LockWait::isLockedOut(query.lastError()))
        s_pCurrent->m_bShutOut = true;
    return bDone && query.next();
}
