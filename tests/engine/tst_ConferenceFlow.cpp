// A conference: starting it, being invited, adding, removing and muting members, its end.

#include "WhileAsked.h"
#include "fakes/EngineFixture.h"
#include "ui/VoipWidget.h"

#include <QCoreApplication>
#include <QStackedWidget>
#include <QTest>

#include <functional>

using Step = std::function<void(EngineFixture &)>;
Q_DECLARE_METATYPE(Step)

class tst_ConferenceFlow : public QObject
{
    Q_OBJECT

private slots:
    void requestNeverListsTheCaller_data();
    void requestNeverListsTheCaller();
    void requestPassesFlagAndTextOn();
    void startedConferenceShowsTheWindow();
    void startAsksForTheCardsOfStrangers_data();
    void startAsksForTheCardsOfStrangers();
    void startIsSentAndShownBehindTheQueries();
    void startIsRefusedLikeACall_data();
    void startIsRefusedLikeACall();
    void startIsRefusedInAConferenceOfOnesOwn();
    void conferenceThatNobodyJoinsTimesOut();
    void createdIdLetsTheUpdatesPass();

    void acceptedInvitationShowsTheMembers();
    void acceptedInvitationWithoutMembersShowsAnEmptyList();
    void ownIdIsLeftOutOnceOnly();
    void membersComeAfterTheAccept();
    void rejectedInvitationSendsRejectConf();
    void anyoneHangingUpEndsItForThisSide_data();
    void anyoneHangingUpEndsItForThisSide();

    void addingPeople_data();
    void addingPeople();
    void addedPeopleAreMembersBeforeTheHostIsAsked();
    void pickerGetsTheOthersAndIsReadAgainstTheListAsItIs();
    void emptyAnswerOfThePickerDoesNothing();
    void addingOutsideAConferenceSendsNothing();
    void addingWhileTheChannelIsDownSendsNothing();
    void invitingAgainIsTheCreatorsRight_data();
    void invitingAgainIsTheCreatorsRight();
    void removingAMember_data();
    void removingAMember();
    void control_data();
    void control();
    void mutingKeepsNoState();
    void cardIsHandedToTheWindow();
    void conferenceEndTakesAwayThePromptOfTheCreator();

private:
    static void create(EngineFixture &f);
    static void beInvited(EngineFixture &f);
};

/// This side has created a conference with anna and bert, and anna is connected.
void tst_ConferenceFlow::create(EngineFixture &f)
{
    f.manager->m_strUserId = "me";
    f.manager->callConference({"anna", "bert"}, false, "");
    f.manager->m_callData.connectedList = QStringList{"me", "anna"};
    f.takeJournal();
    EngineFixture::deliverPosted();
    f.host.events.clear();
}

/// Anna has invited this side.
void tst_ConferenceFlow::beInvited(EngineFixture &f)
{
    f.manager->m_strUserId = "me";
    f.notify(2, R"({"content":{"from":"anna","confId":"c1"}})");
    f.takeJournal();
}

void tst_ConferenceFlow::requestNeverListsTheCaller_data()
{
    QTest::addColumn<QStringList>("users");
    QTest::addColumn<QString>("list");
    QTest::addColumn<QStringList>("memberList");

    QTest::newRow("others only") << QStringList{"anna", "bert"} << "[\"anna\",\"bert\"]"
                                 << QStringList{"anna", "bert", "me"};
    QTest::newRow("the caller among them")
        << QStringList{"anna", "me", "bert"} << "[\"anna\",\"bert\"]" << QStringList{"anna", "me", "bert"};
    QTest::newRow("the caller alone") << QStringList{"me"} << "null" << QStringList{"me"};
    QTest::newRow("nobody") << QStringList() << "null" << QStringList{"me"};
}

void tst_ConferenceFlow::requestNeverListsTheCaller()
{
    QFETCH(QStringList, users);
    QFETCH(QString, list);
    EngineFixture f;
    f.manager->m_strUserId = "me";
    f.manager->callConference(users, false, "");
    QCOMPARE(f.takeJournal(), QStringList{"RequestConference \"me\" " + list + " false \"\""});
    QTEST(f.manager->m_callData.memberList, "memberList");
    QVERIFY(f.manager->m_callData.peerId.isEmpty());
    QVERIFY(f.manager->isExistCall());
}

