#pragma once

// Paints the rows of the conference member list from the item data of ui/MemberRoles.h, and writes back into it
// where the row's buttons stand, which is how the list's mouse handlers learn it. Owned by the list; GUI thread only.

#include <QStyledItemDelegate>

class CConferenceListViewDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// `parent` owns the delegate.
    explicit CConferenceListViewDelegate(QObject *parent);

    /// Head picture, name and creator mark from the left, the status at the right, a line below. Where this user
    /// placed the conference, a member who has been called gets the remove button and a connected one the mute button
    /// too; the rectangle of each goes into the item.
    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};
