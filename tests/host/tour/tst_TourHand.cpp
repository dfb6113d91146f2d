#include "client/ContactBook.h"
#include "session/HostSession.h"
#include "tour/Tour.h"
#include "tour/TourHand.h"
#include "tour/TourWatch.h"

#include "fakes/Patience.h"

#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <functional>
#include <utility>

namespace {

/// Shows something from an event of the plug-in's kind on until the event loop comes round again.
class Flash : public QObject
{
public:
    bool shown = false;

protected:
    void customEvent(QEvent *) override
    {
        shown = true;
        QTimer::singleShot(0, this, [this] { shown = false; });
    }
};

/// Hears of every press in a window before anybody else does.
class PressWatch : public QObject
{
public:
    PressWatch(QWindow *window, std::function<void()> heard) : m_pWindow(window), m_heard(std::move(heard))
    {
        qApp->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == m_pWindow && event->type() == QEvent::MouseButtonPress) {
            m_heard();
        }
        return false;
    }

private:
    QWindow *m_pWindow;
    std::function<void()> m_heard;
};

} // namespace

/// The mouse of the tour on a real screen: what it does comes back through the X server. And the tour's eyes, for which
/// nothing is too short.
class tst_TourHand : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_hand = std::make_unique<TourHand>();
        QVERIFY(m_hand->isReady());
        m_hand->rest();
    }

    void clickReachesTheButton()
    {
        QPushButton button;
        show(button, {100, 100});
        const QSignalSpy clicked(&button, &QPushButton::clicked);
        m_hand->click(at(&button));
        QVERIFY(!m_hand->isIdle());
        QVERIFY(finished());
        QCOMPARE(clicked.count(), 1);
    }

    void clicksAreDoneInTheirOrder()
    {
        QPushButton first;
        QPushButton second;
        show(first, {100, 100});
        show(second, {500, 100});
        QStringList order;
        connect(&first, &QPushButton::clicked, this, [&] { order << QStringLiteral("first"); });
        connect(&second, &QPushButton::clicked, this, [&] { order << QStringLiteral("second"); });
        m_hand->click(at(&second));
        m_hand->click(at(&first));
        QVERIFY(finished());
        QCOMPARE(order, (QStringList{QStringLiteral("second"), QStringLiteral("first")}));
    }

    void windowBehindAnotherIsBroughtToTheFront()
    {
        QPushButton behind;
        show(behind, {100, 100});
        Listener front;
        show(front, {100, 100});
        const QSignalSpy clicked(&behind, &QPushButton::clicked);
        m_hand->click(at(&behind));
        QVERIFY(finished());
        QCOMPARE(clicked.count(), 1);
        QVERIFY(front.presses.isEmpty());
    }

    void buttonIsPressedOnlyOnceItIsThere()
    {
        QPushButton button;
        const QSignalSpy clicked(&button, &QPushButton::clicked);
        m_hand->click(at(&button));
        for (int i = 0; i < 100; ++i) {
            m_hand->work();
        }
        QVERIFY(!m_hand->isIdle());
        show(button, {100, 100});
        QVERIFY(finished());
        QCOMPARE(clicked.count(), 1);
    }

    void movingTargetIsFollowed()
    {
        QPushButton button;
        show(button, {100, 100});
        const QSignalSpy clicked(&button, &QPushButton::clicked);
        m_hand->click(at(&button));
        m_hand->work();
        button.move(600, 400);
        QVERIFY(finished());
        QCOMPARE(clicked.count(), 1);
    }

    void targetThatMovesUnderThePressIsReachedForAgain()
    {
        QWidget window;
        QPushButton target(&window);
        target.resize(100, 50);
        show(window, {100, 100});
        const QSignalSpy clicked(&target, &QPushButton::clicked);
        // It goes as soon as the press has reached the program, before any widget has heard of it.
        const PressWatch watch(window.windowHandle(), [&target] { target.move(90, 50); });
        m_hand->click(at(&target));
        QVERIFY(finished());
        QCOMPARE(target.pos(), QPoint(90, 50));
        QCOMPARE(clicked.count(), 1);
    }

    void rightButtonAndDoubleClickArriveAsSuch()
    {
        Listener window;
        show(window, {100, 100});
        m_hand->click(at(&window), Qt::RightButton);
        QVERIFY(finished());
        QCOMPARE(window.presses, QList<Qt::MouseButton>{Qt::RightButton});
        m_hand->click(at(&window), Qt::LeftButton, 2);
        QVERIFY(finished());
        QCOMPARE(window.presses, (QList<Qt::MouseButton>{Qt::RightButton, Qt::LeftButton}));
        QCOMPARE(window.doubles, QList<Qt::MouseButton>{Qt::LeftButton});
    }

    void menuItemIsChosenWhereThePointerOpenedTheMenu()
    {
        QPushButton button;
        show(button, {100, 100});
        QMenu menu;
        menu.addAction(QStringLiteral("one"));
        menu.addAction(QStringLiteral("two"));
        QPoint opened;
        connect(&button, &QPushButton::clicked, this, [&] {
            opened = QCursor::pos();
            menu.popup(opened);
        });
        const QSignalSpy triggered(&menu, &QMenu::triggered);
        m_hand->click(at(&button));
        m_hand->click([] { return WindowProbe::menuItem(QStringLiteral("two")); });
        QVERIFY(finished());
        QCOMPARE(opened, button.mapToGlobal(button.rect().center()));
        QCOMPARE(triggered.count(), 1);
        QCOMPARE(triggered.at(0).at(0).value<QAction *>()->text(), QStringLiteral("two"));
    }

    void hoverStaysWithoutAPress()
    {
        Listener window;
        show(window, {100, 100});
        m_hand->hover(at(&window));
        QVERIFY(finished());
        QCOMPARE(QCursor::pos(), window.mapToGlobal(window.rect().center()));
        QVERIFY(window.underMouse());
        QVERIFY(window.presses.isEmpty());
    }

    void pointerGoesOutOfTheWayAfterAClick()
    {
        QPushButton button;
        show(button, {100, 100});
        m_hand->click(at(&button));
        QVERIFY(finished());
        QTRY_VERIFY_WITH_TIMEOUT(!button.geometry().contains(QCursor::pos()), cPatienceMs);
    }

    void whatLastsForLessThanATickIsSeen()
    {
        ContactBook book(QStringLiteral("example.org"));
        HostSession session(book);
        TourWatch watch(session, QStringLiteral("no trace"));
        Flash flash;
        const auto act = [&flash] {
            QCoreApplication::postEvent(&flash, new QEvent(QEvent::User));
            return true;
        };
        const TourCheck check{QStringLiteral("it flashes"), [&flash] { return flash.shown; }};
        Tour tour(watch, *m_hand, {{QStringLiteral("Flash"), act, {check}, 1000}}, QString());
        const QSignalSpy finished(&tour, &Tour::finished);
        tour.start();
        QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, cPatienceMs);
        QVERIFY(finished.at(0).at(0).toBool());
    }

private:
    struct Listener : QPushButton
    {
        using QPushButton::QPushButton;
        void mousePressEvent(QMouseEvent *event) override { presses << event->button(); }
        void mouseDoubleClickEvent(QMouseEvent *event) override { doubles << event->button(); }
        QList<Qt::MouseButton> presses;
        QList<Qt::MouseButton> doubles;
    };

    static WindowProbe::Spot middle(QWidget *widget) { return {widget, widget->rect().center()}; }
    static TourHand::Finder at(QWidget *widget)
    {
        return [widget] { return widget->isVisible() ? middle(widget) : WindowProbe::Spot(); };
    }
    /// Works until everything is done, the move out of the way included.
    bool finished()
    {
        const bool done = QTest::qWaitFor(
            [this] {
                m_hand->work();
                return m_hand->isIdle();
            },
            cPatienceMs);
        QCoreApplication::processEvents();
        return done;
    }
    static void show(QWidget &window, const QPoint &place)
    {
        window.setGeometry(QRect(place, QSize(200, 100)));
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window, cPatienceMs));
    }

    std::unique_ptr<TourHand> m_hand;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_TourHand, Widgets)
#include "tst_TourHand.moc"
