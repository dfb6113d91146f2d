// The host destroys a part of the conference centre, or all of it, while it takes that part's request.

#include "CentreTest.h"

#include "plugin/EMsgId.h"
#include "ui/ConfDetailMemberTableView.h"
#include "ui/ConferenceDetaileWidget.h"

#include <QMouseEvent>

namespace {

/// The three events that bring a request for a signature card, in the order of the enumerators.
enum class Act
{
    DelayEnds,
    MoveBesideAHead,
    Leave
};

} // namespace

Q_DECLARE_METATYPE(Act)

class tst_CentreTakenAway : public CentreTest
{
    Q_OBJECT

private:
    /// The host destroys `pWidget` while it takes the request of that number.
    template <typename Widget>
    void takeAwayAt(int iRequest, std::unique_ptr<Widget> &pWidget)
    {
        m_pHost->whileHandled = [iRequest, &pWidget](BaseEvent &event) {
            if (event.msgId == iRequest) {
                pWidget.reset();
            }
        };
    }

    static void act(QAbstractItemView *pView, Act act)
    {
        QEvent leave(QEvent::Leave);
        QMouseEvent move(QEvent::MouseMove, QPointF(40, 70), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        if (act == Act::DelayEnds) {
            QVERIFY(QMetaObject::invokeMethod(pView, "slot_ShowSign"));
        } else if (act == Act::MoveBesideAHead) {
            QCoreApplication::sendEvent(pView->viewport(), &move);
        } else {
            QCoreApplication::sendEvent(pView, &leave);
        }
    }

    static void addCardRows()
    {
        QTest::addColumn<Act>("event");
        QTest::addColumn<int>("request");
        QTest::newRow("the delay ends") << Act::DelayEnds << int(MSG_SHOW_SIGN_LIST);
        QTest::newRow("a move beside a head") << Act::MoveBesideAHead << int(MSG_CLOSE_SIGN_LIST);
        QTest::newRow("the cursor leaves") << Act::Leave << int(MSG_CLOSE_SIGN_LIST);
    }

    /// A record of a creator and members that the host is asked for.
    static ConfInfoData unknownRecord()
    {
        ConfInfoData info = record(QStringLiteral("a"), {QStringLiteral("bert"), QStringLiteral("carl")});
        info.m_strCreatUserID = QStringLiteral("stranger");
        return info;
    }

    int requests(int iRequest) const { return m_pHost->received(iRequest).size(); }

private slots:
    void listMayGoWithItsCard_data() { addCardRows(); }

    void listMayGoWithItsCard()
    {
        QFETCH(Act, event);
        QFETCH(int, request);
        auto pList = std::make_unique<CConferenceInfoListView>();
        pList->addConfInfoList({record(QStringLiteral("b")), record(QStringLiteral("a"))});
        pList->setGeometry(200, 200, 517, 280);
        pList->show();
        takeAwayAt(request, pList);
        act(pList.get(), event);
        QCOMPARE(requests(request), 1);
        QVERIFY(!pList);
    }

    void gridMayGoWithItsCard_data() { addCardRows(); }

    void gridMayGoWithItsCard()
    {
        QFETCH(Act, event);
        QFETCH(int, request);
        auto pGrid = std::make_unique<CConfDetailMemberTableView>();
        pGrid->setMemList({QStringLiteral("ann")});
        pGrid->setGeometry(200, 200, 517, 280);
        pGrid->show();
        takeAwayAt(request, pGrid);
        act(pGrid.get(), event);
        QCOMPARE(requests(request), 1);
        QVERIFY(!pGrid);
    }

    void listMayGoWhileItsCreatorsAreLookedUp()
    {
        auto pList = std::make_unique<CConferenceInfoListView>();
        takeAwayAt(MSG_GET_FRIEND_INFO, pList);
        ConfInfoData second = unknownRecord();
        second.m_strConfID = QStringLiteral("b");
        second.m_strCreatUserID = QStringLiteral("another stranger");
        pList->addConfInfoList({unknownRecord(), second});
        // With the list gone nobody needs the second creator.
        QCOMPARE(requests(MSG_GET_FRIEND_INFO), 1);
        QVERIFY(!pList);
    }

    void listMayGoWhileANewRecordsCreatorIsLookedUp()
    {
        auto pList = std::make_unique<CConferenceInfoListView>();
        takeAwayAt(MSG_GET_FRIEND_INFO, pList);
        pList->addConfInfoData(unknownRecord());
        QCOMPARE(requests(MSG_GET_FRIEND_INFO), 1);
        QVERIFY(!pList);
    }

    void gridMayGoWhileAMemberIsLookedUp()
    {
        auto pGrid = std::make_unique<CConfDetailMemberTableView>();
        takeAwayAt(MSG_GET_FRIEND_INFO, pGrid);
        pGrid->setMemList({QStringLiteral("bert"), QStringLiteral("carl")});
        // Nobody is left to look the second one up for.
        QCOMPARE(requests(MSG_GET_FRIEND_INFO), 1);
        QVERIFY(!pGrid);
    }

    void pageMayGoWhileTheCreatorIsLookedUp()
    {
        auto pPage = std::make_unique<CConferenceDetaileWidget>();
        takeAwayAt(MSG_GET_FRIEND_INFO, pPage);
        pPage->setConferenceDetail(unknownRecord());
        QCOMPARE(requests(MSG_GET_FRIEND_INFO), 1);
        QVERIFY(!pPage);
    }

    void centreMayGoWhileItShowsADetail_data()
    {
        QTest::addColumn<QString>("creator");
        QTest::newRow("the creator is looked up") << "stranger";
        QTest::newRow("a member is looked up") << "ann";
    }

    void centreMayGoWhileItShowsADetail()
    {
        QFETCH(QString, creator);
        ConfInfoData info = unknownRecord();
        info.m_strCreatUserID = creator;
        open({});
        m_pWindow->addConferenceInfo(info);
        showAt({100, 100});
        m_pHost->events.clear();
        takeAwayAt(MSG_GET_FRIEND_INFO, m_pWindow);
        call("slot_ShowConfDetail", QStringLiteral("a"));
        QCOMPARE(requests(MSG_GET_FRIEND_INFO), 1);
        QVERIFY(!m_pWindow);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CentreTakenAway, Widgets)
#include "tst_CentreTakenAway.moc"
