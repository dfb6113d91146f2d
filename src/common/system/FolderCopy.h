#pragma once

// Copies folders with all that they hold. Blocks until it is done; any thread.

#include <QDir>

class FolderCopy
{
public:
    /// Copies what `from` lists into `to`, which is made when it is missing (its parent must be there). The filters of
    /// `from` hold for its own entries; without any, and in sub-folders always, hidden files are left out. Without
    /// `overwrite` a file that is there already ends the copy; in sub-folders files are overwritten in any case. False
    /// at the first failure, what is copied by then stays; also false, with nothing copied, when `to` lies in `from` or
    /// is the same folder, and when a link leads back to a folder that is being copied. A `from` that is missing or
    /// empty leaves an empty `to`.
    static bool copyDirectory(const QDir &from, const QDir &to, bool overwrite);
};
