// Every event in every state of a single call: what goes out, and what state follows.

#include "fakes/EngineTest.h"
#include "fakes/Patience.h"
#include "ui/VoipWidget.h"

#include <QLabel>
#include <QTest>
#include <QTimer>

#include <functional>

using Event = std::function<void(EngineFixture &)>;
Q_DECLARE_METATYPE(Event)

namespace {

Event notification(Code code, const QString &content = QString())
{
    return [code, content](EngineFixture &f) { f.notify(code, content); };
}

/// What a state's row expects.
struct Outcome
{
    QStringList journal;
    QString state;
};

// What ends a call with anna or bert: the host's prompt taken away, its record, the window's closing.
QStringList ended(const QString &peer, int result, bool caller, bool connected)
{
    return {"4345 " + peer + "@kelvar.im",
            QStringLiteral("4478 false %1 %2 %3 %4")
                .arg(peer)
                .arg(result)
                .arg(caller ? "true" : "false", connected ? "true" : "false"),
            "SetMicEnable true", "SetSpeakerEnble true"};
}

const QString cIdle = QStringLiteral("idle");
const QString cOutgoing = QStringLiteral("outgoing anna, invite");
const QString cIncoming = QStringLiteral("incoming bert, receive, ring");
const QString cConnected = QStringLiteral("connected anna");
const QString cNewPrompt = QStringLiteral("4639 carl false false");
const QString cInvitation = QStringLiteral(R"({"content":{"from":"anna","confId":"c1"}})");
const QString cIncomingCarl = QStringLiteral("incoming carl, receive, ring");

} // namespace

class tst_CallStates : public EngineTest<EngineFixture>
{
    Q_OBJECT

private slots:
    void eventInState_data()
    {
        QTest::addColumn<Event>("event");
        QTest::addColumn<QString>("state");
        QTest::addColumn<QStringList>("journal");
        QTest::addColumn<QString>("stateAfter");

        const QStringList nothing;
        // The row of an event that ends every call with the same result.
        const auto addEnd = [&](const char *name, const Event &event, int result, int resultConnected) {
            addRow(name, event, {nothing, cIdle}, {ended("anna", result, true, false), cIdle},
                   {ended("bert", result, false, false), cIdle}, {ended("anna", resultConnected, true, true), cIdle});
        };
        const auto addReject = [&](const char *name, const Event &event) {
            const QStringList line{"RejectCall"};
            addRow(name, event, {line, cIdle}, {line + ended("anna", 26, true, false), cIdle},
                   {line + ended("bert", 26, false, false), cIdle}, {line + ended("anna", 26, true, true), cIdle});
        };
        const auto addHangUp = [&](const char *name, const Event &event, const QStringList &behind) {
            addRow(name, event, {behind, cIdle},
                   {QStringList("HangUpCall") + ended("anna", 21, true, false) + behind, cIdle},
                   {QStringList("RejectCall") + ended("bert", 26, false, false) + behind, cIdle},
                   {QStringList("HangUpCall") + ended("anna", 24, true, true) + behind, cIdle});
        };

        addRow("host command to call", [](EngineFixture &f) { f.manager->callSingleUser("carl", false); },
               {{"CallUser \"carl\" false"}, "outgoing carl, invite"}, {nothing, cOutgoing}, {nothing, cIncoming},
               {nothing, cConnected});
        for (const Code code : {Code::IncomingCall, Code::IncomingCallAlt}) {
            addRow(code == Code::IncomingCall ? "code 0" : "code 1", notification(code, "carl"),
                   {{cNewPrompt}, cIncomingCarl}, {{cNewPrompt}, "incoming carl, invite, receive, ring"},
                   {{cNewPrompt}, cIncomingCarl}, {{cNewPrompt}, "connected carl, receive, ring"});
        }
        addRow("code 18", notification(Code::CallConnected), {nothing, cIdle}, {nothing, cConnected},
               {nothing, "connected bert, ring"}, {nothing, cConnected});
        addHangUp(
            "the user's hang-up", [](EngineFixture &f) { f.manager->slot_HangupCurrentCall(); }, nothing);
        addHangUp("the host's loss of its login", [](EngineFixture &f) { f.manager->clientConnectStatus(false); },
                  {"UnReg \"\""});
        addRow("the host's accept", [](EngineFixture &f) { f.manager->responseVoipRequest(true); },
               {{"AcceptCall"}, cIdle}, {{"AcceptCall"}, cOutgoing}, {{"AcceptCall"}, "incoming bert, receive"},
               {{"AcceptCall"}, cConnected});
        addReject("the host's reject", [](EngineFixture &f) { f.manager->responseVoipRequest(false); });
        addReject("code 3", notification(Code::RejectRequest));
        addEnd("code 4", notification(Code::PeerCanceled), 21, 21);
        addEnd(
            "code 5 with the own id",
            [](EngineFixture &f) {
                f.manager->m_strUserId = "me";
                f.notify(Code::UserRejected, "me");
            },
            21, 21);
        addEnd("code 5 with another id", notification(Code::UserRejected, "anna"), 26, 26);
        addEnd("code 7", notification(Code::CallEnded), 21, 24);
        addEnd("code 8", notification(Code::PeerHangup), 24, 24);
        addEnd("code 9", notification(Code::PeerHangupAlt), 24, 24);
        addEnd("code 10", notification(Code::PeerRejected), 26, 26);
        addEnd("code 19", notification(Code::CallFailed), 22, 22);
        addEnd("code 23", notification(Code::CallFailedAlt), 22, 22);
        addEnd("code 24", notification(Code::CallFailedAlt2), 22, 22);
        addEnd("code 22", notification(Code::PeerBusy), 25, 25);
        addRow("the invite timer", [](EngineFixture &f) { f.manager->slot_inviteCallTimeout(); }, {nothing, cIdle},
               {QStringList("HangUpCall") + ended("anna", 21, true, false), cIdle}, {nothing, cIncoming},
               {QStringList("HangUpCall") + ended("anna", 24, true, true), cIdle});
        addRow("the receive timer", [](EngineFixture &f) { f.manager->slot_recevieCallTimeout(); }, {nothing, cIdle},
               {nothing, cOutgoing}, {QStringList("RejectCall") + ended("bert", 26, false, false), cIdle},
               {nothing, cConnected});
    }

