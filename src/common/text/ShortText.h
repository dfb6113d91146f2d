#pragma once

// Long texts in small places: broken into lines for a tool tip, or cut to a few characters. Widths are in columns, two
// for a Chinese character and one for every other UTF-16 unit. Pure functions; any thread.

#include <QString>

class ShortText
{
public:
    /// `strText` with a line feed after each stretch of `iColumns` columns, and with the characters of markup made safe
    /// for a place that reads rich text. A stretch is one column wider where a wide character crosses its end, or where
    /// a surrogate pair would be torn. Nothing is broken with `iColumns` below 1; an empty text stays empty.
    static QString getShortString(const QString &strText, int iColumns);

    /// As many characters of `strText` as stay below 9 columns, with "..." behind them if any were left out.
    static QString getElidedText(const QString &strText);
};
