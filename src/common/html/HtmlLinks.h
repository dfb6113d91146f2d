#pragma once

// Addresses in a message's HTML become links that the chat view opens in a browser. Time grows with the length of the
// text only. Any thread; no state. Reached as CommonFun::name.

#include <QString>

class HtmlLinks
{
public:
    /// Makes a link of each address in `strText`: http://, https:// or ftp:// and a word, or www. and a word, in any
    /// case, and what may follow in an address. A link shows the address as it was written and leads to
    /// "web://urllink//" and the same; no scheme is added. `strStyle` stands among the attributes of each link and may
    /// be empty. The text is not read as HTML: an address in an attribute, such as the src of an image, becomes a link
    /// too, and a single "&nbsp;" behind an address counts as a part of it. In the end each two spaces of the whole
    /// text become "&nbsp;&nbsp;". An empty text stays empty.
    static void convertWebLink(QString &strText, const QString &strStyle);
};
