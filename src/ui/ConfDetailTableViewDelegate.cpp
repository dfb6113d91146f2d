#include "ui/ConfDetailTableViewDelegate.h"

#include "common/pictures/HeadImages.h"
#include "common/system/DpiScale.h"
#include "model/MemberRoles.h"
#include "ui/RowPainter.h"

#include <QPainter>
#include <QTextOption>

namespace {

constexpr int cHeadLeft = 19;
constexpr int cHeadTop = 12;
constexpr int cHeadSide = 42;
constexpr int cGap = 8;

void paintName(QPainter &painter, const QRect &cell, const QString &strName)
{
    painter.setFont(RowPainter::textFont());
    const int iTop = ADAPT_DPI_INT(cHeadTop) + ADAPT_DPI_INT(cGap) + ADAPT_DPI_INT(cHeadSide);
    QTextOption option(Qt::AlignHCenter | Qt::AlignVCenter);
    option.setWrapMode(QTextOption::NoWrap);
    painter.drawText(QRect(cell.left(), cell.top() + iTop, cell.width(), cell.height() - iTop),
                     RowPainter::elidedLine(painter.fontMetrics(), strName, cell.width()), option);
}

} // namespace

CConfDetailTableViewDelegate::CConfDetailTableViewDelegate(QObject *parent)
    : QStyledItemDelegate(parent), m_heads(&HeadImages::getRoundedImage)
{
}

void CConfDetailTableViewDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                         const QModelIndex &index) const
{
    if (index.data(ROLE_USER_ID).toString().isEmpty()) {
        return;
    }
    const KeptPenAndFont kept(painter);
    const QRect cell = option.rect;
    const int iSide = ADAPT_DPI_INT(cHeadSide);
    const QRect place(cell.left() + ADAPT_DPI_INT(cHeadLeft), cell.top() + ADAPT_DPI_INT(cHeadTop), iSide, iSide);
    RowPainter::keepRect(index, ROLE_HEAD_RECT, place);
    painter->drawPixmap(place.topLeft(), m_heads.picture(index.data(ROLE_HEAD_PATH).toString(), iSide,
                                                         painter->device()->devicePixelRatioF()));
    paintName(*painter, cell, index.data(ROLE_DISPLAY_NAME).toString());
}
