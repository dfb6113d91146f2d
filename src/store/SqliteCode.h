#pragma once

// SQLite's primary result codes, as Qt's driver hands them on. Pure functions and constants; any thread.

#include <QSqlError>

namespace SqliteCode {

inline constexpr int cError = 1;       ///< a statement that the file's tables do not fit
inline constexpr int cBusy = 5;        ///< another connection has locked the file
inline constexpr int cLocked = 6;      ///< another statement of this connection has locked a table
inline constexpr int cCorrupt = 11;    ///< the file is damaged
inline constexpr int cConstraint = 19; ///< a row that is not unique, or lacks something
inline constexpr int cNoDatabase = 26; ///< the file is no database

/// The primary code of `error`; the upper bytes of what the driver gives tell details. 0 where there is none.
inline int of(const QSqlError &error)
{
    return error.nativeErrorCode().toInt() & 0xff;
}

} // namespace SqliteCode
