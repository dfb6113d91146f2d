#pragma once

// A message's HTML as the chat view shows it. GUI thread; no state. Reached as CommonFun::name.

#include <QString>

class MessageHtml
{
public:
    /// `strBody` from its first "<p" through its last "</p>", or whole when it has not both, with its addresses as
    /// links (HtmlLinks::convertWebLink). When the message is well-formed and has spans with a style in its paragraphs,
    /// the first such style, with the skin's link colour, goes to every link. `bReplaceSpace` keeps double spaces in a
    /// body without paragraphs (HtmlText::replaceSpace); links keep them in any body. An empty body gives the empty
    /// text.
    static QString convertMessageBody(const QString &strBody, bool bReplaceSpace);
};
