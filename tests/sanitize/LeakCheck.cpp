// Has LeakSanitizer look at a moment when no thread ends. It stops every thread and reads what each one's stack and
// storage hold; of a thread that is just ending these go away meanwhile, and the look itself crashes. A thread that
// somebody has waited for by Qt's means may still be ending: so the look waits until every other thread sleeps and
// stays asleep. It stands before what the libraries run behind main(), where LeakSanitizer would look by itself. Linked
// into every program that is built for a sanitizer.

#include "OtherThreads.h"

#include <cstdlib>
#include <unistd.h>

extern "C" __attribute__((weak)) void __lsan_do_leak_check();

namespace {

constexpr useconds_t cStepUs = 5000;
constexpr int cStepsOfQuiet = 4;
constexpr int cStepsOfPatience = 6000;

void checkWhenQuiet()
{
    OtherThreads before = OtherThreads::look();
    int quiet = before.sum == 0 ? cStepsOfQuiet : 0;
    for (int step = 0; quiet < cStepsOfQuiet && step < cStepsOfPatience; ++step) {
        usleep(cStepUs);
        const OtherThreads now = OtherThreads::look();
        quiet = now.haveSleptSince(before) ? quiet + 1 : 0;
        before = now;
        if (now.sum == 0) {
            break;
        }
    }
    __lsan_do_leak_check();
}

// Before the program's own statics, so that the look comes behind their end.
__attribute__((constructor(101))) void lookAtTheEnd()
{
    if (__lsan_do_leak_check) {
        std::atexit(checkWhenQuiet);
    }
}

} // namespace
