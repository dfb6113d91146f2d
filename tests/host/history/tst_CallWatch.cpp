#include "client/ContactBook.h"
#include "history/CallHistory.h"
#include "history/CallWatch.h"

#include "fakes/Patience.h"
#include "plugin/EMsgId.h"
#include "plugin/EventPayload.h"

#include <QSignalSpy>
#include <QTest>

namespace {

const QString cPeer = QStringLiteral("30010002");

} // namespace

/// What becomes of a call, by the events that pass. Whether the plug-in has a call is what the test says.
class tst_CallWatch : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_bExists = false;
        m_pWatch.reset();
        m_pHistory = std::make_unique<CallHistory>();
        m_pWatch = std::make_unique<CallWatch>(*m_pHistory, [this] { return m_bExists; });
    }

    void singleCallEnds_data()
    {
        QTest::addColumn<bool>("caller");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<bool>("connected");
        QTest::addColumn<int>("result");
        QTest::addColumn<int>("outcome");
        QTest::addColumn<bool>("seen");
        const auto row = [](const char *name, bool caller, const char *answer, bool connected, int result, int outcome,
                            bool seen) {
            QTest::newRow(name) << caller << QString::fromLatin1(answer) << connected << result << outcome << seen;
        };
        row("busy", true, "", false, 25, resultBusy, false);
        row("rejected by the other", true, "", false, 26, resultRejected, false);
        row("failed", true, "", false, 22, resultFailed, false);
        row("nobody answers", true, "", false, 21, outcomeNoAnswer, false);
        row("hung up by the other", true, "", true, 24, resultHungUp, false);
        row("ended by signing out", true, "sign out", true, 24, resultHungUp, true);
        row("cancelled by signing out", true, "sign out", false, 21, resultCancelled, true);
        row("missed", false, "", false, 21, outcomeMissed, false);
        row("missed, it rang out", false, "", false, 26, outcomeMissed, false);
        row("rejected here", false, "reject", false, 26, resultRejected, true);
        row("taken and hung up by the other", false, "accept", true, 24, resultHungUp, false);
        row("taken, and given up before it was on", false, "accept", false, 21, resultCancelled, false);
        row("taken and never on", false, "accept", false, 26, resultFailed, false);
    }

    void singleCallEnds()
    {
        QFETCH(bool, caller);
        QFETCH(QString, answer);
        QFETCH(bool, connected);
        QFETCH(int, result);
        m_bExists = true;
        begin(caller);
        QCOMPARE(m_pHistory->entries().size(), size_t(1));
        QVERIFY(m_pHistory->entries()[0].isRunning());
        QVERIFY(m_pWatch->hasCall());
        if (answer == QLatin1String("sign out")) {
            command(MSG_CLIENT_CONNECT_STATUS, packPayload(false));
        } else if (!answer.isEmpty()) {
            command(MSG_RESPONSE_VOIP_REQUEST, packPayload(answer == QLatin1String("accept")));
        }
        QSignalSpy ended(m_pWatch.get(), &CallWatch::ended);
        finish(result, caller, connected);
        QCOMPARE(ended.count(), 1);
        QVERIFY(!m_pWatch->hasCall());
        QCOMPARE(m_pHistory->entries().size(), size_t(1));
        const CallEntry &call = m_pHistory->entries()[0];
        QTEST(call.outcome, "outcome");
        QTEST(call.seen, "seen");
        QCOMPARE(call.connected, connected);
        QCOMPARE(call.caller, caller);
        QCOMPARE(call.seconds, qint64(connected ? 10 : 0));
    }

    void refusedCallIsNoCall()
    {
        QSignalSpy refused(m_pWatch.get(), &CallWatch::refused);
        command(MSG_CALL_SINGLE_USER, packPayload(true, cPeer));
        QVERIFY(m_pWatch->hasCall());
        QTRY_COMPARE_WITH_TIMEOUT(refused.count(), 1, cPatienceMs);
        QVERIFY(!m_pWatch->hasCall());
        QVERIFY(m_pHistory->entries().empty());
    }

    void takenCallThatTheClientsEndCutsOffIsNotMissed()
    {
        m_bExists = true;
        begin(false);
        QCOMPARE(m_pHistory->entries()[0].outcome, int(outcomeRunningIn));
        command(MSG_RESPONSE_VOIP_REQUEST, packPayload(true));
        QCOMPARE(m_pHistory->entries()[0].outcome, int(outcomeRunning));
    }

    void callThatTakesAnothersPlaceLeavesBothInTheList()
    {
        m_bExists = true;
        begin(true);
        request(MSG_RECEVIE_VOIP_CALL, packPayload(QStringLiteral("30010007"), false, false));
        QCOMPARE(m_pHistory->entries().size(), size_t(2));
        QCOMPARE(m_pHistory->entries()[0].outcome, int(outcomeCutOff));
        QCOMPARE(m_pHistory->entries()[1].outcome, int(outcomeRunningIn));
    }

    void lengthOfALostCallEndsWithTheCallProcess_data()
    {
        QTest::addColumn<bool>("traced");
        QTest::newRow("with a trace") << true;
        // Then the plug-in tells it, as late as the user hangs up.
        QTest::newRow("without a trace") << false;
    }

    void lengthOfALostCallEndsWithTheCallProcess()
    {
        QFETCH(bool, traced);
        m_bExists = true;
        begin(true);
        if (traced) {
            m_pWatch->noteConnected();
        }
        QSignalSpy ended(m_pWatch.get(), &CallWatch::ended);
        m_pWatch->lose();
        QCOMPARE(ended.count(), 1);
        const CallEntry &call = m_pHistory->entries()[0];
        QCOMPARE(call.outcome, int(outcomeCutOff));
        QCOMPARE(call.connected, traced);
        QVERIFY(m_pWatch->lostCall() != nullptr && m_pWatch->hasCall());
        // Once is enough.
        m_pWatch->lose();
        m_pHistory->setAllSeen();
        QTest::qWait(2000);
        finish(24, true, true);
        QCOMPARE(ended.count(), 1);
        QCOMPARE(call.outcome, int(outcomeCutOff));
        QVERIFY(call.connected && call.seen);
        // The plug-in says ten seconds, and two of them at least have passed since.
        QVERIFY2(traced ? call.seconds == 0 : call.seconds <= 8, qPrintable(QString::number(call.seconds)));
        QVERIFY(m_pWatch->lostCall() == nullptr && !m_pWatch->hasCall());
        QCOMPARE(m_pHistory->entries().size(), size_t(1));
    }

    void lostCallThatRingsIsMissed()
    {
        m_bExists = true;
        begin(false);
        QVERIFY(m_pWatch->isRinging());
        m_pWatch->lose();
        QCOMPARE(m_pHistory->entries()[0].outcome, int(outcomeMissed));
        command(MSG_RESPONSE_VOIP_REQUEST, packPayload(false));
        finish(26, false, false);
        QCOMPARE(m_pHistory->entries()[0].outcome, int(outcomeMissed));
        QVERIFY(!m_pHistory->entries()[0].seen);
    }

    void repeatedInvitationIsOneConference()
    {
        m_bExists = true;
        request(MSG_RECEVIE_VOIP_CALL, packPayload(cPeer, true, false));
        request(MSG_RECEVIE_VOIP_CALL, packPayload(cPeer, true, false));
        QCOMPARE(m_pHistory->entries().size(), size_t(1));
    }

    void endOfAConferenceIsFoundByAsking_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<int>("outcome");
        QTest::addColumn<bool>("seen");
        QTest::newRow("missed") << QString() << int(outcomeMissed) << false;
        QTest::newRow("rejected") << QStringLiteral("reject") << int(resultRejected) << true;
        QTest::newRow("taken and never on") << QStringLiteral("accept") << int(resultFailed) << false;
    }

    void endOfAConferenceIsFoundByAsking()
    {
        QFETCH(QString, answer);
        m_bExists = true;
        request(MSG_RECEVIE_VOIP_CALL, packPayload(cPeer, true, false));
        QVERIFY(m_pHistory->entries()[0].conference);
        if (!answer.isEmpty()) {
            command(MSG_RESPONSE_VOIP_REQUEST, packPayload(answer == QLatin1String("accept")));
        }
        m_bExists = false;
        QTRY_VERIFY_WITH_TIMEOUT(!m_pWatch->hasCall(), cPatienceMs);
        QTEST(m_pHistory->entries()[0].outcome, "outcome");
        QTEST(m_pHistory->entries()[0].seen, "seen");
    }

private:
    void begin(bool bCaller)
    {
        if (!bCaller) {
            request(MSG_RECEVIE_VOIP_CALL, packPayload(cPeer, false, false));
            return;
        }
        QSignalSpy began(m_pWatch.get(), &CallWatch::began);
        command(MSG_CALL_SINGLE_USER, packPayload(false, cPeer));
        QTRY_COMPARE_WITH_TIMEOUT(began.count(), 1, cPatienceMs);
    }
    void finish(int iResult, bool bCaller, bool bConnected)
    {
        request(MSG_CALL_FINISHED,
                packPayload(false, cPeer, qint32(iResult), bCaller, bConnected, qint64(bConnected ? 10 : 0)));
        m_bExists = false;
    }
    void command(int iMsgId, const QByteArray &payload) { m_pWatch->note(false, iMsgId, payload); }
    void request(int iMsgId, const QByteArray &payload) { m_pWatch->note(true, iMsgId, payload); }

    bool m_bExists = false;
    std::unique_ptr<CallHistory> m_pHistory;
    std::unique_ptr<CallWatch> m_pWatch;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CallWatch, Guiless)
#include "tst_CallWatch.moc"
