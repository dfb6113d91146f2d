#include "ui/ConferenceListViewDelegate.h"

#include "common/DpiScale.h"
#include "ui/MemberRoles.h"
#include "widgets/HeadPicture.h"

#include <QPainter>
#include <QPainterPath>

namespace {

constexpr int cMargin = 20;
constexpr int cHeadSide = 22;
constexpr int cHeadTop = 8;
constexpr int cTextTop = 10;
constexpr int cGap = 10;
constexpr int cButtonSide = 18;
constexpr int cStatusWidth = 50;
constexpr int cStatusDistance = 100;
constexpr int cFontPixels = 12;
constexpr qreal cGlyphStroke = 1.4;

const QColor cNameColor(0x33, 0x33, 0x33);
const QColor cCreatorColor(0x7c, 0x7c, 0x7c);
const QColor cDefault_Button_Color(158, 158, 158);
const QColor cRemove_Button_Hover_Color(255, 97, 88);
const QColor cMute_Button_Hover_Color(0, 185, 31);
const QColor cLineColor_(224, 224, 224);

int dpi(int iPixels)
{
    return ADAPT_DPI_INT(iPixels);
}

QRect removeRect(const QRect &row)
{
    const int iSide = dpi(cButtonSide);
    return {row.right() + 1 - dpi(cMargin) - iSide, row.top() + dpi(cTextTop), iSide, iSide};
}

QRect muteRect(const QRect &row)
{
    const QRect remove = removeRect(row);
    return remove.translated(-dpi(cButtonSide) - remove.width(), 0);
}

/// Where this user can control the members, the status makes room for the buttons.
QRect statusRect(const QRect &row, bool bCallByMe)
{
    const int iLeft = bCallByMe ? muteRect(row).left() - dpi(cStatusDistance) - dpi(cStatusWidth)
                                : row.right() + 1 - dpi(cStatusWidth) - dpi(cMargin);
    return {iLeft, row.top() + dpi(cTextTop), dpi(cStatusWidth), row.height()};
}

/// A cross in a circle, in a square of 18 by 18.
void drawRemoveGlyph(QPainter &painter)
{
    painter.drawEllipse(QRectF(2, 2, 14, 14));
    painter.drawLine(QPointF(6.5, 6.5), QPointF(11.5, 11.5));
    painter.drawLine(QPointF(11.5, 6.5), QPointF(6.5, 11.5));
}

/// A microphone, crossed out for a muted member, in a square of 18 by 18.
void drawMuteGlyph(QPainter &painter, bool bMuted)
{
    QPainterPath capsule;
    capsule.addRoundedRect(QRectF(7, 2, 4, 8), 2, 2);
    painter.fillPath(capsule, painter.pen().color());
    painter.drawArc(QRectF(4.5, 4, 9, 8.5), 180 * 16, 180 * 16);
    painter.drawLine(QPointF(9, 12.5), QPointF(9, 15.5));
    painter.drawLine(QPointF(6, 15.5), QPointF(12, 15.5));
    if (bMuted)
        painter.drawLine(QPointF(3, 2.5), QPointF(15, 15.5));
}

void beginGlyph(QPainter &painter, const QRect &place, const QColor &color)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(place.topLeft());
    painter.scale(place.width() / qreal(cButtonSide), place.height() / qreal(cButtonSide));
    QPen pen(color, cGlyphStroke);
    pen.setCapStyle(Qt::RoundCap);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
}

/// The rectangle goes into the item, where the list's mouse handlers find it. One that is there already changes
/// nothing, so painting does not call for painting without end.
void keepRect(const QModelIndex &index, const QRect &place, int iRole)
{
    const_cast<QAbstractItemModel *>(index.model())->setData(index, place, iRole);
}

void paintButtons(QPainter &painter, const QRect &row, const QModelIndex &index)
{
    const int iStatus = index.data(ROLE_CALL_STATUS).toInt();
    if (!index.data(ROLE_CALL_BY_ME).toBool() || iStatus == ConferenceCalling)
        return;
    const QRect remove = removeRect(row);
    beginGlyph(painter, remove,
               index.data(ROLE_REMOVE_HOVER).toBool() ? cRemove_Button_Hover_Color : cDefault_Button_Color);
    drawRemoveGlyph(painter);
    painter.restore();
    keepRect(index, remove, ROLE_REMOVE_RECT);
    if (iStatus != ConferenceConnected)
        return;
    const QRect mute = muteRect(row);
    beginGlyph(painter, mute, index.data(ROLE_MUTE_HOVER).toBool() ? cMute_Button_Hover_Color : cDefault_Button_Color);
    drawMuteGlyph(painter, index.data(ROLE_MUTED).toBool());
    painter.restore();
    keepRect(index, mute, ROLE_MUTE_RECT);
}

/// The name and, behind it, the creator's mark.
void paintName(QPainter &painter, const QRect &row, int iRight, const QModelIndex &index)
{
    const QFontMetrics metrics = painter.fontMetrics();
    const QString strMark = index.data(ROLE_IS_CREATOR).toBool() ? QStringLiteral("创建者") : QString();
    const int iMarkWidth = metrics.horizontalAdvance(strMark);
    const int iLeft = row.left() + dpi(cMargin) + dpi(cHeadSide) + dpi(cGap);
    const int iRoom = iRight - iLeft - dpi(cGap) - iMarkWidth - dpi(cGap);
    const QString strName =
        metrics.elidedText(index.data(ROLE_DISPLAY_NAME).toString().simplified(), Qt::ElideRight, iRoom);
    const int iWidth = metrics.horizontalAdvance(strName);
    constexpr int cFlags = Qt::AlignTop | Qt::AlignLeft | Qt::TextSingleLine;
    const int iTop = row.top() + dpi(cTextTop);
    painter.setPen(cNameColor);
    painter.drawText(QRect(iLeft, iTop, iWidth + 1, row.height()), cFlags, strName);
    painter.setPen(cCreatorColor);
    painter.drawText(QRect(iLeft + iWidth + dpi(cGap), iTop, iMarkWidth + 1, row.height()), cFlags, strMark);
}

} // namespace

CConferenceListViewDelegate::CConferenceListViewDelegate(QObject *parent) : QStyledItemDelegate(parent) {}

void CConferenceListViewDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                        const QModelIndex &index) const
{
    const QRect row = option.rect;
    painter->save();
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    QFont font(QStringLiteral("微软雅黑"));
    font.setPixelSize(dpi(cFontPixels));
    painter->setFont(font);

    const QPixmap head = HeadPicture::round(index.data(ROLE_HEAD_PATH).toString(), dpi(cHeadSide),
                                            painter->device()->devicePixelRatioF());
    painter->drawPixmap(row.left() + dpi(cMargin), row.top() + dpi(cHeadTop), head);

    const QRect status = statusRect(row, index.data(ROLE_CALL_BY_ME).toBool());
    paintName(*painter, row, status.left(), index);

    const int iStatus = index.data(ROLE_CALL_STATUS).toInt();
    painter->setPen(iStatus == ConferenceConnected ? cMute_Button_Hover_Color : cNameColor);
    painter->drawText(status, conferenceStatusText(iStatus), QTextOption());
    paintButtons(*painter, row, index);

    painter->fillRect(QRect(row.left() + dpi(cMargin), row.bottom(), row.width() - 2 * dpi(cMargin), 1), cLineColor_);
    painter->restore();
}
