#include "client/HostSettings.h"
#include "client/SettingsFile.h"
#include "happenings/HappeningsPanel.h"
#include "panes/WindowPlace.h"

#include "common/settings/ConfigFile.h"
#include "host/panes/ClientTest.h"
#include "host/panes/PressButton.h"

#include <QAbstractButton>
#include <QDockWidget>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

Q_DECLARE_METATYPE(WindowPlace::Side)

/// Where the main window stands: whole on a screen, and where it was left. The class runs on screens of several sizes.
class tst_WindowPlace : public ClientTest
{
    Q_OBJECT

public:
    tst_WindowPlace() : ClientTest(Begin::SignedIn) {}

private slots:
    void fitsTheScreenThatItSharesMostWith_data()
    {
        QTest::addColumn<QRect>("wanted");
        QTest::addColumn<QRect>("fitted");
        QTest::newRow("as it is") << QRect(10, 20, 300, 200) << QRect(10, 20, 300, 200);
        QTest::newRow("larger than the screen") << QRect(10, 20, 3000, 2000) << QRect(0, 0, 800, 600);
        QTest::newRow("over the edge") << QRect(700, 500, 200, 200) << QRect(600, 400, 200, 200);
        QTest::newRow("more on the second") << QRect(790, 0, 200, 200) << QRect(800, 0, 200, 200);
        QTest::newRow("on a screen that is gone") << QRect(5000, 100, 200, 200) << QRect(600, 100, 200, 200);
        QTest::newRow("left of all") << QRect(-5000, -100, 200, 200) << QRect(0, 0, 200, 200);
    }

    void fitsTheScreenThatItSharesMostWith()
    {
        QFETCH(QRect, wanted);
        QTEST(WindowPlace::fit(wanted, {QRect(0, 0, 800, 600), QRect(800, 0, 400, 300)}), "fitted");
        QCOMPARE(WindowPlace::fit(wanted, {}), wanted);
    }

    void halvesOfAScreenAreItsParts()
    {
        const QRect screen(10, 20, 801, 600);
        QCOMPARE(WindowPlace::part(screen, WindowPlace::Side::Whole), screen);
        QCOMPARE(WindowPlace::part(screen, WindowPlace::Side::Left), QRect(10, 20, 400, 600));
        QCOMPARE(WindowPlace::part(screen, WindowPlace::Side::Right), QRect(411, 20, 400, 600));
    }

    void clientBesideAnotherKeepsToItsHalf_data()
    {
        QTest::addColumn<WindowPlace::Side>("side");
        QTest::newRow("left") << WindowPlace::Side::Left;
        QTest::newRow("right") << WindowPlace::Side::Right;
    }

    void clientBesideAnotherKeepsToItsHalf()
    {
        QFETCH(WindowPlace::Side, side);
        const QString kept = QStringLiteral("17,19,700,500");
        ConfigFile::changeConfigValue(HostSettings::userFile(), QLatin1String(WindowPlace::cMainKey), kept);
        m_pWindow = std::make_unique<MainWindow>(*m_pSession, *m_pBook, side);
        m_pWindow->show();
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        const QRect half = WindowPlace::part(screen, side);
        QTRY_VERIFY_WITH_TIMEOUT(half.contains(m_pWindow->frameGeometry()), cPatienceMs);
        m_pWindow->prompt().prompt(QStringLiteral("30010001"), false, false);
        const QRect room = m_pWindow->prompt().width() < half.width() ? half : screen;
        QTRY_VERIFY_WITH_TIMEOUT(room.contains(m_pWindow->prompt().frameGeometry()), cPatienceMs);
        m_pWindow->prompt().hide();
        // Where the client stood alone is where it will stand alone again.
        m_pWindow->close();
        QCOMPARE(SettingsFile::read(HostSettings::userFile(), QLatin1String(WindowPlace::cMainKey)), kept);
    }

    void windowIsNeverLargerThanTheScreen() { QTRY_VERIFY_WITH_TIMEOUT(isOnScreen(m_pWindow.get()), cPatienceMs); }

    void whatStandsInASmallWindowIsReached()
    {
        m_pWindow->resize(300, 200);
        QTRY_COMPARE_WITH_TIMEOUT(m_pWindow->height(), 200, cPatienceMs);
        const auto *whole = m_pWindow->findChild<QScrollArea *>(QStringLiteral("whole"));
        QTRY_VERIFY_WITH_TIMEOUT(whole->verticalScrollBar()->isVisible(), cPatienceMs);
        whole->verticalScrollBar()->setValue(whole->verticalScrollBar()->maximum());
        const QWidget *button = m_pWindow->findChild<QWidget *>(QStringLiteral("btnConference"));
        QTRY_VERIFY_WITH_TIMEOUT(!button->visibleRegion().isEmpty(), cPatienceMs);
    }

