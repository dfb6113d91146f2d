// How the mouse moves and resizes the call window: events through the window system, from the press to the release.

#include "CallWindowTest.h"

#include "fakes/Patience.h"
#include "widgets/MyRubberBand.h"

#include <QApplication>
#include <QScreen>
#include <QWindow>

namespace {

const QPoint cHome(400, 300);
const QSize cSize(523, 403);

// A place inside that no control takes: the title, left of its text.
const QPoint cInside(15, 20);

} // namespace

class tst_VoipWidgetMouse : public CallWindowTest
{
    Q_OBJECT

private:
    static QRect workArea() { return QGuiApplication::primaryScreen()->availableGeometry(); }

    static MyRubberBand *band()
    {
        for (QWidget *pWidget : QApplication::topLevelWidgets()) {
            if (auto *pBand = qobject_cast<MyRubberBand *>(pWidget)) {
                return pBand;
            }
        }
        return nullptr;
    }

    static bool isBandShown() { return band() != nullptr && band()->isVisible(); }

    static QRect bandRect()
    {
        const MyRubberBand *pBand = band();
        return pBand != nullptr ? pBand->geometry() : QRect();
    }

    void showAtHome()
    {
        // The real pointer stays away: its own enter events would count as moves.
        QCursor::setPos(workArea().bottomRight() - QPoint(20, 20));
        // Without a window manager's own opinion on places beyond the screen.
        m_pWindow->setWindowFlag(Qt::X11BypassWindowManagerHint);
        m_pWindow->move(cHome);
        startCall(CVoipWidget::Voice, true);
        showWindow();
        QTRY_COMPARE_WITH_TIMEOUT(m_pWindow->geometry(), QRect(cHome, cSize), cPatienceMs);
        QTRY_COMPARE_WITH_TIMEOUT(m_pWindow->windowHandle()->geometry(), QRect(cHome, cSize), cPatienceMs);
    }

    // Mouse events at a global place, in pixels away from the window's home.
    QPoint local(const QPoint &away) const { return cHome + away - m_pWindow->windowHandle()->geometry().topLeft(); }
    void mouseTo(const QPoint &away) { QTest::mouseMove(m_pWindow->windowHandle(), local(away)); }

    void mouseDown(const QPoint &away, Qt::MouseButton held = Qt::LeftButton)
    {
        QTest::mousePress(m_pWindow->windowHandle(), held, Qt::NoModifier, local(away));
    }

    void mouseUp(const QPoint &away, Qt::MouseButton held = Qt::LeftButton)
    {
        QTest::mouseRelease(m_pWindow->windowHandle(), held, Qt::NoModifier, local(away));
    }

    /// Leaves a drag's rectangle behind, 50 pixels to the left of where the window then is.

    void dragLeftEdgeAndMoveHome()
    {
        mouseTo(QPoint(1, 200));
        mouseDown(QPoint(1, 200));
        mouseTo(QPoint(-50, 200));
        mouseUp(QPoint(-50, 200));
        QTRY_COMPARE_WITH_TIMEOUT(m_pWindow->pos(), cHome + QPoint(-50, 0), cPatienceMs);
        m_pWindow->move(cHome);
    }

    /// An event that no hand on one mouse brings about, straight to the window.

    void send(QEvent::Type type, const QPoint &away, Qt::MouseButton button, Qt::MouseButtons held)
    {
        QMouseEvent event(type, away, away, cHome + away, button, held, Qt::NoModifier);
        QApplication::sendEvent(m_pWindow.get(), &event);
    }

private slots:
    void cursorFollowsTheEdge_data()
    {
        QTest::addColumn<QPoint>("place");
        QTest::addColumn<Qt::CursorShape>("shape");
        QTest::newRow("inside") << cInside << Qt::ArrowCursor;
        QTest::newRow("left") << QPoint(1, 200) << Qt::SizeHorCursor;
        QTest::newRow("top") << QPoint(200, 1) << Qt::SizeVerCursor;
        QTest::newRow("top left") << QPoint(1, 1) << Qt::SizeFDiagCursor;
        QTest::newRow("right") << QPoint(521, 200) << Qt::SizeHorCursor;
        QTest::newRow("top right") << QPoint(521, 1) << Qt::SizeBDiagCursor;
        QTest::newRow("bottom") << QPoint(200, 401) << Qt::SizeVerCursor;
        QTest::newRow("bottom left") << QPoint(1, 401) << Qt::SizeBDiagCursor;
        QTest::newRow("bottom right") << QPoint(521, 401) << Qt::SizeFDiagCursor;
    }

