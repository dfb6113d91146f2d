#pragma once

// Keeps HTML from outside within what Qt's rich text takes in a time that grows with its length: deep nesting, wide
// tables, long style sheets and many images make that time grow with the square, to minutes for a message of some
// hundred kilobytes. Any thread; no state.

#include <QString>

namespace BoundedHtml {

/// The most of each that HTML may hold to stay as it is.
constexpr int MOST_TAGS = 4096;
/// Open elements in each other.
constexpr int MOST_DEPTH = 128;
constexpr int MOST_IMAGES = 512;
/// Units of text in all style sheets of the HTML, and their number. Every tag is held against every rule, so that many
/// tags go with less: tags times units stay below the last of these.
constexpr int MOST_STYLE_UNITS = 65536;
constexpr int MOST_STYLES = 16;
constexpr int MOST_TAGS_TIMES_STYLE_UNITS = 1 << 23;
/// The longest style sheet that HTML which is not modest keeps: enough for the one that Qt's editors write.
constexpr int MOST_KEPT_STYLE_UNITS = 128;
/// Rows times cells of all tables.
constexpr int MOST_TABLE_PLACES = 65536;
/// Tags without a name, such as a bare "<".
constexpr int MOST_NAMELESS = 256;

/// True for HTML that stays within all of these, and whose table cells span less than 100 others.
bool isModest(const QString &strHtml);

/// Modest HTML as it is. Of any other the bare text: a paragraph for each block, line breaks,
/// and the character U+FFFC for an image; no attributes, and no style sheet but the first if it is short.
QString modest(const QString &strHtml);

} // namespace BoundedHtml