    void eventInState()
    {
        QFETCH(Event, event);
        QFETCH(QString, state);
        enter(*m_f, state);
        event(*m_f);
        QTEST(m_f->takeJournal(), "journal");
        QTEST(m_f->state(), "stateAfter");
    }

    void endOfAnAnsweredIncomingCall_data()
    {
        QTest::addColumn<Event>("event");
        QTest::addColumn<QStringList>("journal");

        QTest::newRow("the user's hang-up") << Event([](EngineFixture &f) { f.manager->hangupVoipCall(); })
                                            << QStringList("HangUpCall") + ended("bert", 24, false, true);
        QTest::newRow("the far end's hang-up") << notification(Code::PeerHangup) << ended("bert", 24, false, true);
        QTest::newRow("the call's end") << notification(Code::CallEnded) << ended("bert", 24, false, true);
    }

    void endOfAnAnsweredIncomingCall()
    {
        QFETCH(Event, event);
        m_f->notify(Code::IncomingCall, "bert");
        m_f->manager->responseVoipRequest(true);
        QCOMPARE(m_f->state(), QString("incoming bert, receive"));
        m_f->notify(Code::CallConnected);
        QCOMPARE(m_f->state(), QString("connected bert"));
        m_f->takeJournal();
        event(*m_f);
        QTEST(m_f->takeJournal(), "journal");
        QCOMPARE(m_f->state(), cIdle);
    }

    void socketLossLeavesTheCall_data()
    {
        QTest::addColumn<QString>("state");
        QTest::addColumn<QString>("stateAfter");

        QTest::newRow("Idle") << "Idle" << cIdle;
        QTest::newRow("Outgoing") << "Outgoing" << cOutgoing;
        QTest::newRow("Incoming") << "Incoming" << cIncoming;
        QTest::newRow("Connected") << "Connected" << cConnected;
    }

