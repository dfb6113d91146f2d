#include "ui/ConferenceListViewDelegate.h"

#include "ui/ConferenceRoles.h"
#include "widgets/HeadPicture.h"

#include <QPainter>

namespace {

constexpr int cMargin = 20;
constexpr int cHeadSide = 22;
constexpr int cHeadTop = 8;
constexpr int cGap = 10;
constexpr int cStatusWidth = 60;
constexpr int cFontPixels = 12;

const QColor cNameColor(0x33, 0x33, 0x33);
const QColor cCreatorColor(0x7c, 0x7c, 0x7c);
const QColor cConnectedColor(0, 185, 31);
const QColor cLineColor_(224, 224, 224);

} // namespace

CConferenceListViewDelegate::CConferenceListViewDelegate(QObject *parent) : QStyledItemDelegate(parent) {}

void CConferenceListViewDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                        const QModelIndex &index) const
{
    const QRect row = option.rect;
    painter->save();
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    QFont font(QStringLiteral("微软雅黑"));
    font.setPixelSize(cFontPixels);
    painter->setFont(font);
    const QFontMetrics metrics(font);

    const QPixmap head =
        HeadPicture::round(index.data(ROLE_HEAD_PATH).toString(), cHeadSide, painter->device()->devicePixelRatioF());
    painter->drawPixmap(row.left() + cMargin, row.top() + cHeadTop, head);

    const QString strCreatorMark = index.data(ROLE_IS_CREATOR).toBool() ? QStringLiteral("创建者") : QString();
    const int iMarkWidth = strCreatorMark.isEmpty() ? 0 : metrics.horizontalAdvance(strCreatorMark) + cGap;
    const int iNameLeft = row.left() + cMargin + cHeadSide + cGap;
    const int iStatusLeft = row.right() + 1 - cMargin - cStatusWidth;
    const QString strName = metrics.elidedText(index.data(ROLE_DISPLAY_NAME).toString().simplified(), Qt::ElideRight,
                                               iStatusLeft - iNameLeft - iMarkWidth - cGap);
    const int iNameWidth = metrics.horizontalAdvance(strName);
    constexpr int cFlags = Qt::AlignVCenter | Qt::TextSingleLine;
    painter->setPen(cNameColor);
    painter->drawText(QRect(iNameLeft, row.top(), iNameWidth + 1, row.height()), cFlags | Qt::AlignLeft, strName);
    painter->setPen(cCreatorColor);
    painter->drawText(QRect(iNameLeft + iNameWidth + cGap, row.top(), iMarkWidth, row.height()), cFlags | Qt::AlignLeft,
                      strCreatorMark);

    const int iStatus = index.data(ROLE_CALL_STATUS).toInt();
    painter->setPen(iStatus == ConferenceConnected ? cConnectedColor : cNameColor);
    painter->drawText(QRect(iStatusLeft, row.top(), cStatusWidth, row.height()), cFlags | Qt::AlignRight,
                      conferenceStatusText(iStatus));

    painter->fillRect(QRect(row.left() + cMargin, row.bottom(), row.width() - 2 * cMargin, 1), cLineColor_);
    painter->restore();
}
