#pragma once

// How much processor time a stretch of code takes of its thread, in seconds: what other programs take of the machine
// meanwhile does not count. The cost of reading the clock itself is left out.

#include <algorithm>
#include <ctime>
#include <limits>

class ProcessorClock
{
public:
    /// Starts to count.
    ProcessorClock() : m_start(now()) {}

    /// What has been spent since the start.
    double seconds() const { return std::max(now() - m_start - ownCost(), 1e-9); }

private:
    static double now()
    {
        timespec time{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
    }
    static double ownCost()
    {
        static const double cost = [] {
            double least = std::numeric_limits<double>::max();
            for (int i = 0; i < 1000; ++i) {
                const double start = now();
                least = std::min(least, now() - start);
            }
            return least;
        }();
        return cost;
    }

    double m_start;
};