    void cursorFollowsTheEdge()
    {
        QFETCH(QPoint, place);
        showAtHome();
        m_pWindow->setCursor(Qt::WaitCursor);
        mouseTo(place);
        QTEST(m_pWindow->cursor().shape(), "shape");
        QVERIFY(!isBandShown());
    }

    void cursorBetweenOppositeEdgesIsAnArrow()
    {
        // Only a window narrower than its two bands has such a place.
        m_pWindow->setFixedWidth(6);
        m_pWindow->setCursor(Qt::WaitCursor);
        QMouseEvent move(QEvent::MouseMove, QPointF(3, 200), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(m_pWindow.get(), &move);
        QCOMPARE(m_pWindow->cursor().shape(), Qt::ArrowCursor);
    }

    void dragOfAnEdgeMovesTheBandAndThenTheCorner_data()
    {
        QTest::addColumn<QPoint>("press");
        QTest::addColumn<QPoint>("target");
        QTest::addColumn<QRect>("bandRect"); // away from the window's home
        QTest::newRow("left") << QPoint(1, 200) << QPoint(-50, 210) << QRect(QPoint(-50, 0), QPoint(522, 402));
        QTest::newRow("top") << QPoint(200, 1) << QPoint(210, -40) << QRect(QPoint(0, -40), QPoint(522, 402));
        QTest::newRow("top left") << QPoint(1, 1) << QPoint(-50, -40) << QRect(QPoint(-50, -40), QPoint(522, 402));
        QTest::newRow("right") << QPoint(521, 200) << QPoint(600, 210) << QRect(QPoint(0, 0), QPoint(599, 402));
        QTest::newRow("top right") << QPoint(521, 1) << QPoint(600, -40) << QRect(QPoint(0, -40), QPoint(599, 402));
        QTest::newRow("bottom") << QPoint(200, 401) << QPoint(210, 500) << QRect(QPoint(0, 0), QPoint(522, 499));
        QTest::newRow("bottom left") << QPoint(1, 401) << QPoint(-50, 500) << QRect(QPoint(-50, 0), QPoint(522, 499));
        // The one corner that has the cursor's own pixel.
        QTest::newRow("bottom right") << QPoint(521, 401) << QPoint(600, 500) << QRect(QPoint(0, 0), QPoint(600, 500));
    }

    void dragOfAnEdgeMovesTheBandAndThenTheCorner()
    {
        QFETCH(QPoint, press);
        QFETCH(QPoint, target);
        QFETCH(QRect, bandRect);
        showAtHome();
        mouseTo(press);
        mouseDown(press);
        QVERIFY(isBandShown());
        QCOMPARE(band()->geometry(), QRect(cHome, cSize));

        mouseTo((press + target) / 2);
        mouseTo(target);
        QCOMPARE(band()->geometry(), bandRect.translated(cHome));
        QCOMPARE(m_pWindow->geometry(), QRect(cHome, cSize));

        mouseUp(target);
        QVERIFY(!isBandShown());
        // The window's size is fixed: only the corner comes from the band.
        QTRY_COMPARE_WITH_TIMEOUT(m_pWindow->geometry(), QRect(cHome + bandRect.topLeft(), cSize), cPatienceMs);
    }

    void dragInwardsKeepsTheSmallestSize_data()
    {
        QTest::addColumn<QPoint>("press");
        for (const QPoint &press : {QPoint(1, 200), QPoint(200, 1), QPoint(1, 1), QPoint(521, 200), QPoint(521, 1),
                                    QPoint(200, 401), QPoint(1, 401), QPoint(521, 401)}) {
            QTest::addRow("%d,%d", press.x(), press.y()) << press;
        }
    }

    void dragInwardsKeepsTheSmallestSize()
    {
        QFETCH(QPoint, press);
        showAtHome();
        mouseTo(press);
        mouseDown(press);
        mouseTo(QPoint(260, 200));
        QCOMPARE(band()->geometry(), QRect(cHome, cSize));
        mouseUp(QPoint(260, 200));
        QCOMPARE(m_pWindow->geometry(), QRect(cHome, cSize));
    }

    void dragBeyondTheWorkAreaKeepsItsSize()
    {
        showAtHome();
        mouseTo(QPoint(521, 401));
        mouseDown(QPoint(521, 401));
        mouseTo(QPoint(9000, 8000));
        QCOMPARE(band()->geometry(), QRect(cHome, workArea().size()));
        mouseUp(QPoint(9000, 8000));
        QCOMPARE(m_pWindow->geometry(), QRect(cHome, cSize));
    }

    void pressInTheBandWithoutAMoveOnlyHidesTheBand()
    {
        showAtHome();
        // A finished drag before leaves a rectangle behind, which the second release must not use.
        dragLeftEdgeAndMoveHome();
        QTRY_COMPARE_WITH_TIMEOUT(m_pWindow->windowHandle()->geometry(), QRect(cHome, cSize), cPatienceMs);

        mouseTo(QPoint(1, 200));
        mouseDown(QPoint(1, 200));
        QVERIFY(isBandShown());
        mouseUp(QPoint(1, 200));
        QVERIFY(!isBandShown());
        QCOMPARE(m_pWindow->pos(), cHome);
    }

    void dragOfTheInsideMovesTheWindowAtOnce()
    {
        showAtHome();
        mouseTo(cInside);
        mouseDown(cInside);
        mouseTo(cInside + QPoint(30, 40));
        QTRY_COMPARE_WITH_TIMEOUT(m_pWindow->windowHandle()->geometry(), QRect(cHome + QPoint(30, 40), cSize),
                                  cPatienceMs);
        QVERIFY(band() == nullptr);
        mouseTo(cInside + QPoint(-60, -70));
        QTRY_COMPARE_WITH_TIMEOUT(m_pWindow->windowHandle()->geometry(), QRect(cHome + QPoint(-60, -70), cSize),
                                  cPatienceMs);
        mouseUp(cInside + QPoint(-60, -70));
        QCOMPARE(m_pWindow->pos(), cHome + QPoint(-60, -70));
        mouseTo(cInside + QPoint(5, 5));
        QCOMPARE(m_pWindow->pos(), cHome + QPoint(-60, -70));
    }

    void dragToTheVeryCornerOfTheScreenIsSkipped()
    {
        showAtHome();
        mouseTo(cInside);
        mouseDown(cInside);
        // A cursor that stands as far from the origin as from the window's corner moves nothing.
        mouseTo(cInside - cHome);
        QCOMPARE(m_pWindow->pos(), cHome);
        mouseTo(cInside - cHome + QPoint(1, 0));
        QCOMPARE(m_pWindow->pos(), QPoint(1, 0));
        mouseUp(cInside - cHome + QPoint(1, 0));
    }

    void draggedDownTheWindowStaysReachable()
    {
        showAtHome();
        mouseTo(cInside);
        mouseDown(cInside);
        mouseTo(cInside + QPoint(0, 5000));
        QCOMPARE(m_pWindow->pos(), QPoint(cHome.x(), workArea().height() - 10));
        mouseUp(cInside + QPoint(0, 5000));
        QCOMPARE(m_pWindow->pos(), QPoint(cHome.x(), workArea().height() - 10));
    }

    void rightButtonEndsTheDragButKeepsTheEdge()
    {
        showAtHome();
        mouseTo(QPoint(1, 200));
        mouseDown(QPoint(1, 200));
        send(QEvent::MouseButtonPress, QPoint(1, 200), Qt::RightButton, Qt::LeftButton | Qt::RightButton);
        // Not pressed any more: the next move only looks where the cursor is.
        mouseTo(QPoint(-50, 200));
        QCOMPARE(band()->geometry(), QRect(cHome, cSize));

        // The edge of before the right press still counts for a left press without a move in between.
        mouseTo(QPoint(1, 200));
        send(QEvent::MouseButtonPress, QPoint(1, 200), Qt::RightButton, Qt::LeftButton | Qt::RightButton);
        mouseUp(QPoint(1, 200), Qt::RightButton);
        band()->hide();
        mouseDown(QPoint(1, 200));
        QVERIFY(isBandShown());
        mouseUp(QPoint(1, 200));
    }

    void rightButtonAloneMovesNothing()
    {
        showAtHome();
        mouseTo(cInside);
        mouseDown(cInside, Qt::RightButton);
        mouseTo(cInside + QPoint(30, 40));
        mouseUp(cInside + QPoint(30, 40), Qt::RightButton);
        QCOMPARE(m_pWindow->pos(), cHome);
        QVERIFY(!isBandShown());
    }

    void releaseForgetsTheEdge()
    {
        showAtHome();
        mouseTo(QPoint(1, 200));
        mouseDown(QPoint(1, 200));
        mouseUp(QPoint(1, 200));
        // Without a move in between the next press is one of the inside.
        mouseDown(QPoint(1, 200));
        QVERIFY(!isBandShown());
        mouseTo(QPoint(21, 200));
        QTRY_COMPARE_WITH_TIMEOUT(m_pWindow->pos(), cHome + QPoint(20, 0), cPatienceMs);
        mouseUp(QPoint(21, 200));
    }

    void clearedCallForgetsTheDrag()
    {
        showAtHome();
        mouseTo(QPoint(1, 200));
        mouseDown(QPoint(1, 200));
        mouseTo(QPoint(-50, 200));
        const QRect before = bandRect();
        m_pWindow->ClearCallInfoData();
        mouseTo(QPoint(-90, 200));
        QCOMPARE(bandRect(), before);
        mouseUp(QPoint(-90, 200));
        QVERIFY(!isBandShown());
        QCOMPARE(m_pWindow->pos(), cHome);
    }

    void moveWithoutTheButtonHeldMovesNothing()
    {
        for (const QPoint &press : {QPoint(1, 200), cInside}) {
            startAnew();
            showAtHome();
            mouseTo(press);
            mouseDown(press);
            m_pWindow->setCursor(Qt::WaitCursor);
            send(QEvent::MouseMove, press - QPoint(50, 0), Qt::NoButton, Qt::NoButton);
            QCOMPARE(m_pWindow->pos(), cHome);
            QVERIFY(!isBandShown() || bandRect() == QRect(cHome, cSize));
            QCOMPARE(m_pWindow->cursor().shape(), Qt::WaitCursor);
            mouseUp(press);
        }
    }

    void rectangleOfADragStaysUntilTheNextPress()
    {
        showAtHome();
        dragLeftEdgeAndMoveHome();
        // A release that no press came before.
        send(QEvent::MouseButtonRelease, QPoint(200, 200), Qt::LeftButton, Qt::NoButton);
        QCOMPARE(m_pWindow->pos(), cHome + QPoint(-50, 0));
    }

    void rightReleaseEndsADragAndKeepsTheBand()
    {
        showAtHome();
        mouseTo(QPoint(1, 200));
        mouseDown(QPoint(1, 200));
        mouseTo(QPoint(-50, 200));
        const QRect before = bandRect();
        send(QEvent::MouseButtonRelease, QPoint(-50, 200), Qt::RightButton, Qt::LeftButton);
        QVERIFY(isBandShown());
        send(QEvent::MouseMove, QPoint(-90, 200), Qt::NoButton, Qt::LeftButton);
        QCOMPARE(bandRect(), before);
        QCOMPARE(m_pWindow->pos(), cHome);
        mouseUp(QPoint(-90, 200));
        QVERIFY(!isBandShown());
    }

    void bandGoesWithTheWindow()
    {
        showAtHome();
        mouseTo(QPoint(1, 200));
        mouseDown(QPoint(1, 200));
        const QPointer<MyRubberBand> pBand = band();
        // A window of the desktop's, not a part of this one.
        QVERIFY(!pBand.isNull());
        QCOMPARE(pBand->shape(), QRubberBand::Rectangle);
        mouseUp(QPoint(1, 200));
        mouseTo(QPoint(200, 1));
        mouseDown(QPoint(200, 1));
        QCOMPARE(band(), pBand.data());
        mouseUp(QPoint(200, 1));
        m_pWindow.reset();
        QVERIFY(!pBand.isNull());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(pBand.isNull());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_VoipWidgetMouse, Widgets)

#include "tst_VoipWidgetMouse.moc"
