#include "fakes/ShiftedClock.h"

#include <QtGlobal>

#include <atomic>
#include <ctime>
#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

namespace {

/// 2023-11-15 12:00:00 UTC.
constexpr int64_t cNoon = 1700049600;

std::atomic<int64_t> timeOfDayShift{0};
std::atomic<int64_t> timerShift{0};
/// The second at which the time of day stands; 0 while it goes.
std::atomic<int64_t> heldSecond{0};
/// Where the clock of the timers stands, in nanoseconds; 0 while it goes.
std::atomic<int64_t> heldNanoseconds{0};
constexpr int64_t cNanosecondsOfSecond = 1000000000;

int readClock(clockid_t clock, timespec *time)
{
    return static_cast<int>(syscall(SYS_clock_gettime, clock, time));
}

bool isTimeOfDay(clockid_t clock)
{
    return clock == CLOCK_REALTIME || clock == CLOCK_REALTIME_COARSE;
}

bool isTimerClock(clockid_t clock)
{
    return clock == CLOCK_MONOTONIC || clock == CLOCK_MONOTONIC_COARSE || clock == CLOCK_MONOTONIC_RAW ||
           clock == CLOCK_BOOTTIME;
}

int readShifted(clockid_t clock, timespec *time)
{
    const int result = readClock(clock, time);
    if (isTimerClock(clock)) {
        if (const int64_t held = heldNanoseconds; held != 0) {
            *time = {held / cNanosecondsOfSecond, held % cNanosecondsOfSecond};
        }
        time->tv_sec += timerShift;
    } else if (isTimeOfDay(clock)) {
        if (heldSecond != 0) {
            *time = {heldSecond, 0};
        }
        time->tv_sec += timeOfDayShift;
    }
    return result;
}

} // namespace

/// Stand before the system's own.
extern "C" Q_DECL_EXPORT int clock_gettime(clockid_t clock, timespec *time)
{
    return readShifted(clock, time);
}

extern "C" Q_DECL_EXPORT int gettimeofday(timeval *time, void * /*zone*/)
{
    timespec now{};
    const int result = readShifted(CLOCK_REALTIME, &now);
    *time = {now.tv_sec, now.tv_nsec / 1000};
    return result;
}

void ShiftedClock::reset()
{
    timeOfDayShift = 0;
    timerShift = 0;
    heldSecond = 0;
    heldNanoseconds = 0;
}

void ShiftedClock::holdTimeOfDay()
{
    heldSecond = cNoon;
}

void ShiftedClock::holdTimers()
{
    timespec now{};
    readClock(CLOCK_MONOTONIC, &now);
    heldNanoseconds = now.tv_sec * cNanosecondsOfSecond + now.tv_nsec;
}

void ShiftedClock::setTimeOfDay(int64_t iSeconds)
{
    timeOfDayShift += iSeconds;
}

void ShiftedClock::sleep(int64_t iSeconds)
{
    timeOfDayShift += iSeconds;
    timerShift += iSeconds;
}
