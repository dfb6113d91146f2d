#include "calls/peers/ChildProgram.h"

#include "fakes/Patience.h"

#include <csignal>
#include <sys/prctl.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr int cObedienceMs = 5000;

} // namespace

ChildProgram::ChildProgram(const QString &log)
{
    setStandardInputFile(nullDevice());
    setStandardOutputFile(log, QIODevice::Append);
    setStandardErrorFile(log, QIODevice::Append);
}

ChildProgram::~ChildProgram()
{
    finish();
}

bool ChildProgram::begin(const QString &program, const QStringList &arguments)
{
    start(program, arguments);
    const bool started = waitForStarted(cPatienceMs);
    m_group = static_cast<pid_t>(processId());
    return started;
}

bool ChildProgram::beginOn(const QStringList &enter, const QString &program, const QStringList &arguments)
{
    const QStringList line = enter + QStringList{program} + arguments;
    return begin(line.first(), line.mid(1));
}

void ChildProgram::finish()
{
    if (state() != NotRunning) {
        terminate();
        waitForFinished(cObedienceMs);
    }
    killAll();
}

void ChildProgram::killAll()
{
    if (m_group > 0) {
        ::kill(-std::exchange(m_group, 0), SIGKILL);
        waitForFinished(cPatienceMs);
    }
}

void ChildProgram::setupChildProcess()
{
    ::setpgid(0, 0);
    ::prctl(PR_SET_PDEATHSIG, SIGTERM);
}
