#pragma once

#include <QStyledItemDelegate>

/// Shortens a text before it is laid out: the style places a shortened one by the height of the whole, which letters of
/// another script may have made larger. GUI thread.
class ShorteningDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;
};
