// The call process is killed in every state of a call, and another one is started: nothing ends by itself, nothing
// hangs, and the user is registered again.

#include "fakes/Patience.h"
#include "fakes/QtMessages.h"
#include "flow/FlowClient.h"

#include <QAbstractButton>
#include <QLocalSocket>
#include <QWidget>
#include <QtTest>

class tst_LostCallProcess : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(m_client.load()); }

    void init()
    {
        if (!m_client.callProcessLives() && m_client.callProcessId() != 0) {
            QVERIFY(m_client.startCallProcess());
        }
        QVERIFY(m_client.goOnline());
        m_client.host.events.clear();
    }

    void cleanupTestCase()
    {
        m_client.command(MSG_EXIT_VOIP);
        QTRY_VERIFY_WITH_TIMEOUT(!m_client.callProcessLives(), cPatienceMs);
    }

    void killedInEveryState_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<int>("resultOfHangUp");
        QTest::newRow("idle") << int(Idle) << 0;
        QTest::newRow("outgoing") << int(Outgoing) << 21;
        QTest::newRow("incoming") << int(Incoming) << 26;
        QTest::newRow("connected") << int(Connected) << 24;
    }

    void killedInEveryState()
    {
        QFETCH(int, state);
        QFETCH(int, resultOfHangUp);
        QVERIFY(enter(State(state)));
        const bool visible = m_client.callWindow()->isVisible();

        const QtMessages messages;
        QVERIFY(m_client.killCallProcess());
        // The engine writes the socket's error to the debug log once it has seen the loss.
        QTRY_VERIFY_WITH_TIMEOUT(messages.debugLines.contains(QString::number(QLocalSocket::PeerClosedError)),
                                 cPatienceMs);
        QCOMPARE(m_client.ask(MSG_IS_EXIST_CALL), state != Idle);
        QCOMPARE(m_client.callWindow()->isVisible(), visible);
        QVERIFY2(m_client.host.received(MSG_CALL_FINISHED).isEmpty(), "the loss ends nothing by itself");

        if (state != Idle) {
            m_client.command(MSG_CLIENT_CONNECT_STATUS, false);
            QCOMPARE(m_client.host.received(MSG_CALL_FINISHED).size(), 1);
            QCOMPARE(CallRecord(m_client.host.received(MSG_CALL_FINISHED).constFirst()).iResult, resultOfHangUp);
        }
        QVERIFY(!m_client.callWindow()->isVisible());

        m_client.expectMessage();
        m_client.command(MSG_CALL_SINGLE_USER, false, QStringLiteral("30010001"));
        QCOMPARE(m_client.messageText, QStringLiteral("音频通话初始化失败，请尝试重启客户端解决"));
        QVERIFY(!m_client.ask(MSG_IS_EXIST_CALL));
    }

    void restartedDuringACallTheCallGoesOn()
    {
        QVERIFY(enter(Connected));
        QVERIFY(m_client.killCallProcess());
        const int registrations = m_client.countOnWire(QStringLiteral("RegeditUser"));
        QVERIFY(m_client.startCallProcess());
        QTRY_COMPARE_WITH_TIMEOUT(m_client.countOnWire(QStringLiteral("RegeditUser")), registrations + 1, cPatienceMs);
        QVERIFY2(m_client.ask(MSG_IS_EXIST_CALL), "the call is neither told nor changed");
        QVERIFY(m_client.callWindow()->isVisible());

        QTest::mouseClick(m_client.callWindowButton("HangUp"), Qt::LeftButton);
        QCOMPARE(CallRecord(m_client.host.received(MSG_CALL_FINISHED).constFirst()).iResult, 24);
        QTRY_COMPARE_WITH_TIMEOUT(m_client.countOnWire(QStringLiteral("HangUpCall")), 1, cPatienceMs);
    }

private:
    enum State
    {
        Idle,
        Outgoing,
        Incoming,
        Connected
    };

    bool enter(State state)
    {
        switch (state) {
        case Idle:
            return !m_client.ask(MSG_IS_EXIST_CALL);
        case Outgoing:
            m_client.command(MSG_CALL_SINGLE_USER, false, QStringLiteral("30010004"));
            return m_client.ask(MSG_IS_EXIST_CALL);
        case Incoming:
            return waitForIncoming();
        case Connected:
            m_client.command(MSG_CALL_SINGLE_USER, false, QStringLiteral("30010001"));
            return QTest::qWaitFor([&] { return m_client.callWindowText("lblStatus") == QStringLiteral("已接通"); },
                                   cPatienceMs);
        }
        return false;
    }

    bool waitForIncoming()
    {
        m_client.command(MSG_CALL_SINGLE_USER, false, QStringLiteral("30010007"));
        const bool rings =
            QTest::qWaitFor([&] { return !m_client.host.received(MSG_RECEVIE_VOIP_CALL).isEmpty(); }, cPatienceMs);
        m_client.host.events.clear();
        return rings;
    }

    FlowClient m_client{"10"};
};

#include "support/TestProgram.h"
VOIP_TEST(tst_LostCallProcess, Widgets)
#include "tst_LostCallProcess.moc"
