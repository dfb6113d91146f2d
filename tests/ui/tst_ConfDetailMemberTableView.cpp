// The member grid of the conference detail page: which cell holds whom, and when a head's signature card comes.

#include "ContactFixture.h"
#include "ShippedFiles.h"
#include "common/BuiltInPictures.h"
#include "fakes/FakeHost.h"
#include "plugin/VoipManageMessageProcess.h"
#include "ui/ConfDetailMemberTableView.h"
#include "ui/MemberRoles.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTest>

#include <memory>

namespace {

/// Where a widget last saw the cursor move to.
class LastMove : public QObject
{
public:
    explicit LastMove(QWidget *pWidget) { pWidget->installEventFilter(this); }
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::MouseMove)
            m_position = static_cast<QMouseEvent *>(event)->pos();
        return false;
    }
    QPoint position() const { return m_position; }

private:
    QPoint m_position{-1, -1};
};

} // namespace

class tst_ConfDetailMemberTableView : public QObject
{
    Q_OBJECT

private:
    static QStringList members(int iCount)
    {
        QStringList list;
        for (int i = 0; i < iCount; ++i)
            list.append(QStringLiteral("m%1").arg(i));
        return list;
    }
    QVariant data(int iRow, int iColumn, int iRole) const { return m_pGrid->model()->index(iRow, iColumn).data(iRole); }
    QString uid(int iRow, int iColumn) const { return data(iRow, iColumn, ROLE_USER_ID).toString(); }
    QRect head(int iRow, int iColumn) const { return data(iRow, iColumn, ROLE_HEAD_RECT).toRect(); }
    QPoint cell(int iRow, int iColumn) const
    {
        return m_pGrid->visualRect(m_pGrid->model()->index(iRow, iColumn)).topLeft();
    }
    QTimer *delay() const { return m_pGrid->findChild<QTimer *>(QString(), Qt::FindDirectChildrenOnly); }

    /// Puts the grid on the screen, painted, away from the cursor, and with its delay held: it runs out only in
    /// runOut.
    void show(int iMembers)
    {
        m_pGrid->setMemList(members(iMembers));
        m_pGrid->setFrameShape(QFrame::NoFrame);
        // Qt drops a move to where it last knew the cursor: never twice at the same place of the screen.
        m_iTop = m_iTop == 100 ? 350 : 100;
        m_pGrid->setGeometry(100, m_iTop, 517, 215);
        m_pGrid->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_pGrid.get()));
        m_pGrid->viewport()->repaint();
        delay()->blockSignals(true);
        m_pHost->events.clear();
    }
    /// Moves the screen's cursor there and waits for the grid to learn of it.
    void moveTo(const QPoint &position)
    {
        const LastMove last(m_pGrid->viewport());
        QTest::mouseMove(m_pGrid->viewport(), position);
        QTRY_COMPARE(last.position(), position);
    }
    void runOut() { QVERIFY(QMetaObject::invokeMethod(m_pGrid.get(), "slot_ShowSign")); }
    int shown() const { return m_pHost->received(MSG_SHOW_SIGN_LIST).size(); }
    int closed() const { return m_pHost->received(MSG_CLOSE_SIGN_LIST).size(); }

    int m_iTop = 0;
    std::unique_ptr<ContactFixture> m_pContacts;
    std::unique_ptr<FakeHost> m_pHost;
    std::unique_ptr<CConfDetailMemberTableView> m_pGrid;

