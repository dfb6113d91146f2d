#pragma once

// Texts of digits: numbers of fixed length and telephone numbers.
// Any thread; no state.

#include <QString>

class DigitText
{
public:
    /// `iNumber` filled up with "0" in front to four characters, a sign counted in; a longer one stays.
    static QString addZroeSort(int iNumber);

    /// The telephone number without "-", ":", "." and "+".
    static QString removeSymbolPrefix(const QString &strNumber);

    /// The same without the dial-out prefix "90" or "9" that it then begins with.
    static QString removePrefix(const QString &strNumber);

    /// Whether there is nothing but "0" to "9"; true for the empty text.
    static bool isDigitalString(const QString &strText);
};
