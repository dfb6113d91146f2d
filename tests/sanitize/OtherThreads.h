#pragma once

// The process's other threads as the system tells them, for what has to happen while none of them does anything.

/// What tells one state of the other threads from another.
struct OtherThreads
{
    unsigned long long sum = 0; ///< of their ids and of how often each has run; 0 when there is none
    bool bAsleep = true;        ///< whether all of them sleep

    /// The threads at this moment. Leaves nothing allocated.
    static OtherThreads look();

    /// Whether all of them have slept since `before`, which was looked at earlier, and sleep still.
    bool haveSleptSince(const OtherThreads &before) const { return bAsleep && before.bAsleep && sum == before.sum; }
};