void tst_ConferenceFlow::requestPassesFlagAndTextOn()
{
    EngineFixture f;
    f.manager->m_strUserId = "me";
    f.manager->callConference({"anna"}, true, QStringLiteral("周会"));
    QCOMPARE(f.takeLines(), QStringList{QStringLiteral("RequestConference \"me\" [\"anna\"] true \"周会\"")});
}

void tst_ConferenceFlow::startedConferenceShowsTheWindow()
{
    EngineFixture f;
    f.manager->m_strUserId = "me";
    f.manager->callConference({"anna", "me", "bert"}, false, "");
    QVERIFY(f.manager->m_pVoipWidget->isVisible());
    QCOMPARE(f.manager->m_pVoipWidget->windowTitle(), QStringLiteral("语音会议"));
    QCOMPARE(f.members(), QStringList({"anna 0", "bert 0"}));
    QCOMPARE(f.manager->m_pVoipWidget->findChild<QStackedWidget *>("controlPane")->currentIndex(), 0);
    const CallData &call = f.manager->m_callData;
    QVERIFY(call.bIsConf && call.bIsCaller && !call.bIsVideo && !call.bIsConnected);
    QVERIFY(f.manager->m_inviteTimer.isActive());
    QCOMPARE(f.manager->m_inviteTimer.interval(), 60000);
    // The own row, once it is there, bears the creator's mark.
    f.manager->m_pVoipWidget->addConferenceMember("me");
    QCOMPARE(f.members().constLast(), QString("me 0*"));
}

void tst_ConferenceFlow::startAsksForTheCardsOfStrangers_data()
{
    QTest::addColumn<QStringList>("users");
    QTest::addColumn<QStringList>("ids");

    QTest::newRow("strangers and a contact")
        << QStringList{"carl", "bert", "kv6005626532", "dora"} << QStringList{"carl", "dora"};
    QTest::newRow("contacts only") << QStringList{"bert"} << QStringList();
    QTest::newRow("nobody") << QStringList() << QStringList();
}

void tst_ConferenceFlow::startAsksForTheCardsOfStrangers()
{
    QFETCH(QStringList, users);
    EngineFixture f;
    f.manager->m_strUserId = "me";
    f.host.friendJids.insert(EngineFixture::jid("bert"));
    f.manager->callConference(users, false, "");
    EngineFixture::deliverPosted();
    const QList<ReceivedEvent> requests = f.host.received(MSG_GET_STRANGER_SMALL_VCARD);
    QCOMPARE(requests.size(), 1);
    QTEST(requests.constFirst().reader().takeTexts(), "ids");
    // Asked about those that the host named, the own id not among them.
    QCOMPARE(f.host.received(MSG_IS_EXIST_FRIEND).size(), users.size());
}

void tst_ConferenceFlow::startIsSentAndShownBehindTheQueries()
{
    EngineFixture f;
    f.manager->m_strUserId = "me";
    WhileAsked asked(f);
    f.manager->callConference({"anna", "bert"}, false, "");
    // The list is still the host's: the own id comes behind the queries.
    QCOMPARE(asked.call, QString("1|0|1|0|anna+bert|||||"));
    QCOMPARE(asked.lines, QStringList());
    QVERIFY(!asked.bShown);
    QCOMPARE(f.callText(), QString("1|0|1|0|anna+bert+me|||||"));
}

void tst_ConferenceFlow::startIsRefusedLikeACall_data()
{
    QTest::addColumn<bool>("channel");
    QTest::addColumn<bool>("call");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("state");

    QTest::newRow("a call exists") << true << true << "soundfailedinsound"
                                   << "incoming bert, receive, ring";
    QTest::newRow("a call exists and the channel is down") << false << true << "soundfailedinsound"
                                                           << "incoming bert, receive, ring";
    QTest::newRow("the channel is down") << false << false << QStringLiteral("音频通话初始化失败，请尝试重启客户端解决")
                                         << "idle";
}

void tst_ConferenceFlow::startIsRefusedLikeACall()
{
    QFETCH(bool, channel);
    QFETCH(bool, call);
    QFETCH(QString, message);
    EngineFixture f(channel ? EngineFixture::WithCallProcess : EngineFixture::NoCallProcess);
    if (call)
        f.notify(0, "bert");
    f.takeJournal();
    f.manager->callConference({"anna"}, false, "");
    QCOMPARE(f.boxes.texts, QStringList{message});
    QCOMPARE(f.boxes.titles, QStringList{"tip"});
    QTEST(f.state(), "state");
    QVERIFY(!f.manager->m_callData.bIsConf);
    QVERIFY(!f.manager->m_callData.bIsCaller);
    QCOMPARE(f.manager->m_callData.memberList, QStringList());
    QCOMPARE(f.takeJournal(), QStringList());
    QVERIFY(!f.manager->m_pVoipWidget->isVisible());
}

