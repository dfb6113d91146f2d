#include "engine/RecordedEngine.h"

#include "store/DB.h"

#include <QSqlQuery>

RecordedEngine::RecordedEngine(Start start) : EngineFixture(start)
{
    if (!DB::initByUserName(login.m_strUid, m_folder.path(), true)) {
        qFatal("the store could not be opened");
    }
}

RecordedEngine::~RecordedEngine()
{
    DB::closeDB();
}

QList<QStringList> RecordedEngine::rows() const
{
    QSqlQuery query(DB::getDB());
    if (!query.exec("SELECT quote(ConfID),quote(CreatUserID),quote(CreatTime),quote(CallTime),quote(MemberList),"
                    "quote(IsConnect) FROM voipConferenceInfo ORDER BY ConfID")) {
        qFatal("the records could not be read");
    }
    QList<QStringList> rows;
    while (query.next()) {
        QStringList row;
        for (int column = 0; column < 6; ++column) {
            row << query.value(column).toString();
        }
        rows << row;
    }
    return rows;
}

QStringList RecordedEngine::records() const
{
    QStringList records;
    for (const QStringList &row : rows()) {
        records << row.join(' ');
    }
    return records;
}

int RecordedEngine::count() const
{
    QSqlQuery query(DB::getDB());
    if (!query.exec("SELECT COUNT(*) FROM voipConferenceInfo") || !query.next()) {
        qFatal("the records could not be counted");
    }
    return query.value(0).toInt();
}

void RecordedEngine::connectedFor(qint64 seconds)
{
    CallData &call = manager->m_callData;
    call.connectTime = call.connectTime.addSecs(-seconds);
}
