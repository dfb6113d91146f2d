#pragma once

// The width of a character in columns, the measure of tool tips, shortened texts and length limits. Pure; any thread.

#include <QChar>

/// 2 for a character from U+4E00 to U+9FA5, 1 for every other UTF-16 unit.
constexpr int textColumns(QChar c)
{
    return c.unicode() >= 0x4E00 && c.unicode() <= 0x9FA5 ? 2 : 1;
}
