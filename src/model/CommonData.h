#pragma once

// The state that the host shares with everything that is linked with it. The host creates it, fills it and hands its
// address to the plug-ins, which reach it through the wrappers of SharedContext. A plain holder: it owns nothing that
// it points to, only its maps and lists. Every getter of those returns a copy, so that a caller walks over a snapshot.
// On the GUI thread; there is no lock.

#include "model/CServiceNumData.h"
#include "model/FriendData.h"
#include "model/MucData.h"
#include "model/PresenceData.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

class ChatBubbles;
class CLogThread;
class CMonitorLogger;
class CPassportLoginServer;
class CServerSettings;
class CustomLogger;
struct LoginData;
class QFont;
class QNetworkAccessManager;
class QNetworkRequest;
class QSqlDatabase;
class QTranslator;
class SessionManager;
class SystemSetData;
class SysUIData;

class CommonData
{
public:
    /// All pointers null, all containers empty.
    CommonData();

    /// Releases the containers only.
    ~CommonData();
    CommonData(const CommonData &) = delete;
    CommonData &operator=(const CommonData &) = delete;

    // Each pair below stores and returns one address of the host's; null when unset. The host keeps the object alive.

    /// The network manager that all requests go through.
    void setNetWorkManager(QNetworkAccessManager *pManager) { m_pNetWorkManager = pManager; }
    QNetworkAccessManager *getNetWorkManager() const { return m_pNetWorkManager; }

    /// The writer of the log file.
    void setCustomLogger(CustomLogger *pLogger) { m_pCustomLogger = pLogger; }
    CustomLogger *getCustomLogger() const { return m_pCustomLogger; }

    /// The thread that takes log records.
    void setCustomLogThread(CLogThread *pThread) { m_pLogThread = pThread; }
    CLogThread *getLogThread() const { return m_pLogThread; }

    /// The font that holds the client's symbols.
    void setIconFont(QFont *pFont) { m_pIconFont = pFont; }
    QFont *getIconFont() const { return m_pIconFont; }

    /// The host's monitor logger, passed on only.
    void setMonitorLogger(CMonitorLogger *pLogger) { m_pMonitorLogger = pLogger; }
    CMonitorLogger *getMonitorLogger() const { return m_pMonitorLogger; }

    /// What the server announces about itself.
    void setServerSettings(CServerSettings *pSettings) { m_pServerSettings = pSettings; }
    CServerSettings *getServerSettings() const { return m_pServerSettings; }

    /// The holder of the single-sign-on cookies.
    void setPassportLoginServer(CPassportLoginServer *pServer) { m_pPassportLoginServer = pServer; }
    CPassportLoginServer *getPassportLoginServer() const { return m_pPassportLoginServer; }

    /// The current skin.
    void setSkinData(SysUIData *pSkin) { m_pSkinData = pSkin; }
    SysUIData *getSkinData() const { return m_pSkinData; }

    /// The signed-in account.
    void setLoginData(LoginData *pLogin) { m_pLoginData = pLogin; }
    LoginData *getLoginData() const { return m_pLoginData; }

    /// The user's settings.
    void setSystemSetData(SystemSetData *pSettings) { m_pSystemSetData = pSettings; }
    SystemSetData *getSystemSetData() const { return m_pSystemSetData; }

    /// The host's session manager, passed on only.
    void setSessionManager(SessionManager *pManager) { m_pSessionManager = pManager; }
    SessionManager *getSessionManager() const { return m_pSessionManager; }

    /// The connection of the user's local store; null while nobody is signed in.
    void setSqlDatabase(QSqlDatabase *pDatabase) { m_pSqlDatabase = pDatabase; }
    QSqlDatabase *getSqlDatabase() const { return m_pSqlDatabase; }

    /// The translators that the host installed.
    void setTranslatorList(const QList<QTranslator *> &listTranslator) { m_listTranslator = listTranslator; }
    QList<QTranslator *> getTranslatorList() const { return m_listTranslator; }

    /// The connection of the customer-service store.
    void setAgentSqlDatabase(QSqlDatabase *pDatabase) { m_pAgentSqlDatabase = pDatabase; }
    QSqlDatabase *getAgentSqlDatabase() const { return m_pAgentSqlDatabase; }

    /// All skins.
    void setListSysUIData(QList<SysUIData> *pList) { m_pListSysUIData = pList; }
    QList<SysUIData> *getListSysUIData() const { return m_pListSysUIData; }

    /// All chat bubbles.
    void setListChatBubbles(QList<ChatBubbles> *pList) { m_pListChatBubbles = pList; }
    QList<ChatBubbles> *getListChatBubbles() const { return m_pListChatBubbles; }