private slots:
    void initTestCase() { QVERIFY(placeShippedFiles()); }

    void init()
    {
        QCursor::setPos(5, 5);
        m_pContacts = std::make_unique<ContactFixture>();
        m_pHost = std::make_unique<FakeHost>();
        VoipManageMessageProcess::instance()->setSendEvent(m_pHost.get());
        m_pGrid = std::make_unique<CConfDetailMemberTableView>();
    }

    void cleanup()
    {
        m_pGrid.reset();
        m_pHost.reset();
        m_pContacts.reset();
    }

    void sixMembersStandInARow_data()
    {
        QTest::addColumn<int>("iMembers");
        QTest::addColumn<int>("iRows");
        QTest::newRow("one") << 1 << 1;
        QTest::newRow("five") << 5 << 1;
        QTest::newRow("six") << 6 << 1;
        QTest::newRow("seven") << 7 << 2;
        QTest::newRow("twelve") << 12 << 2;
        QTest::newRow("thirteen") << 13 << 3;
        QTest::newRow("a thousand") << 1000 << 167;
    }
    void sixMembersStandInARow()
    {
        QFETCH(int, iMembers);
        QFETCH(int, iRows);
        m_pGrid->setMemList(members(iMembers));
        QCOMPARE(m_pGrid->model()->rowCount(), iRows);
        QCOMPARE(m_pGrid->model()->columnCount(), qMin(iMembers, 6));
        for (int i = 0; i < iRows * m_pGrid->model()->columnCount(); ++i)
            QCOMPARE(uid(i / 6, i % 6), i < iMembers ? QStringLiteral("m%1").arg(i) : QString());
    }

    void seventhMemberStandsAloneInTheSecondRow()
    {
        m_pGrid->setMemList(members(7));
        for (int iColumn = 0; iColumn < 6; ++iColumn)
            QCOMPARE(uid(0, iColumn), QStringLiteral("m%1").arg(iColumn));
        QCOMPARE(uid(1, 0), QStringLiteral("m6"));
        for (int iColumn = 1; iColumn < 6; ++iColumn)
            QVERIFY(!data(1, iColumn, ROLE_USER_ID).isValid());
    }

    void cellHoldsUidShownNameAndHead()
    {
        QVERIFY(QFile::copy(strDEFAULT_HEAD_PATH, QStringLiteral("ann.png")));
        m_pContacts->addContact(QStringLiteral("ann"),
                                ContactFixture::card(QStringLiteral("Ann"), {}, QStringLiteral("ann.png")));
        m_pGrid->setMemList({QStringLiteral("ann")});
        QCOMPARE(uid(0, 0), QStringLiteral("ann"));
        QCOMPARE(data(0, 0, ROLE_DISPLAY_NAME).toString(), QStringLiteral("Ann"));
        QCOMPARE(data(0, 0, ROLE_HEAD_PATH).toString(), QStringLiteral("ann.png"));
        QVERIFY(!data(0, 0, ROLE_HEAD_RECT).isValid());
    }

    void headOfAWrongSuffixIsPutRight()
    {
        QVERIFY(QFile::copy(strDEFAULT_HEAD_PATH, QStringLiteral("eve.jpg")));
        m_pContacts->addContact(QStringLiteral("eve"), ContactFixture::card({}, {}, QStringLiteral("eve.jpg")));
        m_pGrid->setMemList({QStringLiteral("eve")});
        QCOMPARE(data(0, 0, ROLE_HEAD_PATH).toString(), QStringLiteral("eve.png"));
    }

    void nameIsTheOneThatTheUserGave()
    {
        FriendData bob(ContactFixture::jid(QStringLiteral("bob")));
        bob.setVcardInfo(ContactFixture::card(QStringLiteral("Bob"), {}));
        bob.setMySetFriendName(QStringLiteral("Bobby"));
        m_pHost->setRecord(bob.m_strJid, bob);
        m_pGrid->setMemList({QStringLiteral("bob")});
        QCOMPARE(data(0, 0, ROLE_DISPLAY_NAME).toString(), QStringLiteral("Bobby"));
    }

    void unknownMemberHasNoNameAndTheDefaultHead()
    {
        m_pGrid->setMemList({QStringLiteral("nobody")});
        QCOMPARE(data(0, 0, ROLE_DISPLAY_NAME).toString(), QString());
        QCOMPARE(data(0, 0, ROLE_HEAD_PATH).toString(), strDEFAULT_HEAD_PATH);
    }

    void membersWithOneIdHaveACellEach()
    {
        m_pGrid->setMemList({QStringLiteral("a"), QStringLiteral("a"), QStringLiteral("b")});
        QCOMPARE(uid(0, 0), QStringLiteral("a"));
        QCOMPARE(uid(0, 1), QStringLiteral("a"));
        QCOMPARE(uid(0, 2), QStringLiteral("b"));
    }

    void emptyListChangesNothing()
    {
        m_pGrid->setMemList(members(3));
        m_pGrid->setMemList({});
        QCOMPARE(uid(0, 0), QStringLiteral("m0"));
        QCOMPARE(m_pGrid->model()->columnCount(), 3);
    }

    void secondListWithoutClearingTakesTheFirstCells()
    {
        m_pGrid->setMemList(members(8));
        m_pGrid->setMemList({QStringLiteral("x"), QStringLiteral("m7")});
        QCOMPARE(uid(0, 0), QStringLiteral("x"));
        QCOMPARE(uid(0, 1), QStringLiteral("m7"));
        QCOMPARE(uid(0, 2), QStringLiteral("m2"));
        QCOMPARE(uid(1, 1), QStringLiteral("m7"));
        m_pGrid->clearData();
        QCOMPARE(m_pGrid->model()->rowCount(), 0);
    }

    void clearedGridShowsNothingOfTheFirstList()
    {
        show(13);
        m_pGrid->clearData();
        QCOMPARE(m_pGrid->model()->rowCount(), 0);
        QCOMPARE(m_pGrid->model()->columnCount(), 0);
        m_pGrid->setMemList({QStringLiteral("x")});
        QCOMPARE(m_pGrid->model()->rowCount(), 1);
        QCOMPARE(m_pGrid->model()->columnCount(), 1);
        QCOMPARE(uid(0, 0), QStringLiteral("x"));
        QVERIFY(!data(0, 0, ROLE_HEAD_RECT).isValid());
        QCOMPARE(m_pGrid->columnWidth(0), 80);
        QCOMPARE(m_pGrid->rowHeight(0), 80);
    }

    void gridOnlyShows()
    {
        show(7);
        QVERIFY(!m_pGrid->showGrid());
        QCOMPARE(m_pGrid->horizontalHeader()->defaultSectionSize(), 80);
        QCOMPARE(m_pGrid->verticalHeader()->defaultSectionSize(), 80);
        QVERIFY(m_pGrid->horizontalHeader()->isHidden());
        QVERIFY(m_pGrid->verticalHeader()->isHidden());
        QCOMPARE(m_pGrid->selectionMode(), QAbstractItemView::NoSelection);
        QCOMPARE(m_pGrid->editTriggers(), QAbstractItemView::NoEditTriggers);
        QVERIFY(m_pGrid->hasMouseTracking());
        QTest::mouseClick(m_pGrid->viewport(), Qt::LeftButton, Qt::NoModifier, head(0, 1).center());
        QTest::mouseDClick(m_pGrid->viewport(), Qt::LeftButton, Qt::NoModifier, head(0, 1).center());
        QVERIFY(m_pGrid->selectionModel()->selectedIndexes().isEmpty());
        QCOMPARE(shown(), 0);
    }

    void cursorOnAHeadStartsTheDelay()
    {
        show(7);
        m_pGrid->setCursor(Qt::PointingHandCursor);
        moveTo(head(1, 0).center());
        QVERIFY(delay()->isActive());
        QCOMPARE(delay()->interval(), 500);
        QCOMPARE(m_pGrid->cursor().shape(), Qt::ArrowCursor);
        QCOMPARE(shown(), 0);
    }

    void headReachesFromItsFirstToItsLastPixel_data()
    {
        QTest::addColumn<QPoint>("fromCell");
        QTest::addColumn<bool>("bOnHead");
        QTest::newRow("first") << QPoint(19, 12) << true;
        QTest::newRow("last") << QPoint(60, 53) << true;
        QTest::newRow("left of it") << QPoint(18, 12) << false;
        QTest::newRow("above") << QPoint(19, 11) << false;
        QTest::newRow("right of it") << QPoint(61, 53) << false;
        QTest::newRow("below") << QPoint(60, 54) << false;
    }
    void headReachesFromItsFirstToItsLastPixel()
    {
        QFETCH(QPoint, fromCell);
        QFETCH(bool, bOnHead);
        show(2);
        moveTo(cell(0, 1) + fromCell);
        QCOMPARE(delay()->isActive(), bOnHead);
        QCOMPARE(closed(), bOnHead ? 0 : 1);
    }

    void moveWithinAHeadStartsTheDelayAnew()
    {
        show(1);
        moveTo(head(0, 0).center());
        delay()->setInterval(100000);
        moveTo(head(0, 0).center() + QPoint(3, 3));
        QVERIFY(delay()->isActive());
        QCOMPARE(delay()->interval(), 500);
    }

    void delayAsksForTheMembersCardAtTheGridsLeftEdge()
    {
        show(7);
        moveTo(head(1, 0).center());
        runOut();
        QCOMPARE(shown(), 1);
        PayloadReader reader = m_pHost->received(MSG_SHOW_SIGN_LIST).constFirst().reader();
        QCOMPARE(reader.take<QString>(), QStringLiteral("m6@kelvar.im"));
        QCOMPARE(reader.take<qint32>(), 102);
        QCOMPARE(reader.take<qint32>(), m_iTop + 80 + 12);
        // The width, where a height is asked for.
        QCOMPARE(reader.take<qint32>(), 517);
        QCOMPARE(reader.take<bool>(), true);
        QCOMPARE(reader.take<bool>(), false);
        QVERIFY(!delay()->isActive());
    }

    void cardOfALaterColumnHasTheSameLeftEdge()
    {
        show(6);
        moveTo(head(0, 4).center());
        runOut();
        PayloadReader reader = m_pHost->received(MSG_SHOW_SIGN_LIST).constFirst().reader();
        QCOMPARE(reader.take<QString>(), QStringLiteral("m4@kelvar.im"));
        QCOMPARE(reader.take<qint32>(), 102);
        QCOMPARE(reader.take<qint32>(), m_iTop + 12);
    }

    void cardHasTheGridsWholeWidthBesideAScrollBar()
    {
        show(60);
        QVERIFY(m_pGrid->viewport()->width() < 517);
        moveTo(head(0, 0).center());
        runOut();
        PayloadReader reader = m_pHost->received(MSG_SHOW_SIGN_LIST).constFirst().reader();
        reader.take<QString>();
        reader.take<qint32>();
        reader.take<qint32>();
        QCOMPARE(reader.take<qint32>(), 517);
    }

    void delaysEndShowsTheCardOnce()
    {
        show(1);
        delay()->blockSignals(false);
        moveTo(head(0, 0).center());
        QVERIFY(QMetaObject::invokeMethod(delay(), "timeout"));
        QVERIFY(!delay()->isActive());
        QCOMPARE(shown(), 1);
    }

    void cursorFromAHeadToItsNameShowsNoCard()
    {
        show(1);
        moveTo(head(0, 0).center());
        QVERIFY(delay()->isActive());
        moveTo(cell(0, 0) + QPoint(40, 70));
        QVERIFY(!delay()->isActive());
        QCOMPARE(closed(), 1);
        QCOMPARE(shown(), 0);
    }

    void cursorAwayFromAllMembersLeavesTheDelay_data()
    {
        QTest::addColumn<QPoint>("position");
        QTest::newRow("no cell") << QPoint(500, 40);
        QTest::newRow("below all rows") << QPoint(40, 200);
        QTest::newRow("empty cell of the last row") << QPoint(130, 120);
    }
    void cursorAwayFromAllMembersLeavesTheDelay()
    {
        QFETCH(QPoint, position);
        show(7);
        moveTo(head(0, 0).center());
        moveTo(position);
        QVERIFY(delay()->isActive());
        QCOMPARE(closed(), 0);
    }

    void leavingTheGridStopsTheDelayAndClosesTheCard()
    {
        show(1);
        moveTo(head(0, 0).center());
        QVERIFY(delay()->isActive());
        QCursor::setPos(5, 5);
        QTRY_VERIFY(!delay()->isActive());
        QCOMPARE(closed(), 1);
        QCOMPARE(shown(), 0);
    }

    void scrolledHeadAnswersWhereItStandsNow()
    {
        show(1000);
        m_pGrid->verticalScrollBar()->setValue(1);
        QTRY_COMPARE(head(1, 3).top(), 12);
        moveTo(head(1, 3).center());
        runOut();
        PayloadReader reader = m_pHost->received(MSG_SHOW_SIGN_LIST).constFirst().reader();
        QCOMPARE(reader.take<QString>(), QStringLiteral("m9@kelvar.im"));
        reader.take<qint32>();
        QCOMPARE(reader.take<qint32>(), m_iTop + 12);
    }

    void hostThatIsGoneMeanwhileHurtsNothing()
    {
        show(1);
        moveTo(head(0, 0).center());
        m_pHost.reset();
        CommonFun::setCommonData(nullptr);
        runOut();
        moveTo(cell(0, 0) + QPoint(40, 70));
        QVERIFY(!delay()->isActive());
    }
};

QTEST_MAIN(tst_ConfDetailMemberTableView)

#include "tst_ConfDetailMemberTableView.moc"
