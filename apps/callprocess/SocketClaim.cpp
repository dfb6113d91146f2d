#include "callprocess/SocketClaim.h"

#include <QDir>
#include <QFile>

#include <cerrno>
#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr int cLockWaitMs = 5000;

} // namespace

SocketClaim::SocketClaim(const QString &serverName)
    : m_path(socketPath(serverName)), m_lock(m_path + QStringLiteral(".lock"))
{
    m_lock.setStaleLockTime(0);
    m_lock.tryLock(cLockWaitMs);
}

QString SocketClaim::socketPath(const QString &serverName)
{
    return serverName.startsWith(QLatin1Char('/')) ? serverName : QDir(QDir::tempPath()).filePath(serverName);
}

bool SocketClaim::isAnswered(const QString &socketFile)
{
    const QByteArray path = QFile::encodeName(socketFile);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.size() >= static_cast<int>(sizeof(address.sun_path))) {
        return false;
    }
    std::memcpy(address.sun_path, path.constData(), static_cast<size_t>(path.size()));
    // A datagram socket that connects to a live stream socket gets EPROTOTYPE, and ECONNREFUSED from a file that a dead
    // process left. A stream connection would tell as much, but a live process would take it for its client's return.
    const int probe = ::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    if (probe < 0) {
        return false;
    }
    const int result = ::connect(probe, reinterpret_cast<const sockaddr *>(&address), sizeof(address));
    const bool taken = result == 0 || errno == EPROTOTYPE;
    ::close(probe);
    return taken;
}
