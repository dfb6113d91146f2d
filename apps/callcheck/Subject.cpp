#include "callcheck/Subject.h"

#include "endpoint/SocketClaim.h"
#include "wire/Commands.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QThread>

#include <csignal>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int cLookAgainMs = 5;

} // namespace

void BoundProcess::setupChildProcess()
{
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    // A key that stops the checker is none of the call process's business.
    ::setpgid(0, 0);
}

Subject::~Subject()
{
    if (m_process && m_process->state() != QProcess::NotRunning) {
        m_process->kill();
        m_process->waitForFinished();
    }
}

bool Subject::start(const QString &program, const QStringList &arguments, QString *error)
{
    m_folder = std::make_unique<QTemporaryDir>(QDir(QDir::tempPath()).filePath(QStringLiteral("callcheck-XXXXXX")));
    if (!m_folder->isValid()) {
        *error = m_folder->errorString();
        return false;
    }
    m_socketPath = m_folder->filePath(QString::fromLatin1(Wire::cServerName));
    m_process = std::make_unique<BoundProcess>();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("TMPDIR"), m_folder->path());
    m_process->setProcessEnvironment(environment);
    m_process->setProcessChannelMode(QProcess::ForwardedChannels);
    m_process->start(program, arguments, QIODevice::NotOpen);
    if (!m_process->waitForStarted()) {
        *error = QStringLiteral("cannot start %1: %2").arg(program, m_process->errorString());
        return false;
    }
    return true;
}

void Subject::attach(const QString &name)
{
    m_socketPath = SocketClaim::socketPath(name);
}

bool Subject::isListening() const
{
    return SocketClaim::isAnswered(m_socketPath);
}

unsigned Subject::socketMode() const
{
    struct stat status = {};
    return ::stat(QFile::encodeName(m_socketPath).constData(), &status) == 0 ? status.st_mode & 0777U : 0U;
}

bool Subject::waitListening(int milliseconds) const
{
    return waitUntilListening(true, milliseconds);
}

bool Subject::waitSilent(int milliseconds) const
{
    return waitUntilListening(false, milliseconds);
}

bool Subject::waitEnded(int milliseconds) const
{
    if (!isChild()) {
        return waitSilent(milliseconds);
    }
    return m_process->state() == QProcess::NotRunning || m_process->waitForFinished(milliseconds);
}

QString Subject::ending() const
{
    const bool normal = m_process->exitStatus() == QProcess::NormalExit;
    return (normal ? QStringLiteral("code %1") : QStringLiteral("signal %1")).arg(m_process->exitCode());
}

void Subject::removeFolder()
{
    m_folder.reset();
}

bool Subject::waitUntilListening(bool wanted, int milliseconds) const
{
    const QDeadlineTimer deadline(milliseconds);
    while (isListening() != wanted) {
        if (deadline.hasExpired() || (isChild() && m_process->state() == QProcess::NotRunning)) {
            return false;
        }
        // Looks after the child meanwhile, which an event loop would do.
        if (isChild()) {
            m_process->waitForFinished(cLookAgainMs);
        } else {
            QThread::msleep(cLookAgainMs);
        }
    }
    return true;
}
