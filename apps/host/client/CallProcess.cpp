#include "client/CallProcess.h"

#include "traffic/TraceFolder.h"

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
    const QByteArray folder = "TMPDIR=" + qgetenv("TMPDIR");
    QList<qint64> found;
    const QStringList entries = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &entry : entries) {
        bool isPid = false;
        const qint64 pid = entry.toLongLong(&isPid);
        const QString place = QStringLiteral("/proc/") + entry;
        if (!isPid || wanted.isEmpty() || QFile::symLinkTarget(place + QStringLiteral("/exe")) != wanted) {
            continue;
        }
        QFile file(place + QStringLiteral("/environ"));
        if (!file.open(QIODevice::ReadOnly)) {
            continue;
        }
        const QList<QByteArray> environment = file.readAll().split('\0');
        if (environment.contains(mark) && (!qEnvironmentVariableIsSet("TMPDIR") || environment.contains(folder))) {
            found.append(pid);
        }
    }
    return found;
}

void CallProcess::signalAll(int iNumber) const
{
    const QList<qint64> all = pids();
    for (const qint64 pid : all) {
        ::kill(pid_t(pid), iNumber);
    }
}

void CallProcess::kill() const
{
    signalAll(SIGKILL);
}

void CallProcess::terminate() const
{
    signalAll(SIGTERM);
}

bool CallProcess::start() const
{
    return QProcess::startDetached(program(), QStringList());
}
