#pragma once

// Finds the repeats among pieces of text, in a time that grows with their length in all. Any thread; no state.

#include <QStringList>

namespace DistinctParts {

/// The parts, in their order, that are not empty and stand in none of those before them, neither whole nor as a part of
/// a longer one; case counts.
QStringList of(const QStringList &listPart);

} // namespace DistinctParts
