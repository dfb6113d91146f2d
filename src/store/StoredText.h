#pragma once

// Texts on their way into a statement. A pure function; any thread.

#include <QString>

/// The text for binding: an empty one instead of null, which the driver would store as NULL.
inline QString storedText(const QString &text)
{
    return text.isNull() ? QStringLiteral("") : text;
}
