#pragma once

// A message's HTML as the chat view shows it. GUI thread; no state.

#include <QString>

class MessageHtml
{
public:
    /// The part of `strBody` from its first "<p" through its last "</p>", or all of it when it does not have both, with
    /// its addresses as links (HtmlLinks::convertWebLink). When the message is well-formed and a span in one of its
    /// paragraphs has a style, the first such style, with the skin's link colour, is written into every link.
    /// `bReplaceSpace` keeps double spaces in a body without paragraphs (HtmlText::replaceSpace); the making of links
    /// keeps them in any body. An empty body gives the empty text.
    static QString convertMessageBody(const QString &strBody, bool bReplaceSpace);
};