    void socketLossLeavesTheCall()
    {
        QFETCH(QString, state);
        QFETCH(QString, stateAfter);
        enter(*m_f, state);
        const bool shown = m_f->manager->m_pVoipWidget->isVisible();
        const auto *clock = m_f->manager->m_pVoipWidget->findChild<QTimer *>("m_callTimeTimer");
        QVERIFY(!m_f->manager->m_reconnectTimer.isActive());
        m_f->process.close();
        QTRY_VERIFY_WITH_TIMEOUT(!m_f->manager->m_bSocketConnected, cPatienceMs);
        QCOMPARE(m_f->state(), stateAfter);
        QCOMPARE(m_f->manager->m_pVoipWidget->isVisible(), shown);
        QCOMPARE(clock->isActive(), state == "Connected");
        QVERIFY(m_f->manager->m_reconnectTimer.isActive());
        QCOMPARE(m_f->manager->m_reconnectTimer.interval(), 1000);
        QCOMPARE(m_f->takeJournal(), QStringList());
    }

    void hangUpAfterSocketLossEndsTheCallWithoutALine()
    {
        enter(*m_f, "Connected");
        m_f->process.close();
        QTRY_VERIFY_WITH_TIMEOUT(!m_f->manager->m_bSocketConnected, cPatienceMs);
        m_f->manager->hangupVoipCall();
        QCOMPARE(m_f->takeJournal(), QStringList({"4345 anna@kelvar.im", "4478 false anna 24 true true"}));
        QCOMPARE(m_f->state(), cIdle);
        QVERIFY(!m_f->manager->m_pVoipWidget->isVisible());
    }

    void timersRunForSixtySeconds()
    {
        enter(*m_f, "Outgoing");
        QCOMPARE(m_f->manager->m_inviteTimer.interval(), 60000);
        m_f->notify(Code::PeerCanceled);
        enter(*m_f, "Incoming");
        QCOMPARE(m_f->manager->m_recevieTimer.interval(), 60000);
    }

    void acceptingDoesNotStartTheReceiveTimerAgain_data()
    {
        QTest::addColumn<Event>("ring");

        QTest::newRow("call") << notification(Code::IncomingCall, "bert");
        QTest::newRow("conference") << notification(Code::IncomingConf, cInvitation);
    }

    void acceptingDoesNotStartTheReceiveTimerAgain()
    {
        QFETCH(Event, ring);
        ring(*m_f);
        m_f->manager->m_recevieTimer.start(30000);
        m_f->manager->responseVoipRequest(true);
        QVERIFY(m_f->manager->m_recevieTimer.isActive());
        QCOMPARE(m_f->manager->m_recevieTimer.interval(), 30000);
    }

    void secondIncomingCallStartsTheReceiveTimerAgain_data()
    {
        QTest::addColumn<Event>("ring");

        QTest::newRow("code 0") << notification(Code::IncomingCall, "carl");
        QTest::newRow("code 1") << notification(Code::IncomingCallAlt, "carl");
        QTest::newRow("code 2") << notification(Code::IncomingConf, cInvitation);
    }

    void secondIncomingCallStartsTheReceiveTimerAgain()
    {
        QFETCH(Event, ring);
        m_f->notify(Code::IncomingCall, "bert");
        m_f->manager->m_recevieTimer.start(30000);
        ring(*m_f);
        QVERIFY(m_f->manager->m_recevieTimer.isActive());
        QCOMPARE(m_f->manager->m_recevieTimer.interval(), 60000);
    }

    void inviteTimerOfAnIncomingCallOnlyStops()
    {
        enter(*m_f, "Outgoing");
        m_f->notify(Code::IncomingCall, "carl");
        m_f->takeJournal();
        m_f->manager->slot_inviteCallTimeout();
        QCOMPARE(m_f->takeJournal(), QStringList());
        QCOMPARE(m_f->state(), cIncomingCarl);
    }

    void receiveTimerOfAnOutgoingCallOnlyStops()
    {
        enter(*m_f, "Outgoing");
        m_f->manager->m_recevieTimer.start(60000);
        m_f->manager->slot_recevieCallTimeout();
        QCOMPARE(m_f->takeJournal(), QStringList());
        QCOMPARE(m_f->state(), cOutgoing);
    }

