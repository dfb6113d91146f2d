// The end of a call: its result, its record, and the order of what goes out, whoever ends it.

#include "fakes/EngineTest.h"
#include "fakes/Patience.h"
#include "ui/VoipWidget.h"
#include "widgets/PushButtonEx.h"

#include <QPushButton>
#include <QTest>

#include <functional>

using Step = std::function<void(EngineFixture &)>;
Q_DECLARE_METATYPE(Step)

namespace {

const QStringList cWindowCloses{"SetMicEnable true", "SetSpeakerEnble true"};

} // namespace

class tst_CallEnd : public EngineTest<EngineFixture>
{
    Q_OBJECT

private slots:
    void hangUpWithoutACallOnlyStopsTheRing()
    {
        m_f->manager->playReceviceCall();
        m_f->manager->m_pVoipWidget->show();
        m_f->manager->m_inviteTimer.start(60000);
        m_f->manager->m_recevieTimer.start(60000);
        QCOMPARE(m_f->state(), QString("idle, invite, receive, ring"));
        m_f->manager->hangupVoipCall();
        QCOMPARE(m_f->state(), QString("idle, invite, receive"));
        QCOMPARE(m_f->takeJournal(), QStringList());
        QVERIFY(m_f->manager->m_pVoipWidget->isVisible());
    }

    void endWithoutACallStopsRingAndTimers()
    {
        // A call of nobody is none, but it rings.
        m_f->notify(Code::IncomingCall, "");
        m_f->manager->m_inviteTimer.start(60000);
        QCOMPARE(m_f->state(), QString("idle, invite, receive, ring"));
        m_f->takeJournal();
        m_f->notify(Code::PeerCanceled);
        QCOMPARE(m_f->state(), QString("idle"));
        QCOMPARE(m_f->takeJournal(), QStringList());
    }

    void everyEndHasItsResult_data()
    {
        QTest::addColumn<Step>("run");
        QTest::addColumn<QStringList>("journal");

        const auto add = [](const char *name, const Step &run, const QStringList &journal) {
            QTest::newRow(name) << run << journal;
        };
        const QString annasPrompt("4345 anna@kelvar.im");
        const QString bertsPrompt("4345 bert@kelvar.im");
        add(
            "21: hanging up an unanswered outgoing call",
            [](EngineFixture &f) {
                f.manager->callSingleUser("anna", false);
                f.manager->hangupVoipCall();
            },
            QStringList{"CallUser \"anna\" false", "HangUpCall", annasPrompt, "4478 false anna 21 true false"} +
                cWindowCloses);
        add(
            "21: a refusal by nobody, before the own id is known",
            [](EngineFixture &f) {
                f.manager->callSingleUser("anna", false);
                f.notify(Code::UserRejected, "");
            },
            QStringList{"CallUser \"anna\" false", annasPrompt, "4478 false anna 21 true false"} + cWindowCloses);
        add(
            "22: the call failed",
            [](EngineFixture &f) {
                f.manager->callSingleUser("anna", true);
                f.notify(Code::CallFailed);
            },
            QStringList{"CallUser \"anna\" true", annasPrompt, "4478 true anna 22 true false"} + cWindowCloses);
        add(
            "24: hanging up a connected call",
            [](EngineFixture &f) {
                f.manager->callSingleUser("anna", true);
                f.notify(Code::CallConnected);
                f.manager->hangupVoipCall();
            },
            QStringList{"CallUser \"anna\" true", "HangUpCall", annasPrompt, "4478 true anna 24 true true"} +
                cWindowCloses);
        add(
            "25: busy",
            [](EngineFixture &f) {
                f.manager->callSingleUser("anna", false);
                f.notify(Code::PeerBusy);
            },
            QStringList{"CallUser \"anna\" false", annasPrompt, "4478 false anna 25 true false"} + cWindowCloses);
        add(
            "26: rejecting an incoming call",
            [](EngineFixture &f) {
                f.notify(Code::IncomingCall, "bert");
                f.manager->responseVoipRequest(false);
            },
            QStringList{"4639 bert false false", "RejectCall", bertsPrompt, "4478 false bert 26 false false"} +
                cWindowCloses);
        add(
            "26: hanging up an incoming call",
            [](EngineFixture &f) {
                f.notify(Code::IncomingCall, "bert");
                f.manager->hangupVoipCall();
            },
            QStringList{"4639 bert false false", "RejectCall", bertsPrompt, "4478 false bert 26 false false"} +
                cWindowCloses);
        add(
            "26: hanging up an accepted call that never connected",
            [](EngineFixture &f) {
                f.notify(Code::IncomingCall, "bert");
                f.manager->responseVoipRequest(true);
                f.manager->hangupVoipCall();
            },
            QStringList{"4639 bert false false", "AcceptCall", "RejectCall", bertsPrompt,
                        "4478 false bert 26 false false"} +
                cWindowCloses);
        add(
            "24: the far end hangs up an accepted call",
            [](EngineFixture &f) {
                f.notify(Code::IncomingCall, "bert");
                f.manager->responseVoipRequest(true);
                f.notify(Code::CallConnected);
                f.notify(Code::PeerHangup);
            },
            QStringList{"4639 bert false false", "AcceptCall", bertsPrompt, "4478 false bert 24 false true"} +
                cWindowCloses);
    }

