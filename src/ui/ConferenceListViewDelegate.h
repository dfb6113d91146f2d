#pragma once

// Paints the rows of the conference member list from the item data of model/MemberRoles.h, and writes back into it
// where the row's buttons stand, which is how the list's mouse handlers learn it. Owned by the list; GUI thread only.

#include "common/pictures/HeadImages.h"
#include "ui/HeadCache.h"
#include "ui/LineCache.h"

#include <QStyledItemDelegate>

class CConferenceListViewDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// `parent` owns the delegate.
    explicit CConferenceListViewDelegate(QObject *parent);

    /// Head picture, name and creator mark from the left, the status at the right, a line below. Where this user
    /// placed the conference, a member who has been called gets the remove button and a connected one the mute button
    /// too; the rectangle of each goes into the item. The painter keeps its font and pen.
    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    void paintHead(QPainter &painter, const QRect &row, const QModelIndex &index) const;

    mutable LineCache m_lines;
    mutable HeadCache m_heads{&HeadImages::getRoundedImage};
};
