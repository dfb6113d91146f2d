// One call between two people: placing, receiving, accepting, ending it, and the host's login.

#include "common/CommonFun.h"
#include "fakes/EngineFixture.h"
#include "ui/VoipWidget.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QTest>

#include <functional>

using Step = std::function<void(EngineFixture &)>;
Q_DECLARE_METATYPE(Step)

namespace {

const QStringList kWindowCloses{"SetMicEnable true", "SetSpeakerEnble true"};

} // namespace

class tst_SingleCall : public QObject
{
    Q_OBJECT

private slots:
    void placedCallGoesOutAndShowsTheWindow_data();
    void placedCallGoesOutAndShowsTheWindow();
    void placedCallAsksForTheCardOfAStrangerOnly_data();
    void placedCallAsksForTheCardOfAStrangerOnly();
    void placedCallAsksTheHostAboutEverybody();
    void callWhileACallExistsIsRefusedWithAMessage_data();
    void callWhileACallExistsIsRefusedWithAMessage();
    void callWithoutTheChannelIsRefusedWithAMessage();
    void existingCallIsToldBeforeTheMissingChannel();
    void messageIsTitledAndHasOneButton();

    void incomingCallAsksForCardsInAnyCase_data();
    void incomingCallAsksForCardsInAnyCase();
    void promptComesAfterTheQueriesAndBeforeTheTimer();
    void acceptShowsTheWindowAndKeepsTheTimer();
    void acceptWithoutACallShowsTheWindow();

    void hangUpWithoutACallOnlyStopsTheRing();
    void everyEndHasItsResult_data();
    void everyEndHasItsResult();
    void recordSaysWhoCalledAndHowLong_data();
    void recordSaysWhoCalledAndHowLong();
    void secondEndOfACallTellsTheHostNothing();
    void callOfMembersOnlyTellsTheHostNothing();
    void promptOfAFullJidIsTakenAwayByThatJid();
    void windowNeverShownSendsThePairToo();
    void userClosingTheWindowSendsThePairBeforeTheHangUp();
    void managerEndingTheCallSendsThePairAfterTheHangUp();
    void cancelSendsThePairTwice();
    void inviteTimeoutEndsTheCall();
    void callIsForgottenBeforeTheWindowCloses();

    void videoCallIsNeverReportedAsVideo();
    void loginRegistersTheUser_data();
    void loginRegistersTheUser();
    void loginWithoutARecordRegistersAnEmptyValue();
    void loginWhileDownIsRegisteredAtTheNextConnect();
    void logoutHangsUpThenUnregisters();
    void deviceControlsGoOutWithoutACall();
    void nothingGoesOutWhileTheChannelIsDown();

private:
    static QStringList strangerRequests(EngineFixture &f);
};

/// The 4159 requests so far as "ids|versions|flag".
QStringList tst_SingleCall::strangerRequests(EngineFixture &f)
{
    EngineFixture::deliverPosted();
    QStringList requests;
    const QList<ReceivedEvent> events = f.host.received(MSG_GET_STRANGER_SMALL_VCARD);
    for (const ReceivedEvent &event : events) {
        PayloadReader reader = event.reader();
        const QString ids = reader.takeTexts().join('+');
        const QString versions = reader.takeTexts().join('+');
        const QString flag = reader.take<bool>() ? "1" : "0";
        requests << ids + '|' + versions + '|' + flag;
    }
    return requests;
}

void tst_SingleCall::placedCallGoesOutAndShowsTheWindow_data()
{
    QTest::addColumn<QString>("user");
    QTest::addColumn<bool>("video");
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("title");

    QTest::newRow("voice") << "anna" << false << "CallUser \"anna\" false" << QStringLiteral("语音通话");
    QTest::newRow("video") << "anna" << true << "CallUser \"anna\" true" << QStringLiteral("视频通话");
    QTest::newRow("the id goes out as given")
        << "anna@kelvar.im" << false << "CallUser \"anna@kelvar.im\" false" << QStringLiteral("语音通话");
}

