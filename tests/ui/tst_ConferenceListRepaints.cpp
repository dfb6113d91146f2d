// What a change in the conference member list costs: how much of it is painted anew, how often, and which files are
// opened for it.

#include "MemberListTest.h"
#include "PaintCost.h"

#include "fakes/Patience.h"

#include <QScrollBar>

class tst_ConferenceListRepaints : public MemberListTest
{
    Q_OBJECT

private slots:
    void warmRepaintOpensNoFile()
    {
        QVERIFY(
            QFile::copy(QStringLiteral("Resources/images/FriendDetail/defaultHead.png"), QStringLiteral("ann.png")));
        addContact("ann", QStringLiteral("Ann"), QStringLiteral("ann.png"));
        const OpenedFiles opened(
            {QStringLiteral("ann.png"), QStringLiteral("Resources/images/FriendDetail/defaultHead.png")});
        m_pList->addUserList({uid("ann"), uid("bob")});
        showList();
        QVERIFY(opened.any());
        picture();
        m_pList->updateConferenceUserStatus(uid("ann"), 3);
        picture();
        QVERIFY(!opened.any());
    }

    void oneStatusChangeRepaintsItsRow()
    {
        showMembers(5);
        const Repaints repaints(m_pList->viewport());
        m_pList->updateConferenceUserStatus(QStringLiteral("m2"), ConferenceHungUp);
        QTRY_COMPARE_WITH_TIMEOUT(repaints.count(), 1, cPatienceMs);
        QCOMPARE(repaints.last(), QRegion(row(2)));
        QVERIFY(!repaints.isAnyDue());
    }

    void manyStatusChangesAreOneRepaint()
    {
        showMembers(1000, ConferenceCalling);
        const Repaints repaints(m_pList->viewport());
        for (int i = 0; i < 1000; ++i) {
            m_pList->updateConferenceUserStatus(QStringLiteral("m%1").arg(i), ConferenceConnected);
        }
        QTRY_COMPARE_WITH_TIMEOUT(repaints.count(), 1, cPatienceMs);
        QVERIFY(!repaints.isAnyDue());
    }

    void newMembersAndTheirStatusesAreOneRepaint()
    {
        showMembers(20);
        const Repaints repaints(m_pList->viewport());
        for (int i = 20; i < 1000; ++i) {
            m_pList->addUser(QStringLiteral("m%1").arg(i));
            m_pList->updateConferenceUserStatus(QStringLiteral("m%1").arg(i), ConferenceConnected);
        }
        QTRY_COMPARE_WITH_TIMEOUT(repaints.count(), 1, cPatienceMs);
        QVERIFY(!repaints.isAnyDue());
    }

    void newPlaceOfAButtonAsksForNoSecondPainting()
    {
        showMembers(100);
        const Repaints repaints(m_pList->viewport());
        m_pList->verticalScrollBar()->setValue(20);
        QTRY_COMPARE_WITH_TIMEOUT(repaints.count(), 1, cPatienceMs);
        QVERIFY(!repaints.isAnyDue());
    }

    void newTimeOfAnInvitationAsksForNoPainting()
    {
        showMembers(1);
        const Repaints repaints(m_pList->viewport());
        m_pList->addUser(QStringLiteral("m0"));
        QVERIFY(!repaints.isAnyDue());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ConferenceListRepaints, Widgets)

#include "tst_ConferenceListRepaints.moc"
