#pragma once

// The finished conferences of the signed-in user, one row each in the table `voipConferenceInfo` of the user's store. A
// record is written once, never updated, and deleted on the user's wish. All static, on the connection of DB::getDB()
// and on its thread. Nothing is logged; without an open store every operation fails without effect.

#include <QList>
#include <QString>

/// One conference record. A plain value.
struct ConfInfoData
{
    QString m_strConfID;         ///< conference id, the record's key
    QString m_strCreatUserID;    ///< user id of the creator
    QString m_strCreatTime;      ///< "yyyy-MM-dd hh:mm:ss"
    QString m_strCallTime;       ///< length in whole seconds as decimal text; "0" when the call never connected
    QList<QString> m_listMember; ///< user ids of the members; none can hold a comma
    bool m_bIsConnect = false;   ///< whether the call got connected
};

class DBConfInfo
{
public:
    DBConfInfo() = default;
    ~DBConfInfo() = default;

    /// Adds the record unless its id is known already; a known one stays as it is, which counts as success. The id is
    /// looked up without its apostrophes but stored with them. Null texts are stored as empty ones. False when a
    /// statement fails.
    static bool saveConfInfo(ConfInfoData info);

    /// All records, by the text order of their ids, descending: "9" before "10". Empty when the statement fails.
    static QList<ConfInfoData> getAllConfInfo();

    /// Deletes the record with that id, its apostrophes taken out; true also for an id that is not there, false when
    /// the statement fails.
    static bool deleteConfInfo(QString confId);
};