void tst_ConferenceFlow::startIsRefusedInAConferenceOfOnesOwn()
{
    // A creator has no peer: what tells of the call is the member list alone.
    EngineFixture f;
    create(f);
    QCOMPARE(f.manager->m_callData.peerId, QString());
    f.manager->callConference({"carl"}, false, "");
    f.manager->callSingleUser("carl", false);
    QCOMPARE(f.boxes.texts, QStringList({"soundfailedinsound", "soundfailedinsound"}));
    QCOMPARE(f.manager->m_callData.memberList, QStringList({"anna", "bert", "me"}));
    QCOMPARE(f.manager->m_callData.peerId, QString());
    QCOMPARE(f.takeJournal(), QStringList());
}

void tst_ConferenceFlow::conferenceThatNobodyJoinsTimesOut()
{
    EngineFixture f;
    create(f);
    f.manager->slot_inviteCallTimeout();
    QCOMPARE(f.takeJournal(), QStringList({"HangupConf", "SetMicEnable true", "SetSpeakerEnble true"}));
    QCOMPARE(f.state(), QString("idle"));
    QVERIFY(!f.manager->m_pVoipWidget->isVisible());
}

void tst_ConferenceFlow::createdIdLetsTheUpdatesPass()
{
    EngineFixture f;
    create(f);
    f.notify(20, R"({"result":{"confId":"c1"}})");
    f.notify(12, R"({"content":{"confId":"c1","conventioneer":["me","bert","carl"]}})");
    QCOMPARE(f.manager->m_callData.memberList, QStringList({"anna", "bert", "me", "carl"}));
    QCOMPARE(f.members(), QStringList({"anna 0", "bert 1", "carl 1"}));
    f.notify(18);
    QVERIFY(f.manager->m_callData.bIsConnected);
    QVERIFY(!f.manager->m_inviteTimer.isActive());
}

void tst_ConferenceFlow::acceptedInvitationShowsTheMembers()
{
    EngineFixture f;
    beInvited(f);
    f.manager->m_callData.memberList = QStringList{"anna", "me", "bert"};
    f.manager->responseVoipRequest(true);
    QCOMPARE(f.takeJournal(), QStringList{"AcceptConf"});
    QCOMPARE(f.members(), QStringList({"anna 0*", "bert 0"}));
    QCOMPARE(f.manager->m_callData.memberList, QStringList({"anna", "me", "bert"}));
    QVERIFY(f.manager->m_pVoipWidget->isVisible());
    QCOMPARE(f.manager->m_pVoipWidget->windowTitle(), QStringLiteral("语音会议"));
    QCOMPARE(f.state(), QString("incoming anna, receive"));
}

void tst_ConferenceFlow::acceptedInvitationWithoutMembersShowsAnEmptyList()
{
    EngineFixture f;
    beInvited(f);
    f.manager->responseVoipRequest(true);
    QCOMPARE(f.takeJournal(), QStringList{"AcceptConf"});
    QCOMPARE(f.members(), QStringList());
    QVERIFY(f.manager->m_pVoipWidget->isVisible());
}

void tst_ConferenceFlow::ownIdIsLeftOutOnceOnly()
{
    EngineFixture f;
    beInvited(f);
    f.manager->m_callData.memberList = QStringList{"me", "anna", "me"};
    f.manager->responseVoipRequest(true);
    QCOMPARE(f.members(), QStringList({"anna 0*", "me 0"}));
    f.manager->slot_AddConfMember();
    QCOMPARE(f.host.received(MSG_ADD_CONFERENCE_MEMBER).constFirst().reader().takeTexts(), QStringList({"anna", "me"}));
}

void tst_ConferenceFlow::membersComeAfterTheAccept()
{
    EngineFixture f;
    beInvited(f);
    f.manager->responseVoipRequest(true);
    f.notify(18);
    f.notify(12, R"({"content":{"confId":"c1","conventioneer":["anna","me","bert"]}})");
    QCOMPARE(f.members(), QStringList({"anna 1*", "bert 1"}));
    QCOMPARE(f.state(), QString("connected anna"));
}

