#include "store/DB.h"

#include "common/AppPaths.h"
#include "model/SharedContext.h"
#include "store/LockWait.h"
#include "store/StoreFiles.h"
#include "store/StoreOpening.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlQuery>
#include <QVariant>

QSqlDatabase DB::m_db;

namespace {

const QString cSessionConnection = QStringLiteral("KelvarIM");

constexpr void (*cTableCreators[])() = {
    DB::createLoginTable,
    DB::createLatestFrdTable,
    DB::creatDeletedFrdTable,
    DB::createMessageTable,
    DB::createSessionTable,
    DB::createUnreadSessionTable,
    DB::createLastTimeTable,
    DB::createLocalFrdTable,
    DB::createMuctable,
    DB::createMucMembersTable,
    DB::createGroupTable,
    DB::createGroupFriendVersion,
    DB::createFriendGroupTable,
    DB::createOutsideGroupFriendVersion,
    DB::createFileRecevieStatusTable,
    DB::creatCloudFileLocalInfo,
    DB::creatShareFileLocalInfo,
    DB::creatFileStatusLocalInfo,
    DB::creatVideoInfo,
    DB::creatFileDisplayStatusInfo,
    DB::createServiceTable,
    DB::createServiceVersion,
    DB::createApplicationNewTableNew,
    DB::createApplicationVersionNew,
    DB::createFavoriteTable,
    DB::createFavoriteFileTable,
    DB::createUnCloseSessionTable,
    DB::createRoomNoticeTable,
    DB::creatVoipConferenceInfoTable,
    DB::creatAgentInfoTable,
    DB::createCSChannelTable,
    DB::createCSWorkgroupTable,
    DB::createCSQuickrplyTable,
    DB::createCSAgentSessionTable,
    DB::createCSCommentTable,
    DB::createCSChatSumTable,
    DB::createCSChannelQuickrplyTable,
    DB::createCSChannelTopListTable,
    DB::createCSChatSumAgentTable,
    DB::createCSChatAndQuickVersionTable,
    DB::createDingMsgTable,
};

// Drops the session's own reference first: a connection that is removed while it is referred to makes Qt warn.
void removeSessionConnection()
{
    DB::m_db = QSqlDatabase();
    QSqlDatabase::removeDatabase(cSessionConnection);
}

void openFreshConnection()
{
    if (QSqlDatabase::contains(cSessionConnection)) {
        removeSessionConnection();
    }
    DB::m_db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), cSessionConnection);
    if (CommonData *pContext = SharedContext::getCommonData()) {
        pContext->setSqlDatabase(&DB::m_db);
    }
}

bool provideFile(const QString &folder, const QString &fileName)
{
    if (!QFileInfo::exists(folder)) {
        QDir().mkpath(folder);
    }
    if (QFileInfo::exists(fileName)) {
        return true;
    }
    QFile file(fileName);
    // Appending cuts nothing off: another client may be writing there at this moment.
    return file.open(QIODevice::Append);
}

// Whether the statement's first row begins with a number other than 0.
bool findsRow(const QString &statement)
{
    if (!DB::m_db.isOpen()) {
        return false;
    }
    QSqlQuery query(DB::m_db);
    query.setForwardOnly(true);
    return StoreOpening::ask(query, statement) && query.value(0).toInt() != 0;
}

/// False when another process kept the open file from being read. When one keeps it from being written only, or a write
/// fails otherwise, what the schema lacks is left to the next open.
bool bringUpToDate(bool createAll)
{
    const StoreOpening opening(DB::m_db);
    if (createAll) {
        DB::createTable();
    } else {
        DB::createLoginTable();
    }
    return !StoreOpening::isShutOut();
}

} // namespace

bool DB::initByUserName(QString userName, QString path, bool createAll)
{
    if (m_db.isOpen()) {
        closeDB();
    }
    // Deliberately before any test of the path: after a failed open the context points to a closed connection.
    openFreshConnection();

    const QString base = path.isEmpty() ? strAPP_DOCUMENT_IM_FILES_PATH() : path;
    const QString folder = base + QLatin1Char('/') + userName;
    const QString fileName = StoreFiles::current(folder);
    const bool bThere =
        createAll ? provideFile(folder, fileName) : QFileInfo::exists(folder) && QFileInfo::exists(fileName);
    if (!bThere) {
        return false;
    }

    m_db.setDatabaseName(fileName);
    if (!LockWait::open(m_db)) {
        return false;
    }
    const bool bOpen = bringUpToDate(createAll);
    if (!bOpen) {
        m_db.close();
    }
    return bOpen;
}

void DB::closeDB()
{
    QSqlDatabase *pDatabase = SharedContext::getSqlDatabase();
    if (!pDatabase) {
        return;
    }
    pDatabase->close();
    removeSessionConnection();
    SharedContext::getCommonData()->setSqlDatabase(nullptr);
}

QSqlDatabase DB::getDB()
{
    const QSqlDatabase *pDatabase = SharedContext::getSqlDatabase();
    return pDatabase ? *pDatabase : QSqlDatabase();
}

bool DB::isNeedUpdate(const QString &dir)
{
    return !QFileInfo::exists(StoreFiles::current(dir)) && QFileInfo::exists(StoreFiles::older(dir));
}

QString DB::addYinHao(QString text)
{
    // Removed, not doubled, deliberately: all that was ever stored was addressed this way.
    text.remove(QLatin1Char('\''));
    return QLatin1Char('\'') + text + QLatin1Char('\'');
}

bool DB::isExistTable(const QString &table)
{
    return findsRow(QStringLiteral("SELECT 1 FROM sqlite_master where type = 'table' and  name = ") + addYinHao(table));
}

bool DB::isExistFiled(const QString &table, const QString &field)
{
    return findsRow(QStringLiteral("SELECT 1 FROM sqlite_master where type = 'table' and name= ") + addYinHao(table) +
                    QStringLiteral(" and sql like '%") + field + QStringLiteral("%'"));
}

bool DB::isExistIndex(const QString &table, const QString &suffix)
{
    if (!m_db.isOpen()) {
        return false;
    }
    QSqlQuery query(m_db);
    query.setForwardOnly(true);
    return StoreOpening::ask(query, QStringLiteral("SELECT * FROM sqlite_master"
                                                   " WHERE type = 'index' AND tbl_name = ") +
                                        addYinHao(table) + QStringLiteral(" AND name = ") + addYinHao(table + suffix));
}

bool DB::replaceFiled(const QSqlDatabase &db, const QString &table, const QString &field, const QString &from,
                      const QString &to)
{
    if (!db.isOpen()) {
        return false;
    }
    QSqlQuery query(db);
    return query.exec(QStringLiteral("UPDATE ") + table + QStringLiteral(" SET ") + field + QStringLiteral(" = ") +
                      QStringLiteral(" REPLACE(") + field + QStringLiteral(",'") + from + QStringLiteral("','") + to +
                      QStringLiteral("')"));
}

void DB::createTable()
{
    for (const auto creator : cTableCreators) {
        if (StoreOpening::isShutOut()) {
            return;
        }
        creator();
    }
}
