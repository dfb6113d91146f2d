#pragma once

namespace Focus {

/// How much a mixer bears. What would be beyond is refused, with a word for whoever asks; what is there stays.
struct Limits
{
    int conferences = 100; ///< at once
    int members = 100;     ///< of one conference: those who are in it and those who are being called
    int legs = 500;        ///< calls of all conferences, ringing ones too
    int lifetime = 86400;  ///< of a conference, in seconds
};

} // namespace Focus