    void everyEndHasItsResult()
    {
        QFETCH(Step, run);
        run(*m_f);
        QTEST(m_f->takeJournal(), "journal");
        QCOMPARE(m_f->state(), QString("idle"));
        QVERIFY(!m_f->manager->isExistCall());
        QVERIFY(!m_f->manager->m_pVoipWidget->isVisible());
    }

    void recordSaysWhoCalledAndHowLong_data()
    {
        QTest::addColumn<bool>("caller");
        QTest::addColumn<bool>("connected");
        QTest::addColumn<qint64>("age");
        QTest::addColumn<QString>("record");
        QTest::addColumn<qint64>("least");
        QTest::addColumn<qint64>("most");

        const QString record("4478 false anna ");
        QTest::newRow("called, never connected")
            << true << false << Q_INT64_C(0) << record + "21 true false" << Q_INT64_C(0) << Q_INT64_C(0);
        QTest::newRow("was called, never connected")
            << false << false << Q_INT64_C(0) << record + "21 false false" << Q_INT64_C(0) << Q_INT64_C(0);
        QTest::newRow("called, an hour") << true << true << Q_INT64_C(3600) << record + "24 true true"
                                         << Q_INT64_C(3600) << Q_INT64_C(3900);
        QTest::newRow("was called, three days")
            << false << true << Q_INT64_C(259200) << record + "24 false true" << Q_INT64_C(259200) << Q_INT64_C(259500);
    }

    void recordSaysWhoCalledAndHowLong()
    {
        QFETCH(bool, caller);
        QFETCH(bool, connected);
        QFETCH(qint64, age);
        QFETCH(QString, record);
        QFETCH(qint64, least);
        QFETCH(qint64, most);
        if (caller) {
            m_f->manager->callSingleUser("anna", false);
        } else {
            m_f->notify(Code::IncomingCall, "anna");
        }
        if (connected) {
            m_f->notify(Code::CallConnected);
            m_f->manager->m_callData.connectTime = m_f->manager->m_callData.connectTime.addSecs(-age);
        }
        m_f->notify(Code::CallEnded);
        QCOMPARE(m_f->takeJournal().filter("4478 "), QStringList(record));
        QVERIFY(m_f->lastSeconds() >= least);
        QVERIFY(m_f->lastSeconds() <= most);
    }

    void secondEndOfACallTellsTheHostNothing()
    {
        m_f->manager->callSingleUser("anna", false);
        m_f->notify(Code::CallEnded);
        m_f->takeJournal();
        m_f->notify(Code::CallEnded);
        m_f->manager->callFinished(CallData::FinishHangup);
        QCOMPARE(m_f->takeJournal(), QStringList());
        QCOMPARE(m_f->host.received(MSG_CALL_FINISHED).size(), 1);
    }

