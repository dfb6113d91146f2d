#include "endpoint/SocketClaim.h"

#include "wire/SocketProbe.h"

#include <QDir>
#include <QFile>

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
    return Wire::isAnswered(QFile::encodeName(socketFile).toStdString());
}
