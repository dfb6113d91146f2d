#pragma once

// The client's icon font: symbols are characters of its private-use range, drawn as text or as small pictures. The host
// hands the font over in the shared context; without it the font file beside the executable is loaded once per process.
// GUI thread. Reached as CommonFun::name.

#include <QFont>
#include <QPixmap>
#include <QString>

class QColor;
class QSize;

class IconFont
{
public:
    /// A copy of the context's icon font, as it is. Without one, the font of the client's font file at 12 pixels,
    /// antialiased; letters, which it has not, come from the windows' text family or what stood in for that one at the
    /// first call. A missing or damaged file gives the application's font at that size, which leaves text readable.
    static QFont getIconFont();

    /// `strGlyph` in that colour, centred on a transparent picture of `size` pixels, with the icon font at `iPixelSize`
    /// pixels; an `iPixelSize` below 1 keeps the font's own size. An empty size gives a null pixmap.
    static QPixmap getIconFontPixmap(const QString &strGlyph, const QColor &color, const QSize &size, int iPixelSize);

    /// The glyph of a presence state: `iKind` 0 is the computer, 1 a phone, 2 a tablet, any other a further device;
    /// `iStatus` 0 is offline. Status values without a glyph of their own read as online. The flag is not used.
    static QString getStatusTypeName(int iStatus, int iKind, bool bUnused);
};
