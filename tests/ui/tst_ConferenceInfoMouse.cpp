// The mouse on the conference history list: the detail button and the signature card.

#include "HistoryListTest.h"

#include "fakes/Patience.h"

#include <QApplication>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStandardItemModel>

namespace {

/// The point inside a head and one beside it in the same row.
const QPoint cOnHead(30, 30);
const QPoint cBeside(200, 30);

} // namespace

class tst_ConferenceInfoMouse : public HistoryListTest
{
    Q_OBJECT

private:
    void showTwo() { show({record(QStringLiteral("b")), record(QStringLiteral("a"), false)}); }
    QPoint onButton(int iRow) const { return place(iRow, ROLE_REMOVE_RECT).center(); }
    Qt::CursorShape shape() const { return m_pList->cursor().shape(); }
    QStringList signFields(int iX, int iY) const
    {
        const QPoint view = m_pList->mapToGlobal(QPoint());
        return {QStringLiteral("ann@kelvar.im %1 %2 517 1 0").arg(view.x() + iX).arg(view.y() + iY)};
    }

private slots:
    void clickOnTheDetailButtonShowsTheDetail()
    {
        showTwo();
        QSignalSpy spy(m_pList.get(), SIGNAL(signal_ShowConfDetail(QString)));
        hover(0);
        const QRect button = place(0, ROLE_REMOVE_RECT);
        for (const QPoint &corner : {button.topLeft(), button.bottomRight(), button.center()}) {
            click(corner);
        }
        for (const QPoint &outside : {button.topLeft() - QPoint(1, 0), button.bottomRight() + QPoint(0, 1)}) {
            click(outside);
        }
        QCOMPARE(spy.size(), 3);
        QCOMPARE(spy.first().first().toString(), QStringLiteral("b"));
    }

    void clickElsewhereOnARowDoesNothing()
    {
        showTwo();
        QSignalSpy detail(m_pList.get(), SIGNAL(signal_ShowConfDetail(QString)));
        hover(0);
        click(cOnHead);
        click(cBeside);
        click(QPoint(300, 200));
        QCOMPARE(detail.size(), 0);
    }

