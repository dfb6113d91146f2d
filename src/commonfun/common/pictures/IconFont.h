#pragma once

// The client's icon font, whose symbols are private-use characters: drawn as text or as small pictures. The host hands
// the font over in the shared context; without that the font file beside the executable is used, which is loaded once.
// GUI thread.

#include <QFont>
#include <QPixmap>
#include <QString>

class QColor;
class QSize;

class IconFont
{
public:
    /// A copy of the context's icon font. Without one, the font of the client's font file, antialiased and 12 pixels
    /// high. That font has no letters: they are drawn in the text font of the windows, or in the font that Qt's table
    /// of substitutes named for it at the first call. Without a readable file it is the application's font, 12 pixels
    /// high, so that text stays readable.
    static QFont getIconFont();

    /// A transparent picture of `size` pixels with `strGlyph` in `color` in its middle, in the icon font, `iPixelSize`
    /// pixels high; an `iPixelSize` below 1 keeps the font's own size. An empty size gives a null pixmap.
    static QPixmap getIconFontPixmap(const QString &strGlyph, const QColor &color, const QSize &size, int iPixelSize);

    /// The glyph that shows where and how a contact is present. `iKind` is the device: 0 a computer, 1 a phone, 2 a
    /// tablet, any other number some other device. `iStatus` 0 is offline; a status that has no glyph of its own gives
    /// that of online. The flag is not used.
    static QString getStatusTypeName(int iStatus, int iKind, bool bUnused);
};
