// The mouse on the conference history list: the detail button, the signature card and the menu.

#include "HistoryListTest.h"

#include "fakes/LogCapture.h"

#include <QApplication>
#include <QScreen>
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

    LogCapture m_log;

private slots:
    void clickOnTheDetailButtonShowsTheDetail();
    void clickElsewhereOnARowDoesNothing();
    void clickOnARowThatWasNeverHoveredDoesNothing();
    void unconnectedRowHasNoDetailButton();
    void detailButtonAnswersAfterTheHoverEnded();
    void otherButtonsDoNotShowTheDetail();
    void pressSelectsNothing();
    void cursorIsAHandOnTheDetailButton();

    void restingOnAHeadShowsTheCardOnce();
    void cardStandsAtTheHeadOfItsRow();
    void eachMoveInsideTheHeadStartsTheDelayAnew();
    void movingOffTheHeadCancelsTheCard();
    void movingOntoNoRowLeavesTheDelayRunning();
    void detailButtonLeavesTheDelayRunning();
    void leavingTheListCancelsTheCard();

    void menuOfAConnectedRecordHasBothEntries();
    void menuOfAnUnconnectedRecordCanOnlyDelete();
    void menuCanBeOpenedAgainAndAgain();
    void recallTellsTheRow();
    void deleteTellsTheRow();
    void rowWithoutAnIdTellsNothing();
    void menuStaysOnTheScreen_data();
    void menuStaysOnTheScreen();
    void rightClickBelowTheRowsOpensNothing();
    void rightClickIsLeftToTheWindow();
};

void tst_ConferenceInfoMouse::clickOnTheDetailButtonShowsTheDetail()
{
    showTwo();
    QSignalSpy spy(m_pList.get(), SIGNAL(signal_ShowConfDetail(QString)));
    hover(0);
    const QRect button = place(0, ROLE_REMOVE_RECT);
    for (const QPoint &corner : {button.topLeft(), button.bottomRight(), button.center()})
        click(corner);
    for (const QPoint &outside : {button.topLeft() - QPoint(1, 0), button.bottomRight() + QPoint(0, 1)})
        click(outside);
    QCOMPARE(spy.size(), 3);
    QCOMPARE(spy.first().first().toString(), QStringLiteral("b"));
}

void tst_ConferenceInfoMouse::clickElsewhereOnARowDoesNothing()
{
    showTwo();
    QSignalSpy detail(m_pList.get(), SIGNAL(signal_ShowConfDetail(QString)));
    hover(0);
    click(cOnHead);
    click(cBeside);
    click(QPoint(300, 200));
    QCOMPARE(detail.size(), 0);
}

