#include "panes/ShorteningDelegate.h"

#include <QStyle>
#include <QStyleOptionViewItem>
#include <QWidget>

void ShorteningDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    // Who asks how much room the text wants has no cell yet.
    if (!option->rect.isValid()) {
        return;
    }
    const int margin = option->widget->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, option, option->widget) + 1;
    option->text = option->fontMetrics.elidedText(option->text, Qt::ElideRight, option->rect.width() - 2 * margin);
}
