#pragma once

// One-line texts and glyphs of a list's rows, laid out once and drawn as often as the list is painted: laying out costs
// several times as much as drawing. Owned by a delegate; GUI thread only.

#include <QFont>
#include <QHash>
#include <QStaticText>

class QColor;
class QPainter;
class QRect;

class LineCache
{
public:
    /// A text as it is drawn.
    struct Line
    {
        /// Laid out in the font that it was asked for.
        QStaticText text;
        /// Its width in pixels before it was cut, or the room where that is smaller.
        int iWidth = 0;
    };

    /// `strText` in the font of `painter` as one line of at most `iWidth` pixels, as RowPainter::elidedLine cuts it.
    /// Valid until the next call.
    const Line &line(const QPainter &painter, const QString &strText, int iWidth);

    /// Draws a character of the icon font, `iPixels` high, from `place`'s top left corner. The painter keeps the icon
    /// font and, if `color` is valid, a pen of that colour; one that is not leaves the pen as it is.
    void drawGlyph(QPainter &painter, const QRect &place, ushort glyph, int iPixels, const QColor &color);

private:
    struct Key
    {
        QString strText;
        int iWidth;
        QFont font;

        bool operator==(const Key &other) const
        {
            return iWidth == other.iWidth && strText == other.strText && font == other.font;
        }
        friend uint qHash(const Key &key, uint seed) { return qHash(key.strText, seed) ^ uint(key.iWidth); }
    };

    QHash<Key, Line> m_lines;
};