void tst_ConferenceFlow::rejectedInvitationSendsRejectConf()
{
    EngineFixture f;
    beInvited(f);
    f.manager->responseVoipRequest(false);
    QCOMPARE(f.takeJournal(),
             QStringList({"RejectConf", "4345 anna@kelvar.im", "SetMicEnable true", "SetSpeakerEnble true"}));
    QCOMPARE(f.state(), QString("idle"));
    QCOMPARE(f.manager->m_callData.confId, QString());
    QVERIFY(!f.manager->m_callData.bIsConf);
}

void tst_ConferenceFlow::anyoneHangingUpEndsItForThisSide_data()
{
    QTest::addColumn<bool>("creator");
    QTest::addColumn<QStringList>("journal");

    QTest::newRow("the creator") << true << QStringList{"HangupConf", "SetMicEnable true", "SetSpeakerEnble true"};
    QTest::newRow("a member") << false
                              << QStringList{"HangupConf", "4345 anna@kelvar.im", "SetMicEnable true",
                                             "SetSpeakerEnble true"};
}

void tst_ConferenceFlow::anyoneHangingUpEndsItForThisSide()
{
    QFETCH(bool, creator);
    EngineFixture f;
    if (creator) {
        create(f);
    } else {
        beInvited(f);
        f.manager->responseVoipRequest(true);
    }
    f.notify(18);
    f.takeJournal();
    f.manager->hangupVoipCall();
    QTEST(f.takeJournal(), "journal");
    QCOMPARE(f.state(), QString("idle"));
    QCOMPARE(f.host.received(MSG_CALL_FINISHED).size(), 0);
}

void tst_ConferenceFlow::addingPeople_data()
{
    QTest::addColumn<QStringList>("users");
    QTest::addColumn<QString>("line");
    QTest::addColumn<QStringList>("memberList");
    QTest::addColumn<QStringList>("members");

    const QString rest(" \"me\" \"me\" false \"\" [\"me\",\"anna\"]");
    QTest::newRow("one") << QStringList{"carl"} << "Add2Conference [\"carl\"]" + rest
                         << QStringList{"anna", "bert", "me", "carl"} << QStringList{"anna 0", "bert 0", "carl 0"};
    QTest::newRow("a known one") << QStringList{"bert", "carl"} << "Add2Conference [\"bert\",\"carl\"]" + rest
                                 << QStringList{"anna", "bert", "me", "carl"}
                                 << QStringList{"anna 0", "bert 0", "carl 0"};
    QTest::newRow("the same twice") << QStringList{"carl", "carl"} << "Add2Conference [\"carl\",\"carl\"]" + rest
                                    << QStringList{"anna", "bert", "me", "carl"}
                                    << QStringList{"anna 0", "bert 0", "carl 0"};
    QTest::newRow("nobody") << QStringList() << "Add2Conference null" + rest << QStringList{"anna", "bert", "me"}
                            << QStringList{"anna 0", "bert 0"};
}

void tst_ConferenceFlow::addingPeople()
{
    QFETCH(QStringList, users);
    QFETCH(QString, line);
    EngineFixture f;
    create(f);
    f.manager->addConferenceMember(users);
    QCOMPARE(f.takeJournal(), QStringList{line});
    QTEST(f.manager->m_callData.memberList, "memberList");
    QTEST(f.members(), "members");
    EngineFixture::deliverPosted();
    QCOMPARE(f.host.received(MSG_GET_STRANGER_SMALL_VCARD).size(), 1);
    QCOMPARE(f.host.received(MSG_IS_EXIST_FRIEND).size(), users.size());
}

void tst_ConferenceFlow::addedPeopleAreMembersBeforeTheHostIsAsked()
{
    EngineFixture f;
    create(f);
    QStringList memberListMeanwhile;
    QStringList membersMeanwhile;
    f.whileHandled = [&](BaseEvent &event) {
        if (event.msgId != MSG_IS_EXIST_FRIEND)
            return;
        memberListMeanwhile = f.manager->m_callData.memberList;
        membersMeanwhile = f.members();
    };
    f.manager->addConferenceMember({"carl"});
    QCOMPARE(memberListMeanwhile, QStringList({"anna", "bert", "me", "carl"}));
    // The window follows behind the queries.
    QCOMPARE(membersMeanwhile, QStringList({"anna 0", "bert 0"}));
}

