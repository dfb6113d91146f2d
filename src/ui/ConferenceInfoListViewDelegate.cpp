#include "ui/ConferenceInfoListViewDelegate.h"

#include "common/Palette.h"
#include "common/pictures/IconGlyphs.h"
#include "common/system/DpiScale.h"
#include "model/MemberRoles.h"
#include "ui/ConferenceTexts.h"
#include "ui/RowPainter.h"

#include <QPainter>

namespace {

constexpr int cMargin = 10;
constexpr int cHeadSide = 40;
constexpr int cTextLeft = 60;
constexpr int cLineHeight = 20;
constexpr int cSecondTop = 35;
constexpr int cGlyphSide = 16;
constexpr int cDirectionPixels = 12;
constexpr int cDetailPixels = 16;

// More room than the time of any conference needs.
constexpr int cLongestStatus = 1024;

constexpr QColor cButtonColor(76, 152, 223);

int dpi(int iPixels)
{
    return ADAPT_DPI_INT(iPixels);
}

/// Draws a line cut to the width of its place.
void drawCut(QPainter &painter, LineCache &lines, const QRect &place, const QString &strText)
{
    RowPainter::drawLine(painter, place, lines.line(painter, strText, place.width()).text);
}

void paintDetailButton(QPainter &painter, LineCache &lines, const QRect &row, const QModelIndex &index)
{
    const QRect place(row.right() + 1 - dpi(cMargin) - dpi(cGlyphSide), row.top() + dpi(10) + dpi(5) + dpi(20),
                      dpi(cGlyphSide), dpi(cGlyphSide));
    lines.drawGlyph(painter, place, IconGlyph::Detail, cDetailPixels, cButtonColor);
    RowPainter::keepRect(index, ROLE_REMOVE_RECT, place);
}

QString statusText(const QModelIndex &index, bool bConnected)
{
    return bConnected ? index.data(ROLE_CONF_CALL_TIME).toString() : QStringLiteral("未接通");
}

/// The status at the right and the name in the room that it leaves.
void paintFirstLine(QPainter &painter, LineCache &lines, const QRect &row, const QString &strStatus,
                    const QString &strName)
{
    painter.setFont(RowPainter::textFont());
    painter.setPen(strCOLOR_MAININFO_LIGHT_BLACK);
    const LineCache::Line &status = lines.line(painter, strStatus, cLongestStatus);
    const int iStatusWidth = status.iWidth;
    const int iTop = row.top() + dpi(cMargin);
    RowPainter::drawLine(painter,
                         QRect(row.right() + 1 - dpi(cMargin) - iStatusWidth, iTop, iStatusWidth, dpi(cLineHeight)),
                         status.text);
    QRect place(row.left() + dpi(cTextLeft), iTop, 0, dpi(cLineHeight));
    place.setRight(place.left() + (row.right() - row.left()) - iStatusWidth - dpi(80));
    drawCut(painter, lines, place, strName);
}

void paintDirection(QPainter &painter, LineCache &lines, const QRect &row, bool bCreatedByMe)
{
    lines.drawGlyph(painter,
                    QRect(row.left() + dpi(cTextLeft), row.top() + dpi(cSecondTop), dpi(cGlyphSide), dpi(cGlyphSide)),
                    bCreatedByMe ? IconGlyph::CreatedByMe : IconGlyph::JoinedByMe, dpi(cDirectionPixels), QColor());
}

/// The line that tells when. Deliberate: it is drawn in the icon font that the direction has left in the painter.
void paintSecondLine(QPainter &painter, LineCache &lines, const QRect &row, bool bDetailButton, const QString &strLine)
{
    const int iButtonRoom = bDetailButton ? dpi(cGlyphSide) + dpi(10) : 0;
    const int iWidth = row.width() - dpi(cGlyphSide) - dpi(10) - dpi(10) - dpi(cHeadSide) - 2 * dpi(10) - iButtonRoom;
    const QRect place(row.left() + dpi(10) + dpi(cHeadSide) + dpi(20) + dpi(cGlyphSide), row.top() + dpi(cSecondTop),
                      iWidth, dpi(cLineHeight));
    drawCut(painter, lines, place, strLine);
}

} // namespace

CConferenceInfoListViewDelegate::CConferenceInfoListViewDelegate(QObject *parent) : QStyledItemDelegate(parent) {}

void CConferenceInfoListViewDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                            const QModelIndex &index) const
{
    const KeptPenAndFont kept(painter);
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    const QRect row = option.rect;
    const bool bConnected = index.data(ROLE_CALL_STATUS).toBool();
    const bool bDetailButton = bConnected && option.state.testFlag(QStyle::State_MouseOver);

    paintHead(*painter, row, index);
    if (bDetailButton) {
        paintDetailButton(*painter, m_lines, row, index);
    }
    paintFirstLine(*painter, m_lines, row, statusText(index, bConnected), index.data(ROLE_DISPLAY_NAME).toString());
    paintDirection(*painter, m_lines, row, index.data(ROLE_CREATED_BY_ME).toBool());
    paintSecondLine(*painter, m_lines, row, bDetailButton,
                    ConferenceTexts::titleLine(index.data(ROLE_CONF_CREATE_TIME).toString()));
    RowPainter::drawBottomLine(*painter, row.left() + dpi(cTextLeft), row.right(), row.bottom());
}

void CConferenceInfoListViewDelegate::paintHead(QPainter &painter, const QRect &row, const QModelIndex &index) const
{
    const QRect place(row.left() + dpi(cMargin), row.top() + dpi(cMargin), dpi(cHeadSide), dpi(cHeadSide));
    RowPainter::keepRect(index, ROLE_HEAD_RECT, place);
    painter.drawPixmap(place.topLeft(), m_heads.picture(index.data(ROLE_HEAD_PATH).toString(), dpi(cHeadSide),
                                                        painter.device()->devicePixelRatioF()));
}
