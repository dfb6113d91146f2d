#pragma once

// Addresses in a message's HTML become links that the chat view opens in a browser. Time grows with the length of the
// text only. Any thread; no state.

#include <QString>

class HtmlLinks
{
public:
    /// Makes a link of each address in `strText`. An address begins with "http://", "https://", "ftp://" or "www.", in
    /// any case, and at least one character of a word; all characters that may stand in an address and follow directly
    /// belong to it. The link shows the address as it was written and leads to "web://urllink//" with the address
    /// behind it; an address without a scheme gets none. `strStyle` is written among the attributes of each link and
    /// may be empty. The text is not read as HTML: an address within an attribute, such as the src of an image, becomes
    /// a link too, and a single "&nbsp;" behind an address counts as part of it. At last each pair of spaces in the
    /// whole text becomes "&nbsp;&nbsp;". An empty text stays empty.
    static void convertWebLink(QString &strText, const QString &strStyle);
};
