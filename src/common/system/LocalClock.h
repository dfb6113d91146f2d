#pragma once

// The local time of the day for who asks often: the zone is looked up, which asks the system for its file, at most once
// a second. Any thread.

#include <QTime>

namespace LocalClock {

/// The same as QTime::currentTime(). A change of the zone counts from the next full second on.
QTime now();

} // namespace LocalClock
