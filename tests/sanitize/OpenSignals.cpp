// Leaves the signals of a fault open in threads that block all signals, as the sound client's do: there a fault would
// end the process without AddressSanitizer's report. Linked into every program that is built for AddressSanitizer.

#include <csignal>
#include <dlfcn.h>
#include <initializer_list>
#include <pthread.h>

extern "C" __attribute__((visibility("default"))) int pthread_sigmask(int how, const sigset_t *set,
                                                                      sigset_t *old) noexcept
{
    static auto *const s_own =
        reinterpret_cast<int (*)(int, const sigset_t *, sigset_t *)>(dlsym(RTLD_NEXT, "pthread_sigmask"));
    if (!set || how == SIG_UNBLOCK) {
        return s_own(how, set, old);
    }
    sigset_t blocked = *set;
    for (const int fault : {SIGSEGV, SIGBUS, SIGILL, SIGFPE, SIGABRT}) {
        sigdelset(&blocked, fault);
    }
    return s_own(how, &blocked, old);
}
