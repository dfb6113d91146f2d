#pragma once

// Rows for a HappeningsModel, made by hand.

#include "happenings/HappeningsModel.h"
#include "traffic/EventWords.h"

#include "plugin/EventPayload.h"

/// A call of `strUser` at `iTime`; its raw text is "raw <user>".
inline Happening callOf(const QString &strUser, qint64 iTime = 0, Happening::Kind kind = Happening::Event)
{
    Happening row;
    row.time = iTime;
    row.kind = kind;
    row.way = Happening::ClientToPlugin;
    row.sentence = EventWords::say(MSG_CALL_SINGLE_USER, packPayload(false, strUser), QByteArray());
    row.raw = QStringLiteral("raw ") + strUser;
    return row;
}

/// Calls of the users "u<first>", "u<first+1>", ...
inline std::deque<Happening> callsOf(int iFirst, int iCount)
{
    std::deque<Happening> rows;
    for (int i = 0; i < iCount; ++i) {
        rows.push_back(callOf(QStringLiteral("u%1").arg(iFirst + i), iFirst + i));
    }
    return rows;
}
