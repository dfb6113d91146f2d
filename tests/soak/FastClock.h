#pragma once

// Lets time pass faster for one thread: what it reads from the system's clocks runs a whole number of times as fast,
// and what it waits for in poll() ends as much earlier, so that every timer of its event loop fires as after its full
// time. Other threads and other processes keep the real time. The program that links this takes the place of the C
// library's functions clock_gettime, gettimeofday, poll and ppoll.

#include <cstdint>

namespace FastClock {

/// From now on time runs `factor` times as fast for the calling thread, from the moment that it has reached. The first
/// time before the event loop is made; a thread that never says so keeps the real time.
void pace(int factor);

/// Milliseconds of real time since some point in the past, at any speed.
std::int64_t realMs();

} // namespace FastClock
