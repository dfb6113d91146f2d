#include "ui/MemberListModel.h"

#include "model/MemberRoles.h"
#include "ui/RowWords.h"

QVariant MemberListModel::data(const QModelIndex &index, int iRole) const
{
    return iRole == Qt::AccessibleTextRole ? RowWords::ofMember(index) : QStandardItemModel::data(index, iRole);
}
