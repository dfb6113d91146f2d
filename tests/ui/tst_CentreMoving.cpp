// The conference centre is closed and moved.

#include "CentreTest.h"

#include "widgets/IconButtonEx.h"

#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QScreen>
#include <QSignalSpy>

class tst_CentreMoving : public CentreTest
{
    Q_OBJECT

private:
    /// A mouse event on the window's empty strip beside its buttons, where the cursor is at `global`.
    void mouse(QEvent::Type type, const QPoint &global, Qt::MouseButton button = Qt::LeftButton)
    {
        auto *pStrip = part<QWidget>("buttonWidget");
        QMouseEvent event(type, pStrip->mapFromGlobal(global), global,
                          type == QEvent::MouseMove ? Qt::NoButton : button,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : button, Qt::NoModifier);
        QApplication::sendEvent(pStrip, &event);
    }

private slots:
    void closeButtonClosesAndTells()
    {
        open({});
        showAt({100, 100});
        QSignalSpy spy(m_pWindow.get(), SIGNAL(signal_VoiceConfWidgetClose()));
        auto *const pClose = part<CIconButtonEx>("btnClose");
        QTest::mouseClick(pClose->childAt(pClose->rect().center()), Qt::LeftButton);
        QCOMPARE(spy.size(), 1);
        QVERIFY(!m_pWindow->isVisible());
    }

    void closeOfAnyKindTells()
    {
        open({});
        QSignalSpy spy(m_pWindow.get(), SIGNAL(signal_VoiceConfWidgetClose()));
        QCloseEvent event;
        QApplication::sendEvent(m_pWindow.get(), &event);
        QCOMPARE(spy.size(), 1);
        QVERIFY(event.isAccepted());
    }

    void closeIsNoEndOfTheHost()
    {
        open({});
        showAt({100, 100});
        QSignalSpy spy(qApp, SIGNAL(lastWindowClosed()));
        m_pWindow->close();
        QCOMPARE(spy.size(), 0);
    }

    void dragMovesTheWindow()
    {
        open({});
        showAt({100, 100});
        mouse(QEvent::MouseButtonPress, {300, 160});
        mouse(QEvent::MouseMove, {350, 190});
        QCOMPARE(m_pWindow->pos(), QPoint(150, 130));
        mouse(QEvent::MouseMove, {10, 10});
        QCOMPARE(m_pWindow->pos(), QPoint(-190, -50));
        mouse(QEvent::MouseButtonRelease, {10, 10});
        mouse(QEvent::MouseMove, {300, 300});
        QCOMPARE(m_pWindow->pos(), QPoint(-190, -50));
    }

    void dragFromTheCornerPixelDoesNotMove()
    {
        open({});
        showAt({100, 100});
        mouse(QEvent::MouseButtonPress, {100, 100});
        mouse(QEvent::MouseMove, {180, 190});
        QCOMPARE(m_pWindow->pos(), QPoint(100, 100));
    }

    void dragToTheScreensCornerStopsShort()
    {
        open({});
        showAt({100, 100});
        mouse(QEvent::MouseButtonPress, {120, 150});
        mouse(QEvent::MouseMove, {21, 51});
        QCOMPARE(m_pWindow->pos(), QPoint(1, 1));
        mouse(QEvent::MouseMove, {20, 50});
        QCOMPARE(m_pWindow->pos(), QPoint(1, 1));
        mouse(QEvent::MouseMove, {20, 51});
        QCOMPARE(m_pWindow->pos(), QPoint(0, 1));
    }

    void dragDownStopsAboveTheScreensEnd()
    {
        open({});
        showAt({100, 100});
        const int iHeight = QGuiApplication::primaryScreen()->availableGeometry().height();
        mouse(QEvent::MouseButtonPress, {120, 150});
        mouse(QEvent::MouseMove, {120, iHeight - 10 + 50});
        QCOMPARE(m_pWindow->y(), iHeight - 10);
        mouse(QEvent::MouseMove, {120, iHeight - 10 + 51});
        QCOMPARE(m_pWindow->y(), iHeight - 10);
        mouse(QEvent::MouseMove, {120, iHeight - 11 + 50});
        QCOMPARE(m_pWindow->y(), iHeight - 11);
    }

    void moveWithoutAPressDoesNotMove()
    {
        open({});
        showAt({100, 100});
        mouse(QEvent::MouseMove, {350, 190});
        QCOMPARE(m_pWindow->pos(), QPoint(100, 100));
    }

    void otherButtonsDoNotDrag()
    {
        open({});
        showAt({100, 100});
        mouse(QEvent::MouseButtonPress, {300, 160}, Qt::RightButton);
        mouse(QEvent::MouseMove, {350, 190});
        QCOMPARE(m_pWindow->pos(), QPoint(100, 100));
    }

    void dragGoesOnUntilTheLeftButtonIsReleased()
    {
        open({});
        showAt({100, 100});
        mouse(QEvent::MouseButtonPress, {300, 160});
        mouse(QEvent::MouseButtonRelease, {300, 160}, Qt::RightButton);
        // What the buttons are now is not asked.
        mouse(QEvent::MouseMove, {310, 160}, Qt::RightButton);
        QCOMPARE(m_pWindow->pos(), QPoint(110, 100));
    }

    void titleDragsTheWindow()
    {
        open({});
        showAt({100, 100});
        auto *const pTitle = part<QLabel>("lblVoipTipMsg");
        const QPoint start = pTitle->mapToGlobal(QPoint(3, 3));
        QTest::mousePress(pTitle, Qt::LeftButton, Qt::NoModifier, QPoint(3, 3));
        QMouseEvent move(QEvent::MouseMove, QPointF(43, 23), start + QPoint(40, 20), Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QApplication::sendEvent(pTitle, &move);
        QCOMPARE(m_pWindow->pos(), QPoint(140, 120));
        QTest::mouseRelease(pTitle, Qt::LeftButton, Qt::NoModifier, QPoint(3, 3));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CentreMoving, Widgets)
#include "tst_CentreMoving.moc"
