#pragma once

// The font family of the client's windows on systems that do not have it. The windows name it in their forms and style
// sheets; the client's start-up lets another Chinese family stand in.
// GUI thread; changes Qt's process-wide table of substitutes.

#include <QStringList>

namespace WindowFont {

/// The names under which the windows ask for their family, the Chinese and the English one.
QStringList families();

/// The families that can stand in, the best first.
QStringList candidates();

/// The first of `candidates` that `installed` has; empty without one. Letters of either case match.
QString standIn(const QStringList &candidates, const QStringList &installed);

/// Makes each of families() that is not installed stand for the best installed candidate. Without a candidate nothing
/// changes, and Qt falls back character by character. A second call changes nothing.
void substituteMissing();

} // namespace WindowFont