    void callOfMembersOnlyTellsTheHostNothing()
    {
        m_f->manager->m_callData.memberList = QStringList{"anna"};
        m_f->manager->callFinished(CallData::FinishHangup);
        QCOMPARE(m_f->takeJournal(), cWindowCloses);
        QVERIFY(!m_f->manager->isExistCall());
    }

    void promptOfAFullJidIsTakenAwayByThatJid()
    {
        m_f->notify(Code::IncomingCall, "bert@other.im");
        m_f->takeJournal();
        m_f->notify(Code::PeerCanceled);
        QCOMPARE(m_f->takeJournal().constFirst(), QString("4345 bert@other.im"));
    }

    void windowNeverShownSendsThePairToo()
    {
        m_f->notify(Code::IncomingCall, "bert");
        QVERIFY(!m_f->manager->m_pVoipWidget->isVisible());
        m_f->takeJournal();
        m_f->notify(Code::PeerCanceled);
        QCOMPARE(m_f->takeJournal(),
                 QStringList({"4345 bert@kelvar.im", "4478 false bert 21 false false"}) + cWindowCloses);
    }

    void userClosingTheWindowSendsThePairBeforeTheHangUp()
    {
        m_f->manager->callSingleUser("anna", false);
        m_f->notify(Code::CallConnected);
        m_f->takeJournal();
        m_f->manager->m_pVoipWidget->close();
        QCOMPARE(m_f->takeJournal(),
                 cWindowCloses + QStringList({"HangUpCall", "4345 anna@kelvar.im", "4478 false anna 24 true true"}));
        QVERIFY(!m_f->manager->m_pVoipWidget->isVisible());
        QCOMPARE(m_f->state(), QString("idle"));
    }

    void managerEndingTheCallSendsThePairAfterTheHangUp()
    {
        m_f->manager->callSingleUser("anna", false);
        m_f->notify(Code::CallConnected);
        m_f->takeJournal();
        emit m_f->manager->m_pVoipWidget->findChild<PushButtonEx *>("HangUp")->clicked();
        QCOMPARE(m_f->takeJournal(),
                 QStringList({"HangUpCall", "4345 anna@kelvar.im", "4478 false anna 24 true true"}) + cWindowCloses);
    }

    void cancelSendsThePairTwice()
    {
        m_f->manager->callSingleUser("anna", false);
        m_f->takeJournal();
        emit m_f->manager->m_pVoipWidget->findChild<PushButtonEx *>("btnCancelCall")->clicked();
        QCOMPARE(m_f->takeJournal(),
                 QStringList({"HangUpCall", "4345 anna@kelvar.im", "4478 false anna 21 true false"}) + cWindowCloses +
                     cWindowCloses);
    }

    void inviteTimeoutEndsTheCall()
    {
        m_f->manager->callSingleUser("anna", false);
        QVERIFY(m_f->manager->m_pVoipWidget->isVisible());
        // The timer itself, not its slot.
        m_f->manager->m_inviteTimer.start(0);
        QTRY_VERIFY_WITH_TIMEOUT(!m_f->manager->isExistCall(), cPatienceMs);
        QVERIFY(!m_f->manager->m_inviteTimer.isActive());
        QVERIFY(!m_f->manager->m_pVoipWidget->isVisible());
        m_f->notify(Code::IncomingCall, "bert");
        m_f->manager->m_recevieTimer.start(0);
        QTRY_VERIFY_WITH_TIMEOUT(!m_f->manager->isExistCall(), cPatienceMs);
        QVERIFY(!m_f->manager->m_recevieTimer.isActive());
    }

    void callIsForgottenBeforeTheWindowCloses()
    {
        m_f->manager->callSingleUser("anna", false);
        bool existed = true;
        connect(m_f->manager->m_pVoipWidget, &CVoipWidget::signal_HangupCurrentCall, this,
                [&] { existed = m_f->manager->isExistCall(); });
        m_f->manager->hangupVoipCall();
        QVERIFY(!existed);
        QCOMPARE(m_f->host.received(MSG_CALL_FINISHED).size(), 1);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CallEnd, Widgets)
#include "tst_CallEnd.moc"
