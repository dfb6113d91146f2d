#pragma once

// What the tests of the conference member list share: a fresh list for each test function beside a few contacts, its
// rows' data and places, and its picture. Derive the test class from it. GUI thread.

#include "ListTest.h"

#include "model/MemberRoles.h"
#include "ui/ConferenceListView.h"

class QTimer;

class MemberListTest : public ListTest<CConferenceListView>
{
    Q_OBJECT

protected:
    static QString uid(const char *name) { return QLatin1String(name); }
    void setData(int iRow, int iRole, const QVariant &value) { m_pList->model()->setData(index(iRow), value, iRole); }
    int rowCount() const { return m_pList->model()->rowCount(); }
    int status(int iRow) const { return data(iRow, ROLE_CALL_STATUS).toInt(); }
    QTimer *watchdog() const;

    /// What the watchdog does every two minutes.
    void tick() { QVERIFY(QMetaObject::invokeMethod(m_pList.get(), "slot_UpdateCallStatu")); }
    void addContact(const char *uid, const QString &strNick, const QString &strPhoto = {});

    /// `iRows` members of this status in a list of 523 by 280 pixels on the screen, painted.
    void showMembers(int iRows, int iStatus = ConferenceConnected);

    /// Puts the list with what it holds on the screen.
    void showList();

    void moveTo(const QPoint &position);
    void doubleClick(int iRow, Qt::MouseButton button = Qt::LeftButton);

private slots:
    void initTestCase();
    void init();
    void cleanup();
};

/// The number of an image's pixels in a rectangle of logical pixels that are of this colour, each channel off by
/// `iEdge` at most.
int countPixels(const QImage &image, const QRect &place, const QColor &color, int iEdge = 0);
