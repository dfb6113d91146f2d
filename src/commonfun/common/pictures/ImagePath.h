#pragma once

// Picture files whose suffix does not tell what they hold: they are renamed, because the chat view and the other
// programs that open them go by the suffix. GUI thread.

#include <QString>

class ImagePath
{
public:
    /// The path of the picture at `strPath` with the suffix that its first bytes tell. A file with another suffix is
    /// copied to that name, unless there is such a file, and removed. A file of an unknown kind keeps its path.
    /// `strFallback` when the file cannot be read or is empty.
    static QString getTrueImagePath(const QString &strPath, const QString &strFallback);

    /// Does the same to the file at `strPath`. True when its suffix was wrong; `strPath` then names the corrected
    /// file. Otherwise, also when the file cannot be read, false and `strPath` stays.
    static bool getIsImageFixError(QString &strPath);
};