void tst_ConferenceFlow::pickerGetsTheOthersAndIsReadAgainstTheListAsItIs()
{
    EngineFixture f;
    create(f);
    f.manager->m_callData.connectedList.clear();
    f.host.membersToAdd = QStringList{"bert", "carl", "dora"};
    f.whileHandled = [&f](BaseEvent &event) {
        // Dora joins while the user picks.
        if (event.msgId == MSG_ADD_CONFERENCE_MEMBER)
            f.notify(12, R"({"content":{"confId":"c1","conventioneer":["dora"]}})");
    };
    f.manager->slot_AddConfMember();
    QCOMPARE(f.host.received(MSG_ADD_CONFERENCE_MEMBER).constFirst().reader().takeTexts(),
             QStringList({"anna", "bert"}));
    QCOMPARE(f.takeJournal(), QStringList{"Add2Conference [\"carl\"] \"me\" \"me\" false \"\" [\"dora\"]"});
    // Picking only those who are there already still asks the call process.
    f.whileHandled = nullptr;
    f.host.membersToAdd = QStringList{"bert"};
    f.manager->slot_AddConfMember();
    QCOMPARE(f.takeJournal(), QStringList{"Add2Conference null \"me\" \"me\" false \"\" [\"dora\"]"});
}

void tst_ConferenceFlow::emptyAnswerOfThePickerDoesNothing()
{
    EngineFixture f;
    create(f);
    f.manager->slot_AddConfMember();
    QCOMPARE(f.takeJournal(), QStringList());
    EngineFixture::deliverPosted();
    QCOMPARE(f.host.commands(), QList<int>{MSG_ADD_CONFERENCE_MEMBER});
}

void tst_ConferenceFlow::addingOutsideAConferenceSendsNothing()
{
    EngineFixture f;
    f.manager->addConferenceMember({"carl"});
    QCOMPARE(f.takeJournal(), QStringList());
    QCOMPARE(f.manager->m_callData.memberList, QStringList{"carl"});
    QCOMPARE(f.members(), QStringList{"carl 0"});
}

void tst_ConferenceFlow::addingWhileTheChannelIsDownSendsNothing()
{
    EngineFixture f;
    create(f);
    f.manager->m_bSocketConnected = false;
    f.manager->addConferenceMember({"carl"});
    QCOMPARE(f.takeJournal(), QStringList());
    QCOMPARE(f.manager->m_callData.memberList, QStringList({"anna", "bert", "me", "carl"}));
    QCOMPARE(f.members(), QStringList({"anna 0", "bert 0", "carl 0"}));
}

void tst_ConferenceFlow::invitingAgainIsTheCreatorsRight_data()
{
    QTest::addColumn<bool>("conference");
    QTest::addColumn<bool>("caller");
    QTest::addColumn<QStringList>("journal");
    QTest::addColumn<QStringList>("members");

    const QStringList unchanged{"anna 0", "bert 5"};
    QTest::newRow("creator") << true << true
                             << QStringList{"Add2Conference [\"bert\"] \"me\" \"me\" false \"\" [\"me\",\"anna\"]"}
                             << QStringList{"anna 0", "bert 0"};
    QTest::newRow("invited") << true << false << QStringList() << unchanged;
    QTest::newRow("no conference") << false << true << QStringList() << unchanged;
}

void tst_ConferenceFlow::invitingAgainIsTheCreatorsRight()
{
    QFETCH(bool, conference);
    QFETCH(bool, caller);
    EngineFixture f;
    create(f);
    f.notify(5, "bert");
    f.manager->m_callData.bIsConf = conference;
    f.manager->m_callData.bIsCaller = caller;
    f.manager->slot_ReInviteConfUser("bert");
    QTEST(f.takeJournal(), "journal");
    QTEST(f.members(), "members");
}

void tst_ConferenceFlow::removingAMember_data()
{
    QTest::addColumn<QString>("user");
    QTest::addColumn<QStringList>("journal");
    QTest::addColumn<QStringList>("memberList");
    QTest::addColumn<QStringList>("members");

    QTest::newRow("connected") << "anna" << QStringList{"ControlConf \"kick\" \"anna\""} << QStringList{"bert", "me"}
                               << QStringList{"bert 0"};
    QTest::newRow("not connected yet") << "bert" << QStringList() << QStringList{"anna", "me"} << QStringList{"anna 0"};
    QTest::newRow("unknown") << "carl" << QStringList() << QStringList{"anna", "bert", "me"}
                             << QStringList{"anna 0", "bert 0"};
    QTest::newRow("connected but no member")
        << "dora" << QStringList() << QStringList{"anna", "bert", "me"} << QStringList{"anna 0", "bert 0"};
}

