#pragma once

// What the tests of the conference history list share: a fresh list for each test function beside a few contacts and a
// host, its rows' data and places, its menu, and its picture. Derive the test class from it. GUI thread.

#include "ListTest.h"

#include "fakes/FakeHost.h"
#include "model/MemberRoles.h"
#include "ui/ConferenceInfoListView.h"
#include "widgets/MenuEx.h"

#include <memory>

/// The list with its members in sight.
class HistoryList : public CConferenceInfoListView
{
public:
    using CConferenceInfoListView::DragSelectingState;
    using CConferenceInfoListView::m_confInfoList;
    using CConferenceInfoListView::m_pDeleteAction;
    using CConferenceInfoListView::m_pMenu;
    using CConferenceInfoListView::m_pModel;
    using CConferenceInfoListView::m_pRecallAction;
    using CConferenceInfoListView::m_signPos;
    using CConferenceInfoListView::m_signTimer;
    using CConferenceInfoListView::mousePressEvent;
    using CConferenceInfoListView::mouseReleaseEvent;
    using CConferenceInfoListView::NoState;
    using CConferenceInfoListView::setState;
    using CConferenceInfoListView::state;
};

class HistoryListTest : public ListTest<HistoryList>
{
    Q_OBJECT

protected:
    /// A record of a conference that the creator "ann" held on a day of 2024.
    static ConfInfoData record(const QString &strConfID, bool bConnected = true,
                               const QString &strCreator = QStringLiteral("ann"),
                               const QString &strCallTime = QStringLiteral("75"));

    /// The conference ids of all rows from the top.
    QStringList ids() const;

    /// The records in rows on the screen, painted.
    void show(const QList<ConfInfoData> &records);

    void moveTo(const QPoint &position);

    /// Moves the cursor onto the row, away from head and button, and waits for the row to be painted so.
    void hover(int iRow);

    /// Opens the menu of the row with the right button.
    void openMenu(int iRow);

    /// The texts of the menu's entries.
    QStringList entries() const;

    /// Clicks the menu's entry.
    void choose(int iEntry);

    /// The delay of the signature card is over.
    void signDelayIsOver() { QVERIFY(QMetaObject::invokeMethod(m_pList.get(), "slot_ShowSign")); }

    /// What the host has been told of the signature card since the last call: its fields, or "close".
    QStringList takeSigns();

    std::unique_ptr<FakeHost> m_pHost;

private slots:
    void initTestCase();
    void init();
    void cleanup();
};
