#pragma once

// The model of the conference member list. It keeps what its items hold and tells a screen reader what a row says, in
// the user's language. Owned by the list; GUI thread only.

#include <QStandardItemModel>

class MemberListModel : public QStandardItemModel
{
    Q_OBJECT

public:
    using QStandardItemModel::QStandardItemModel;

    /// What the item holds; for Qt::AccessibleTextRole the member's name, status and marks as one line.
    QVariant data(const QModelIndex &index, int iRole = Qt::DisplayRole) const override;
};