void tst_ConferenceFlow::removingAMember()
{
    QFETCH(QString, user);
    EngineFixture f;
    create(f);
    const QStringList connected{"me", "anna", "dora"};
    f.manager->m_callData.connectedList = connected;
    f.manager->slot_RemoveConferenceMember(user);
    QTEST(f.takeJournal(), "journal");
    QTEST(f.manager->m_callData.memberList, "memberList");
    QTEST(f.members(), "members");
    QCOMPARE(f.manager->m_callData.connectedList, connected);
}

void tst_ConferenceFlow::control_data()
{
    QTest::addColumn<Step>("run");
    QTest::addColumn<QStringList>("journal");

    const auto add = [](const char *name, const Step &run, const QStringList &journal) {
        QTest::newRow(name) << run << journal;
    };
    add("mute one", [](EngineFixture &f) { f.manager->slot_MuteConferenceMember("anna", true); },
        {"ControlConf \"mute\" \"anna\""});
    add("unmute one", [](EngineFixture &f) { f.manager->slot_MuteConferenceMember("anna", false); },
        {"ControlConf \"unmute\" \"anna\""});
    add("mute nobody", [](EngineFixture &f) { f.manager->slot_MuteConferenceMember("", true); }, {});
    add("mute all", [](EngineFixture &f) { f.manager->slot_MuteAll(true); },
        {"ControlConf \"mute\" \"non_moderator\""});
    add("unmute all", [](EngineFixture &f) { f.manager->slot_MuteAll(false); },
        {"ControlConf \"unmute\" \"non_moderator\""});
    add("kick", [](EngineFixture &f) { f.manager->controlConference(CVoipManage::Kick, false, "bert"); },
        {"ControlConf \"kick\" \"bert\""});
    add("an id with all members", [](EngineFixture &f) { f.manager->controlConference(CVoipManage::Kick, true, "b"); },
        {"ControlConf \"kick\" \"non_moderator\""});
    add("an operation that does not exist",
        [](EngineFixture &f) {
            f.manager->controlConference(static_cast<CVoipManage::ConfControlSignal>(3), false, "anna");
        },
        {});
    add("outside a conference",
        [](EngineFixture &f) {
            f.manager->m_callData.bIsConf = false;
            f.manager->slot_MuteAll(true);
        },
        {});
    add("while the channel is down",
        [](EngineFixture &f) {
            f.manager->m_bSocketConnected = false;
            f.manager->slot_MuteAll(true);
            f.manager->slot_MuteConferenceMember("anna", false);
            f.manager->slot_RemoveConferenceMember("anna");
        },
        {});
}

void tst_ConferenceFlow::control()
{
    QFETCH(Step, run);
    EngineFixture f;
    create(f);
    run(f);
    QTEST(f.takeJournal(), "journal");
}

void tst_ConferenceFlow::mutingKeepsNoState()
{
    EngineFixture f;
    create(f);
    f.manager->slot_MuteAll(true);
    f.manager->slot_MuteAll(true);
    QCOMPARE(f.takeJournal(),
             QStringList({"ControlConf \"mute\" \"non_moderator\"", "ControlConf \"mute\" \"non_moderator\""}));
}

void tst_ConferenceFlow::cardIsHandedToTheWindow()
{
    EngineFixture f;
    create(f);
    VcardInfo card;
    card.m_strNickName = QStringLiteral("安娜");
    f.manager->updateUserInfo(EngineFixture::jid("anna"), card);
    const QAbstractItemModel *rows = f.manager->m_pVoipWidget->findChild<QListView *>("listView")->model();
    QCOMPARE(rows->index(0, 0).data(Qt::UserRole + 1).toString(), QStringLiteral("安娜"));
}

void tst_ConferenceFlow::conferenceEndTakesAwayThePromptOfTheCreator()
{
    EngineFixture f;
    beInvited(f);
    f.notify(4);
    QCOMPARE(f.takeJournal(), QStringList({"4345 anna@kelvar.im", "SetMicEnable true", "SetSpeakerEnble true"}));
    create(f);
    f.notify(7);
    QCOMPARE(f.takeJournal(), QStringList({"SetMicEnable true", "SetSpeakerEnble true"}));
}

QTEST_MAIN(tst_ConferenceFlow)
#include "tst_ConferenceFlow.moc"
