#include "client/CallProcess.h"

#include "calls/settings/CallKinds.h"
#include "traffic/TraceFolder.h"

#include "wire/Commands.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include <csignal>

namespace {

/// The program that is started, and those beside it that it becomes. Without links, as the system tells them.
QStringList programs()
{
    const QFileInfo front(QFileInfo(CallProcess::program()).canonicalFilePath());
    QStringList found;
    if (front.isFile()) {
        found.append(front.filePath());
        for (const QString &kind : QString::fromLatin1(CallKinds::cAll).split(QLatin1Char('|'))) {
            found.append(front.path() + QLatin1Char('/') + QLatin1String(CallKinds::cPrefix) + kind);
        }
    }
    return found;
}

} // namespace

CallProcess::CallProcess(const QString &strTraceFile) : m_strTraceFile(strTraceFile) {}

QString CallProcess::program()
{
    return QCoreApplication::applicationDirPath() + QLatin1String(Wire::cProgram);
}

QList<qint64> CallProcess::pids() const
{
    const QStringList wanted = programs();
    const QByteArray mark = QByteArray(TraceFolder::cVariable) + '=' + QFile::encodeName(m_strTraceFile);
    const QByteArray folder = "TMPDIR=" + qgetenv("TMPDIR");
    QList<qint64> found;
    const QStringList entries = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &entry : entries) {
        bool isPid = false;
        const qint64 pid = entry.toLongLong(&isPid);
        const QString place = QStringLiteral("/proc/") + entry;
        if (!isPid || !wanted.contains(QFile::symLinkTarget(place + QStringLiteral("/exe")))) {
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
