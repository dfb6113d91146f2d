#pragma once

// Conference records that are known by their number: from a few bytes to several pages long, every field different.

#include "store/DBConfInfo.h"

/// The record of that number, the same at every call.
inline ConfInfoData numberedRecord(int iNumber)
{
    ConfInfoData record;
    record.m_strConfID = QStringLiteral("conf%1").arg(iNumber, 7, 10, QLatin1Char('0'));
    record.m_strCreatUserID = QString::number(30010000 + iNumber % 97);
    record.m_strCreatTime = QStringLiteral("2024-03-01 10:%1:%2")
                                .arg(iNumber / 60 % 60, 2, 10, QLatin1Char('0'))
                                .arg(iNumber % 60, 2, 10, QLatin1Char('0'));
    record.m_strCallTime = QString::number(iNumber * 7);
    const int members = iNumber % 10 == 0 ? 1500 : iNumber % 10;
    for (int i = 0; i < members; ++i) {
        record.m_listMember.append(QString::number(30020000 + iNumber + i));
    }
    record.m_bIsConnect = iNumber % 2 == 0;
    return record;
}

/// The number in a record's id.
inline int numberOf(const ConfInfoData &record)
{
    return record.m_strConfID.mid(4).toInt();
}
