// The mouse on the member grid of the conference detail page: when a head's signature card comes.

#include "MemberGridTest.h"

#include "fakes/Patience.h"

#include <QScrollBar>
#include <QSignalSpy>

class tst_ConfDetailMemberMouse : public MemberGridTest
{
    Q_OBJECT

private slots:
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
        QTRY_VERIFY_WITH_TIMEOUT(!delay()->isActive(), cPatienceMs);
        QCOMPARE(closed(), 1);
        QCOMPARE(shown(), 0);
    }

    void scrolledHeadAnswersWhereItStandsNow()
    {
        show(1000);
        m_pGrid->verticalScrollBar()->setValue(1);
        QTRY_COMPARE_WITH_TIMEOUT(head(1, 3).top(), 12, cPatienceMs);
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
        m_pContacts->takeAway();
        runOut();
        moveTo(cell(0, 0) + QPoint(40, 70));
        QVERIFY(!delay()->isActive());
    }

    void moveTellsTheCellInEveryCase()
    {
        show(7);
        QStringList entered;
        connect(m_pGrid.get(), &QAbstractItemView::entered, this, [&entered](const QModelIndex &index) {
            entered.append(QStringLiteral("%1,%2").arg(index.row()).arg(index.column()));
        });
        const QSignalSpy left(m_pGrid.get(), &QAbstractItemView::viewportEntered);
        moveTo(head(0, 0).center());
        moveTo(cell(0, 1) + QPoint(40, 70));
        moveTo(head(1, 0).center());
        moveTo(QPoint(130, 120));
        QCOMPARE(entered, QStringList({"0,0", "0,1", "1,0", "1,1"}));
        QCOMPARE(left.count(), 0);
        moveTo(QPoint(500, 40));
        QCOMPARE(left.count(), 1);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ConfDetailMemberMouse, Widgets)

#include "tst_ConfDetailMemberMouse.moc"
