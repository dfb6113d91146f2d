#pragma once

#include <QString>

class QDateTime;

/// Moves an SQLite file that was found damaged out of the way of a new one, with what SQLite keeps beside it. No state.
namespace FileAside {

/// The path, beside `strFile`, to which that file is moved at that time: "NAME.damaged-yyyyMMdd-hhmmss.db", or with a
/// number behind it, one that neither a file nor what SQLite would keep beside it has yet.
QString path(const QString &strFile, const QDateTime &when);

/// Moves the file with its companions, or nothing at all; says which.
bool move(const QString &strFrom, const QString &strTo);

} // namespace FileAside
