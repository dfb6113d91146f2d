#include "client/EndSignals.h"

#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace {

// A signal handler may do little more than write to a descriptor; the event loop reads the other end.
int ends[2] = {-1, -1};

int openEnds()
{
    return ::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, ends) == 0 ? ends[1] : -1;
}

void handle(int)
{
    const char byte = 1;
    static_cast<void>(!::write(ends[0], &byte, sizeof byte));
}

constexpr int cSignalNumbers[] = {SIGINT, SIGTERM, SIGHUP};

} // namespace

EndSignals::EndSignals() : m_notifier(openEnds(), QSocketNotifier::Read)
{
    connect(&m_notifier, &QSocketNotifier::activated, this, &EndSignals::read);
    for (const int number : cSignalNumbers) {
        struct sigaction action = {};
        action.sa_handler = handle;
        action.sa_flags = SA_RESTART;
        ::sigaction(number, &action, nullptr);
    }
}

EndSignals::~EndSignals()
{
    for (const int number : cSignalNumbers) {
        struct sigaction action = {};
        action.sa_handler = SIG_DFL;
        ::sigaction(number, &action, nullptr);
    }
    ::close(ends[0]);
    ::close(ends[1]);
}

void EndSignals::read()
{
    char bytes[16];
    static_cast<void>(!::read(ends[1], bytes, sizeof bytes));
    m_bRequested = true;
    emit endRequested();
}