void tst_SingleCall::placedCallGoesOutAndShowsTheWindow()
{
    QFETCH(QString, user);
    QFETCH(bool, video);
    QFETCH(QString, line);
    EngineFixture f;
    f.manager->callSingleUser(user, video);
    QCOMPARE(f.takeJournal(), QStringList{line});
    QCOMPARE(f.state(), "outgoing " + user + ", invite");
    QCOMPARE(f.manager->m_callData.bIsVideo, video);
    QVERIFY(!f.manager->m_callData.bIsConf);
    QVERIFY(f.manager->m_pVoipWidget->isVisible());
    QTEST(f.manager->m_pVoipWidget->windowTitle(), "title");
    // The window speaks of the own call, in its request state.
    QCOMPARE(f.manager->m_pVoipWidget->findChild<QLabel *>("lblStatus")->text(), QStringLiteral("正在呼叫..."));
    QCOMPARE(f.manager->m_pVoipWidget->findChild<QStackedWidget *>("controlPane")->currentIndex(), 0);
    QCOMPARE(f.boxes.texts, QStringList());
}

void tst_SingleCall::placedCallAsksForTheCardOfAStrangerOnly_data()
{
    QTest::addColumn<QString>("user");
    QTest::addColumn<QStringList>("requests");

    QTest::newRow("stranger") << "anna" << QStringList{"anna|-1|1"};
    QTest::newRow("stranger by jid") << "anna@kelvar.im" << QStringList{"anna|-1|1"};
    QTest::newRow("contact") << "bert" << QStringList();
    QTest::newRow("the system account") << "kv6005626532" << QStringList();
}

void tst_SingleCall::placedCallAsksForTheCardOfAStrangerOnly()
{
    QFETCH(QString, user);
    EngineFixture f;
    f.host.friendJids.insert(EngineFixture::jid("bert"));
    f.manager->callSingleUser(user, false);
    QTEST(strangerRequests(f), "requests");
}

void tst_SingleCall::placedCallAsksTheHostAboutEverybody()
{
    EngineFixture f;
    FriendData known(EngineFixture::jid("kv6005626532"));
    f.context.setFriendDataMap({{known.m_strJid, known}});
    f.manager->callSingleUser("kv6005626532", false);
    QCOMPARE(f.host.received(MSG_IS_EXIST_FRIEND).size(), 1);
    QCOMPARE(f.host.received(MSG_GET_FRIEND_INFO).size(), 0);
}

void tst_SingleCall::callWhileACallExistsIsRefusedWithAMessage_data()
{
    QTest::addColumn<Step>("enter");
    QTest::addColumn<QString>("state");

    QTest::newRow("outgoing") << Step([](EngineFixture &f) { f.manager->callSingleUser("anna", false); })
                              << "outgoing anna, invite";
    QTest::newRow("incoming, only ringing")
        << Step([](EngineFixture &f) { f.notify(0, "bert"); }) << "incoming bert, receive, ring";
    QTest::newRow("connected") << Step([](EngineFixture &f) {
        f.manager->callSingleUser("anna", false);
        f.notify(18);
    }) << "connected anna";
    QTest::newRow("conference") << Step([](EngineFixture &f) { f.manager->callConference({"anna"}, false, ""); })
                                << "outgoing anna+, invite";
}

void tst_SingleCall::callWhileACallExistsIsRefusedWithAMessage()
{
    QFETCH(Step, enter);
    QFETCH(QString, state);
    EngineFixture f;
    enter(f);
    f.takeJournal();
    f.manager->callSingleUser("carl", true);
    QCOMPARE(f.boxes.texts, QStringList{"soundfailedinsound"});
    QCOMPARE(f.takeJournal(), QStringList());
    QCOMPARE(f.state(), state);
    QVERIFY(!f.manager->m_callData.bIsVideo);
}

void tst_SingleCall::callWithoutTheChannelIsRefusedWithAMessage()
{
    EngineFixture f(EngineFixture::NoCallProcess);
    f.manager->callSingleUser("anna", true);
    QCOMPARE(f.boxes.texts, QStringList{QStringLiteral("音频通话初始化失败，请尝试重启客户端解决")});
    QCOMPARE(f.state(), QString("idle"));
    QVERIFY(!f.manager->m_callData.bIsCaller);
    QVERIFY(!f.manager->m_callData.bIsVideo);
    QVERIFY(!f.manager->m_pVoipWidget->isVisible());
    QCOMPARE(f.host.commands(), QList<int>());
}

