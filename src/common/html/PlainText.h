#pragma once

// What a message's HTML reads as without markup. GUI thread; no state.

#include <QString>

class PlainText
{
public:
    /// Makes plain text of HTML, as Qt's rich text reads it. Each pair of spaces is kept. Paragraphs and line breaks
    /// become line feeds; then each two line feeds in a row become one, in a single pass. An image becomes the
    /// character U+FFFC. No file that the HTML refers to is read. A million UTF-16 units of any text take less than a
    /// second: HTML that would take Qt longer, for instance with elements nested hundreds deep, gives its bare text
    /// (BoundedHtml).
    static void convertToPlaintText(QString &strText);
};
