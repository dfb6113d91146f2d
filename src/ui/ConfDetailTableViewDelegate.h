#pragma once

// Paints the cells of the conference detail page's member grid from the item data of model/MemberRoles.h, and writes
// back into it where the head stands, which is how the grid's mouse handlers learn it. Owned by the grid; GUI thread
// only.

#include "ui/HeadCache.h"

#include <QStyledItemDelegate>

class CConfDetailTableViewDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// `parent` owns the delegate.
    explicit CConfDetailTableViewDelegate(QObject *parent);

    /// The round head with the name below it, cut to the cell's width. A cell without an item or a user id stays
    /// empty. The painter keeps its font and pen.
    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    mutable HeadCache m_heads; ///< only saves drawing a head again; says nothing about the cells
};
