#pragma once

// What the tests of the lists of members and of conferences share: a list beside a few contacts, its rows' data and
// places, and its picture. `List` is the view. GUI thread.

#include "ContactFixture.h"

#include <QAbstractItemView>
#include <QImage>
#include <QTest>

#include <memory>

template <typename List>
class ListTest : public QObject
{
protected:
    QModelIndex index(int iRow) const { return m_pList->model()->index(iRow, 0); }
    QVariant data(int iRow, int iRole) const { return index(iRow).data(iRole); }

    /// Where a hit rectangle stands as the item has it.
    QRect place(int iRow, int iRole) const { return data(iRow, iRole).toRect(); }

    /// Where the row stands in the viewport.
    QRect row(int iRow) const { return m_pList->visualRect(index(iRow)); }

    /// The list as it is painted now. The rows move to their new places from the event loop.
    QImage picture() const
    {
        QCoreApplication::processEvents();
        return m_pList->viewport()->grab().toImage().convertToFormat(QImage::Format_RGB32);
    }
    void click(const QPoint &position, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(m_pList->viewport(), button, Qt::NoModifier, position);
    }

    std::unique_ptr<ContactFixture> m_pContacts;
    std::unique_ptr<List> m_pList;
};
