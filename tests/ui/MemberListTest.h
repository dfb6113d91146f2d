#pragma once

// What the tests of the conference member list share: a fresh list for each test function beside a few contacts, its
// rows' data and places, and its picture. Derive the test class from it. GUI thread.

#include "ContactFixture.h"
#include "model/MemberRoles.h"
#include "ui/ConferenceListView.h"

#include <QImage>
#include <QTest>

#include <memory>

class QTimer;

class MemberListTest : public QObject
{
    Q_OBJECT

protected:
    static QString uid(const char *name) { return QLatin1String(name); }
    QModelIndex index(int iRow) const { return m_pList->model()->index(iRow, 0); }
    QVariant data(int iRow, int iRole) const { return index(iRow).data(iRole); }
    void setData(int iRow, int iRole, const QVariant &value) { m_pList->model()->setData(index(iRow), value, iRole); }
    int rowCount() const { return m_pList->model()->rowCount(); }
    int status(int iRow) const { return data(iRow, ROLE_CALL_STATUS).toInt(); }
    /// Where a hit rectangle stands as the item has it.
    QRect place(int iRow, int iRole) const { return data(iRow, iRole).toRect(); }
    /// Where the row stands in the viewport.
    QRect row(int iRow) const { return m_pList->visualRect(index(iRow)); }
    QTimer *watchdog() const;
    /// What the watchdog does every two minutes.
    void tick() { QVERIFY(QMetaObject::invokeMethod(m_pList.get(), "slot_UpdateCallStatu")); }
    void addContact(const char *uid, const QString &strNick, const QString &strPhoto = {});

    /// `iRows` members of this status in a list of 523 by 280 pixels on the screen, painted.
    void showMembers(int iRows, int iStatus = ConferenceConnected);
    /// Puts the list with what it holds on the screen.
    void showList();
    /// The list as it is painted now. The rows move to their new places from the event loop.
    QImage picture() const;

    void moveTo(const QPoint &position);
    void click(const QPoint &position, Qt::MouseButton button = Qt::LeftButton);
    void doubleClick(int iRow, Qt::MouseButton button = Qt::LeftButton);

    std::unique_ptr<ContactFixture> m_pContacts;
    std::unique_ptr<CConferenceListView> m_pList;

private slots:
    void initTestCase();
    void init();
    void cleanup();
};

/// The number of an image's pixels in a rectangle of logical pixels that are of this colour, each channel off by
/// `iEdge` at most.
int countPixels(const QImage &image, const QRect &place, const QColor &color, int iEdge = 0);