void tst_SingleCall::existingCallIsToldBeforeTheMissingChannel()
{
    EngineFixture f(EngineFixture::NoCallProcess);
    f.notify(0, "bert");
    f.manager->callSingleUser("anna", false);
    QCOMPARE(f.boxes.texts, QStringList{"soundfailedinsound"});
}

void tst_SingleCall::messageIsTitledAndHasOneButton()
{
    EngineFixture f(EngineFixture::NoCallProcess);
    bool acceptShown = true;
    f.boxes.whileOpen = [&acceptShown] {
        acceptShown = QApplication::activeModalWidget()->findChild<QPushButton *>("acceptBtn")->isVisible();
    };
    f.manager->callSingleUser("anna", false);
    QCOMPARE(f.boxes.titles, QStringList{"tip"});
    QVERIFY(!acceptShown);
}

void tst_SingleCall::incomingCallAsksForCardsInAnyCase_data()
{
    QTest::addColumn<QString>("user");
    QTest::addColumn<QStringList>("requests");

    QTest::newRow("stranger") << "anna" << QStringList{"anna|-1|1"};
    QTest::newRow("contact") << "bert" << QStringList{"||1"};
    QTest::newRow("the system account") << "kv6005626532" << QStringList{"||1"};
}

void tst_SingleCall::incomingCallAsksForCardsInAnyCase()
{
    QFETCH(QString, user);
    EngineFixture f;
    f.host.friendJids.insert(EngineFixture::jid("bert"));
    f.notify(0, user);
    QTEST(strangerRequests(f), "requests");
}

void tst_SingleCall::promptComesAfterTheQueriesAndBeforeTheTimer()
{
    EngineFixture f;
    bool timerRan = true;
    bool rang = false;
    f.whileHandled = [&](BaseEvent &event) {
        if (event.msgId != MSG_RECEVIE_VOIP_CALL)
            return;
        timerRan = f.manager->m_recevieTimer.isActive();
        rang = f.state().contains("ring");
    };
    f.notify(0, "bert");
    QCOMPARE(f.host.commands(), QList<int>({MSG_GET_FRIEND_INFO, MSG_IS_EXIST_FRIEND, MSG_RECEVIE_VOIP_CALL}));
    QVERIFY(rang);
    QVERIFY(!timerRan);
    QVERIFY(f.manager->m_recevieTimer.isActive());
}

void tst_SingleCall::acceptShowsTheWindowAndKeepsTheTimer()
{
    EngineFixture f;
    f.notify(0, "bert");
    f.takeJournal();
    f.manager->responseVoipRequest(true);
    QCOMPARE(f.takeJournal(), QStringList{"AcceptCall"});
    QCOMPARE(f.state(), QString("incoming bert, receive"));
    QVERIFY(f.manager->m_pVoipWidget->isVisible());
    QCOMPARE(f.manager->m_pVoipWidget->windowTitle(), QStringLiteral("语音通话"));
    QCOMPARE(f.manager->m_pVoipWidget->findChild<QLabel *>("lblStatus")->text(), QStringLiteral("正在连接..."));
    QCOMPARE(f.manager->m_pVoipWidget->findChild<QStackedWidget *>("controlPane")->currentIndex(), 0);
}

void tst_SingleCall::acceptWithoutACallShowsTheWindow()
{
    EngineFixture f;
    f.manager->responseVoipRequest(true);
    QCOMPARE(f.takeJournal(), QStringList{"AcceptCall"});
    QVERIFY(f.manager->m_pVoipWidget->isVisible());
    QVERIFY(!f.manager->isExistCall());
}

void tst_SingleCall::hangUpWithoutACallOnlyStopsTheRing()
{
    EngineFixture f;
    f.manager->playReceviceCall();
    f.manager->m_pVoipWidget->show();
    f.manager->hangupVoipCall();
    QCOMPARE(f.state(), QString("idle"));
    QCOMPARE(f.takeJournal(), QStringList());
    QVERIFY(f.manager->m_pVoipWidget->isVisible());
}

