#pragma once

#include <QString>

/// A setting of the signed-in user's by its key, "section/name". GUI thread; no state; to be used after the user's
/// settings have been read.
namespace UserSetting {

/// What the user's file says; empty where it says nothing.
QString read(const QString &strKey);

/// Writes it. False, and who reads finds what was there before, where the file cannot be written to.
bool write(const QString &strKey, const QString &strValue);

} // namespace UserSetting
