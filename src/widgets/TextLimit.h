#pragma once

// Cutting a text that is too wide, and walking a text by characters. A character outside the basic plane is two UTF-16
// units that stay together. All work grows with the length of the text and no faster. Any thread.

#include <QString>

class TextLimit
{
public:
    /// The number of UTF-16 units, 1 or 2, of the character that begins at `iPosition`; 0 at or behind the end.
    static int unitsAt(const QString &strText, int iPosition);

    /// Cuts `strText` to at most `iLimit` columns of TextMeasure::getStrCounnt by taking characters away backwards from
    /// the one before `iCursor`; with none left there, from the end. Gives the position of the last one taken away, or
    /// the cursor's when the text fits. A limit of 0 or less empties the text.
    static int cutBackwards(QString &strText, int iCursor, int iLimit);
};
