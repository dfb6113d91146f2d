#include "model/CommonData.h"

#include "common/CServerSettings.h"
#include "model/RecordMetaTypes.h"

namespace {

// Here, because every program that shares a context links this source.
[[maybe_unused]] const bool cMetaTypesRegistered = registerRecordMetaTypes();

template <typename Record>
QMap<QString, Record> recordsByKeys(const QMap<QString, Record> &mapRecord, const QStringList &listKey)
{
    QMap<QString, Record> mapResult;
    for (const QString &strKey : listKey) {
        if (!strKey.isEmpty()) {
            mapResult.insert(strKey, mapRecord.value(strKey));
        }
    }
    return mapResult;
}

template <typename Record>
void mergeByKey(QMap<QString, Record> &mapRecord, const QMap<QString, Record> &mapNew)
{
    for (auto it = mapNew.cbegin(); it != mapNew.cend(); ++it) {
        mapRecord.insert(it.key(), it.value());
    }
}

PresenceData blankPresence(const QString &strJid)
{
    PresenceData presence;
    presence.m_strJid = strJid;
    return presence;
}

// The fields are treated unlike each other, deliberately. Jid, text and flag stay as they were.
void mergePresence(PresenceData &known, const PresenceData &update)
{
    if (update.m_ePcShowType != PresenceData::PC_SHOW_NONE || !update.m_bFlag) {
        known.m_ePcShowType = update.m_ePcShowType;
    } else {
        known.m_iStateA = update.m_iStateA;
    }
    known.m_iStateB = update.m_iStateB;
}

} // namespace

CommonData::CommonData() = default;

CommonData::~CommonData() = default;

QMap<QString, FriendData> CommonData::getFriendDataMapByJids(const QStringList &listJid) const
{
    return recordsByKeys(m_mapFriendData, listJid);
}

void CommonData::setFriendDataMap(const QMap<QString, FriendData> &mapFriendData)
{
    m_mapFriendData = mapFriendData;
}

QMap<QString, PresenceData> CommonData::getPresenceDataMap(const QStringList &listJid) const
{
    QMap<QString, PresenceData> mapResult;
    for (const QString &strJid : listJid) {
        if (!strJid.isEmpty()) {
            mapResult.insert(strJid, m_mapPresenceData.value(strJid, blankPresence(strJid)));
        }
    }
    return mapResult;
}

void CommonData::setPresenceDataMap(const QMap<QString, PresenceData> &mapPresenceData)
{
    for (auto it = mapPresenceData.cbegin(); it != mapPresenceData.cend(); ++it) {
        const auto known = m_mapPresenceData.find(it.key());
        if (known == m_mapPresenceData.end()) {
            m_mapPresenceData.insert(it.key(), it.value());
        } else {
            mergePresence(*known, it.value());
        }
    }
}

void CommonData::clearPresenceDataMap()
{
    for (auto it = m_mapPresenceData.begin(); it != m_mapPresenceData.end(); ++it) {
        *it = blankPresence(it.key());
    }
}

QMap<QString, MucData> CommonData::getMucDataMapByRoomJids(const QStringList &listRoomJid) const
{
    return recordsByKeys(m_mapMucData, listRoomJid);
}

void CommonData::setMucDataMap(const QMap<QString, MucData> &mapMucData)
{
    mergeByKey(m_mapMucData, mapMucData);
}

QMap<QString, CServiceNumData> CommonData::getServiceNumDataByCodes(const QStringList & /*listCode*/) const
{
    return m_mapServiceNumData;
}

void CommonData::setServiceNumDataMap(const QMap<QString, CServiceNumData> &mapServiceNumData)
{
    mergeByKey(m_mapServiceNumData, mapServiceNumData);
}

void CommonData::setSupportVoIPFlag(bool bSupport)
{
    if (m_pServerSettings != nullptr) {
        m_pServerSettings->setSupportVoIPFlag(bSupport);
    }
}

bool CommonData::getSupportVoIPFlag() const
{
    return false;
}

void CommonData::setFileTransferMaxSize(qint64 iSize)
{
    if (m_pServerSettings != nullptr) {
        m_pServerSettings->setFileTransferMaxSize(iSize);
    }
}

qint64 CommonData::getFileTransferMaxSize() const
{
    return m_pServerSettings != nullptr ? m_pServerSettings->getFileTransferMaxSize() : 0;
}

void CommonData::setCanModifyPassword(bool bCan)
{
    if (m_pServerSettings != nullptr) {
        m_pServerSettings->setCanModifyPassword(bCan);
    }
}

bool CommonData::getCanModifyPassword() const
{
    return m_pServerSettings != nullptr && m_pServerSettings->getCanModifyPassword();
}

void CommonData::setMucRoomMaxSize(qint64 iSize)
{
    if (m_pServerSettings != nullptr) {
        m_pServerSettings->setMaxMucRoomSize(iSize);
    }
}

qint64 CommonData::getMucRoomMaxSize() const
{
    return m_pServerSettings != nullptr ? m_pServerSettings->getMaxMucRoomSize() : 0;
}
