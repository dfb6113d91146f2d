#include "common/IconFont.h"

#include "common/DpiScale.h"
#include "model/SharedContext.h"

#include <QFontDatabase>
#include <QImage>
#include <QPainter>

namespace {

const QString FONT_FILE = QStringLiteral("Resources/BaseConfig/kelvarimiconfont.ttf");
constexpr int DEFAULT_PIXEL_SIZE = 12;

// Stands for every value that has no row of its own.
constexpr int ANY = -1;

struct StatusRow
{
    int m_iKind;
    int m_iStatus;
    ushort m_uGlyph;
};

// The first row that fits counts, so kind 0 goes before status 0.
// clang-format off
constexpr StatusRow STATUS_ROWS[] = {
    {0,   0,   0xE628},
    {0,   1,   0xE625},
    {0,   2,   0xE627},
    {0,   3,   0xE627},
    {0,   4,   0xE626},
    {0,   ANY, 0xE625},
    {1,   0,   0xE698},
    {2,   0,   0xE699},
    {ANY, 0,   0xF624},
    {1,   ANY, 0xE6A1},
    {2,   ANY, 0xE69E},
    {ANY, ANY, 0xE62D},
};
// clang-format on

QFont fontOfFile()
{
    const int iFont = QFontDatabase::addApplicationFont(FONT_FILE);
    const QStringList listFamily = QFontDatabase::applicationFontFamilies(iFont);
    return listFamily.isEmpty() ? QFont() : QFont(listFamily.first());
}

} // namespace

QFont IconFont::getIconFont()
{
    const CommonData *pContext = SharedContext::getCommonData();
    if (pContext != nullptr && pContext->getIconFont() != nullptr) {
        return *pContext->getIconFont();
    }
    static QFont font = fontOfFile();
    font.setPixelSize(DEFAULT_PIXEL_SIZE);
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
    for (const StatusRow &row : STATUS_ROWS) {
        if ((row.m_iKind == iKind || row.m_iKind == ANY) && (row.m_iStatus == iStatus || row.m_iStatus == ANY)) {
            return QChar(row.m_uGlyph);
        }
    }
    return {};
}
