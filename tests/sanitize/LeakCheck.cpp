// Has LeakSanitizer look at a moment when no thread ends. It stops every thread and reads what each one's stack and
// storage hold; of a thread that is just ending these go away meanwhile, and the look itself crashes. A thread that
// somebody has waited for by Qt's means may still be ending: so the look waits until every other thread sleeps and
// stays asleep. It stands before what the libraries run behind main(), where LeakSanitizer would look by itself. Linked
// into every program that is built for a sanitizer.

#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

extern "C" __attribute__((weak)) void __lsan_do_leak_check();

namespace {

constexpr useconds_t kStepUs = 5000;
constexpr int kStepsOfQuiet = 4;
constexpr int kStepsOfPatience = 6000;

/// What tells one state of the other threads from another; nothing is allocated, since that would be looked at.
struct Others
{
    unsigned long long sum = 0; ///< of their ids and of how often each has run
    bool bAsleep = true;

    bool operator==(const Others &other) const { return sum == other.sum && bAsleep == other.bAsleep; }
};

/// The number behind `key` in what /proc tells of a thread.
unsigned long long numberBehind(const char *text, const char *key)
{
    const char *place = std::strstr(text, key);
    return place ? std::strtoull(place + std::strlen(key), nullptr, 10) : 0;
}

void add(Others &others, int tasks, const char *thread)
{
    char path[300] = {};
    std::strncat(path, thread, 200);
    std::strncat(path, "/status", 20);
    char text[4096] = {};
    const int file = openat(tasks, path, O_RDONLY | O_CLOEXEC);
    const ssize_t length = file < 0 ? -1 : read(file, text, sizeof text - 1);
    if (file >= 0)
        close(file);
    // One that has gone between the two was ending.
    others.bAsleep = others.bAsleep && length > 0 && std::strstr(text, "State:\tS");
    others.sum += std::strtoull(thread, nullptr, 10) * 1000003 + numberBehind(text, "\nvoluntary_ctxt_switches:") +
                  numberBehind(text, "\nnonvoluntary_ctxt_switches:");
}

Others look()
{
    Others others;
    DIR *folder = opendir("/proc/self/task");
    if (!folder)
        return others;
    while (const dirent *entry = readdir(folder)) {
        if (entry->d_name[0] != '.' && std::strtol(entry->d_name, nullptr, 10) != getpid())
            add(others, dirfd(folder), entry->d_name);
    }
    closedir(folder);
    return others;
}

void checkWhenQuiet()
{
    Others before = look();
    int quiet = before.sum == 0 ? kStepsOfQuiet : 0;
    for (int step = 0; quiet < kStepsOfQuiet && step < kStepsOfPatience; ++step) {
        usleep(kStepUs);
        const Others now = look();
        quiet = now.bAsleep && now == before ? quiet + 1 : 0;
        before = now;
        if (now.sum == 0)
            break;
    }
    __lsan_do_leak_check();
}

// Before the program's own statics, so that the look comes behind their end.
__attribute__((constructor(101))) void lookAtTheEnd()
{
    if (__lsan_do_leak_check)
        std::atexit(checkWhenQuiet);
}

} // namespace
