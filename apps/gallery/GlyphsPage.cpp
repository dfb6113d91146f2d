#include "GlyphsPage.h"

#include "common/Palette.h"
#include "common/pictures/IconFont.h"
#include "common/pictures/IconGlyphs.h"

#include <QLabel>

namespace {

constexpr int cSizes[] = {12, 16, 24, 48};

QWidget *glyph(ushort codePoint, int iPixels)
{
    auto *label = new QLabel(IconGlyph::text(codePoint));
    QFont font = IconFont::getIconFont();
    font.setPixelSize(iPixels);
    label->setFont(font);
    label->setFixedSize(iPixels + 4, iPixels + 4);
    label->setAlignment(Qt::AlignCenter);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, QColor(strCOLOR_MAININFO_LIGHT_BLACK));
    label->setPalette(palette);
    return label;
}

} // namespace

GlyphsPage::GlyphsPage(QWidget *parent) : Sheet(parent)
{
    QStringList columns;
    for (const int size : cSizes) {
        columns.append(QStringLiteral("%1 px").arg(size));
    }
    section(QStringLiteral("kelvarimiconfont"),
            columns + QStringList{QStringLiteral("code point"), QStringLiteral("shows")});
    for (const IconGlyph::Row &glyphRow : IconGlyph::cAll) {
        QList<QWidget *> specimens;
        for (const int size : cSizes) {
            specimens.append(glyph(glyphRow.codePoint, size));
        }
        specimens.append(caption(QStringLiteral("U+%1").arg(uint(glyphRow.codePoint), 4, 16).toUpper()));
        specimens.append(caption(QString::fromLatin1(glyphRow.pShows)));
        row(QString::fromLatin1(glyphRow.pName), specimens);
    }
}
