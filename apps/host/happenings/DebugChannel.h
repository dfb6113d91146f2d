#pragma once

#include <QStringList>

/// Takes Qt's debug channel while the tour runs: everything goes to a file, warnings and worse to standard error too,
/// so that they stand out, and are remembered, but for the known ones (common/log/QtWarningFilter.h). One at
/// a time, for the life of the program; any thread may write.
class DebugChannel
{
public:
    /// Opens the file and takes the channel over. A file that cannot be opened takes nothing.
    explicit DebugChannel(const QString &strFile);

    /// Gives the channel back.
    ~DebugChannel();
    DebugChannel(const DebugChannel &) = delete;
    DebugChannel &operator=(const DebugChannel &) = delete;

    /// The warnings so far that are not known, oldest first.
    static QStringList warnings();
};
