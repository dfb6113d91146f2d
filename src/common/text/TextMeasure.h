#pragma once
// The width of texts in columns: a character from U+4E00 to U+9FA5 takes two, every other UTF-16 unit one, so that a
// character outside the basic plane takes two as a pair. All in one walk over the text.
// Any thread; no state. Reached as CommonFun::name.

#include <QString>

class TextMeasure
{
public:
    /// The columns of one UTF-16 unit.
    static int columnsOf(QChar unit) { return unit >= QChar(0x4E00) && unit <= QChar(0x9FA5) ? 2 : 1; }
    /// The columns of the text; 0 for the empty one.
    static int getStrCounnt(const QString &strText);
    /// The number of UTF-16 units up to the limit of `iLimit` columns: where they are reached exactly, the unit that
    /// does so is counted, where it goes one column beyond, it is not. Otherwise (a limit that the text does
    /// not reach, a negative one, or 0 before a wide character) the columns of the whole text.
    static int getLimitPosition(const QString &strText, int iLimit);
    /// The longest beginning of the text of at most `iLimit` columns, cut between any two UTF-16 units; empty with no
    /// or a negative limit.
    static QString getStringByLen(const QString &strText, int iLimit);
};