void tst_SingleCall::everyEndHasItsResult_data()
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
            kWindowCloses);
    add(
        "22: the call failed",
        [](EngineFixture &f) {
            f.manager->callSingleUser("anna", true);
            f.notify(19);
        },
        QStringList{"CallUser \"anna\" true", annasPrompt, "4478 true anna 22 true false"} + kWindowCloses);
    add(
        "24: hanging up a connected call",
        [](EngineFixture &f) {
            f.manager->callSingleUser("anna", true);
            f.notify(18);
            f.manager->hangupVoipCall();
        },
        QStringList{"CallUser \"anna\" true", "HangUpCall", annasPrompt, "4478 true anna 24 true true"} +
            kWindowCloses);
    add(
        "25: busy",
        [](EngineFixture &f) {
            f.manager->callSingleUser("anna", false);
            f.notify(22);
        },
        QStringList{"CallUser \"anna\" false", annasPrompt, "4478 false anna 25 true false"} + kWindowCloses);
    add(
        "26: rejecting an incoming call",
        [](EngineFixture &f) {
            f.notify(0, "bert");
            f.manager->responseVoipRequest(false);
        },
        QStringList{"4639 bert false false", "RejectCall", bertsPrompt, "4478 false bert 26 false false"} +
            kWindowCloses);
    add(
        "26: hanging up an incoming call",
        [](EngineFixture &f) {
            f.notify(0, "bert");
            f.manager->hangupVoipCall();
        },
        QStringList{"4639 bert false false", "RejectCall", bertsPrompt, "4478 false bert 26 false false"} +
            kWindowCloses);
    add(
        "26: hanging up an accepted call that never connected",
        [](EngineFixture &f) {
            f.notify(0, "bert");
            f.manager->responseVoipRequest(true);
            f.manager->hangupVoipCall();
        },
        QStringList{"4639 bert false false", "AcceptCall", "RejectCall", bertsPrompt,
                    "4478 false bert 26 false false"} +
            kWindowCloses);
    add(
        "24: the far end hangs up an accepted call",
        [](EngineFixture &f) {
            f.notify(0, "bert");
            f.manager->responseVoipRequest(true);
            f.notify(18);
            f.notify(8);
        },
        QStringList{"4639 bert false false", "AcceptCall", bertsPrompt, "4478 false bert 24 false true"} +
            kWindowCloses);
}

void tst_SingleCall::everyEndHasItsResult()
{
    QFETCH(Step, run);
    EngineFixture f;
    run(f);
    QTEST(f.takeJournal(), "journal");
    QCOMPARE(f.state(), QString("idle"));
    QVERIFY(!f.manager->isExistCall());
    QVERIFY(!f.manager->m_pVoipWidget->isVisible());
}

void tst_SingleCall::recordSaysWhoCalledAndHowLong_data()
{
    QTest::addColumn<bool>("connected");
    QTest::addColumn<qint64>("age");
    QTest::addColumn<qint64>("least");
    QTest::addColumn<qint64>("most");

    QTest::newRow("never connected") << false << Q_INT64_C(0) << Q_INT64_C(0) << Q_INT64_C(0);
    QTest::newRow("an hour") << true << Q_INT64_C(3600) << Q_INT64_C(3600) << Q_INT64_C(3900);
    QTest::newRow("three days") << true << Q_INT64_C(259200) << Q_INT64_C(259200) << Q_INT64_C(259500);
}

void tst_SingleCall::recordSaysWhoCalledAndHowLong()
{
    QFETCH(bool, connected);
    QFETCH(qint64, age);
    QFETCH(qint64, least);
    QFETCH(qint64, most);
    EngineFixture f;
    f.manager->callSingleUser("anna", false);
    if (connected) {
        f.notify(18);
        f.manager->m_callData.connectTime = f.manager->m_callData.connectTime.addSecs(-age);
    }
    f.manager->hangupVoipCall();
    QVERIFY(f.lastSeconds() >= least);
    QVERIFY(f.lastSeconds() <= most);
}

