// Where the call window stands when a call begins. The class runs on a screen that is too low for it, too.

#include "history/CallHistory.h"
#include "history/CallWatch.h"
#include "panes/WayToCall.h"

#include "fakes/Patience.h"
#include "host/history/CallRows.h"
#include "host/panes/Deeds.h"
#include "ui/VoipWidget.h"

#include <QMainWindow>
#include <QSignalSpy>
#include <QTest>

class tst_WayToCall : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_pClient = std::make_unique<QMainWindow>();
        new WayToCall(*m_pClient, m_calls);
        m_pClient->show();
        QVERIFY(QTest::qWaitForWindowActive(m_pClient.get(), cPatienceMs));
        m_pCall = std::make_unique<CVoipWidget>();
        m_pCall->setVoipCallInfo({QStringLiteral("30010001")}, CVoipWidget::Voice, true, true);
    }

    void cleanup()
    {
        m_pCall.reset();
        m_pClient.reset();
    }

    void buttonsAreOnTheScreen_data()
    {
        QTest::addColumn<bool>("shownFirst");
        QTest::newRow("shown after the call has begun") << false;
        QTest::newRow("shown already") << true;
    }

    void buttonsAreOnTheScreen()
    {
        QFETCH(bool, shownFirst);
        if (shownFirst) {
            m_pCall->show();
            QVERIFY(QTest::qWaitForWindowExposed(m_pCall.get(), cPatienceMs));
        }
        emit m_calls.began(callRow("30010001"));
        m_pCall->show();
        QTRY_VERIFY_WITH_TIMEOUT(m_pCall->isActiveWindow(), cPatienceMs);
        const auto *button = m_pCall->findChild<QWidget *>(QStringLiteral("HangUp"));
        QSignalSpy pressed(button, SIGNAL(clicked()));
        Deeds deeds({Deeds::again([button] { return Deeds::clickOn(*button, button->rect().center()); },
                                  [&pressed] { return pressed.count() > 0; })});
        QVERIFY(deeds.finish());
    }

    void whatIsHiddenStaysHidden()
    {
        emit m_calls.began(callRow("30010001"));
        WayToCall::go();
        QVERIFY(!m_pCall->isVisible());
    }

private:
    CallHistory m_history;
    CallWatch m_calls{m_history, [] { return true; }};
    std::unique_ptr<QMainWindow> m_pClient;
    std::unique_ptr<CVoipWidget> m_pCall;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_WayToCall, Widgets)
#include "tst_WayToCall.moc"
