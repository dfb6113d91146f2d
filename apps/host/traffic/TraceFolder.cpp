#include "traffic/TraceFolder.h"

#include "traffic/CallChannel.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <csignal>

namespace {

constexpr const char *cPrefix = "kelvarim-trace-";

/// The name tells whose it is.
QString nameTemplate()
{
    return QDir(QDir::tempPath())
        .filePath(QStringLiteral("%1%2-XXXXXX").arg(QLatin1String(cPrefix)).arg(QCoreApplication::applicationPid()));
}

bool isAlive(qint64 pid)
{
    return ::kill(pid_t(pid), 0) == 0 || errno != ESRCH;
}

/// The folders that some process writes its trace to.
QSet<QString> foldersInUse()
{
    QSet<QString> folders;
    const QStringList entries = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &entry : entries) {
        const qint64 pid = entry.toLongLong();
        const CallChannel::Trace trace = pid == 0 ? CallChannel::Trace() : CallChannel::traceOf(pid);
        if (trace.kind == CallChannel::Trace::File) {
            folders.insert(QFileInfo(trace.file).path());
        }
    }
    return folders;
}

/// The folders of clients that have gone.
QStringList leftFolders()
{
    QStringList left;
    const QString prefix = QString::fromLatin1(cPrefix);
    const QFileInfoList folders = QDir(QDir::tempPath()).entryInfoList({prefix + QLatin1Char('*')}, QDir::Dirs);
    for (const QFileInfo &folder : folders) {
        const qint64 pid = folder.fileName().mid(prefix.size()).section(QLatin1Char('-'), 0, 0).toLongLong();
        if (pid > 0 && !isAlive(pid)) {
            left << folder.filePath();
        }
    }
    return left;
}

void cleanUp()
{
    const QStringList left = leftFolders();
    if (left.isEmpty()) {
        return;
    }
    const QSet<QString> used = foldersInUse();
    for (const QString &folder : left) {
        if (!used.contains(folder)) {
            QDir(folder).removeRecursively();
        }
    }
}

} // namespace

TraceFolder::TraceFolder() : m_folder(nameTemplate())
{
    cleanUp();
    if (qEnvironmentVariableIsEmpty(cVariable) && m_folder.isValid()) {
        qputenv(cVariable, QFile::encodeName(m_folder.filePath(QStringLiteral("wire.txt"))));
    }
}

QString TraceFolder::file()
{
    const QString file = QFile::decodeName(qgetenv(cVariable));
    // Standard error cannot be followed.
    return file == QLatin1String("-") ? QString() : file;
}
