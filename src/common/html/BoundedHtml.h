#pragma once

// Keeps HTML from outside within what Qt's rich text reads in a time that grows with its length. Left to itself that
// time grows with the square of the depth, of a list's items, of the elements with an id, and with more: to minutes for
// a message of some hundred kilobytes. Any thread; no state.

#include <QString>

namespace BoundedHtml {

/// HTML that reads as the same plain text and costs Qt less: only those attributes and style sheets stay that can
/// change the text, by how white space counts, cells span others or paragraphs are empty, and long lists are cut into
/// shorter ones. A null text when even that takes too long (HtmlCost).
QString lean(const QString &strHtml);

/// The text alone, as HTML of one block: line separators for blocks and breaks, the character U+FFFC for an image, and
/// nothing of style, script and title, through to the end where they are not closed. White space counts as in HTML, and
/// as it is written within pre.
QString bare(const QString &strHtml);

/// The lean form or, where there is none, the bare one.
QString modest(const QString &strHtml);

} // namespace BoundedHtml
