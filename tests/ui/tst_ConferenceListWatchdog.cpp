// The watchdog of the conference member list: at whose side it runs, and whom it gives up.

#include "MemberListTest.h"

#include "fakes/Patience.h"

#include <QTimer>

class tst_ConferenceListWatchdog : public MemberListTest
{
    Q_OBJECT

private:
    /// Lets the check look at a row that was invited `iAgo` milliseconds before it: the clock may not step meanwhile.
    void tickAfter(int iAgo)
    {
        for (;;) {
            const QTime now = QTime::currentTime();
            setData(0, ROLE_CALL_STATUS, int(ConferenceCalling));
            setData(0, ROLE_INVITE_TIME, now.addMSecs(-iAgo));
            tick();
            if (QTime::currentTime() == now) {
                return;
            }
        }
    }

private slots:
    void runsAtTheCreatorsSideOnly()
    {
        m_pList->addUserList({uid("me"), uid("ann")});
        m_pList->setConferenceCreator(uid("ann"));
        QVERIFY(data(1, ROLE_IS_CREATOR).toBool());
        QVERIFY(!watchdog()->isActive());
        m_pList->setConferenceCreator(uid("me"));
        QVERIFY(data(0, ROLE_IS_CREATOR).toBool());
        QVERIFY(watchdog()->isActive());
        QVERIFY(!watchdog()->isSingleShot());
        QCOMPARE(watchdog()->interval(), 120000);
    }

    void creatorWithoutARowArmsItAndIsMarkedLater()
    {
        m_pList->setConferenceCreator(uid("me"));
        QVERIFY(watchdog()->isActive());
        QCOMPARE(rowCount(), 0);
        m_pList->addUser(uid("me"));
        QVERIFY(data(0, ROLE_IS_CREATOR).toBool());
    }

    void restartsForTheSameCreator()
    {
        m_pList->setConferenceCreator(uid("me"));
        watchdog()->start(3600000);
        m_pList->setConferenceCreator(uid("me"));
        QVERIFY(watchdog()->isActive());
        QCOMPARE(watchdog()->interval(), 120000);
    }

    void runsOnForAnotherCreator()
    {
        m_pList->setConferenceCreator(uid("me"));
        m_pList->setConferenceCreator(uid("ann"));
        QVERIFY(watchdog()->isActive());
    }

    void timerRunsTheCheck()
    {
        m_pList->addUser(uid("ann"));
        m_pList->setConferenceCreator(uid("me"));
        tickAfter(0);
        QCOMPARE(status(0), int(ConferenceCalling));
        setData(0, ROLE_INVITE_TIME, QTime(0, 0));
        watchdog()->setInterval(0);
        QTRY_COMPARE_WITH_TIMEOUT(status(0), int(ConferenceFailed), cPatienceMs);
    }

    void memberIsGivenUpPastTwoMinutes_data()
    {
        QTest::addColumn<int>("milliseconds");
        QTest::addColumn<int>("expected");
        QTest::newRow("two minutes") << 120000 << 0;
        QTest::newRow("a millisecond more") << 120001 << 2;
    }
    void memberIsGivenUpPastTwoMinutes()
    {
        QFETCH(int, milliseconds);
        m_pList->addUser(uid("ann"));
        tickAfter(milliseconds);
        QTEST(status(0), "expected");
    }

    void onlyCalledMembersAreGivenUp()
    {
        m_pList->addUserList({uid("late"), uid("fresh"), uid("m1"), uid("m2"), uid("m3"), uid("m4"), uid("m5")});
        for (int iStatus = 1; iStatus <= 5; ++iStatus) {
            m_pList->updateConferenceUserStatus(QStringLiteral("m%1").arg(iStatus), iStatus);
        }
        for (int iRow = 2; iRow < rowCount(); ++iRow) {
            setData(iRow, ROLE_INVITE_TIME, QTime(0, 0));
        }
        tickAfter(600000);
        QCOMPARE(status(0), 2);
        QCOMPARE(status(1), 0);
        for (int iStatus = 1; iStatus <= 5; ++iStatus) {
            QCOMPARE(status(iStatus + 1), iStatus);
        }
    }

    void invitingAgainRestartsTheTwoMinutes()
    {
        m_pList->addUser(uid("ann"));
        setData(0, ROLE_INVITE_TIME, QTime(0, 0));
        m_pList->addUser(uid("ann"));
        QCOMPARE(rowCount(), 1);
        tick();
        QCOMPARE(status(0), 0);
    }

    void checkWithNoRowsDoesNothing()
    {
        tick();
        QCOMPARE(rowCount(), 0);
    }

    void clearedListStopsIt()
    {
        m_pList->addUserList({uid("me")});
        m_pList->setConferenceCreator(uid("me"));
        m_pList->clearMembers();
        QVERIFY(!watchdog()->isActive());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ConferenceListWatchdog, Widgets)

#include "tst_ConferenceListWatchdog.moc"
