// A call rings while the user looks elsewhere: the desktop tells of it, by a service of notifications that the test
// puts on a bus of its own, or by a tray.

#include "host/desktop/FakeDesktop.h"
#include "host/desktop/FakeTray.h"
#include "host/desktop/SessionBus.h"
#include "host/panes/ClientTest.h"
#include "host/panes/Deeds.h"

#include <QApplication>
#include <QProcess>
#include <QTest>

#include <csignal>

class tst_PromptNotice : public ClientTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_pSessionBus = std::make_unique<SessionBus>();
        QVERIFY(m_pSessionBus->start());
        m_pBus = std::make_unique<QDBusConnection>(
            QDBusConnection::connectToBus(m_pSessionBus->address(), QStringLiteral("desktop")));
        ClientTest::initTestCase();
    }

    void cleanupTestCase()
    {
        m_pBus.reset();
        QDBusConnection::disconnectFromBus(QStringLiteral("desktop"));
        m_pSessionBus.reset();
    }

    void init()
    {
        m_pDesktop = std::make_unique<FakeDesktop>();
        QVERIFY(m_pDesktop->begin(*m_pBus));
        ClientTest::init();
    }

    void cleanup()
    {
        stopTheBus(false);
        ClientTest::cleanup();
        FakeDesktop::end(*m_pBus);
        m_pDesktop.reset();
    }

    void callIsToldToWhoLooksElsewhere_data()
    {
        QTest::addColumn<bool>("conference");
        QTest::addColumn<bool>("video");
        QTest::addColumn<QString>("text");
        QTest::newRow("voice") << false << false << "is calling you";
        QTest::newRow("video") << false << true << "video call";
        QTest::newRow("conference") << true << false << "invites you to a conference";
    }

    void callIsToldToWhoLooksElsewhere()
    {
        QFETCH(bool, conference);
        QFETCH(bool, video);
        lookElsewhere();
        ring("30010006", conference, video);
        QTRY_COMPARE_WITH_TIMEOUT(m_pDesktop->notices.size(), 1, cPatienceMs);
        const FakeDesktop::Notice &notice = m_pDesktop->notices.first();
        QCOMPARE(notice.program, QStringLiteral("KelvarIM"));
        QCOMPARE(notice.title, QStringLiteral("Anna Novak"));
        QTEST(notice.text, "text");
        QCOMPARE(notice.actions, (QStringList{"default", "Show"}));
        QCOMPARE(notice.hints.value(QStringLiteral("urgency")).toInt(), 2);
        // It stays as long as it rings.
        QCOMPARE(notice.expires, 0);
        QVERIFY(prompt().isVisible());
    }

    void whoLooksAtTheClientIsNotTold()
    {
        ring("30010006");
        QTRY_VERIFY_WITH_TIMEOUT(prompt().isActiveWindow(), cPatienceMs);
        // What must not come cannot be waited for.
        QTest::qWait(1000);
        QCOMPARE(m_pDesktop->notices.size(), 0);
    }

    void whoTurnsAwayWhileItRingsIsTold()
    {
        ring("30010006");
        QTRY_VERIFY_WITH_TIMEOUT(prompt().isActiveWindow(), cPatienceMs);
        lookElsewhere();
        QTRY_COMPARE_WITH_TIMEOUT(m_pDesktop->notices.size(), 1, cPatienceMs);
    }

    void clickBringsThePrompt()
    {
        const uint id = ringElsewhere();
        QVERIFY(!prompt().isActiveWindow());
        // Somebody else's.
        emit m_pDesktop->ActionInvoked(id + 1, QStringLiteral("default"));
        QTest::qWait(200);
        QVERIFY(!prompt().isActiveWindow());
        emit m_pDesktop->ActionInvoked(id, QStringLiteral("default"));
        QTRY_VERIFY_WITH_TIMEOUT(prompt().isActiveWindow(), cPatienceMs);
        // Who is there needs no notice.
        QTRY_COMPARE_WITH_TIMEOUT(m_pDesktop->closed, QList<uint>{id}, cPatienceMs);
        QVERIFY(prompt().isVisible());
    }

    void goesWithThePrompt_data()
    {
        QTest::addColumn<bool>("withdrawn");
        QTest::newRow("the caller gives up") << true;
        QTest::newRow("answered") << false;
    }

    void goesWithThePrompt()
    {
        QFETCH(bool, withdrawn);
        const uint id = ringElsewhere();
        if (withdrawn) {
            prompt().withdraw(QStringLiteral("30010006"));
        } else {
            prompt().reject();
        }
        QTRY_COMPARE_WITH_TIMEOUT(m_pDesktop->closed, QList<uint>{id}, cPatienceMs);
    }

    void goesWithTheClient()
    {
        const uint id = ringElsewhere();
        m_pWindow->close();
        QTRY_COMPARE_WITH_TIMEOUT(m_pDesktop->closed, QList<uint>{id}, cPatienceMs);
    }

    void serviceThatIsLateShowsNothingThatIsOver()
    {
        m_pDesktop->isSlow = true;
        lookElsewhere();
        ring("30010006");
        QTRY_COMPARE_WITH_TIMEOUT(m_pDesktop->notices.size(), 1, cPatienceMs);
        prompt().withdraw(QStringLiteral("30010006"));
        m_pDesktop->answer(*m_pBus);
        QTRY_COMPARE_WITH_TIMEOUT(m_pDesktop->closed, QList<uint>{1}, cPatienceMs);
    }

    void busThatStallsHoldsUpNothing()
    {
        lookElsewhere();
        stopTheBus(true);
        ring("30010006");
        QVERIFY(prompt().isVisible());
        stopTheBus(false);
        QTRY_COMPARE_WITH_TIMEOUT(m_pDesktop->notices.size(), 1, cPatienceMs);
        // Whoever had waited for the bus in vain would not know whose words these are.
        QTRY_VERIFY_WITH_TIMEOUT(
            [this] {
                emit m_pDesktop->ActionInvoked(m_pDesktop->lastId, QStringLiteral("default"));
                return prompt().isActiveWindow();
            }(),
            cPatienceMs);
    }

    void nextCallHasANoticeOfItsOwn()
    {
        const uint id = ringElsewhere();
        ring("30010001");
        QTRY_COMPARE_WITH_TIMEOUT(m_pDesktop->notices.size(), 2, cPatienceMs);
        QCOMPARE(m_pDesktop->closed, QList<uint>{id});
        QCOMPARE(m_pDesktop->notices.last().title, QStringLiteral("李雷"));
    }

    void noticeThatWasPutAwayLeavesThePrompt()
    {
        const uint id = ringElsewhere();
        emit m_pDesktop->NotificationClosed(id, 2);
        QTest::qWait(200);
        QVERIFY(prompt().isVisible());
        prompt().withdraw(QStringLiteral("30010006"));
        QTest::qWait(500);
        QCOMPARE(m_pDesktop->closed, QList<uint>());
    }

    void textIsNoMarkup()
    {
        CallNotice notice;
        notice.show(QStringLiteral("<b>Ann</b>"), QStringLiteral("1 < 2 & <i>so on</i>"));
        QTRY_COMPARE_WITH_TIMEOUT(m_pDesktop->notices.size(), 1, cPatienceMs);
        QCOMPARE(m_pDesktop->notices.first().title, QStringLiteral("<b>Ann</b>"));
        QCOMPARE(m_pDesktop->notices.first().text, QStringLiteral("1 &lt; 2 &amp; &lt;i&gt;so on&lt;/i&gt;"));
    }

    void withoutAServiceTheTrayTells()
    {
        FakeDesktop::end(*m_pBus);
        FakeTray tray;
        lookElsewhere();
        ring("30010006");
        QTRY_COMPARE_WITH_TIMEOUT(tray.icons(), 1, cPatienceMs);
        QTRY_VERIFY_WITH_TIMEOUT(tray.isShown(), cPatienceMs);
        QVERIFY(!prompt().isActiveWindow());
        Deeds click({[this, &tray] { return prompt().isActiveWindow() || (tray.click() && false); }});
        QVERIFY(click.finish());
        QTRY_VERIFY_WITH_TIMEOUT(!tray.isShown(), cPatienceMs);
        QVERIFY(prompt().isVisible());
    }

    void withoutServiceAndTrayThePromptIsAll()
    {
        FakeDesktop::end(*m_pBus);
        lookElsewhere();
        ring("30010006");
        QTest::qWait(1000);
        QVERIFY(prompt().isVisible());
        prompt().enter();
        QTRY_VERIFY_WITH_TIMEOUT(prompt().isActiveWindow(), cPatienceMs);
    }

