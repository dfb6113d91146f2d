#pragma once

// How much of a tone there is in a piece of sound. Any thread.

#include <QByteArray>

#include <algorithm>
#include <cmath>
#include <utility>

/// The level of the tone in 16-bit samples of one channel, lower byte first: 0 to 32767; 0 for no samples.
inline double toneLevel(const QByteArray &samples, int hertz, int rate)
{
    // Goertzel's filter: the share of one frequency.
    constexpr double turn = 6.283185307179586;
    const int count = samples.size() / 2;
    const double twice = 2 * std::cos(turn * hertz / rate);
    double last = 0;
    double beforeLast = 0;
    for (int i = 0; i < count; ++i) {
        const auto sample = static_cast<qint16>(uchar(samples[2 * i]) | uchar(samples[2 * i + 1]) << 8);
        const double next = sample + twice * last - beforeLast;
        beforeLast = std::exchange(last, next);
    }
    const double power = last * last + beforeLast * beforeLast - twice * last * beforeLast;
    return count == 0 ? 0 : std::sqrt(std::max(0.0, power)) * 2 / count;
}
