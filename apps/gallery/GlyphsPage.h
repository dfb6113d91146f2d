#pragma once

// Every glyph of the icon font in four sizes, with its name, its code point and what it shows. GUI thread; Qt's
// ownership by parent applies.

#include "Sheet.h"

class GlyphsPage : public Sheet
{
    Q_OBJECT

public:
    /// The filled page. `parent` may be null.
    explicit GlyphsPage(QWidget *parent = nullptr);
};
