#include "ui/ConferenceListViewDelegate.h"

#include "common/Palette.h"
#include "common/pictures/IconGlyphs.h"
#include "common/system/DpiScale.h"
#include "model/MemberRoles.h"
#include "ui/RowPainter.h"

#include <QPainter>

namespace {

constexpr int cMargin = 20;
constexpr int cHeadSide = 22;
constexpr int cHeadTop = 8;
constexpr int cTop = 10;
constexpr int cGap = 10;
constexpr int cButtonSide = 18;
constexpr int cStatusWidth = 50;
constexpr int cStatusDistance = 100;
constexpr int cGlyphPixels = 14;

// More room than a status needs in any font.
constexpr int cLongestStatus = 1024;

constexpr QColor cDefault_Button_Color(158, 158, 158);
constexpr QColor cRemove_Button_Hover_Color(255, 97, 88);

int dpi(int iPixels)
{
    return ADAPT_DPI_INT(iPixels);
}

/// Where the parts of a row stand.
struct RowPlaces
{
    RowPlaces(const QRect &row, bool bCallByMe)
        : remove(row.right() + 1 - dpi(cMargin) - dpi(cButtonSide), row.top() + dpi(cTop), dpi(cButtonSide),
                 dpi(cButtonSide)),
          mute(remove.left() - dpi(cButtonSide) - dpi(cButtonSide), row.top() + dpi(cTop), dpi(cButtonSide),
               dpi(cButtonSide)),
          // Where this user can control the members, the status makes room for the buttons.
          status(bCallByMe ? mute.left() - dpi(cStatusDistance) - dpi(cStatusWidth)
                           : row.right() + 1 - dpi(cStatusWidth) - dpi(cMargin),
                 row.top() + dpi(cTop), dpi(cStatusWidth), row.height())
    {
    }

    QRect remove;
    QRect mute;
    QRect status;
};

/// Draws the name in the room up to the status and returns where the creator's mark stands behind it.
QRect paintName(QPainter &painter, LineCache &lines, const QRect &row, const QRect &status, const QString &strName)
{
    painter.setFont(RowPainter::textFont());
    const int iHeadEnd = row.left() + dpi(cMargin) + dpi(cHeadSide);
    const int iLeft = iHeadEnd + dpi(cGap);
    const int iRoom = status.left() - iHeadEnd - dpi(cGap) - dpi(cButtonSide) - 2 * dpi(cButtonSide);
    const LineCache::Line &name = lines.line(painter, strName, iRoom);
    RowPainter::drawLine(painter, QRect(iLeft, row.top() + dpi(cTop), name.iWidth, row.height()), name.text);
    return {iLeft + name.iWidth + dpi(cButtonSide), row.top() + dpi(cTop), dpi(cButtonSide), dpi(cButtonSide)};
}

void paintStatus(QPainter &painter, LineCache &lines, const QRect &place, int iStatus)
{
    const QPen pen = painter.pen();
    const QColor color = conferenceStatusColor(iStatus);
    if (color.isValid()) {
        painter.setPen(color);
    }
    const QString strText = conferenceStatusText(iStatus);
    const LineCache::Line &line = lines.line(painter, strText, cLongestStatus);
    // A font too wide for the place breaks the text into lines.
    if (line.iWidth <= place.width()) {
        RowPainter::drawLine(painter, place, line.text);
    } else {
        painter.drawText(place, strText, QTextOption());
    }
    painter.setPen(pen);
}

void paintButtons(QPainter &painter, LineCache &lines, const RowPlaces &places, int iStatus, const QModelIndex &index)
{
    const QColor removeColor =
        index.data(ROLE_REMOVE_HOVER).toBool() ? cRemove_Button_Hover_Color : cDefault_Button_Color;
    lines.drawGlyph(painter, places.remove, IconGlyph::Remove, dpi(cGlyphPixels), removeColor);
    RowPainter::keepRect(index, ROLE_REMOVE_RECT, places.remove);
    if (!canMute(iStatus)) {
        return;
    }
    const QColor muteColor = index.data(ROLE_MUTE_HOVER).toBool() ? cMute_Button_Hover_Color : cDefault_Button_Color;
    const ushort glyph = index.data(ROLE_MUTED).toBool() ? IconGlyph::MemberMuted : IconGlyph::MemberUnmuted;
    lines.drawGlyph(painter, places.mute, glyph, dpi(cGlyphPixels), muteColor);
    RowPainter::keepRect(index, ROLE_MUTE_RECT, places.mute);
}

} // namespace

CConferenceListViewDelegate::CConferenceListViewDelegate(QObject *parent) : QStyledItemDelegate(parent) {}

void CConferenceListViewDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                        const QModelIndex &index) const
{
    const KeptPenAndFont kept(painter);
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    const QRect row = option.rect;
    const bool bCallByMe = index.data(ROLE_CALL_BY_ME).toBool();
    const int iStatus = index.data(ROLE_CALL_STATUS).toInt();
    const RowPlaces places(row, bCallByMe);

    paintHead(*painter, row, index);
    const QRect creator = paintName(*painter, m_lines, row, places.status, index.data(ROLE_DISPLAY_NAME).toString());
    paintStatus(*painter, m_lines, places.status, iStatus);
    if (bCallByMe && canRemove(iStatus)) {
        paintButtons(*painter, m_lines, places, iStatus, index);
    }
    if (index.data(ROLE_IS_CREATOR).toBool()) {
        m_lines.drawGlyph(*painter, creator, IconGlyph::Creator, dpi(cGlyphPixels), strCOLOR_ICON_MID_GREY);
    }
    RowPainter::drawBottomLine(*painter, row.left() + dpi(cMargin), row.right() - dpi(cMargin), row.bottom());
}

void CConferenceListViewDelegate::paintHead(QPainter &painter, const QRect &row, const QModelIndex &index) const
{
    const QPixmap head =
        m_heads.picture(index.data(ROLE_HEAD_PATH).toString(), dpi(cHeadSide), painter.device()->devicePixelRatioF());
    painter.drawPixmap(row.left() + dpi(cMargin), row.top() + dpi(cHeadTop), head);
}
