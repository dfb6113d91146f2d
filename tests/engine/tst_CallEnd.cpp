// The end of a call: its result, its record, and the order of what goes out, whoever ends it.

#include "fakes/EngineFixture.h"
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

class tst_CallEnd : public QObject
{
    Q_OBJECT

private slots:
    void hangUpWithoutACallOnlyStopsTheRing()
    {
        EngineFixture f;
        f.manager->playReceviceCall();
        f.manager->m_pVoipWidget->show();
        f.manager->m_inviteTimer.start(60000);
        f.manager->m_recevieTimer.start(60000);
        QCOMPARE(f.state(), QString("idle, invite, receive, ring"));
        f.manager->hangupVoipCall();
        QCOMPARE(f.state(), QString("idle, invite, receive"));
        QCOMPARE(f.takeJournal(), QStringList());
        QVERIFY(f.manager->m_pVoipWidget->isVisible());
    }

    void endWithoutACallStopsRingAndTimers()
    {
        EngineFixture f;
        // A call of nobody is none, but it rings.
        f.notify(0, "");
        f.manager->m_inviteTimer.start(60000);
        QCOMPARE(f.state(), QString("idle, invite, receive, ring"));
        f.takeJournal();
        f.notify(4);
        QCOMPARE(f.state(), QString("idle"));
        QCOMPARE(f.takeJournal(), QStringList());
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
                f.notify(5, "");
            },
            QStringList{"CallUser \"anna\" false", annasPrompt, "4478 false anna 21 true false"} + cWindowCloses);
        add(
            "22: the call failed",
            [](EngineFixture &f) {
                f.manager->callSingleUser("anna", true);
                f.notify(19);
            },
            QStringList{"CallUser \"anna\" true", annasPrompt, "4478 true anna 22 true false"} + cWindowCloses);
        add(
            "24: hanging up a connected call",
            [](EngineFixture &f) {
                f.manager->callSingleUser("anna", true);
                f.notify(18);
                f.manager->hangupVoipCall();
            },
            QStringList{"CallUser \"anna\" true", "HangUpCall", annasPrompt, "4478 true anna 24 true true"} +
                cWindowCloses);
        add(
            "25: busy",
            [](EngineFixture &f) {
                f.manager->callSingleUser("anna", false);
                f.notify(22);
            },
            QStringList{"CallUser \"anna\" false", annasPrompt, "4478 false anna 25 true false"} + cWindowCloses);
        add(
            "26: rejecting an incoming call",
            [](EngineFixture &f) {
                f.notify(0, "bert");
                f.manager->responseVoipRequest(false);
            },
            QStringList{"4639 bert false false", "RejectCall", bertsPrompt, "4478 false bert 26 false false"} +
                cWindowCloses);
        add(
            "26: hanging up an incoming call",
            [](EngineFixture &f) {
                f.notify(0, "bert");
                f.manager->hangupVoipCall();
            },
            QStringList{"4639 bert false false", "RejectCall", bertsPrompt, "4478 false bert 26 false false"} +
                cWindowCloses);
        add(
            "26: hanging up an accepted call that never connected",
            [](EngineFixture &f) {
                f.notify(0, "bert");
                f.manager->responseVoipRequest(true);
                f.manager->hangupVoipCall();
            },
            QStringList{"4639 bert false false", "AcceptCall", "RejectCall", bertsPrompt,
                        "4478 false bert 26 false false"} +
                cWindowCloses);
        add(
            "24: the far end hangs up an accepted call",
            [](EngineFixture &f) {
                f.notify(0, "bert");
                f.manager->responseVoipRequest(true);
                f.notify(18);
                f.notify(8);
            },
            QStringList{"4639 bert false false", "AcceptCall", bertsPrompt, "4478 false bert 24 false true"} +
                cWindowCloses);
    }

    void everyEndHasItsResult()
    {
        QFETCH(Step, run);
        EngineFixture f;
        run(f);
        QTEST(f.takeJournal(), "journal");
        QCOMPARE(f.state(), QString("idle"));
        QVERIFY(!f.manager->isExistCall());
        QVERIFY(!f.manager->m_pVoipWidget->isVisible());
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
        EngineFixture f;
        if (caller) {
            f.manager->callSingleUser("anna", false);
        } else {
            f.notify(0, "anna");
        }
        if (connected) {
            f.notify(18);
            f.manager->m_callData.connectTime = f.manager->m_callData.connectTime.addSecs(-age);
        }
        f.notify(7);
        QCOMPARE(f.takeJournal().filter("4478 "), QStringList(record));
        QVERIFY(f.lastSeconds() >= least);
        QVERIFY(f.lastSeconds() <= most);
    }

    void secondEndOfACallTellsTheHostNothing()
    {
        EngineFixture f;
        f.manager->callSingleUser("anna", false);
        f.notify(7);
        f.takeJournal();
        f.notify(7);
        f.manager->callFinished(CallData::FinishHangup);
        QCOMPARE(f.takeJournal(), QStringList());
        QCOMPARE(f.host.received(MSG_CALL_FINISHED).size(), 1);
    }

    void callOfMembersOnlyTellsTheHostNothing()
    {
        EngineFixture f;
        f.manager->m_callData.memberList = QStringList{"anna"};
        f.manager->callFinished(CallData::FinishHangup);
        QCOMPARE(f.takeJournal(), cWindowCloses);
        QVERIFY(!f.manager->isExistCall());
    }

    void promptOfAFullJidIsTakenAwayByThatJid()
    {
        EngineFixture f;
        f.notify(0, "bert@other.im");
        f.takeJournal();
        f.notify(4);
        QCOMPARE(f.takeJournal().constFirst(), QString("4345 bert@other.im"));
    }

    void windowNeverShownSendsThePairToo()
    {
        EngineFixture f;
        f.notify(0, "bert");
        QVERIFY(!f.manager->m_pVoipWidget->isVisible());
        f.takeJournal();
        f.notify(4);
        QCOMPARE(f.takeJournal(),
                 QStringList({"4345 bert@kelvar.im", "4478 false bert 21 false false"}) + cWindowCloses);
    }

    void userClosingTheWindowSendsThePairBeforeTheHangUp()
    {
        EngineFixture f;
        f.manager->callSingleUser("anna", false);
        f.notify(18);
        f.takeJournal();
        f.manager->m_pVoipWidget->close();
        QCOMPARE(f.takeJournal(),
                 cWindowCloses + QStringList({"HangUpCall", "4345 anna@kelvar.im", "4478 false anna 24 true true"}));
        QVERIFY(!f.manager->m_pVoipWidget->isVisible());
        QCOMPARE(f.state(), QString("idle"));
    }

    void managerEndingTheCallSendsThePairAfterTheHangUp()
    {
        EngineFixture f;
        f.manager->callSingleUser("anna", false);
        f.notify(18);
        f.takeJournal();
        emit f.manager->m_pVoipWidget->findChild<PushButtonEx *>("HangUp")->clicked();
        QCOMPARE(f.takeJournal(),
                 QStringList({"HangUpCall", "4345 anna@kelvar.im", "4478 false anna 24 true true"}) + cWindowCloses);
    }

    void cancelSendsThePairTwice()
    {
        EngineFixture f;
        f.manager->callSingleUser("anna", false);
        f.takeJournal();
        emit f.manager->m_pVoipWidget->findChild<PushButtonEx *>("btnCancelCall")->clicked();
        QCOMPARE(f.takeJournal(), QStringList({"HangUpCall", "4345 anna@kelvar.im", "4478 false anna 21 true false"}) +
                                      cWindowCloses + cWindowCloses);
    }

    void inviteTimeoutEndsTheCall()
    {
        EngineFixture f;
        f.manager->callSingleUser("anna", false);
        QVERIFY(f.manager->m_pVoipWidget->isVisible());
        // The timer itself, not its slot.
        f.manager->m_inviteTimer.start(0);
        QTRY_VERIFY_WITH_TIMEOUT(!f.manager->isExistCall(), cPatienceMs);
        QVERIFY(!f.manager->m_inviteTimer.isActive());
        QVERIFY(!f.manager->m_pVoipWidget->isVisible());
        f.notify(0, "bert");
        f.manager->m_recevieTimer.start(0);
        QTRY_VERIFY_WITH_TIMEOUT(!f.manager->isExistCall(), cPatienceMs);
        QVERIFY(!f.manager->m_recevieTimer.isActive());
    }

    void callIsForgottenBeforeTheWindowCloses()
    {
        EngineFixture f;
        f.manager->callSingleUser("anna", false);
        bool existed = true;
        connect(f.manager->m_pVoipWidget, &CVoipWidget::signal_HangupCurrentCall, this,
                [&] { existed = f.manager->isExistCall(); });
        f.manager->hangupVoipCall();
        QVERIFY(!existed);
        QCOMPARE(f.host.received(MSG_CALL_FINISHED).size(), 1);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CallEnd, Widgets)
#include "tst_CallEnd.moc"
