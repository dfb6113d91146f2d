// The check of a store for damage, on a connection and a file that the session has not opened.

#include "store/DB.h"

#include "store/LockWait.h"
#include "store/SqliteCode.h"
#include "store/StoreFiles.h"

#include <QFileInfo>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

namespace {

const QString cCheckConnection = QStringLiteral("my_sql_db");

// Whole error texts of an older SQLite with its driver in Chinese. The same failure in other words is deliberately left
// to the quick check's verdict, which hosts rely on.
const QString cDuplicateText = QStringLiteral("column id is not unique 不能获取行");
const QString cMalformedText = QStringLiteral("database disk image is malformed 不能获取行");

bool quickCheck(QSqlQuery &query, LockWait &wait)
{
    return wait.execute(query, QStringLiteral("PRAGMA quick_check")) && query.next() &&
           query.value(0).toString() == QLatin1String("ok");
}

void deleteTrialRow(QSqlQuery &query, LockWait &wait)
{
    wait.execute(query, QStringLiteral("DELETE FROM msgrecord WHERE id = 'checkid'"));
}

bool insertTrialRow(QSqlQuery &query)
{
    if (!query.prepare(QStringLiteral("INSERT INTO msgrecord (id)VALUES (?)"))) {
        return false;
    }
    query.addBindValue(QStringLiteral("checkid"));
    return query.exec();
}

bool trialWrite(QSqlQuery &query, LockWait &wait)
{
    wait.execute(query, [&query] { return insertTrialRow(query); });
    const QSqlError error = query.lastError();
    const QString text = error.text();
    if (error.type() == QSqlError::NoError || text == cDuplicateText) {
        deleteTrialRow(query, wait);
        return true;
    }
    if (text == cMalformedText) {
        return false;
    }
    const bool bSound = quickCheck(query, wait);
    // A row that an earlier check left behind, in the words of this SQLite. Any other constraint's refusal, a trigger's
    // too, has the same code and leads here as well: the id is no message's, so nothing is lost.
    if (SqliteCode::of(error) == SqliteCode::cConstraint) {
        deleteTrialRow(query, wait);
    }
    return bSound;
}

bool isSound(const QSqlDatabase &db, bool quickOnly)
{
    LockWait wait(db);
    QSqlQuery query(db);
    return quickOnly ? quickCheck(query, wait) : trialWrite(query, wait);
}

} // namespace

bool DB::checkDB(QString dir, bool quickOnly)
{
    const QString fileName = StoreFiles::current(dir);
    if (!QFileInfo::exists(fileName)) {
        return true;
    }
    // A check that could not open its file has left its connection.
    if (QSqlDatabase::contains(cCheckConnection)) {
        QSqlDatabase::removeDatabase(cCheckConnection);
    }
    bool bSound = true;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), cCheckConnection);
        db.setDatabaseName(fileName);
        // Deliberate: a file that cannot be opened is not reported as damaged.
        if (!LockWait::open(db)) {
            return true;
        }
        bSound = isSound(db, quickOnly);
        db.close();
    }
    QSqlDatabase::removeDatabase(cCheckConnection);
    return bSound;
}
