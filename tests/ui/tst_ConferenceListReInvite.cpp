// A double click in the conference member list calls members again who were not reached.

#include "MemberListTest.h"

#include "fakes/LogCapture.h"

#include <QApplication>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QStringListModel>

namespace {

/// Counts how often a widget is painted.
class Paintings : public QObject
{
public:
    explicit Paintings(QWidget *pWatched) { pWatched->installEventFilter(this); }
    bool eventFilter(QObject *, QEvent *event) override
    {
        m_iCount += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

    int m_iCount = 0;
};

} // namespace

class tst_ConferenceListReInvite : public MemberListTest
{
    Q_OBJECT

private:
    LogCapture m_log;

private slots:
    void doubleClickReInvitesMembersWhoWereNotReached_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<bool>("invites");
        QTest::newRow("negative") << -1 << false;
        QTest::newRow("calling") << 0 << false;
        QTest::newRow("connected") << 1 << false;
        QTest::newRow("failed") << 2 << true;
        QTest::newRow("busy") << 3 << true;
        QTest::newRow("hung up") << 4 << true;
        QTest::newRow("rejected") << 5 << true;
        QTest::newRow("any higher") << 99 << true;
    }

    void doubleClickReInvitesMembersWhoWereNotReached()
    {
        QFETCH(int, code);
        QFETCH(bool, invites);
        const QSignalSpy invited(m_pList.get(), &CConferenceListView::signal_ReInviteConfUser);
        m_pList->addUserList({uid("ann"), uid("bob")});
        m_pList->updateConferenceUserStatus(uid("bob"), code);
        setData(1, ROLE_INVITE_TIME, QTime());
        showList();
        doubleClick(1);
        QCOMPARE(invited.count(), invites ? 1 : 0);
        if (invites) {
            QCOMPARE(invited.first().first().toString(), uid("bob"));
        }
        QCOMPARE(data(1, ROLE_INVITE_TIME).toTime().isValid(), invites);
        QCOMPARE(status(1), code);
    }

    void newTimeStandsWhenTheInvitationIsAsked()
    {
        showMembers(1, ConferenceFailed);
        setData(0, ROLE_INVITE_TIME, QTime());
        bool bNew = false;
        connect(m_pList.get(), &CConferenceListView::signal_ReInviteConfUser, m_pList.get(),
                [&] { bNew = data(0, ROLE_INVITE_TIME).toTime().isValid(); });
        doubleClick(0);
        QVERIFY(bNew);
    }

    void doubleClickWorksForAnyUser()
    {
        const QSignalSpy invited(m_pList.get(), &CConferenceListView::signal_ReInviteConfUser);
        m_pList->setIsCallByMe(false);
        m_pList->addUser(uid("ann"));
        m_pList->updateConferenceUserStatus(uid("ann"), 2);
        showList();
        doubleClick(0);
        QCOMPARE(invited.count(), 1);
    }

    void rowKeepsItsFailedLookAndCanBeCalledTwice()
    {
        const QSignalSpy invited(m_pList.get(), &CConferenceListView::signal_ReInviteConfUser);
        showMembers(1, ConferenceRejected);
        doubleClick(0);
        QCOMPARE(status(0), int(ConferenceRejected));
        doubleClick(0);
        QCOMPARE(invited.count(), 2);
    }

    void middleDoubleClickCountsToo()
    {
        const QSignalSpy invited(m_pList.get(), &CConferenceListView::signal_ReInviteConfUser);
        showMembers(1, ConferenceFailed);
        doubleClick(0, Qt::MiddleButton);
        QCOMPARE(invited.count(), 1);
    }

    void rowsOfAnotherModelAskForNothing()
    {
        const QSignalSpy invited(m_pList.get(), &CConferenceListView::signal_ReInviteConfUser);
        QStringListModel foreign({QStringLiteral("a")});
        m_pList->setModel(&foreign);
        showList();
        m_log.take();
        // A click's release finds no item, and so does a double click.
        click(row(0).center());
        QStringList records = m_log.take();
        QCOMPARE(records.size(), 1);
        doubleClick(0);
        records += m_log.take();
        QCOMPARE(records.size(), 2);
        for (const QString &strRecord : qAsConst(records)) {
            QVERIFY2(strRecord.startsWith(QStringLiteral("[DEBUG][ConferenceListView.cpp:")), qPrintable(strRecord));
            QVERIFY2(strRecord.endsWith(QStringLiteral("]: selected is null")), qPrintable(strRecord));
        }
        m_pList->setModel(nullptr);
        QTest::mouseDClick(m_pList->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(50, 10));
        QCOMPARE(invited.count(), 0);
    }

    void everyRowsDoubleClickIsToldByTheViewToo()
    {
        const QSignalSpy told(m_pList.get(), &QAbstractItemView::doubleClicked);
        showMembers(2, ConferenceConnected);
        m_pList->updateConferenceUserStatus(QStringLiteral("m1"), ConferenceFailed);
        for (const int iRow : {0, 1}) {
            click(row(iRow).center());
            doubleClick(iRow);
            QCOMPARE(told.count(), iRow + 1);
        }
        doubleClick(1, Qt::RightButton);
        QCOMPARE(told.count(), 2);
    }

    void rightDoubleClickDoesNothing()
    {
        const QSignalSpy invited(m_pList.get(), &CConferenceListView::signal_ReInviteConfUser);
        m_pList->addUser(uid("ann"));
        m_pList->updateConferenceUserStatus(uid("ann"), 2);
        showList();
        doubleClick(0, Qt::RightButton);
        QCOMPARE(invited.count(), 0);
    }

    void doubleClickBesideTheRowsDoesNothing()
    {
        const QSignalSpy invited(m_pList.get(), &CConferenceListView::signal_ReInviteConfUser);
        m_pList->addUser(uid("ann"));
        m_pList->updateConferenceUserStatus(uid("ann"), 2);
        showList();
        QTest::mouseDClick(m_pList->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(50, 250));
        QCOMPARE(invited.count(), 0);
    }

    void doubleClickBesideTheRowsPaintsTheListAtOnce()
    {
        showMembers(1);
        // The rows' ground covers all of a list that has no frame: then there is nothing of its own to paint.
        m_pList->setFrameShape(QFrame::Box);
        picture();
        const Paintings paintings(m_pList.get());
        const QPointF beside(50, 250);
        QMouseEvent event(QEvent::MouseButtonDblClick, beside, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_pList->viewport(), &event);
        QCOMPARE(paintings.m_iCount, 1);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ConferenceListReInvite, Widgets)

#include "tst_ConferenceListReInvite.moc"
