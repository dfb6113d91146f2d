#include "calls/exchange/ExchangeChild.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QThread>

#include <csignal>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int cEndMs = 2000;
constexpr int cEndPauseMs = 5;

/// Whether there was one to kill. What is dead and not yet taken note of has no arguments any more.
bool killRemains(const QByteArray &configuration)
{
    bool found = false;
    const QStringList entries = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &entry : entries) {
        const QString place = QStringLiteral("/proc/") + entry;
        struct stat status = {};
        QFile file(place + QStringLiteral("/cmdline"));
        bool isPid = false;
        const qint64 pid = entry.toLongLong(&isPid);
        if (isPid && pid != ::getpid() && ::stat(QFile::encodeName(place).constData(), &status) == 0 &&
            status.st_uid == ::geteuid() && file.open(QIODevice::ReadOnly)) {
            const QList<QByteArray> arguments = file.readAll().split('\0');
            // Somebody may just look at the file.
            if (arguments.value(1) == "-f" && arguments.value(2) == configuration &&
                arguments.value(3) == ExchangeChild::cStaysInFront) {
                ::kill(pid_t(pid), SIGKILL);
                found = true;
            }
        }
    }
    return found;
}

} // namespace

ExchangeChild::ExchangeChild(QObject *parent) : QProcess(parent)
{
    connect(this, &QProcess::started, this, [this] { m_group = processId(); });
}

ExchangeChild::~ExchangeChild()
{
    endGroup();
    // The base's own end would wait for what has gone already.
    waitForFinished(cEndMs);
}

void ExchangeChild::endGroup()
{
    if (m_group > 0) {
        ::kill(-pid_t(m_group), SIGKILL);
    }
    // Once its first process has gone the number may become another's.
    if (state() == NotRunning) {
        m_group = 0;
    }
}

void ExchangeChild::endRemains(const QString &configuration)
{
    const QDeadlineTimer deadline(cEndMs);
    while (killRemains(QFile::encodeName(configuration)) && !deadline.hasExpired()) {
        QThread::msleep(cEndPauseMs);
    }
}

QString ExchangeChild::program(const QString &set)
{
    if (!set.isEmpty()) {
        return QFileInfo(set).isExecutable() ? set : QString();
    }
    const QString name = QStringLiteral("kamailio");
    const QString found = QStandardPaths::findExecutable(name);
    return found.isEmpty()
               ? QStandardPaths::findExecutable(name, {QStringLiteral("/usr/local/sbin"), QStringLiteral("/usr/sbin")})
               : found;
}

void ExchangeChild::setupChildProcess()
{
    ::setpgid(0, 0);
    // Its first process ends the others when it is told to.
    ::prctl(PR_SET_PDEATHSIG, SIGTERM);
}