    void receiveTimerOfASecondCallHangsUpTheConnectedOne()
    {
        enter(*m_f, "Connected");
        m_f->notify(Code::IncomingCall, "carl");
        m_f->takeJournal();
        QVERIFY(m_f->manager->m_recevieTimer.isActive());
        m_f->manager->slot_recevieCallTimeout();
        QCOMPARE(m_f->takeJournal(), QStringList("HangUpCall") + ended("carl", 24, false, true));
        QCOMPARE(m_f->state(), cIdle);
    }

    void secondIncomingCallKeepsFlagTimeListsAndWindow()
    {
        m_f->manager->callSingleUser("anna", true);
        m_f->notify(Code::CallConnected);
        CallData &call = m_f->manager->m_callData;
        call.memberList = QStringList{"x"};
        call.connectedList = QStringList{"y"};
        const QDateTime connectTime = call.connectTime;
        const QString title = m_f->manager->m_pVoipWidget->windowTitle();
        m_f->notify(Code::IncomingCallAlt, "carl");
        QCOMPARE(call.peerId, QString("carl"));
        QVERIFY(!call.bIsConf);
        QVERIFY(!call.bIsVideo);
        QVERIFY(!call.bIsCaller);
        QVERIFY(call.bIsConnected);
        QCOMPARE(call.connectTime, connectTime);
        QCOMPARE(call.memberList, QStringList{"x"});
        QCOMPARE(call.connectedList, QStringList{"y"});
        QCOMPARE(m_f->manager->m_pVoipWidget->windowTitle(), title);
        QVERIFY(m_f->manager->m_pVoipWidget->isVisible());
    }

    void codeEighteenInIdleLeavesFlagAndTime()
    {
        m_f->notify(Code::CallConnected);
        QVERIFY(m_f->manager->m_callData.bIsConnected);
        QVERIFY(m_f->manager->m_callData.connectTime.isValid());
        QCOMPARE(m_f->manager->m_callData.connectTime.timeSpec(), Qt::UTC);
        // The window is told as in a call.
        QCOMPARE(m_f->manager->m_pVoipWidget->findChild<QLabel *>("lblStatus")->text(), QStringLiteral("已接通"));
        // The next call starts with what was left.
        m_f->manager->callSingleUser("anna", false);
        QVERIFY(m_f->manager->m_callData.bIsConnected);
        QVERIFY(m_f->manager->m_inviteTimer.isActive());
    }

    void reconnectingTakesTheConnectTimeAgain()
    {
        enter(*m_f, "Connected");
        m_f->manager->m_callData.connectTime = QDateTime::currentDateTimeUtc().addSecs(-3600);
        m_f->notify(Code::CallConnected);
        QVERIFY(m_f->manager->m_callData.connectTime > QDateTime::currentDateTimeUtc().addSecs(-1800));
    }

    void noTimerIsSingleShot()
    {
        QVERIFY(!m_f->manager->m_inviteTimer.isSingleShot());
        QVERIFY(!m_f->manager->m_recevieTimer.isSingleShot());
        QVERIFY(!m_f->manager->m_reconnectTimer.isSingleShot());
    }

private:
    static void addRow(const char *name, const Event &event, const Outcome &idle, const Outcome &outgoing,
                       const Outcome &incoming, const Outcome &connected)
    {
        const auto add = [&](const char *state, const Outcome &outcome) {
            QTest::addRow("%s in %s", name, state) << event << QString(state) << outcome.journal << outcome.state;
        };
        add("Idle", idle);
        add("Outgoing", outgoing);
        add("Incoming", incoming);
        add("Connected", connected);
    }

    static void enter(EngineFixture &f, const QString &state)
    {
        if (state == "Outgoing" || state == "Connected") {
            f.manager->callSingleUser("anna", false);
        }
        if (state == "Incoming") {
            f.notify(Code::IncomingCall, "bert");
        }
        if (state == "Connected") {
            f.notify(Code::CallConnected);
        }
        f.takeJournal();
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CallStates, Widgets)
#include "tst_CallStates.moc"
