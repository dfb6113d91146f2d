// The client with the real plug-in and a real call process, which dies, does not come back, does not answer or was
// started by somebody else. What the person sees is looked at in the window, and its buttons are pressed.

#include "client/CallProcess.h"
#include "client/ContactBook.h"
#include "panes/MainWindow.h"
#include "screen/WindowProbe.h"
#include "session/HostSession.h"
#include "traffic/CallChannel.h"
#include "traffic/TraceFolder.h"

#include "fakes/Patience.h"
#include "host/panes/PressButton.h"

#include <QFile>
#include <QProcess>
#include <QTest>

#include <csignal>

class tst_CallService : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QString error;
        QVERIFY2(m_session.start(QStringLiteral(VOIP_MODULE), &error), qPrintable(error));
        m_pWindow = std::make_unique<MainWindow>(m_session, m_book);
        m_pWindow->show();
        QVERIFY(QTest::qWaitForWindowActive(m_pWindow.get(), cPatienceMs));
        QCOMPARE(online(), QStringLiteral("Offline"));
        QVERIFY(pressButton(m_pWindow.get(), "btnOnline"));
        QCOMPARE(online(), QStringLiteral("Connecting..."));
        // Without a connection the plug-in would only say that the client has to be restarted.
        QVERIFY(!pressButton(m_pWindow.get(), "btnConference"));
        QCOMPARE(m_pWindow->readiness().reason(), QStringLiteral("The call service is being reached. Wait a moment."));
        QTRY_COMPARE_WITH_TIMEOUT(online(), QStringLiteral("Online"), cPatienceMs);
        QVERIFY(m_pWindow->readiness().isReady());
        QVERIFY(!isBarShown());
    }

    void cleanup()
    {
        if (m_bEnded) {
            return;
        }
        qunsetenv(cScenario);
        if (service().state() == CallService::GivenUp) {
            QVERIFY(pressButton(m_pWindow.get(), "btnStartService"));
        }
        QTRY_COMPARE_WITH_TIMEOUT(online(), QStringLiteral("Online"), cPatienceMs);
    }

    void killedItComesBackByItself()
    {
        const qint64 before = service().process();
        kill();
        QTRY_VERIFY_WITH_TIMEOUT(isBarShown(), cPatienceMs);
        QVERIFY(online() != QStringLiteral("Online"));
        QTRY_COMPARE_WITH_TIMEOUT(online(), QStringLiteral("Online"), cPatienceMs);
        QVERIFY(!isBarShown());
        QVERIFY(service().process() > 0 && service().process() != before);
    }

    void whatDoesNotStayIsGivenUpUntilTheButtonIsPressed()
    {
        // Each one that is started ends at once, for want of its scenario.
        qputenv(cScenario, "/no/scenario");
        service().setPauses({0, 400, 800, 1500});
        kill();
        QTRY_COMPARE_WITH_TIMEOUT(online(), QStringLiteral("No call service"), cPatienceMs);
        QVERIFY(bar().startsWith(QStringLiteral("Call service lost: ")));
        QTRY_VERIFY_WITH_TIMEOUT(bar().contains(QStringLiteral("It is started again in 2 second(s) (try 4 of 4).")),
                                 cPatienceMs);
        QTRY_VERIFY_WITH_TIMEOUT(bar().startsWith(QStringLiteral("Call service lost, and given up. It was started 4 ")),
                                 cPatienceMs);
        QCOMPARE(service().attempt(), 4);
        // It does not go on behind one's back.
        QTest::qWait(2000);
        QCOMPARE(service().attempt(), 4);

        qunsetenv(cScenario);
        QVERIFY(pressButton(m_pWindow.get(), "btnStartService"));
        QTRY_VERIFY_WITH_TIMEOUT(bar().startsWith(QStringLiteral("Call service lost for a moment")), cPatienceMs);
        QVERIFY(!WindowProbe::isShown(m_pWindow.get(), "btnStartService"));
        QTRY_COMPARE_WITH_TIMEOUT(online(), QStringLiteral("Online"), cPatienceMs);
        QVERIFY(!isBarShown());
    }

    void anotherTriesInsteadOfTheClientAndIsTaken()
    {
        qputenv(cScenario, "/no/scenario");
        service().setPauses({0});
        kill();
        QTRY_COMPARE_WITH_TIMEOUT(service().state(), CallService::GivenUp, cPatienceMs);
        qunsetenv(cScenario);
        QVERIFY(QProcess::startDetached(CallProcess::program(), QStringList()));
        QTRY_COMPARE_WITH_TIMEOUT(online(), QStringLiteral("Online"), cPatienceMs);
    }

    void connectedIsNotYetRegistered()
    {
        QFile scenario(QStringLiteral("mute.scn"));
        QVERIFY(scenario.open(QIODevice::WriteOnly));
        scenario.write("await-client\nexpect RegeditUser\nexpect quit\n");
        scenario.close();
        qputenv(cScenario, QFile::encodeName(QDir::current().absoluteFilePath(scenario.fileName())));
        service().setPauses({0, 1000, 1000});
        kill();
        QTRY_VERIFY_WITH_TIMEOUT(bar().startsWith(QStringLiteral("The call service has not registered you")),
                                 cPatienceMs);
        QVERIFY(service().process() != 0);
        QCOMPARE(online(), QStringLiteral("Connecting..."));
        qunsetenv(cScenario);
        kill();
    }

    void signedOutNobodyStartsIt()
    {
        QVERIFY(pressButton(m_pWindow.get(), "btnOnline"));
        QCOMPARE(online(), QStringLiteral("Offline"));
        ::kill(pid_t(CallChannel::peer()), SIGKILL);
        QTRY_COMPARE_WITH_TIMEOUT(CallChannel::peer(), qint64(0), cPatienceMs);
        // What must not come cannot be waited for.
        QTest::qWait(1500);
        QVERIFY(!CallChannel::isListening());
        QVERIFY(!isBarShown());
        // Signed in again it does not come by itself, since the plug-in starts none a second time.
        QVERIFY(pressButton(m_pWindow.get(), "btnOnline"));
        QTRY_COMPARE_WITH_TIMEOUT(online(), QStringLiteral("Online"), cPatienceMs);
    }

    /// The last one: it ends the session.
    void afterTheEndThePlugInConnectsAgainAndStartsNothing()
    {
        m_bEnded = true;
        m_session.quit();
        QTRY_VERIFY_WITH_TIMEOUT(!CallChannel::isListening(), cPatienceMs);
        // Longer than the plug-in's first pause: what must not come cannot be waited for.
        QTest::qWait(2500);
        QVERIFY(!CallChannel::isListening());
        QVERIFY(QProcess::startDetached(CallProcess::program(), QStringList()));
        QTRY_VERIFY_WITH_TIMEOUT(CallChannel::peer() != 0, cPatienceMs);
        QCOMPARE(::kill(pid_t(CallChannel::peer()), SIGKILL), 0);
    }

private:
    static constexpr const char *cScenario = "VOIPSDK_SCENARIO";

    CallService &service() { return m_session.callService(); }
    QString online() const { return WindowProbe::text(m_pWindow.get(), "btnOnline"); }
    QString bar() const { return WindowProbe::text(m_pWindow.get(), "lblService"); }
    bool isBarShown() const { return WindowProbe::isShown(m_pWindow.get(), "CallServiceBar"); }

    /// Kills the call process that the plug-in is connected to, as a crash would.
    void kill()
    {
        QVERIFY(service().process() > 0);
        QCOMPARE(::kill(pid_t(service().process()), SIGKILL), 0);
    }

    const TraceFolder m_traces;
    ContactBook m_book{HostSession::loginDomain()};
    HostSession m_session{m_book};
    std::unique_ptr<MainWindow> m_pWindow;
    bool m_bEnded = false;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CallService, Widgets)
#include "tst_CallService.moc"
