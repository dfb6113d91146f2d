#pragma once

// One time stamp over all sessions, in the one row of the table `last_time` of the user's store. The row is made with
// the table, with an empty time. All static, on the connection of DB::getDB() and on its thread. A failed write is
// logged as an error and not reported otherwise.

#include <QString>

class DBLastTime
{
public:
    /// Inserts the row; null counts as empty. Fails when the row is there: later stamps go through updateLastTime().
    static void saveLastTime(const QString &time);

    /// Sets the time of the row; null counts as empty. Without the row nothing is stored, which is no failure.
    static void updateLastTime(const QString &time);

    /// The stored time; "-1" when there is no row, an empty time or no open store.
    static QString getLastTime();
};
