// The check of a store for damage, on a connection and a file that the session has not opened.

#include "store/DB.h"
#include "store/LockWait.h"
#include "store/StoreFiles.h"

#include <QFileInfo>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

namespace {

const QString checkConnection = QStringLiteral("my_sql_db");

// Whole error texts of an older SQLite with its driver in Chinese. The same failure in other words is deliberately left
// to the quick check's verdict, which hosts rely on.
const QString duplicateText = QStringLiteral("column id is not unique 不能获取行");
const QString malformedText = QStringLiteral("database disk image is malformed 不能获取行");

// SQLite's own code, the low byte of an extended one.
constexpr int constraintCode = 19;

int sqliteCode(const QSqlError &error)
{
    return error.nativeErrorCode().toInt() & 0xff;
}

bool quickCheck(QSqlQuery &query)
{
    return query.exec(QStringLiteral("PRAGMA quick_check")) && query.next() &&
           query.value(0).toString() == QLatin1String("ok");
}

void deleteTrialRow(QSqlQuery &query)
{
    query.exec(QStringLiteral("DELETE FROM msgrecord WHERE id = 'checkid'"));
}

bool trialWrite(QSqlQuery &query, LockWait &wait)
{
    query.prepare(QStringLiteral("INSERT INTO msgrecord (id)VALUES (?)"));
    query.addBindValue(QStringLiteral("checkid"));
    query.exec();
    const QSqlError error = query.lastError();
    const QString text = error.text();
    wait.shorten();
    if (error.type() == QSqlError::NoError || text == duplicateText) {
        deleteTrialRow(query);
        return true;
    }
    if (text == malformedText)
        return false;
    const bool bSound = quickCheck(query);
    wait.shorten();
    // A row that an earlier check left behind, in the words of this SQLite. Any other constraint's refusal, a trigger's
    // too, has the same code and leads here as well: the id is no message's, so nothing is lost.
    if (sqliteCode(error) == constraintCode)
        deleteTrialRow(query);
    return bSound;
}

} // namespace

bool DB::checkDB(QString dir, bool quickOnly)
{
    const QString fileName = StoreFiles::current(dir);
    if (!QFileInfo::exists(fileName))
        return true;
    // A check that could not open its file has left its connection.
    if (QSqlDatabase::contains(checkConnection))
        QSqlDatabase::removeDatabase(checkConnection);
    bool bSound = true;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), checkConnection);
        db.setDatabaseName(fileName);
        db.setConnectOptions(LockWait::connectOption());
        // Deliberate: a file that cannot be opened is not reported as damaged.
        if (!db.open())
            return true;
        LockWait wait(db);
        QSqlQuery query(db);
        bSound = quickOnly ? quickCheck(query) : trialWrite(query, wait);
        query.clear();
        db.close();
    }
    QSqlDatabase::removeDatabase(checkConnection);
    return bSound;
}
