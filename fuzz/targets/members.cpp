#include "FuzzTargets.h"

#include "engine/ConferenceDocument.h"
#include "model/CommonData.h"
#include "model/SharedContext.h"
#include "store/DB.h"
#include "store/DBConfInfo.h"

#include <QDir>
#include <QSqlQuery>
#include <QVariant>

namespace {

void read(const QString &text)
{
    const ConferenceDocument document = ConferenceDocument::read(text);
    requirePromise(document.conventioneer.size() <= text.size(), "members come from the text");
    createdConferenceId(text);
    failedNumbers(text);
}

/// A store of this process in memory's stead: one table's rows, emptied behind each input.
void openStore()
{
    static CommonData s_context;
    SharedContext::setCommonData(&s_context);
    if (!DB::getDB().isOpen()) {
        requirePromise(DB::initByUserName(QStringLiteral("me"), QDir::currentPath(), true), "the store opens");
        QSqlQuery(DB::getDB()).exec(QStringLiteral("PRAGMA journal_mode = MEMORY"));
        QSqlQuery(DB::getDB()).exec(QStringLiteral("PRAGMA synchronous = OFF"));
    }
}

void emptyStore()
{
    QSqlQuery(DB::getDB()).exec(QStringLiteral("DELETE FROM voipConferenceInfo"));
}

/// Stores a record, reads it back, and has the column hold the text as it stands as well.
void keep(const QString &text)
{
    openStore();
    ConfInfoData record;
    record.m_strConfID = text.section(QLatin1Char('\n'), 0, 0);
    record.m_listMember = text.section(QLatin1Char('\n'), 1).split(QLatin1Char('\n'));
    record.m_strCreatUserID = record.m_listMember.value(0);
    const bool saved = DBConfInfo::saveConfInfo(record);
    const QList<ConfInfoData> kept = DBConfInfo::getAllConfInfo();
    requirePromise(kept.size() == (saved ? 1 : 0), "what was saved is there");
    DBConfInfo::deleteConfInfo(record.m_strConfID);

    QSqlQuery query(DB::getDB());
    query.prepare(QStringLiteral("INSERT INTO voipConferenceInfo (ConfID, MemberList, CallTime) VALUES ('x', ?, ?)"));
    query.addBindValue(text);
    query.addBindValue(text.left(10));
    query.exec();
    const QList<ConfInfoData> records = DBConfInfo::getAllConfInfo();
    for (const ConfInfoData &info : records) {
        for (const QString &member : info.m_listMember) {
            requirePromise(!member.isEmpty() && !member.contains(QLatin1Char(',')), "a member is a text of its own");
        }
    }
    emptyStore();
}

} // namespace

// The first byte says whether the rest is a document or a stored record.
void FuzzTargets::members(const QByteArray &input)
{
    if (input.isEmpty()) {
        return;
    }
    const QString text = QString::fromUtf8(input.mid(1));
    if (uchar(input.at(0)) % 2 == 0) {
        read(text);
    } else {
        keep(text);
    }
}
