#pragma once

// What a conference record says, as the history list and the detail page write it. Pure functions; any thread.

#include <QString>

namespace ConferenceTexts {

/// The line that tells of a conference created at `strCreatTime`, a text that is shown as it is stored.
QString titleLine(const QString &strCreatTime);

/// How long a conference lasted, from the record's call time: seconds as a number's text, its fraction cut off. A text
/// that is no number counts as 0, one beyond 64 bits as the nearest number of 64 bits. 0 and less give the empty text.
QString callLength(const QString &strCallTime);

/// The seconds that callLength writes, never less than 0.
qint64 wholeSeconds(const QString &strCallTime);

} // namespace ConferenceTexts
