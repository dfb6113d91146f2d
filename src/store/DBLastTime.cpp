#include "store/DBLastTime.h"

#include "common/CLogManger.h"
#include "store/DB.h"
#include "store/StoredText.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

namespace {

// The key of the one row.
const QString cAllSessions = QStringLiteral("all_session");

// Executes the statement with two texts; an error text is left in the query when it fails.
bool write(QSqlQuery &query, const QSqlDatabase &db, const QString &statement, const QString &first,
           const QString &second)
{
    if (!db.isOpen()) {
        return false;
    }
    if (!query.prepare(statement)) {
        return false;
    }
    query.addBindValue(storedText(first));
    query.addBindValue(storedText(second));
    return query.exec();
}

} // namespace

void DBLastTime::saveLastTime(const QString &time)
{
    const QSqlDatabase db = DB::getDB();
    QSqlQuery query(db);
    if (!write(query, db, QStringLiteral("INSERT INTO last_time (sessionId, lastTime) VALUES (?, ?)"), cAllSessions,
               time)) {
        CLogManger::instance()->printLog(
            CustomLog::Error, LOG_LOCATION,
            QStringLiteral("DBLastTime::saveLastTime(),ERROR:保存最后一次时间失败.strLastTime=") + time +
                QStringLiteral("，数据库错误:") + query.lastError().text());
    }
}

void DBLastTime::updateLastTime(const QString &time)
{
    const QSqlDatabase db = DB::getDB();
    QSqlQuery query(db);
    if (!write(query, db, QStringLiteral("UPDATE last_time SET lastTime = ? WHERE sessionId = ?"), time,
               cAllSessions)) {
        CLogManger::instance()->printLog(
            CustomLog::Error, LOG_LOCATION,
            QStringLiteral("DBLastTime::updateLastTime(),ERROR:更新时间信息失败.strLastTime=") + time +
                QStringLiteral("，数据库错误:") + query.lastError().text());
    }
}

QString DBLastTime::getLastTime()
{
    QString notStored = QStringLiteral("-1");
    const QSqlDatabase db = DB::getDB();
    if (!db.isOpen()) {
        return notStored;
    }
    QSqlQuery query(db);
    query.setForwardOnly(true);
    query.prepare(QStringLiteral("SELECT lastTime FROM last_time WHERE sessionId = ?"));
    query.addBindValue(cAllSessions);
    query.exec();
    QString strTime = query.next() ? query.value(0).toString() : QString();
    return strTime.isEmpty() ? notStored : strTime;
}
