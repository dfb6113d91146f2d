#pragma once

// The width of texts in columns: a character from U+4E00 to U+9FA5 takes two, every other UTF-16 unit one, so that a
// character outside the basic plane takes two as a pair. All in one walk over the text.
// Any thread; no state.

#include <QString>

class TextMeasure
{
public:
    /// The columns of one UTF-16 unit.
    static int columnsOf(QChar unit) { return unit >= QChar(0x4E00) && unit <= QChar(0x9FA5) ? 2 : 1; }

    /// The columns of the text; 0 for the empty one.
    static int getStrCounnt(const QString &strText);

    /// How many UTF-16 units of the text come before the limit of `iLimit` columns. A unit that reaches the limit
    /// exactly is counted, one that goes a column beyond it is not. Deliberate: when the text does not reach the limit,
    /// when the limit is negative, and when it is 0 before a wide character, the result is no position but the columns
    /// of the whole text, which edit fields compare with their limit.
    static int getLimitPosition(const QString &strText, int iLimit);

    /// The longest beginning of the text of at most `iLimit` columns, cut between any two UTF-16 units; empty with no
    /// or a negative limit.
    static QString getStringByLen(const QString &strText, int iLimit);
};
