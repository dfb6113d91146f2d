#pragma once

// What a message's HTML reads as without markup. GUI thread; no state. Reached as CommonFun::name.

#include <QString>

class PlainText
{
public:
    /// Makes plain text of HTML, as Qt's rich text reads it: each two spaces are kept, paragraphs and line breaks
    /// become line feeds, of which each two in a row become one in a single pass, and an image is the character U+FFFC.
    /// Nothing that the HTML refers to is read. It takes less than a second for a million units of any text: HTML whose
    /// shape would take Qt longer, as by elements nested hundreds deep, gives its bare text (BoundedHtml).
    static void convertToPlaintText(QString &strText);
};
