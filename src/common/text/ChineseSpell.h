#pragma once

// The initials by which Chinese names are sorted and searched. Any thread; no state.

#include <QString>

/// Upper-case letters, one for each character from U+4E00 to U+9FA5: the first letter of its Mandarin reading. Of
/// several readings a common character has the one by which GB 2312 sorts it.
extern const QString strChineseFirstPY;

class ChineseSpell
{
public:
    /// The initials of a text: ASCII letters in upper case, ASCII digits as they are, Chinese characters as their
    /// letter, anything else dropped. Empty for the empty text.
    static QString toChineseSpell(QString strText);
};