void tst_SingleCall::secondEndOfACallTellsTheHostNothing()
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

void tst_SingleCall::callOfMembersOnlyTellsTheHostNothing()
{
    EngineFixture f;
    f.manager->m_callData.memberList = QStringList{"anna"};
    f.manager->callFinished(CallData::FinishHangup);
    QCOMPARE(f.takeJournal(), kWindowCloses);
    QVERIFY(!f.manager->isExistCall());
}

void tst_SingleCall::promptOfAFullJidIsTakenAwayByThatJid()
{
    EngineFixture f;
    f.notify(0, "bert@other.im");
    f.takeJournal();
    f.notify(4);
    QCOMPARE(f.takeJournal().constFirst(), QString("4345 bert@other.im"));
}

void tst_SingleCall::windowNeverShownSendsThePairToo()
{
    EngineFixture f;
    f.notify(0, "bert");
    QVERIFY(!f.manager->m_pVoipWidget->isVisible());
    f.takeJournal();
    f.notify(4);
    QCOMPARE(f.takeJournal(), QStringList({"4345 bert@kelvar.im", "4478 false bert 21 false false"}) + kWindowCloses);
}

void tst_SingleCall::userClosingTheWindowSendsThePairBeforeTheHangUp()
{
    EngineFixture f;
    f.manager->callSingleUser("anna", false);
    f.notify(18);
    f.takeJournal();
    f.manager->m_pVoipWidget->close();
    QCOMPARE(f.takeJournal(),
             kWindowCloses + QStringList({"HangUpCall", "4345 anna@kelvar.im", "4478 false anna 24 true true"}));
    QVERIFY(!f.manager->m_pVoipWidget->isVisible());
    QCOMPARE(f.state(), QString("idle"));
}

void tst_SingleCall::managerEndingTheCallSendsThePairAfterTheHangUp()
{
    EngineFixture f;
    f.manager->callSingleUser("anna", false);
    f.notify(18);
    f.takeJournal();
    f.manager->m_pVoipWidget->findChild<QPushButton *>("HangUp")->click();
    QCOMPARE(f.takeJournal(),
             QStringList({"HangUpCall", "4345 anna@kelvar.im", "4478 false anna 24 true true"}) + kWindowCloses);
}

void tst_SingleCall::cancelSendsThePairTwice()
{
    EngineFixture f;
    f.manager->callSingleUser("anna", false);
    f.takeJournal();
    f.manager->m_pVoipWidget->findChild<QPushButton *>("btnCancelCall")->click();
    QCOMPARE(f.takeJournal(), QStringList({"HangUpCall", "4345 anna@kelvar.im", "4478 false anna 21 true false"}) +
                                  kWindowCloses + kWindowCloses);
}

void tst_SingleCall::inviteTimeoutEndsTheCall()
{
    EngineFixture f;
    f.manager->callSingleUser("anna", false);
    QVERIFY(f.manager->m_pVoipWidget->isVisible());
    // The timer itself, not its slot.
    f.manager->m_inviteTimer.start(0);
    QTRY_VERIFY(!f.manager->isExistCall());
    QVERIFY(!f.manager->m_inviteTimer.isActive());
    QVERIFY(!f.manager->m_pVoipWidget->isVisible());
    f.notify(0, "bert");
    f.manager->m_recevieTimer.start(0);
    QTRY_VERIFY(!f.manager->isExistCall());
    QVERIFY(!f.manager->m_recevieTimer.isActive());
}

void tst_SingleCall::callIsForgottenBeforeTheWindowCloses()
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

void tst_SingleCall::videoCallIsNeverReportedAsVideo()
{
    EngineFixture f;
    QVERIFY(!f.manager->isVideoCall());
    f.manager->callSingleUser("anna", true);
    QVERIFY(f.manager->m_callData.bIsVideo);
    QVERIFY(!f.manager->isVideoCall());
}

