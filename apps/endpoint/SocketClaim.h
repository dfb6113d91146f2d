#pragma once

// Who may have the socket file: one live process at a time. A claim holds a lock beside the socket file, so that two
// processes that start or end at the same moment never take each other's file away. Main thread; lives on the stack.

#include <QLockFile>
#include <QString>

class SocketClaim
{
public:
    /// Waits for the lock, at most a few seconds; then goes on without it rather than hang.
    explicit SocketClaim(const QString &serverName);

    /// Where the local server of this name has its socket file.
    static QString socketPath(const QString &serverName);

    /// Whether a live process has the socket file.
    bool isTaken() const { return isAnswered(m_path); }

    /// Whether a live process listens at the socket file of this path, lock or no lock. It is not noticed there: no
    /// connection arrives.
    static bool isAnswered(const QString &socketFile);

private:
    QString m_path;
    QLockFile m_lock;
};
