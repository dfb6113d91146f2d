#include "soak/FastClock.h"

#include <array>
#include <csignal>
#include <ctime>
#include <poll.h>
#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

namespace {

constexpr std::int64_t cNanoPerSecond = 1000000000;
constexpr std::int64_t cNanoPerMilli = 1000000;
constexpr std::int64_t cNanoPerMicro = 1000;
constexpr int cClocks = CLOCK_BOOTTIME + 1;

// Where a clock stood, by the system and for the thread, when the pace was set.
struct Reading
{
    std::int64_t real = 0;
    std::int64_t told = 0;
};
std::array<Reading, cClocks> s_from{};
// Of this thread; 0 where it has set none, and keeps the real time.
thread_local std::int64_t t_factor = 0;

std::int64_t nanoOf(const timespec &time)
{
    return std::int64_t(time.tv_sec) * cNanoPerSecond + time.tv_nsec;
}

timespec timeOf(std::int64_t nano)
{
    return {time_t(nano / cNanoPerSecond), long(nano % cNanoPerSecond)};
}

std::int64_t realNano(clockid_t clock)
{
    timespec time{};
    syscall(SYS_clock_gettime, clock, &time);
    return nanoOf(time);
}

bool isFast(clockid_t clock)
{
    // Not the clocks that count the processor's time.
    return t_factor != 0 && clock >= 0 && clock < cClocks && clock != CLOCK_PROCESS_CPUTIME_ID &&
           clock != CLOCK_THREAD_CPUTIME_ID;
}

std::int64_t nano(clockid_t clock)
{
    const std::int64_t real = realNano(clock);
    if (!isFast(clock)) {
        return real;
    }
    const Reading &from = s_from.at(std::size_t(clock));
    return from.told + (real - from.real) * t_factor;
}

int pollFor(pollfd *files, nfds_t count, std::int64_t nanoseconds, const sigset_t *mask)
{
    const std::int64_t factor = t_factor == 0 ? 1 : t_factor;
    timespec rest = timeOf((nanoseconds + factor - 1) / factor);
    return int(syscall(SYS_ppoll, files, count, nanoseconds < 0 ? nullptr : &rest, mask, _NSIG / 8));
}

} // namespace

void FastClock::pace(int factor)
{
    for (int clock = 0; clock < cClocks; ++clock) {
        s_from.at(std::size_t(clock)) = {realNano(clock), nano(clock)};
    }
    t_factor = factor;
}

std::int64_t FastClock::realMs()
{
    return realNano(CLOCK_MONOTONIC) / cNanoPerMilli;
}

#define IN_PLACE_OF_THE_LIBRARY extern "C" __attribute__((visibility("default")))

IN_PLACE_OF_THE_LIBRARY int clock_gettime(clockid_t clock, timespec *time) noexcept
{
    const long result = syscall(SYS_clock_gettime, clock, time);
    if (result == 0 && isFast(clock)) {
        *time = timeOf(nano(clock));
    }
    return int(result);
}

IN_PLACE_OF_THE_LIBRARY int gettimeofday(timeval *time, void * /*zone*/) noexcept
{
    const std::int64_t now = nano(CLOCK_REALTIME);
    *time = {time_t(now / cNanoPerSecond), suseconds_t(now % cNanoPerSecond / cNanoPerMicro)};
    return 0;
}

IN_PLACE_OF_THE_LIBRARY int poll(pollfd *files, nfds_t count, int milliseconds)
{
    return pollFor(files, count, milliseconds * cNanoPerMilli, nullptr);
}

IN_PLACE_OF_THE_LIBRARY int ppoll(pollfd *files, nfds_t count, const timespec *time, const sigset_t *mask)
{
    return pollFor(files, count, time == nullptr ? -1 : nanoOf(*time), mask);
}
