#pragma once

// Copies folders with all that they hold. Blocks until it is done; any thread.

#include <QDir>

class FolderCopy
{
public:
    /// Copies what `from` holds into `to`, which is made when it is missing (its parent must be there). Without
    /// `overwrite` a file that is there already ends the copy; in sub-folders files are overwritten in any case. Hidden
    /// files are left out. False at the first failure, what is copied by then stays; also false, with nothing copied,
    /// when `to` lies in `from` or is the same folder, and when a link leads back to a folder that is being copied.
    static bool copyDirectory(const QDir &from, const QDir &to, bool overwrite);
};
