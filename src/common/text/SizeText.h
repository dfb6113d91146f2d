#pragma once

// Sizes and speeds of transfers as short texts. Units go by powers of 1024; there is no blank before the unit.
// Any thread; no state.

#include <QString>

class SizeText
{
public:
    /// `iBytes` with three significant digits: "1023B", "1.5KB", "999MB", "2GB". From 999 whole KB or MB on it is one
    /// of the next unit; from 999.5 GB on the number has an exponent; below 1024, also below 0, it is whole bytes.
    static QString fileSizeConvert(qint64 iBytes);

    /// The mean speed as a size and "/s"; empty for no seconds. Neither argument is changed.
    static QString speedConvert(unsigned long &iBytes, unsigned long &iSeconds);

    /// Bytes a second between two times in milliseconds, at most 15 MiB; 0 if `iStart` is 0 or `iEnd` is not later.
    static qint64 getSpeed(qint64 iStart, qint64 iEnd, qint64 iBytes);

    /// That speed with one decimal and "MB/S" or "KB/S", below 1024 whole and with "B/S".
    static QString getSpeedString(qint64 iStart, qint64 iEnd, qint64 iBytes);
};
