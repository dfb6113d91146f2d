#include "screen/WindowProbe.h"

#include "fakes/Patience.h"
#include "host/panes/ClientTest.h"
#include "host/panes/PressButton.h"
#include "plugin/EventPayload.h"
#include "plugin/PluginIds.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTest>

/// The prompt of a call that comes in: it takes the keyboard or not, is answered, and goes.
class tst_MainWindowPrompt : public ClientTest
{
    Q_OBJECT

private slots:
    void incomingCallOpensThePrompt()
    {
        QVERIFY(!m_pWindow->prompt().isVisible());
        ring(QStringLiteral("30010006"));
        QVERIFY(m_pWindow->prompt().isVisible());
        QCOMPARE(WindowProbe::text(&m_pWindow->prompt(), "lblName"), QStringLiteral("Anna Novak"));
        QCOMPARE(m_pWindow->statusBar()->currentMessage(), QStringLiteral("Anna Novak is calling"));
    }

    void answerTakesThePromptAway_data()
    {
        QTest::addColumn<QByteArray>("button");
        QTest::addColumn<bool>("accept");
        QTest::addColumn<QString>("status");
        QTest::newRow("accept") << QByteArray("btnAccept") << true << QStringLiteral("Call of Anna Novak accepted");
        QTest::newRow("reject") << QByteArray("btnReject") << false << QStringLiteral("Call of Anna Novak rejected");
    }

    void answerTakesThePromptAway()
    {
        QFETCH(QByteArray, button);
        QFETCH(bool, accept);
        QFETCH(QString, status);
        QSignalSpy answered(&m_pWindow->prompt(), &IncomingPrompt::answered);
        ring(QStringLiteral("30010006"));
        QVERIFY(pressButton(&m_pWindow->prompt(), button.constData()));
        QTRY_COMPARE_WITH_TIMEOUT(answered.count(), 1, cPatienceMs);
        QCOMPARE(answered.at(0), (QList<QVariant>{QStringLiteral("30010006"), accept}));
        QCOMPARE(m_pWindow->statusBar()->currentMessage(), status);
        QVERIFY(!m_pWindow->prompt().isVisible());
    }

    void keyOnThePromptAnswers_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<int>("tabs");
        QTest::addColumn<bool>("accept");
        QTest::newRow("Return accepts") << Qt::Key_Return << 0 << true;
        QTest::newRow("Enter accepts") << Qt::Key_Enter << 0 << true;
        QTest::newRow("Escape rejects") << Qt::Key_Escape << 0 << false;
        QTest::newRow("the other button is one Tab away") << Qt::Key_Return << 1 << false;
    }

    void keyOnThePromptAnswers()
    {
        QFETCH(Qt::Key, key);
        QFETCH(int, tabs);
        IncomingPrompt &prompt = m_pWindow->prompt();
        QSignalSpy answered(&prompt, &IncomingPrompt::answered);
        m_pWindow->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_pWindow.get(), cPatienceMs));
        ring(QStringLiteral("30010006"));
        QVERIFY(QTest::qWaitForWindowActive(&prompt, cPatienceMs));
        for (int i = 0; i < tabs; ++i) {
            QTest::keyClick(prompt.focusWidget(), Qt::Key_Tab);
        }
        QTest::keyClick(prompt.focusWidget(), key);
        QCOMPARE(answered.count(), 1);
        QTEST(answered.at(0).at(1).toBool(), "accept");
    }

    void promptTakesTheKeyboardOfAnIdleUserOnly_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("takes");
        QTest::newRow("nothing typed") << QString() << true;
        QTest::newRow("in the middle of typing") << "mari" << false;
    }

    void promptTakesTheKeyboardOfAnIdleUserOnly()
    {
        QFETCH(QString, typed);
        m_pWindow->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_pWindow.get(), cPatienceMs));
        QTest::keyClicks(m_pWindow->findChild<QLineEdit *>(QStringLiteral("editSearch")), typed);
        ring(QStringLiteral("30010006"));
        QVERIFY(QTest::qWaitForWindowExposed(&m_pWindow->prompt(), cPatienceMs));
        QFETCH(bool, takes);
        // What must not come cannot be waited for: a second is what it would need.
        QCOMPARE(takes ? QTest::qWaitForWindowActive(&m_pWindow->prompt(), cPatienceMs)
                       : QTest::qWaitForWindowActive(&m_pWindow->prompt(), 1000),
                 takes);
    }

    void shortcutLeadsToThePrompt()
    {
        m_pWindow->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_pWindow.get(), cPatienceMs));
        QTest::keyClicks(m_pWindow->findChild<QLineEdit *>(QStringLiteral("editSearch")), QStringLiteral("mari"));
        ring(QStringLiteral("30010006"));
        QVERIFY(QTest::qWaitForWindowExposed(&m_pWindow->prompt(), cPatienceMs));
        QTest::keyClick(m_pWindow.get(), Qt::Key_I, Qt::ControlModifier);
        QVERIFY(QTest::qWaitForWindowActive(&m_pWindow->prompt(), cPatienceMs));
        QCOMPARE(m_pWindow->prompt().focusWidget()->objectName(), QStringLiteral("btnAccept"));
    }

    void promptOfAnotherCallIsNotWithdrawn()
    {
        ring(QStringLiteral("30010006"));
        deliver(MSG_CLOSE_AV_MSGBOX, msgBoxPluginId(), packPayload(QStringLiteral("30010001@example.org")));
        QVERIFY(m_pWindow->prompt().isVisible());
    }

    void endOfTheCallWithdrawsThePromptWithoutAnAnswer()
    {
        QSignalSpy answered(&m_pWindow->prompt(), &IncomingPrompt::answered);
        ring(QStringLiteral("30010006"));
        deliver(MSG_CLOSE_AV_MSGBOX, msgBoxPluginId(), packPayload(QStringLiteral("30010006@example.org")));
        QVERIFY(!m_pWindow->prompt().isVisible());
        QCOMPARE(answered.count(), 0);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_MainWindowPrompt, Widgets)
#include "tst_MainWindowPrompt.moc"
