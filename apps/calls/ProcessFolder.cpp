#include "calls/ProcessFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <cerrno>
#include <csignal>
#include <unistd.h>

namespace {

const QString cPrefix = QStringLiteral("kelvarim-calls-");

/// Qt's is empty where the folder that is set is not there, and an empty one is the working directory.
QString temporaryFolder()
{
    const QString path = QDir::tempPath();
    return path.isEmpty() ? qEnvironmentVariable("TMPDIR") : path;
}

/// The name tells whose it is.
QString nameTemplate()
{
    return QDir(temporaryFolder())
        .filePath(QStringLiteral("%1%2-XXXXXX").arg(cPrefix).arg(QCoreApplication::applicationPid()));
}

bool isAlive(qint64 pid)
{
    return ::kill(pid_t(pid), 0) == 0 || errno != ESRCH;
}

void removeWhatIsLeft()
{
    const QFileInfoList folders =
        QDir(temporaryFolder()).entryInfoList({cPrefix + QLatin1Char('*')}, QDir::Dirs | QDir::NoSymLinks);
    for (const QFileInfo &folder : folders) {
        const qint64 pid = folder.fileName().mid(cPrefix.size()).section(QLatin1Char('-'), 0, 0).toLongLong();
        if (pid > 0 && folder.ownerId() == ::geteuid() && !isAlive(pid)) {
            QDir(folder.filePath()).removeRecursively();
        }
    }
}

} // namespace

ProcessFolder::ProcessFolder() : m_folder(nameTemplate())
{
    removeWhatIsLeft();
}

QString ProcessFolder::fault() const
{
    return QStringLiteral("no folder of one's own in %1: %2").arg(temporaryFolder(), m_folder.errorString());
}
