#include "model/SharedContext.h"

namespace {

constexpr qint64 cDefaultRoomSize = 1500;

// What the getter gives, or an unset value without a context.
template <typename Value, typename... Params, typename... Args>
Value read(Value (CommonData::*pGetter)(Params...) const, const Args &...args)
{
    const CommonData *pContext = SharedContext::getCommonData();
    return pContext != nullptr ? (pContext->*pGetter)(args...) : Value();
}

// Calls the operation, or does nothing without a context.
template <typename... Params, typename... Args>
void write(void (CommonData::*pOperation)(Params...), const Args &...args)
{
    if (CommonData *pContext = SharedContext::getCommonData(); pContext != nullptr) {
        (pContext->*pOperation)(args...);
    }
}

} // namespace

QNetworkAccessManager *SharedContext::getNetWorkManager()
{
    return read(&CommonData::getNetWorkManager);
}

CustomLogger *SharedContext::getCustomLogger()
{
    return read(&CommonData::getCustomLogger);
}

CLogThread *SharedContext::getLogThread()
{
    return read(&CommonData::getLogThread);
}

CMonitorLogger *SharedContext::getMonitorLogger()
{
    return read(&CommonData::getMonitorLogger);
}

CServerSettings *SharedContext::getServerSettings()
{
    return read(&CommonData::getServerSettings);
}

CPassportLoginServer *SharedContext::getPassportLoginServer()
{
    return read(&CommonData::getPassportLoginServer);
}

LoginData *SharedContext::getLoginData()
{
    return read(&CommonData::getLoginData);
}

SystemSetData *SharedContext::getSystemSetData()
{
    return read(&CommonData::getSystemSetData);
}

SessionManager *SharedContext::getSessionManager()
{
    return read(&CommonData::getSessionManager);
}

QSqlDatabase *SharedContext::getSqlDatabase()
{
    return read(&CommonData::getSqlDatabase);
}

QList<QTranslator *> SharedContext::getTranslatorList()
{
    return read(&CommonData::getTranslatorList);
}

QSqlDatabase *SharedContext::getAgentSqlDatabase()
{
    return read(&CommonData::getAgentSqlDatabase);
}

QMap<QString, FriendData> SharedContext::getFriendDataMap()
{
    return read(&CommonData::getFriendDataMap);
}

QMap<QString, FriendData> SharedContext::getFriendDataMapByJids(const QStringList &listJid)
{
    return read(&CommonData::getFriendDataMapByJids, listJid);
}

void SharedContext::setFriendDataMap(const QMap<QString, FriendData> &mapFriendData)
{
    write(&CommonData::setFriendDataMap, mapFriendData);
}

void SharedContext::addHeadJidList(const QString &strJid)
{
    write(&CommonData::addHeadJidList, strJid);
}

QList<QString> SharedContext::getHeadJidList()
{
    return read(&CommonData::getHeadJidList);
}

QMap<QString, PresenceData> SharedContext::getPresenceDataMap(const QStringList &listJid)
{
    return read(&CommonData::getPresenceDataMap, listJid);
}

void SharedContext::setPresenceDataMap(const QMap<QString, PresenceData> &mapPresenceData)
{
    write(&CommonData::setPresenceDataMap, mapPresenceData);
}

void SharedContext::clearPresenceDataMap()
{
    write(&CommonData::clearPresenceDataMap);
}

QMap<QString, MucData> SharedContext::getMucDataMap()
{
    return read(&CommonData::getMucDataMap);
}

QMap<QString, MucData> SharedContext::getMucDataMapByRoomJids(const QStringList &listRoomJid)
{
    return read(&CommonData::getMucDataMapByRoomJids, listRoomJid);
}

void SharedContext::setMucDataMap(const QMap<QString, MucData> &mapMucData)
{
    write(&CommonData::setMucDataMap, mapMucData);
}

QMap<QString, CServiceNumData> SharedContext::getServiceNumDataMap()
{
    return read(&CommonData::getServiceNumDataMap);
}

QMap<QString, CServiceNumData> SharedContext::getServiceNumDataByCodes(const QStringList &listCode)
{
    return read(&CommonData::getServiceNumDataByCodes, listCode);
}

void SharedContext::setServiceNumDataMap(const QMap<QString, CServiceNumData> &mapServiceNumData)
{
    write(&CommonData::setServiceNumDataMap, mapServiceNumData);
}

void SharedContext::setSupportVoIPFlag(bool bSupport)
{
    write(&CommonData::setSupportVoIPFlag, bSupport);
}

bool SharedContext::getSupportVoIPFlag()
{
    return read(&CommonData::getSupportVoIPFlag);
}

void SharedContext::setFileTransferMaxSize(qint64 iSize)
{
    write(&CommonData::setFileTransferMaxSize, iSize);
}

qint64 SharedContext::getFileTransferMaxSize()
{
    return read(&CommonData::getFileTransferMaxSize);
}

void SharedContext::setCanModifyPassword(bool bCan)
{
    write(&CommonData::setCanModifyPassword, bCan);
}

bool SharedContext::getCanModifyPassword()
{
    return read(&CommonData::getCanModifyPassword);
}

void SharedContext::setMucRoomMaxSize(qint64 iSize)
{
    write(&CommonData::setMucRoomMaxSize, iSize);
}

qint64 SharedContext::getMucRoomMaxSize()
{
    return read(&CommonData::getMucRoomMaxSize);
}

qint64 SharedContext::getMucRoomMaxMemberSize()
{
    const qint64 iAnnounced = getMucRoomMaxSize();
    return iAnnounced < 1 ? cDefaultRoomSize : iAnnounced;
}