private:
    void stopTheBus(bool bStop) const { ::kill(pid_t(m_pSessionBus->process()), bStop ? SIGSTOP : SIGCONT); }
    IncomingPrompt &prompt() { return m_pWindow->prompt(); }
    /// No window of the client has the keyboard any more.
    void lookElsewhere()
    {
        m_pWindow->showMinimized();
        if (prompt().isVisible()) {
            QVERIFY(QProcess::execute(QStringLiteral("xdotool"),
                                      {QStringLiteral("windowminimize"), QString::number(prompt().winId())}) == 0);
        }
        QTRY_COMPARE_WITH_TIMEOUT(QGuiApplication::applicationState(), Qt::ApplicationInactive, cPatienceMs);
    }
    /// A call whose notice is up; its number.
    uint ringElsewhere()
    {
        lookElsewhere();
        ring("30010006");
        const bool bTold = QTest::qWaitFor([this] { return m_pDesktop->notices.size() == 1; }, cPatienceMs);
        // The answer is on its way.
        QTest::qWait(100);
        return bTold ? m_pDesktop->lastId : 0;
    }

    std::unique_ptr<SessionBus> m_pSessionBus;
    std::unique_ptr<QDBusConnection> m_pBus;
    std::unique_ptr<FakeDesktop> m_pDesktop;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_PromptNotice, Appless)
#include "tst_PromptNotice.moc"
