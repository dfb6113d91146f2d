#pragma once

// From a floating-point number to 64 bits, for numbers that come from outside and may be of any size. Any thread.

#include <QtGlobal>

#include <limits>

namespace WholeNumber {

/// `dNumber` cut towards zero, and at most to the limits of 64 bits. It must be a number: NaN is the caller's business.
inline qint64 cut(double dNumber)
{
    // 2 to the 63rd: the first number beyond 64 bits, and exact as a double; its negative is the lowest value in them.
    constexpr double cBeyond = 9223372036854775808.0;
    if (dNumber >= cBeyond) {
        return std::numeric_limits<qint64>::max();
    }
    if (dNumber < -cBeyond) {
        return std::numeric_limits<qint64>::min();
    }
    return static_cast<qint64>(dNumber);
}

} // namespace WholeNumber
