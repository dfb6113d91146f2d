#pragma once

#include <QString>

#include <initializer_list>

/// How this client reads and writes a file of settings: all that belongs together, or nothing. What cannot be written
/// has no effect, so that what is in force stays what the files say. GUI thread; no state.
namespace SettingsFile {

struct Entry
{
    QString key; ///< "/section/name"
    QString value;
};

/// The text that the file has under that key, "/section/name"; empty for none, and for a file that is not there.
QString read(const QString &strFile, const QString &strKey);

/// Writes the entries. False, and all who read the file here find what they found before, where it cannot be written
/// to or is not known yet.
bool write(const QString &strFile, std::initializer_list<Entry> entries);

} // namespace SettingsFile