    void placeAndSizeAreRemembered()
    {
        const QRect screen = WindowPlace::insides().first();
        const QSize size = QSize(screen.width() - 90, screen.height() - 60).expandedTo(m_pWindow->minimumSizeHint());
        const QRect place = WindowPlace::fit({screen.topLeft() + QPoint(17, 9), size}, {screen});
        m_pWindow->setGeometry(place);
        QTRY_COMPARE_WITH_TIMEOUT(m_pWindow->geometry(), place, cPatienceMs);
        restart();
        QTRY_COMPARE_WITH_TIMEOUT(m_pWindow->geometry(), place, cPatienceMs);
    }

    void maximizedComesBackMaximized()
    {
        m_pWindow->showMaximized();
        QTRY_VERIFY_WITH_TIMEOUT(m_pWindow->isMaximized(), cPatienceMs);
        restart();
        QTRY_VERIFY_WITH_TIMEOUT(m_pWindow->isMaximized(), cPatienceMs);
    }

    void comesBackFromAScreenThatIsGone_data()
    {
        QTest::addColumn<QString>("kept");
        QTest::newRow("far to the right") << QStringLiteral("9000,100,600,400");
        QTest::newRow("too large") << QStringLiteral("0,0,90000,90000");
        QTest::newRow("nothing of it") << QStringLiteral("1,2");
        QTest::newRow("no size") << QStringLiteral("1,2,0,-7");
        QTest::newRow("no numbers") << QStringLiteral("a,b,c,d,maximised");
    }

    void comesBackFromAScreenThatIsGone()
    {
        QFETCH(QString, kept);
        ConfigFile::changeConfigValue(HostSettings::userFile(), QLatin1String(WindowPlace::cMainKey), kept);
        m_pWindow.reset();
        openWindow();
        QTRY_VERIFY_WITH_TIMEOUT(isOnScreen(m_pWindow.get()), cPatienceMs);
    }

    void whatHappensLeavesTheCallsTheirRoom()
    {
        const QSize before = m_pWindow->size();
        QVERIFY(pressButton(m_pWindow.get(), "happeningsButton"));
        auto *dock = m_pWindow->findChild<QDockWidget *>();
        auto *calls = m_pWindow->findChild<QWidget *>(QStringLiteral("callsPane"));
        QVERIFY(QTest::qWaitForWindowExposed(dock->window(), cPatienceMs));

        QTRY_VERIFY_WITH_TIMEOUT(isOnScreen(m_pWindow.get()) && isOnScreen(dock->window()), cPatienceMs);
        QVERIFY2(calls->width() >= 320, qPrintable(QString::number(calls->width())));
        // Pressed once more it goes, and the window has its old size.
        QVERIFY(pressButton(m_pWindow.get(), "happeningsButton"));
        QVERIFY(!dock->isVisible());
        QTRY_COMPARE_WITH_TIMEOUT(m_pWindow->size(), before, cPatienceMs);
    }

    void whatHappensFloatsAndIsClosedByItsCross()
    {
        QVERIFY(pressButton(m_pWindow.get(), "happeningsButton"));
        auto *dock = m_pWindow->findChild<QDockWidget *>();
        // On a small screen it floats already, and once more would hide it and show it in one breath.
        if (!dock->isFloating()) {
            dock->setFloating(true);
        }
        QVERIFY(QTest::qWaitForWindowExposed(dock, cPatienceMs));
        QVERIFY(dock->close());
        QTRY_VERIFY_WITH_TIMEOUT(!isPressed("happeningsButton"), cPatienceMs);
        QVERIFY(pressButton(m_pWindow.get(), "happeningsButton"));
        QVERIFY(m_pWindow->findChild<HappeningsPanel *>()->isVisible());
    }

private:
    void restart()
    {
        m_pWindow->close();
        m_pWindow.reset();
        openWindow();
    }

    static bool isOnScreen(const QWidget *window)
    {
        return window->screen()->availableGeometry().contains(window->frameGeometry());
    }

    bool isPressed(const char *strName) const
    {
        return m_pWindow->findChild<QAbstractButton *>(QLatin1String(strName))->isChecked();
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_WindowPlace, Widgets)
#include "tst_WindowPlace.moc"
