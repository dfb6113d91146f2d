#include "client/CallProcess.h"

#include "happenings/TraceFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include <csignal>

CallProcess::CallProcess(const QString &strTraceFile) : m_strTraceFile(strTraceFile) {}

QString CallProcess::program()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/VoipSDK/Contents/MacOS/VoipSDK");
}

QList<qint64> CallProcess::pids() const
{
    const QString wanted = QFileInfo(program()).canonicalFilePath();
    const QByteArray mark = QByteArray(TraceFolder::cVariable) + '=' + QFile::encodeName(m_strTraceFile);
    QList<qint64> found;
    const QStringList entries = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &entry : entries) {
        bool isPid = false;
        const qint64 pid = entry.toLongLong(&isPid);
        const QString folder = QStringLiteral("/proc/") + entry;
        if (!isPid || wanted.isEmpty() || QFile::symLinkTarget(folder + QStringLiteral("/exe")) != wanted) {
            continue;
        }
        QFile environment(folder + QStringLiteral("/environ"));
        if (environment.open(QIODevice::ReadOnly) && environment.readAll().split('\0').contains(mark)) {
            found.append(pid);
        }
    }
    return found;
}

void CallProcess::kill() const
{
    const QList<qint64> all = pids();
    for (const qint64 pid : all) {
        ::kill(pid_t(pid), SIGKILL);
    }
}

bool CallProcess::start() const
{
    return QProcess::startDetached(program(), QStringList());
}