    void clickOnARowThatWasNeverHoveredDoesNothing()
    {
        showTwo();
        QSignalSpy spy(m_pList.get(), SIGNAL(signal_ShowConfDetail(QString)));
        QVERIFY(place(0, ROLE_REMOVE_RECT).isNull());
        QMouseEvent release(QEvent::MouseButtonRelease, QPointF(499, 43), Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
        // Not by way of Qt, which accepts an event before it delivers it.
        release.ignore();
        m_pList->mouseReleaseEvent(&release);
        QCOMPARE(spy.size(), 0);
        QVERIFY(release.isAccepted());
    }

    void unconnectedRowHasNoDetailButton()
    {
        showTwo();
        QSignalSpy spy(m_pList.get(), SIGNAL(signal_ShowConfDetail(QString)));
        hover(1);
        QVERIFY(place(1, ROLE_REMOVE_RECT).isNull());
        click(QPoint(499, 62 + 43));
        QCOMPARE(spy.size(), 0);
    }

    void detailButtonAnswersAfterTheHoverEnded()
    {
        showTwo();
        hover(0);
        const QRect button = place(0, ROLE_REMOVE_RECT);
        QCOMPARE(button, QRect(517 - 26, 35, 16, 16));
        hover(1);
        QCOMPARE(place(0, ROLE_REMOVE_RECT), button);
        QSignalSpy spy(m_pList.get(), SIGNAL(signal_ShowConfDetail(QString)));
        QMouseEvent release(QEvent::MouseButtonRelease, button.center(), Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(m_pList->viewport(), &release);
        QCOMPARE(spy.size(), 1);
    }

    void otherButtonsDoNotShowTheDetail()
    {
        showTwo();
        hover(0);
        QSignalSpy spy(m_pList.get(), SIGNAL(signal_ShowConfDetail(QString)));
        click(onButton(0), Qt::MiddleButton);
        click(onButton(0), Qt::RightButton);
        m_pList->m_pMenu->hide();
        QCOMPARE(spy.size(), 0);
    }

    void releaseThatIsNotTheListsGoesToTheBase_data()
    {
        QTest::addColumn<int>("button");
        QTest::addColumn<QPoint>("position");
        QTest::addColumn<bool>("toBase");
        const QPoint noRow(300, 200);
        QTest::newRow("left on a row") << int(Qt::LeftButton) << cBeside << false;
        QTest::newRow("left on no row") << int(Qt::LeftButton) << noRow << true;
        QTest::newRow("middle on a row") << int(Qt::MiddleButton) << cBeside << true;
        QTest::newRow("middle on no row") << int(Qt::MiddleButton) << noRow << true;
        QTest::newRow("right on no row") << int(Qt::RightButton) << noRow << false;
    }

    void releaseThatIsNotTheListsGoesToTheBase()
    {
        QFETCH(int, button);
        QFETCH(QPoint, position);
        QFETCH(bool, toBase);
        showTwo();
        // The base ends a selection by dragging.
        m_pList->setState(HistoryList::DragSelectingState);
        QMouseEvent release(QEvent::MouseButtonRelease, position, Qt::MouseButton(button), Qt::NoButton,
                            Qt::NoModifier);
        m_pList->mouseReleaseEvent(&release);
        QCOMPARE(m_pList->state() == HistoryList::NoState, toBase);
    }

    void pressSelectsNothing()
    {
        showTwo();
        // The focus alone may make the first row the current one.
        const QModelIndex current = m_pList->currentIndex();
        const QPoint second = row(1).center();
        QMouseEvent press(QEvent::MouseButtonPress, second, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        press.ignore();
        m_pList->mousePressEvent(&press);
        QVERIFY(press.isAccepted());
        click(second);
        QVERIFY(!m_pList->selectionModel()->hasSelection());
        QCOMPARE(m_pList->currentIndex(), current);
    }

    void cursorIsAHandOnTheDetailButton()
    {
        showTwo();
        QVERIFY(m_pList->testAttribute(Qt::WA_SetCursor));
        QCOMPARE(shape(), Qt::ArrowCursor);
        m_pList->setCursor(Qt::CrossCursor);
        hover(0);
        QCOMPARE(shape(), Qt::ArrowCursor);
        moveTo(onButton(0));
        QCOMPARE(shape(), Qt::PointingHandCursor);
        // Away from all rows nothing changes.
        moveTo(QPoint(300, 200));
        QCOMPARE(shape(), Qt::PointingHandCursor);
        moveTo(cOnHead);
        QCOMPARE(shape(), Qt::ArrowCursor);
        moveTo(onButton(0));
        moveTo(cBeside);
        QCOMPARE(shape(), Qt::ArrowCursor);
    }

    void scrolledButtonAndHeadAnswerWhereTheyStandNow()
    {
        QList<ConfInfoData> records;
        for (int i = 20; i > 0; --i) {
            records.append(record(QString::number(i + 10)));
        }
        show(records);
        hover(2);
        const QRect button = place(2, ROLE_REMOVE_RECT);
        m_pList->verticalScrollBar()->setValue(1);
        QCoreApplication::processEvents();
        // The cursor has not moved: the row that is below it now has the button.
        QCOMPARE(place(3, ROLE_REMOVE_RECT), button);
        QSignalSpy spy(m_pList.get(), SIGNAL(signal_ShowConfDetail(QString)));
        click(button.center() - QPoint(0, 62));
        QCOMPARE(spy.size(), 0);
        click(button.center());
        QCOMPARE(spy.size(), 1);
        QCOMPARE(spy.first().first().toString(), data(3, ROLE_CONF_ID).toString());
        for (int i = 1; i < 5; ++i) {
            QCOMPARE(place(i, ROLE_HEAD_RECT), QRect(10, 62 * i - 52, 40, 40));
        }
    }

    void moveTellsTheRowInEveryCase()
    {
        show({record(QStringLiteral("b")), record(QStringLiteral("a"))});
        hover(0);
        QList<int> entered;
        connect(m_pList.get(), &QAbstractItemView::entered, this,
                [&entered](const QModelIndex &index) { entered.append(index.row()); });
        const QSignalSpy left(m_pList.get(), &QAbstractItemView::viewportEntered);
        const QPoint nextRow(0, 62);
        moveTo(cBeside + nextRow);
        moveTo(onButton(0));
        moveTo(cOnHead + nextRow);
        moveTo(cBeside);
        QCOMPARE(entered, QList<int>({1, 0, 1, 0}));
        QCOMPARE(left.count(), 0);
        moveTo(QPoint(300, 200));
        QCOMPARE(left.count(), 1);
    }

    void headReachesFromItsFirstToItsLastPixel_data()
    {
        QTest::addColumn<QPoint>("position");
        QTest::addColumn<bool>("onHead");
        QTest::newRow("first") << QPoint(10, 72) << true;
        QTest::newRow("last") << QPoint(49, 111) << true;
        QTest::newRow("left of it") << QPoint(9, 72) << false;
        QTest::newRow("above") << QPoint(10, 71) << false;
        QTest::newRow("right of it") << QPoint(50, 111) << false;
        QTest::newRow("below") << QPoint(49, 112) << false;
    }

    void headReachesFromItsFirstToItsLastPixel()
    {
        QFETCH(QPoint, position);
        QFETCH(bool, onHead);
        showTwo();
        moveTo(position);
        QCOMPARE(m_pList->m_signTimer.isActive(), onHead);
        QCOMPARE(takeSigns(), onHead ? QStringList() : QStringList{"close"});
    }

    void restingOnAHeadShowsTheCardOnce()
    {
        showTwo();
        moveTo(cOnHead);
        QVERIFY(m_pList->m_signTimer.isActive());
        QVERIFY(!m_pList->m_signTimer.isSingleShot());
        QCOMPARE(m_pList->m_signTimer.interval(), 500);
        QCOMPARE(takeSigns(), QStringList());
        signDelayIsOver();
        QCOMPARE(takeSigns(), signFields(2, 10));
        QVERIFY(!m_pList->m_signTimer.isActive());
    }

    void delaysEndShowsTheCard()
    {
        showTwo();
        moveTo(cOnHead + QPoint(3, 2));
        QVERIFY(QMetaObject::invokeMethod(&m_pList->m_signTimer, "timeout"));
        QCOMPARE(takeSigns(), signFields(2, 10));
        QVERIFY(!m_pList->m_signTimer.isActive());
    }

    void cardStandsAtTheHeadOfItsRow()
    {
        showTwo();
        moveTo(cOnHead + QPoint(15, 62));
        signDelayIsOver();
        QCOMPARE(takeSigns(), signFields(2, 72));
    }

    void cardHasTheListsWholeWidthBesideAScrollBar()
    {
        QList<ConfInfoData> records;
        for (int i = 20; i > 0; --i) {
            records.append(record(QString::number(i + 10)));
        }
        show(records);
        moveTo(cOnHead + QPoint(5, 4));
        QTRY_VERIFY_WITH_TIMEOUT(m_pList->viewport()->width() < m_pList->width(), cPatienceMs);
        takeSigns();
        signDelayIsOver();
        QCOMPARE(takeSigns(), signFields(2, 10));
    }

    void eachMoveInsideTheHeadStartsTheDelayAnew()
    {
        showTwo();
        moveTo(cOnHead);
        m_pList->m_signTimer.start(100000);
        moveTo(cOnHead + QPoint(1, 1));
        QVERIFY(m_pList->m_signTimer.isActive());
        QCOMPARE(m_pList->m_signTimer.interval(), 500);
        QCOMPARE(takeSigns(), QStringList());
    }

    void movingOffTheHeadCancelsTheCard()
    {
        showTwo();
        moveTo(cOnHead);
        QVERIFY(m_pList->m_signTimer.isActive());
        moveTo(cBeside);
        QVERIFY(!m_pList->m_signTimer.isActive());
        const QStringList signs = takeSigns();
        QVERIFY(signs.contains(QStringLiteral("close")));
        QCOMPARE(signs.count(QStringLiteral("close")), signs.size());
    }

    void movingOntoNoRowLeavesTheDelayRunning()
    {
        showTwo();
        moveTo(cOnHead);
        moveTo(QPoint(30, 200));
        QVERIFY(m_pList->m_signTimer.isActive());
        QCOMPARE(takeSigns(), QStringList());
    }

    void detailButtonLeavesTheDelayRunning()
    {
        showTwo();
        hover(0);
        moveTo(cOnHead);
        takeSigns();
        moveTo(onButton(0));
        QVERIFY(m_pList->m_signTimer.isActive());
        QCOMPARE(takeSigns(), QStringList());
    }

    void leavingTheListCancelsTheCard()
    {
        showTwo();
        moveTo(cOnHead);
        QVERIFY(m_pList->m_signTimer.isActive());
        QCursor::setPos(10, 10);
        QTRY_VERIFY_WITH_TIMEOUT(!m_pList->m_signTimer.isActive(), cPatienceMs);
        QCOMPARE(takeSigns(), QStringList{"close"});
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ConferenceInfoMouse, Widgets)
#include "tst_ConferenceInfoMouse.moc"
