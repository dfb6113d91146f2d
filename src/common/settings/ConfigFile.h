#pragma once

// Access to the client's INI files, in UTF-8, with a fresh settings object for each call.
// Any thread; no state. Two writers of one file race as QSettings lets them. Nothing here reports a failure: a file
// that does not exist reads as empty, a failed write is ignored.

#include <QString>
#include <QVariant>

class ConfigFile
{
public:
    /// The value of `strKey` ("section/name") in the INI file `strFile`; `defaultValue` when the file or key is
    /// missing.
    static QVariant getConfigValue(const QString &strFile, const QString &strKey, const QVariant &defaultValue = {});

    /// Sets `strKey` in the INI file `strFile`; the file is written before the call returns.
    static void changeConfigValue(const QString &strFile, const QString &strKey, const QVariant &value);

    /// Copies the groups of the INI file `strSource`, read in the toolkit's own coding, into the UTF-8 file
    /// `strTarget`. Room addresses (items of the group "DialogOpen", keys of "RoomMsgSet") get their short form on the
    /// way: the chat server's host name becomes "im", "conference" becomes "c". Keys outside any group are not copied.
    static void translateIniToUtf8Code(const QString &strSource, const QString &strTarget);
};
