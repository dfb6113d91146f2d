#pragma once

// Paints the rows of the conference member list. Reads the item data of ui/ConferenceRoles.h and changes nothing. Owned
// by the list; GUI thread only.

#include <QStyledItemDelegate>

class CConferenceListViewDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// `parent` owns the delegate.
    explicit CConferenceListViewDelegate(QObject *parent);

    /// Head picture, name and creator mark from the left, the status at the right, a line below.
    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};
