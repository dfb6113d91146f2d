#pragma once

// Rewrites HTML from outside so that Qt's rich text reads it in time that grows with its length. As it comes, Qt may
// take time that grows with the square of the depth of its elements, of the number of items in a list, of the number of
// elements with an id, and so on: minutes for a message of some hundred kilobytes. Any thread; no state.

#include <QString>

namespace BoundedHtml {

/// HTML that gives the same plain text and costs Qt less. Attributes and style sheets are left out unless they can
/// change the text: those that tell how white space counts, how many cells one spans, or that a paragraph is empty. A
/// long list becomes several shorter ones. A null text when this form would still cost too much, as HtmlCost counts it.
QString lean(const QString &strHtml);

/// The text alone, as HTML of one block. A line separator stands between two blocks and for a break, the character
/// U+FFFC for an image. What stands in a style, script or title is left out, up to the end of the HTML when the element
/// is not closed. A run of white space becomes one blank; within pre it stays as long as it is.
QString bare(const QString &strHtml);

/// The lean form, or the bare one where the lean one is null.
QString modest(const QString &strHtml);

} // namespace BoundedHtml
