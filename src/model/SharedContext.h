#pragma once

// The way to the host's CommonData: keeps its address and wraps its operations under the same names. Without a context
// everything reads as unset: null, empty, 0 or false, and what would store does nothing. The context belongs to the
// host. On the GUI thread.

#include "model/CommonData.h"

class SharedContext
{
public:
    /// The host's context; null until the host hands it over. Never freed here.
    static inline CommonData *m_pCommonData = nullptr;

    /// Takes the host's context; null takes it away.
    static void setCommonData(CommonData *pCommonData) { m_pCommonData = pCommonData; }

    /// The host's context, or null.
    static CommonData *getCommonData() { return m_pCommonData; }

    // The objects that the context holds; null while there is no context or it holds none.

    /// The network manager that all requests go through.
    static QNetworkAccessManager *getNetWorkManager();

    /// The writer of the log file.
    static CustomLogger *getCustomLogger();

    /// The thread that takes log records.
    static CLogThread *getLogThread();

    /// The host's monitor logger.
    static CMonitorLogger *getMonitorLogger();

    /// What the server announces about itself.
    static CServerSettings *getServerSettings();

    /// The holder of the single-sign-on cookies.
    static CPassportLoginServer *getPassportLoginServer();

    /// The signed-in account.
    static LoginData *getLoginData();

    /// The user's settings.
    static SystemSetData *getSystemSetData();

    /// The host's session manager.
    static SessionManager *getSessionManager();

    /// The connection of the user's local store.
    static QSqlDatabase *getSqlDatabase();

    /// The translators that the host installed; empty without a context.
    static QList<QTranslator *> getTranslatorList();

    /// The connection of the customer-service store.
    static QSqlDatabase *getAgentSqlDatabase();

    // The maps and lists, as CommonData has them; an empty one without a context, also where unknown keys get a record.

    /// The whole friend map.
    static QMap<QString, FriendData> getFriendDataMap();

    /// The records of those jids.
    static QMap<QString, FriendData> getFriendDataMapByJids(const QStringList &listJid);

    /// Replaces the friend map.
    static void setFriendDataMap(const QMap<QString, FriendData> &mapFriendData);

    /// Appends a jid to the head image list.
    static void addHeadJidList(const QString &strJid);

    /// The head image list.
    static QList<QString> getHeadJidList();

    /// The presence of those jids.
    static QMap<QString, PresenceData> getPresenceDataMap(const QStringList &listJid);

    /// Merges into the presence map.
    static void setPresenceDataMap(const QMap<QString, PresenceData> &mapPresenceData);

    /// Resets all presence records.
    static void clearPresenceDataMap();

    /// The whole room map.
    static QMap<QString, MucData> getMucDataMap();

    /// The records of those room jids.
    static QMap<QString, MucData> getMucDataMapByRoomJids(const QStringList &listRoomJid);

    /// Merges into the room map.
    static void setMucDataMap(const QMap<QString, MucData> &mapMucData);

    /// The whole service number map.
    static QMap<QString, CServiceNumData> getServiceNumDataMap();

    /// The whole service number map, whatever the list holds.
    static QMap<QString, CServiceNumData> getServiceNumDataByCodes(const QStringList &listCode);

    /// Merges into the service number map.
    static void setServiceNumDataMap(const QMap<QString, CServiceNumData> &mapServiceNumData);

    // What the server announces, as CommonData passes it on.

    /// Stores whether the server supports calls.
    static void setSupportVoIPFlag(bool bSupport);

    /// Always false, as CommonData's.
    static bool getSupportVoIPFlag();

    /// The greatest size of a file that may be sent, in bytes.
    static void setFileTransferMaxSize(qint64 iSize);
    static qint64 getFileTransferMaxSize();

    /// Whether the user may change the password.
    static void setCanModifyPassword(bool bCan);
    static bool getCanModifyPassword();

    /// The greatest number of members of a room, as the server announced it.
    static void setMucRoomMaxSize(qint64 iSize);
    static qint64 getMucRoomMaxSize();

    /// The same as a limit to go by: 1500 while the server announced none, or one below 1.
    static qint64 getMucRoomMaxMemberSize();

    /// The request to send in place of the given one; without a context its authentication id is empty.
    static QNetworkRequest CoverNetworkRequest(const QNetworkRequest &request);
};
