#pragma once

#include "conference/Talk.h"

#include <algorithm>

namespace Focus {

/// How much a mixer bears. What would be beyond is refused, with a word for whoever asks; what is there stays.
struct Limits
{
    int conferences = 100; ///< at once
    int members = 100;     ///< of one conference: those in it and those being called; at most Talk::cMostUsers
    int legs = 500;        ///< calls of all conferences, ringing ones too
    int lifetime = 86400;  ///< of a conference, in seconds; above 24 days it is as if it were 24 days and 20 hours

    /// How many belong to one conference at most, those too who have left or never came: a mute outlasts a leg.
    constexpr int belonging() const { return std::min(2 * members, Talk::cMostUsers); }
};

} // namespace Focus
