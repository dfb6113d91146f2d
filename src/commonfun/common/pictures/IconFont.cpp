#include "common/pictures/IconFont.h"

#include "common/pictures/IconGlyphs.h"
#include "common/system/DpiScale.h"
#include "model/SharedContext.h"

#include <QFontDatabase>
#include <QImage>
#include <QPainter>

#include <limits>

namespace {

const QString cFontFile = QStringLiteral("Resources/BaseConfig/kelvarimiconfont.ttf");
constexpr int cDefaultPixelSize = 12;

// Fits every value.
constexpr int cAny = std::numeric_limits<int>::min();

struct StatusRow
{
    int m_iKind;
    int m_iStatus;
    ushort m_uGlyph;
};

// The first row that fits counts: the rows of kind 0 stand before those that tell status 0 of other kinds.
// clang-format off
constexpr StatusRow cStatusRows[] = {
    {0,   0,   IconGlyph::DesktopOffline},
    {0,   1,   IconGlyph::DesktopOnline},
    {0,   2,   IconGlyph::DesktopAway},
    {0,   3,   IconGlyph::DesktopAway},
    {0,   4,   IconGlyph::DesktopBusy},
    {0,   cAny, IconGlyph::DesktopOnline},
    {1,   0,   IconGlyph::PhoneOffline},
    {2,   0,   IconGlyph::TabletOffline},
    {cAny, 0,   IconGlyph::OtherDeviceOffline},
    {1,   cAny, IconGlyph::PhoneOnline},
    {2,   cAny, IconGlyph::TabletOnline},
    {cAny, cAny, IconGlyph::OtherDeviceOnline},
};
// clang-format on

// The icon font has no letters, and some lists set letters in it. They are drawn in the text font of the windows, or in
// the fonts that are named as its substitutes.
void borrowLetters(const QString &strFamily)
{
    const QString strTextFamily = QStringLiteral("微软雅黑");
    QFont::insertSubstitutions(strFamily, QStringList{strTextFamily} + QFont::substitutes(strTextFamily));
}

QFont fontOfFile()
{
    const int iFont = QFontDatabase::addApplicationFont(cFontFile);
    const QStringList listFamily = QFontDatabase::applicationFontFamilies(iFont);
    if (listFamily.isEmpty()) {
        return QFont();
    }
    borrowLetters(listFamily.first());
    return QFont(listFamily.first());
}

} // namespace

QFont IconFont::getIconFont()
{
    const CommonData *pContext = SharedContext::getCommonData();
    if (pContext != nullptr && pContext->getIconFont() != nullptr) {
        return *pContext->getIconFont();
    }
    static QFont font = fontOfFile();
    font.setPixelSize(cDefaultPixelSize);
    font.setStyleStrategy(QFont::PreferAntialias);
    return font;
}

QPixmap IconFont::getIconFontPixmap(const QString &strGlyph, const QColor &color, const QSize &size, int iPixelSize)
{
    if (size.isEmpty()) {
        return {};
    }
    QImage image(size, QImage::Format_ARGB32);
    image.fill(0);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.setPen(color);
    QFont font = getIconFont();
    if (const int iScaled = ADAPT_DPI_INT(iPixelSize); iScaled > 0) {
        font.setPixelSize(iScaled);
    }
    painter.setFont(font);
    painter.drawText(image.rect(), Qt::AlignCenter, strGlyph);
    painter.end();
    return QPixmap::fromImage(image);
}

QString IconFont::getStatusTypeName(int iStatus, int iKind, bool /*bUnused*/)
{
    for (const StatusRow &row : cStatusRows) {
        if ((row.m_iKind == iKind || row.m_iKind == cAny) && (row.m_iStatus == iStatus || row.m_iStatus == cAny)) {
            return IconGlyph::text(row.m_uGlyph);
        }
    }
    return {};
}
