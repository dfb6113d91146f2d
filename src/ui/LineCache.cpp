#include "ui/LineCache.h"

#include "common/pictures/IconFont.h"
#include "ui/RowPainter.h"

#include <QPainter>

namespace {

// A list that shows more texts than this starts its cache anew.
constexpr int cMostLines = 4096;

// Wider than any glyph, so that none is ever cut.
constexpr int cGlyphRoom = 1024;

QStaticText laidOut(const QString &strLine, const QFont &font)
{
    QStaticText text(strLine);
    text.setTextFormat(Qt::PlainText);
    text.setPerformanceHint(QStaticText::AggressiveCaching);
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    text.setTextOption(option);
    text.prepare(QTransform(), font);
    return text;
}

} // namespace

const LineCache::Line &LineCache::line(const QPainter &painter, const QString &strText, int iWidth)
{
    const Key key{strText, iWidth, painter.font()};
    const auto known = m_lines.constFind(key);
    if (known != m_lines.constEnd()) {
        return *known;
    }
    if (m_lines.size() >= cMostLines) {
        m_lines.clear();
    }
    const QFontMetrics metrics = painter.fontMetrics();
    return *m_lines.insert(key, {laidOut(RowPainter::elidedLine(metrics, strText, iWidth), key.font),
                                 RowPainter::lineWidth(metrics, strText, iWidth)});
}

void LineCache::drawGlyph(QPainter &painter, const QRect &place, ushort glyph, int iPixels, const QColor &color)
{
    QFont font = IconFont::getIconFont();
    font.setPixelSize(iPixels);
    painter.setFont(font);
    if (color.isValid()) {
        painter.setPen(color);
    }
    RowPainter::drawLine(painter, place, line(painter, QString(QChar(glyph)), cGlyphRoom).text);
}
