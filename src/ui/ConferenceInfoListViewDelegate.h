#pragma once

// Paints the rows of the conference history from the item data of model/MemberRoles.h, and writes back into it where
// the row's head and detail button stand, which is how the list's mouse handlers learn it. Owned by the list; GUI
// thread only.

#include "common/pictures/HeadImages.h"
#include "ui/HeadCache.h"
#include "ui/LineCache.h"

#include <QStyledItemDelegate>

class CConferenceInfoListViewDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// `parent` owns the delegate.
    explicit CConferenceInfoListViewDelegate(QObject *parent);

    /// The creator's head and name, whether the conference was called from here, when it was created, at the right how
    /// long it lasted, a line below. A connected row under the cursor gets the detail button. The rectangles of head
    /// and button go into the item; that of a button which is not painted stays as it is. The painter keeps its font
    /// and pen.
    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    void paintHead(QPainter &painter, const QRect &row, const QModelIndex &index) const;

    mutable LineCache m_lines;
    mutable HeadCache m_heads{&HeadImages::getRoundedImage};
};