void tst_SingleCall::loginRegistersTheUser_data()
{
    QTest::addColumn<QString>("nick");
    QTest::addColumn<QString>("line");

    QTest::newRow("with a nick name") << "Nick"
                                      << "RegeditUser \"me\" \"Nick\" \"ticket\" false";
    QTest::newRow("by the jid") << ""
                                << "RegeditUser \"me\" \"me\" \"ticket\" false";
}

void tst_SingleCall::loginRegistersTheUser()
{
    QFETCH(QString, nick);
    QFETCH(QString, line);
    EngineFixture f;
    FriendData me(EngineFixture::jid("me"));
    me.m_vcardInfo.m_strNickName = nick;
    f.host.setRecord(me.m_strJid, me);
    f.manager->clientConnectStatus(true);
    QCOMPARE(f.takeLines(), QStringList{line});
    QCOMPARE(f.host.received(MSG_GET_FRIEND_INFO).size(), 1);
}

void tst_SingleCall::loginWithoutARecordRegistersAnEmptyValue()
{
    EngineFixture f;
    f.context.setLoginData(nullptr);
    f.manager->clientConnectStatus(true);
    QCOMPARE(f.takeLines(), QStringList{"RegeditUser \"\" \"\" \"\" false"});
}

void tst_SingleCall::loginWhileDownIsRegisteredAtTheNextConnect()
{
    EngineFixture f(EngineFixture::NoCallProcess);
    f.manager->clientConnectStatus(true);
    QCOMPARE(f.manager->m_strUserId, QString("me"));
    f.process.open();
    f.manager->slot_ReConnectVoipSDK();
    QCOMPARE(f.takeLines(), QStringList{"RegeditUser \"me\" \"\" \"ticket\" false"});
}

void tst_SingleCall::logoutHangsUpThenUnregisters()
{
    EngineFixture f;
    f.manager->clientConnectStatus(true);
    f.manager->callSingleUser("anna", false);
    f.notify(18);
    f.takeJournal();
    f.manager->clientConnectStatus(false);
    QCOMPARE(f.takeJournal(), QStringList({"HangUpCall", "4345 anna@kelvar.im", "4478 false anna 24 true true"}) +
                                  kWindowCloses + QStringList{"UnReg \"me\""});
    QCOMPARE(f.manager->m_strUserId, QString("me"));
    QCOMPARE(f.manager->m_strRegValue, QString("ticket"));
}

void tst_SingleCall::deviceControlsGoOutWithoutACall()
{
    EngineFixture f;
    f.manager->slot_SetMicEnable(false);
    f.manager->slot_SetSpeakerEnable(false);
    f.manager->slot_SetCameraEnable(false);
    QCOMPARE(f.takeLines(), QStringList({"SetMicEnable false", "SetSpeakerEnble false", "SetCamreraEnable false"}));
}

void tst_SingleCall::nothingGoesOutWhileTheChannelIsDown()
{
    EngineFixture f;
    // Only the flag is down, so that what went out in spite of it would arrive.
    f.manager->m_bSocketConnected = false;
    f.manager->regeditVoipUser("me", "Nick", "ticket");
    f.manager->unRegeditCurrentVoipUser();
    f.manager->slot_SetMicEnable(true);
    f.manager->slot_SetSpeakerEnable(true);
    f.manager->slot_SetCameraEnable(true);
    f.manager->slot_SetMicVolume(50);
    f.manager->slot_SetSpeakerVolume(50);
    f.notify(0, "bert");
    f.manager->rejectVoipCall();
    f.notify(0, "bert");
    f.notify(18);
    f.manager->hangupVoipCall();
    f.notify(2, R"({"content":{"from":"anna","confId":"c1"}})");
    f.manager->addConferenceMember({"carl"});
    f.manager->slot_MuteAll(true);
    f.manager->rejectVoipCall();
    QCOMPARE(f.takeLines(), QStringList());
    QCOMPARE(f.manager->m_strUserId, QString("me"));
    // Accepting alone does not look at the channel.
    f.manager->acceptVoipCall();
    QCOMPARE(f.takeLines(), QStringList{"AcceptCall"});
}

QTEST_MAIN(tst_SingleCall)
#include "tst_SingleCall.moc"
