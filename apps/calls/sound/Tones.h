#pragma once

// The tones that a caller hears, as WAV files that are made anew: 425 Hz, in the rhythm of the European network. Any
// thread.

#include <QString>

/// One period of a tone, to be repeated.
struct Tone
{
    int hertz;
    int onMs;
    int offMs;
};

/// The library adds two seconds of silence before it begins again.
inline constexpr Tone cRingBackTone{425, 1000, 2000};
inline constexpr Tone cBusyTone{425, 480, 480};
inline constexpr Tone cFailedTone{425, 240, 240};

/// Writes `periods` of the tone, 16 bits at 16 kHz. False when the file cannot be written.
bool writeTone(const QString &file, const Tone &tone, int periods);
