#include "store/DBConfInfo.h"

#include "store/DB.h"
#include "store/StoredText.h"

#include <QSqlQuery>
#include <QStringList>
#include <QVariant>
#include <QVector>

namespace {

// Every member has a comma behind it, the last one too.
QString memberText(const QList<QString> &members)
{
    QString text;
    for (const QString &member : members) {
        text += member + QLatin1Char(',');
    }
    return text;
}

QList<QString> membersOf(const QString &text)
{
    return text.split(QLatin1Char(','), Qt::SkipEmptyParts, Qt::CaseSensitive);
}

/// Reads records so that equal texts of a history, the same people and lengths again and again, share their memory.
class RecordReader
{
public:
    ConfInfoData recordOf(const QSqlQuery &query)
    {
        ConfInfoData info;
        info.m_strConfID = query.value(0).toString();
        info.m_strCreatUserID = shared(query.value(1).toString());
        info.m_strCreatTime = query.value(2).toString();
        info.m_strCallTime = shared(query.value(3).toString());
        info.m_listMember = sharedMembers(query.value(4).toString());
        info.m_bIsConnect = query.value(5).toInt() == 1;
        return info;
    }

private:
    QString shared(const QString &text)
    {
        QString &known = m_texts[int(qHash(text) % cKnownTexts)];
        if (known != text) {
            known = text;
        }
        return known;
    }
    QList<QString> sharedMembers(const QString &text)
    {
        QList<QString> members = membersOf(text);
        for (QString &member : members) {
            member = shared(member);
        }
        return members;
    }

    // For each place of the table, the text read last that belongs there. Texts that come again and again are found so,
    // and it costs less than a set.
    static constexpr int cKnownTexts = 4096;
    QVector<QString> m_texts = QVector<QString>(cKnownTexts);
};

} // namespace

bool DBConfInfo::saveConfInfo(ConfInfoData info)
{
    const QSqlDatabase db = DB::getDB();
    if (!db.isOpen()) {
        return false;
    }
    QSqlQuery query(db);
    const bool bLookedUp = query.exec(QStringLiteral("SELECT ConfID FROM voipConferenceInfo WHERE ConfID = ") +
                                      DB::addYinHao(info.m_strConfID));
    QString strKnown;
    if (query.next()) {
        strKnown = query.value(0).toString();
    }
    if (!strKnown.isEmpty()) {
        return bLookedUp;
    }
    // The id goes in as it is, deliberately: the look-up above has it without apostrophes.
    query.prepare(QStringLiteral("INSERT INTO voipConferenceInfo "
                                 "(ConfID,CreatUserID,CreatTime,CallTime,MemberList,IsConnect) "
                                 "VALUES (?, ?, ?, ?, ?, ?)"));
    query.addBindValue(storedText(info.m_strConfID));
    query.addBindValue(storedText(info.m_strCreatUserID));
    query.addBindValue(storedText(info.m_strCreatTime));
    query.addBindValue(storedText(info.m_strCallTime));
    query.addBindValue(storedText(memberText(info.m_listMember)));
    query.addBindValue(static_cast<int>(info.m_bIsConnect));
    return query.exec();
}

QList<ConfInfoData> DBConfInfo::getAllConfInfo()
{
    QList<ConfInfoData> records;
    const QSqlDatabase db = DB::getDB();
    if (!db.isOpen()) {
        return records;
    }
    QSqlQuery query(db);
    query.setForwardOnly(true);
    query.exec(QStringLiteral("SELECT ConfID,CreatUserID,CreatTime,CallTime,MemberList,IsConnect "
                              "FROM voipConferenceInfo ORDER BY ConfID DESC"));
    RecordReader reader;
    while (query.next()) {
        records.append(reader.recordOf(query));
    }
    return records;
}

bool DBConfInfo::deleteConfInfo(QString confId)
{
    const QSqlDatabase db = DB::getDB();
    if (!db.isOpen()) {
        return false;
    }
    QSqlQuery query(db);
    return query.exec(QStringLiteral("DELETE FROM voipConferenceInfo WHERE ConfID = ") + DB::addYinHao(confId));
}
