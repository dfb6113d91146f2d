#pragma once

// Small replacements in texts that go into HTML, come out of it or become part of an address. Those that take a
// reference change the text in place; all leave an empty text empty, but for replaceLineBreakToParagraph. One pass over
// the text for each replacement. Any thread; no state.

#include <QString>

class HtmlText
{
public:
    /// Each two spaces in a row become "&nbsp;&nbsp;", from the left; a single space stays.
    static void replaceSpace(QString &strText);

    /// Each line feed becomes "<br/>".
    static void replaceLineBreak(QString &strText);

    /// Each line becomes a paragraph, "<p>line</p>" or, empty, "<p><br/></p>", with a line feed behind it. An empty
    /// text is one empty line.
    static void replaceLineBreakToParagraph(QString &strText);

    /// The text with "&lt;", "&gt;" and "&quot;" undone, in this order; other entities stay.
    static QString regainHtmlText(QString strText);

    /// The text with each "<" as "&lt;". Nothing else is escaped, so that entities in the text stay what they are.
    static QString getDealWithHtmlText(QString strText);

    /// Encodes % & + space / ? # and = for a place within an address. A text that is encoded already is encoded again.
    static void escapeURLChar(QString &strText);
};
