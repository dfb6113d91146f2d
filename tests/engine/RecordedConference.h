#pragma once

// Two conferences that leave a record: one of this side's own, and one that it was invited to.

#include "engine/RecordedEngine.h"

#include <ctime>

/// 2023-11-14 22:13:20 UTC.
inline const QString cCreateTime(R"("createTime":1700000000000)");

/// Takes the process eight hours east of Greenwich: the creation time is stored in local time.
inline void enterZoneOfRecords()
{
    qputenv("TZ", "CST-8");
    tzset();
}

/// This side has created c1 with anna and bert, carl has come to it.
inline void createConference(RecordedEngine &f)
{
    f.createConference();
    f.notify(Code::ConfUpdate,
             R"({"content":{"confId":"c1","conventioneer":["me","anna","carl"],)" + cCreateTime + "}}");
}

/// Anna has invited this side to c1, where bert is too; it has accepted.
inline void joinConference(RecordedEngine &f)
{
    f.manager->m_strUserId = "me";
    f.notify(Code::IncomingConf, R"({"content":{"confId":"c1","from":"anna",)" + cCreateTime + "}}");
    f.notify(Code::ConfUpdate, R"({"content":{"confId":"c1","conventioneer":["anna","me","bert"]}})");
    f.manager->responseVoipRequest(true);
}
