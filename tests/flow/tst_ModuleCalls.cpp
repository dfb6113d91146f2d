// Whole calls, from the host's event to the record that it gets back: the built module, a real call process full of
// robots, real clicks on the call window.

#include "fakes/Patience.h"
#include "flow/FlowClient.h"

#include <QAbstractButton>
#include <QWidget>
#include <QtTest>

namespace {

const QString cAnswers = QStringLiteral("30010001");
const QString cBusy = QStringLiteral("30010002");
const QString cRejects = QStringLiteral("30010003");
const QString cNever = QStringLiteral("30010004");
const QString cFails = QStringLiteral("30010005");
const QString cHangsUp = QStringLiteral("30010006");
const QString cCallsBack = QStringLiteral("30010007");

} // namespace

class tst_ModuleCalls : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(m_client.load());
        QVERIFY2(!m_client.callWindow(), "a module that was never spoken to shows nothing");
        QCOMPARE(m_client.callProcessId(), 0);
    }

    void cleanup() { m_client.host.events.clear(); }

    void cleanupTestCase() { QVERIFY(m_client.killCallProcess()); }

    void firstCommandStartsTheCallProcessAndTheUserIsRegistered()
    {
        QVERIFY(!m_client.ask(MSG_IS_EXIST_CALL));
        QVERIFY(m_client.goOnline());
        QVERIFY(m_client.callProcessLives());
        QVERIFY(m_client.callWindow());
        QVERIFY(!m_client.callWindow()->isVisible());
        QCOMPARE(m_client.commandsOnWire(), QStringList{QStringLiteral("RegeditUser")});
    }

    void outgoingCallEnds_data()
    {
        QTest::addColumn<QString>("uid");
        QTest::addColumn<int>("result");
        QTest::addColumn<bool>("connected");
        QTest::newRow("busy") << cBusy << 25 << false;
        QTest::newRow("rejected") << cRejects << 26 << false;
        QTest::newRow("failed") << cFails << 22 << false;
        QTest::newRow("hung up by the far end") << cHangsUp << 24 << true;
    }

    void outgoingCallEnds()
    {
        QFETCH(QString, uid);
        QFETCH(int, result);
        QFETCH(bool, connected);
        call(uid);
        QVERIFY(m_client.ask(MSG_IS_EXIST_CALL));
        QVERIFY(m_client.callWindow()->isVisible());
        QVERIFY(waitForRecord());
        const CallRecord record = lastRecord();
        QCOMPARE(record.strUserId, uid);
        QCOMPARE(record.iResult, result);
        QCOMPARE(record.bIsConnected, connected);
        QVERIFY(record.bIsCaller);
        QVERIFY(!record.bIsVideo);
        QVERIFY(!m_client.ask(MSG_IS_EXIST_CALL));
        QVERIFY(!m_client.callWindow()->isVisible());
        QCOMPARE(m_client.host.received(MSG_CALL_FINISHED).size(), 1);
    }

    void answeredCallRunsUntilTheUserHangsUp()
    {
        call(cAnswers);
        QCOMPARE(m_client.callWindowText("lblStatus"), QStringLiteral("正在呼叫..."));
        QTRY_COMPARE_WITH_TIMEOUT(m_client.callWindowText("lblStatus"), QStringLiteral("已接通"), cPatienceMs);
        // The window counts how often the second changes, and begins before the record does: its three are one there in
        // any case, two need not be.
        QTRY_VERIFY_WITH_TIMEOUT(m_client.callWindowText("currentPlayTimeLabel") >= QStringLiteral("00:00:03"),
                                 cPatienceMs);

        const int hangUps = m_client.countOnWire(QStringLiteral("HangUpCall"));
        QTest::mouseClick(m_client.callWindowButton("HangUp"), Qt::LeftButton);
        QCOMPARE(m_client.host.received(MSG_CALL_FINISHED).size(), 1);
        QCOMPARE(lastRecord().iResult, 24);
        QVERIFY(lastRecord().bIsConnected);
        QVERIFY(lastRecord().iSeconds >= 1);
        QTRY_COMPARE_WITH_TIMEOUT(m_client.countOnWire(QStringLiteral("HangUpCall")), hangUps + 1, cPatienceMs);
    }

    void ringingCallIsCancelledByTheUser()
    {
        call(cNever);
        QTest::mouseClick(m_client.callWindowButton("btnCancelCall"), Qt::LeftButton);
        QCOMPARE(m_client.host.received(MSG_CALL_FINISHED).size(), 1);
        QCOMPARE(lastRecord().iResult, 21);
        QCOMPARE(lastRecord().iSeconds, 0);
        QVERIFY(!m_client.callWindow()->isVisible());
    }

    void videoCallIsNoVideoCallForTheHost()
    {
        call(cNever, true);
        QVERIFY(m_client.ask(MSG_IS_EXIST_CALL));
        QVERIFY(!m_client.ask(MSG_IS_VIDEO_CALL));
        QTest::mouseClick(m_client.callWindowButton("btnCancelCall"), Qt::LeftButton);
        QVERIFY(lastRecord().bIsVideo);
    }

    void incomingCallIsAcceptedAndEndedByTheCaller()
    {
        QVERIFY(waitForIncoming());
        PayloadReader prompt(m_client.host.received(MSG_RECEVIE_VOIP_CALL).constLast().payload);
        QCOMPARE(prompt.take<QString>(), cCallsBack);
        QVERIFY(!m_client.callWindow()->isVisible());

        m_client.command(MSG_RESPONSE_VOIP_REQUEST, true);
        QVERIFY(m_client.callWindow()->isVisible());
        QTRY_COMPARE_WITH_TIMEOUT(m_client.callWindowText("lblStatus"), QStringLiteral("已接通"), cPatienceMs);
        QVERIFY(waitForRecord(2));
        QCOMPARE(lastRecord().iResult, 24);
        QVERIFY(!lastRecord().bIsCaller);
        QVERIFY(lastRecord().bIsConnected);
    }

    void incomingCallIsRejected()
    {
        QVERIFY(waitForIncoming());
        const int rejects = m_client.countOnWire(QStringLiteral("RejectCall"));
        m_client.command(MSG_RESPONSE_VOIP_REQUEST, false);
        QCOMPARE(m_client.host.received(MSG_CALL_FINISHED).size(), 2);
        QCOMPARE(lastRecord().iResult, 26);
        QTRY_COMPARE_WITH_TIMEOUT(m_client.countOnWire(QStringLiteral("RejectCall")), rejects + 1, cPatienceMs);
        QVERIFY(!m_client.callWindow()->isVisible());
    }

    void goingOfflineHangsUpAndUnregisters()
    {
        call(cNever);
        m_client.command(MSG_CLIENT_CONNECT_STATUS, false);
        QCOMPARE(lastRecord().iResult, 21);
        QTRY_COMPARE_WITH_TIMEOUT(m_client.commandsOnWire().constLast(), QStringLiteral("UnReg"), cPatienceMs);
        QVERIFY(m_client.goOnline());
    }

    void conferenceIsStartedAndLeft()
    {
        m_client.command(MSG_CALL_CONFERENCE, QStringList{cAnswers, cNever}, QStringLiteral("title"), true);
        QVERIFY(m_client.ask(MSG_IS_EXIST_CALL));
        QVERIFY(m_client.callWindow()->isVisible());
        QTRY_VERIFY_WITH_TIMEOUT(m_client.codesOnWire().contains(12), cPatienceMs);
        const int hangUps = m_client.countOnWire(QStringLiteral("HangupConf"));
        m_client.callWindow()->close();
        QVERIFY(!m_client.ask(MSG_IS_EXIST_CALL));
        QTRY_COMPARE_WITH_TIMEOUT(m_client.countOnWire(QStringLiteral("HangupConf")), hangUps + 1, cPatienceMs);
        QVERIFY2(m_client.host.received(MSG_CALL_FINISHED).isEmpty(), "a conference leaves no call record at the host");
    }

    void exitEndsTheCallProcess()
    {
        QVERIFY(m_client.callProcessLives());
        m_client.command(MSG_EXIT_VOIP);
        QTRY_VERIFY_WITH_TIMEOUT(!m_client.callProcessLives(), cPatienceMs);
    }

private:
    void call(const QString &uid, bool video = false) { m_client.command(MSG_CALL_SINGLE_USER, video, uid); }

    bool waitForRecord(int count = 1)
    {
        return QTest::qWaitFor([&] { return m_client.host.received(MSG_CALL_FINISHED).size() >= count; }, cPatienceMs);
    }

    CallRecord lastRecord() const { return CallRecord(m_client.host.received(MSG_CALL_FINISHED).constLast()); }

    /// Lets the robot that calls back do so.
    bool waitForIncoming()
    {
        call(cCallsBack);
        return waitForRecord() &&
               QTest::qWaitFor([&] { return !m_client.host.received(MSG_RECEVIE_VOIP_CALL).isEmpty(); }, cPatienceMs);
    }

    FlowClient m_client{"10"};
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ModuleCalls, Widgets)
#include "tst_ModuleCalls.moc"