    /// A copy of the whole friend map, bare jid to record.
    QMap<QString, FriendData> getFriendDataMap() const { return m_mapFriendData; }

    /// The records of those jids. A jid that is not known has a default record in the result, an empty one is left out.
    QMap<QString, FriendData> getFriendDataMapByJids(const QStringList &listJid) const;

    /// Replaces the whole friend map; an empty map clears it.
    void setFriendDataMap(const QMap<QString, FriendData> &mapFriendData);

    /// Appends a jid to the head list, also one that is in it.
    void addHeadJidList(const QString &strJid) { m_listHeadJid.append(strJid); }

    /// A copy of that list.
    QList<QString> getHeadJidList() const { return m_listHeadJid; }

    /// The records of those jids; one that is not known has a default record that bears the jid, an empty one is left
    /// out.
    QMap<QString, PresenceData> getPresenceDataMap(const QStringList &listJid) const;

    /// Inserts the records of new keys and merges the others field by field; jid, text and flag of a known record stay.
    void setPresenceDataMap(const QMap<QString, PresenceData> &mapPresenceData);

    /// Resets every record to a default one that bears its jid; the keys stay.
    void clearPresenceDataMap();

    /// A copy of the whole room map, room jid to record.
    QMap<QString, MucData> getMucDataMap() const { return m_mapMucData; }

    /// The records of those room jids. A jid that is not known has a default record in the result, an empty one is left
    /// out.
    QMap<QString, MucData> getMucDataMapByRoomJids(const QStringList &listRoomJid) const;

    /// Inserts or replaces the rooms of that map; the others stay.
    void setMucDataMap(const QMap<QString, MucData> &mapMucData);

    /// A copy of the whole service number map, code to record.
    QMap<QString, CServiceNumData> getServiceNumDataMap() const { return m_mapServiceNumData; }

    /// A copy of the whole map: deliberately, the list is ignored.
    QMap<QString, CServiceNumData> getServiceNumDataByCodes(const QStringList &listCode) const;

    /// Inserts or replaces the service numbers of that map; the others stay.
    void setServiceNumDataMap(const QMap<QString, CServiceNumData> &mapServiceNumData);

    // What the server announces, kept by the server settings; without them a setter does nothing and a getter gives 0
    // or false.

    /// Stores whether the server supports calls.
    void setSupportVoIPFlag(bool bSupport);

    /// Always false, deliberately: the stored value is read from CServerSettings.
    bool getSupportVoIPFlag() const;

    /// The greatest size of a file that may be sent, in bytes.
    void setFileTransferMaxSize(qint64 iSize);
    qint64 getFileTransferMaxSize() const;

    /// Whether the user may change the password.
    void setCanModifyPassword(bool bCan);
    bool getCanModifyPassword() const;

    /// The greatest number of members of a room.
    void setMucRoomMaxSize(qint64 iSize);
    qint64 getMucRoomMaxSize() const;

    /// The request to send in place of the given one, which stays as it is: its URL and raw headers without
    /// "Authorization", and the user's authentication id as the one cookie "imAuthId". Attributes and SSL settings are
    /// not carried over.
    QNetworkRequest CoverNetworkRequest(const QNetworkRequest &request) const;

private:
    QNetworkAccessManager *m_pNetWorkManager = nullptr;
    CustomLogger *m_pCustomLogger = nullptr;
    CLogThread *m_pLogThread = nullptr;
    QFont *m_pIconFont = nullptr;
    CMonitorLogger *m_pMonitorLogger = nullptr;
    CServerSettings *m_pServerSettings = nullptr;
    CPassportLoginServer *m_pPassportLoginServer = nullptr;
    SysUIData *m_pSkinData = nullptr;
    LoginData *m_pLoginData = nullptr;
    SystemSetData *m_pSystemSetData = nullptr;
    SessionManager *m_pSessionManager = nullptr;
    QSqlDatabase *m_pSqlDatabase = nullptr;
    QList<QTranslator *> m_listTranslator;
    QSqlDatabase *m_pAgentSqlDatabase = nullptr;
    QList<SysUIData> *m_pListSysUIData = nullptr;
    QList<ChatBubbles> *m_pListChatBubbles = nullptr;
    QMap<QString, FriendData> m_mapFriendData;
    QList<QString> m_listHeadJid;
    QMap<QString, PresenceData> m_mapPresenceData;
    QMap<QString, MucData> m_mapMucData;
    QMap<QString, CServiceNumData> m_mapServiceNumData;
};
