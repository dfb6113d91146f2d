#pragma once

// Steps through a text by whole characters, of which one beyond the first 65536 takes two units. Pure functions; any
// thread.

#include <QString>

namespace SurrogatePairs {

/// Whether the units at `i` and behind it are the two halves of one character. False for a position outside the text.
inline bool isPairAt(const QString &strText, int i)
{
    return i >= 0 && i + 1 < strText.size() && strText.at(i).isHighSurrogate() && strText.at(i + 1).isLowSurrogate();
}

/// How many units the character at `i` takes: 2 for a pair, else 1.
inline int unitsAt(const QString &strText, int i)
{
    return isPairAt(strText, i) ? 2 : 1;
}

/// The position of the character before `i`; 0 at the front.
inline int before(const QString &strText, int i)
{
    return isPairAt(strText, i - 2) ? i - 2 : qMax(0, i - 1);
}

} // namespace SurrogatePairs