void tst_ConferenceInfoMouse::clickOnARowThatWasNeverHoveredDoesNothing()
{
    showTwo();
    QSignalSpy spy(m_pList.get(), SIGNAL(signal_ShowConfDetail(QString)));
    QVERIFY(place(0, ROLE_REMOVE_RECT).isNull());
    QMouseEvent release(QEvent::MouseButtonRelease, QPointF(499, 43), Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(m_pList->viewport(), &release);
    QCOMPARE(spy.size(), 0);
    QVERIFY(release.isAccepted());
}

void tst_ConferenceInfoMouse::unconnectedRowHasNoDetailButton()
{
    showTwo();
    QSignalSpy spy(m_pList.get(), SIGNAL(signal_ShowConfDetail(QString)));
    hover(1);
    QVERIFY(place(1, ROLE_REMOVE_RECT).isNull());
    click(QPoint(499, 62 + 43));
    QCOMPARE(spy.size(), 0);
}

void tst_ConferenceInfoMouse::detailButtonAnswersAfterTheHoverEnded()
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

void tst_ConferenceInfoMouse::otherButtonsDoNotShowTheDetail()
{
    showTwo();
    hover(0);
    QSignalSpy spy(m_pList.get(), SIGNAL(signal_ShowConfDetail(QString)));
    click(onButton(0), Qt::MiddleButton);
    click(onButton(0), Qt::RightButton);
    m_pList->m_pMenu->hide();
    QCOMPARE(spy.size(), 0);
}

void tst_ConferenceInfoMouse::pressSelectsNothing()
{
    showTwo();
    // The focus alone may make the first row the current one.
    const QModelIndex current = m_pList->currentIndex();
    const QPoint second = row(1).center();
    QMouseEvent press(QEvent::MouseButtonPress, second, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    press.ignore();
    QApplication::sendEvent(m_pList->viewport(), &press);
    QVERIFY(press.isAccepted());
    click(second);
    QVERIFY(!m_pList->selectionModel()->hasSelection());
    QCOMPARE(m_pList->currentIndex(), current);
}

void tst_ConferenceInfoMouse::cursorIsAHandOnTheDetailButton()
{
    showTwo();
    QCOMPARE(shape(), Qt::ArrowCursor);
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

void tst_ConferenceInfoMouse::restingOnAHeadShowsTheCardOnce()
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

void tst_ConferenceInfoMouse::cardStandsAtTheHeadOfItsRow()
{
    showTwo();
    moveTo(cOnHead + QPoint(15, 62));
    signDelayIsOver();
    QCOMPARE(takeSigns(), signFields(2, 72));
}

void tst_ConferenceInfoMouse::eachMoveInsideTheHeadStartsTheDelayAnew()
{
    showTwo();
    moveTo(cOnHead);
    m_pList->m_signTimer.start(100000);
    moveTo(cOnHead + QPoint(1, 1));
    QVERIFY(m_pList->m_signTimer.isActive());
    QCOMPARE(m_pList->m_signTimer.interval(), 500);
    QCOMPARE(takeSigns(), QStringList());
}

void tst_ConferenceInfoMouse::movingOffTheHeadCancelsTheCard()
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

void tst_ConferenceInfoMouse::movingOntoNoRowLeavesTheDelayRunning()
{
    showTwo();
    moveTo(cOnHead);
    moveTo(QPoint(30, 200));
    QVERIFY(m_pList->m_signTimer.isActive());
    QCOMPARE(takeSigns(), QStringList());
}

void tst_ConferenceInfoMouse::detailButtonLeavesTheDelayRunning()
{
    showTwo();
    hover(0);
    moveTo(cOnHead);
    takeSigns();
    moveTo(onButton(0));
    QVERIFY(m_pList->m_signTimer.isActive());
    QCOMPARE(takeSigns(), QStringList());
}

void tst_ConferenceInfoMouse::leavingTheListCancelsTheCard()
{
    showTwo();
    moveTo(cOnHead);
    QVERIFY(m_pList->m_signTimer.isActive());
    QCursor::setPos(10, 10);
    QTRY_VERIFY(!m_pList->m_signTimer.isActive());
    QCOMPARE(takeSigns(), QStringList{"close"});
}

void tst_ConferenceInfoMouse::menuOfAConnectedRecordHasBothEntries()
{
    showTwo();
    openMenu(0);
    QVERIFY(m_pList->m_pMenu->isVisible());
    QCOMPARE(entries(), QStringList({QStringLiteral("再次发起"), QStringLiteral("删除")}));
}

void tst_ConferenceInfoMouse::menuOfAnUnconnectedRecordCanOnlyDelete()
{
    showTwo();
    openMenu(1);
    QCOMPARE(entries(), QStringList{QStringLiteral("删除")});
}

void tst_ConferenceInfoMouse::menuCanBeOpenedAgainAndAgain()
{
    showTwo();
    for (int i = 0; i < 3; ++i) {
        openMenu(0);
        QCOMPARE(entries().size(), 2);
        m_pList->m_pMenu->hide();
        openMenu(1);
        QCOMPARE(entries().size(), 1);
        m_pList->m_pMenu->hide();
    }
    QCOMPARE(m_pList->m_pRecallAction->parent(), m_pList.get());
    QCOMPARE(m_pList->m_pDeleteAction->parent(), m_pList.get());
}

void tst_ConferenceInfoMouse::recallTellsTheRow()
{
    showTwo();
    QSignalSpy recall(m_pList.get(), SIGNAL(signal_ReCallConf(QString)));
    QSignalSpy remove(m_pList.get(), SIGNAL(signal_DeleteConfInfo(QString)));
    openMenu(0);
    choose(0);
    QCOMPARE(recall.size(), 1);
    QCOMPARE(recall.first().first().toString(), QStringLiteral("b"));
    QCOMPARE(remove.size(), 0);
    QVERIFY(!m_pList->m_pMenu->isVisible());
}

void tst_ConferenceInfoMouse::deleteTellsTheRow()
{
    showTwo();
    QSignalSpy recall(m_pList.get(), SIGNAL(signal_ReCallConf(QString)));
    QSignalSpy remove(m_pList.get(), SIGNAL(signal_DeleteConfInfo(QString)));
    openMenu(1);
    choose(0);
    QCOMPARE(remove.size(), 1);
    QCOMPARE(remove.first().first().toString(), QStringLiteral("a"));
    QCOMPARE(recall.size(), 0);
    // The row goes only when it is told to.
    QCOMPARE(ids(), QStringList({"b", "a"}));
}

void tst_ConferenceInfoMouse::rowWithoutAnIdTellsNothing()
{
    show({record(QString())});
    QSignalSpy recall(m_pList.get(), SIGNAL(signal_ReCallConf(QString)));
    QSignalSpy remove(m_pList.get(), SIGNAL(signal_DeleteConfInfo(QString)));
    for (const int iEntry : {0, 1}) {
        openMenu(0);
        choose(iEntry);
    }
    QCOMPARE(recall.size() + remove.size(), 0);
}

void tst_ConferenceInfoMouse::menuStaysOnTheScreen_data()
{
    QTest::addColumn<QPoint>("cursor");
    QTest::addColumn<bool>("left");
    QTest::addColumn<bool>("above");
    const QSize screen = QGuiApplication::primaryScreen()->availableGeometry().size();
    const int iRight = screen.width() - 1;
    const int iBottom = screen.height() - 1;
    QTest::newRow("top left") << QPoint(0, 0) << false << false;
    QTest::newRow("top right") << QPoint(iRight, 0) << true << false;
    QTest::newRow("bottom left") << QPoint(0, iBottom) << false << true;
    QTest::newRow("bottom right") << QPoint(iRight, iBottom) << true << true;
    QTest::newRow("middle") << QPoint(iRight / 2, iBottom / 2) << false << false;
}

void tst_ConferenceInfoMouse::menuStaysOnTheScreen()
{
    QFETCH(QPoint, cursor);
    QFETCH(bool, left);
    QFETCH(bool, above);
    showTwo();
    QCursor::setPos(cursor);
    const QPoint c = QCursor::pos();
    click(cBeside, Qt::RightButton);
    const QMenu *pMenu = m_pList->m_pMenu;
    QVERIFY(pMenu->width() > 50 && pMenu->height() > 50);
    QCOMPARE(pMenu->x(), left ? c.x() - pMenu->width() : c.x());
    QCOMPARE(pMenu->y(), above ? c.y() - pMenu->height() : c.y());
    QVERIFY(QGuiApplication::primaryScreen()->availableGeometry().contains(pMenu->geometry()));
}

void tst_ConferenceInfoMouse::rightClickBelowTheRowsOpensNothing()
{
    showTwo();
    m_log.take();
    click(QPoint(200, 200), Qt::RightButton);
    QVERIFY(!m_pList->m_pMenu->isVisible());
    const QStringList lines = m_log.take();
    QCOMPARE(lines.size(), 1);
    QVERIFY(lines.first().startsWith(QStringLiteral("[DEBUG][ConferenceInfoListView.cpp:")));
    QVERIFY(lines.first().endsWith(QStringLiteral(": selected is null")));
}

void tst_ConferenceInfoMouse::rightClickIsLeftToTheWindow()
{
    showTwo();
    for (const QPoint &position : {cBeside, QPoint(200, 200)}) {
        QMouseEvent release(QEvent::MouseButtonRelease, position, Qt::RightButton, Qt::NoButton, Qt::NoModifier);
        m_pList->mouseReleaseEvent(&release);
        QVERIFY(!release.isAccepted());
        m_pList->m_pMenu->hide();
    }
}

QTEST_MAIN(tst_ConferenceInfoMouse)
#include "tst_ConferenceInfoMouse.moc"
