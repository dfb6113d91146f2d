#pragma once

// The code points of the icon font "kelvarimiconfont", by name, so that no window writes a bare number.
// The table stands in IconGlyphs.def; each glyph is drawn in resources/icons and built into the font by
// tools/make_icon_font.py. The texts made of them are shown in the font of IconFont::getIconFont.
// Constants only: any thread may read them.

#include <QString>

namespace IconGlyph {

#define ICON_GLYPH(name, codePoint, shows) constexpr ushort name = codePoint;
#include "common/pictures/IconGlyphs.def"
#undef ICON_GLYPH

/// One glyph of the font.
struct Row
{
    /// The name of the constant, ASCII; never null.
    const char *pName;
    /// The code point in the icon font, in the private-use range.
    ushort codePoint;
    /// What the glyph pictures and stands for, in English; never null.
    const char *pShows;
};

/// Every glyph of the font, in the order of the table.
constexpr Row cAll[] = {
#define ICON_GLYPH(name, codePoint, shows) {#name, codePoint, shows},
#include "common/pictures/IconGlyphs.def"
#undef ICON_GLYPH
};

/// The text of one character that shows the glyph in the icon font. Any number is taken; 0 gives a text of one null
/// character, which shows nothing.
inline QString text(ushort codePoint)
{
    return {QChar(codePoint)};
}

} // namespace IconGlyph
