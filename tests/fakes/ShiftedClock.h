#pragma once

// The machine's clocks as a test sets them: what this process reads of them, Qt's own reading included, is shifted. Any
// thread may read, one at a time may set. Link it into the test program itself, so that its functions stand before the
// system's.

#include <cstdint>

namespace ShiftedClock {

/// Back to the machine's own clocks.
void reset();

/// Lets the time of day stand still at noon (UTC), so that a test can compare to the second.
void holdTimeOfDay();

/// Lets the clock of the timers stand still where it is: spans that are measured by it are of no length.
void holdTimers();

/// The time of day goes that much forward, or back; what timers run by stays as it is.
void setTimeOfDay(int64_t iSeconds);

/// The machine sleeps that long: it wakes with the time of day and the clock of the timers both that much later, so
/// that all timers that were armed for less are due at once.
void sleep(int64_t iSeconds);

} // namespace ShiftedClock
