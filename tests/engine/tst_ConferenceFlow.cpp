// A conference as a whole: starting it, being invited to it, its end.

#include "StartedConference.h"
#include "WhileAsked.h"
#include "fakes/EngineFixture.h"
#include "ui/VoipWidget.h"

#include <QStackedWidget>
#include <QTest>

class tst_ConferenceFlow : public QObject
{
    Q_OBJECT

private slots:
    void requestNeverListsTheCaller_data()
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

    void requestNeverListsTheCaller()
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

    void requestPassesFlagAndTextOn()
    {
        EngineFixture f;
        f.manager->m_strUserId = "me";
        f.manager->callConference({"anna"}, true, QStringLiteral("周会"));
        QCOMPARE(f.takeLines(), QStringList{QStringLiteral("RequestConference \"me\" [\"anna\"] true \"周会\"")});
    }

    void startedConferenceShowsTheWindow()
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

    void startAsksForTheCardsOfStrangers_data()
    {
        QTest::addColumn<QStringList>("users");
        QTest::addColumn<QStringList>("ids");

        QTest::newRow("strangers and a contact")
            << QStringList{"carl", "bert", "kv6005626532", "dora"} << QStringList{"carl", "dora"};
        QTest::newRow("contacts only") << QStringList{"bert"} << QStringList();
        QTest::newRow("the own id among them") << QStringList{"carl", "me"} << QStringList{"carl", "me"};
        QTest::newRow("nobody") << QStringList() << QStringList();
    }

    void startAsksForTheCardsOfStrangers()
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
        // Asked about those that the host named, the own id only when it is among them.
        QCOMPARE(f.host.received(MSG_IS_EXIST_FRIEND).size(), users.size());
    }

    void startIsSentAndShownBehindTheQueries()
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

    void startIsRefusedLikeACall_data()
    {
        QTest::addColumn<bool>("channel");
        QTest::addColumn<bool>("call");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("state");

        QTest::newRow("a call exists") << true << true << "soundfailedinsound"
                                       << "incoming bert, receive, ring";
        QTest::newRow("a call exists and the channel is down") << false << true << "soundfailedinsound"
                                                               << "incoming bert, receive, ring";
        QTest::newRow("the channel is down")
            << false << false << QStringLiteral("音频通话初始化失败，请尝试重启客户端解决") << "idle";
    }

    void startIsRefusedLikeACall()
    {
        QFETCH(bool, channel);
        QFETCH(bool, call);
        QFETCH(QString, message);
        EngineFixture f(channel ? EngineFixture::WithCallProcess : EngineFixture::NoCallProcess);
        if (call) {
            f.notify(0, "bert");
        }
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

    void startIsRefusedInAConferenceOfOnesOwn()
    {
        // A creator has no peer: what tells of the call is the member list alone.
        EngineFixture f;
        startConference(f);
        QCOMPARE(f.manager->m_callData.peerId, QString());
        f.manager->callConference({"carl"}, false, "");
        f.manager->callSingleUser("carl", false);
        QCOMPARE(f.boxes.texts, QStringList({"soundfailedinsound", "soundfailedinsound"}));
        QCOMPARE(f.manager->m_callData.memberList, QStringList({"anna", "bert", "me"}));
        QCOMPARE(f.manager->m_callData.peerId, QString());
        QCOMPARE(f.takeJournal(), QStringList());
    }

    void conferenceThatNobodyJoinsTimesOut()
    {
        EngineFixture f;
        startConference(f);
        f.manager->slot_inviteCallTimeout();
        QCOMPARE(f.takeJournal(), QStringList({"HangupConf", "SetMicEnable true", "SetSpeakerEnble true"}));
        QCOMPARE(f.state(), QString("idle"));
        QVERIFY(!f.manager->m_pVoipWidget->isVisible());
    }

    void createdIdLetsTheUpdatesPass()
    {
        EngineFixture f;
        startConference(f);
        f.notify(20, R"({"result":{"confId":"c1"}})");
        f.notify(12, R"({"content":{"confId":"c1","conventioneer":["me","bert","carl"]}})");
        QCOMPARE(f.manager->m_callData.memberList, QStringList({"anna", "bert", "me", "carl"}));
        QCOMPARE(f.members(), QStringList({"anna 0", "bert 1", "carl 1"}));
        f.notify(18);
        QVERIFY(f.manager->m_callData.bIsConnected);
        QVERIFY(!f.manager->m_inviteTimer.isActive());
    }

    void acceptedInvitationShowsTheMembers()
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

    void acceptedInvitationWithoutMembersShowsAnEmptyList()
    {
        EngineFixture f;
        beInvited(f);
        f.manager->responseVoipRequest(true);
        QCOMPARE(f.takeJournal(), QStringList{"AcceptConf"});
        QCOMPARE(f.members(), QStringList());
        QVERIFY(f.manager->m_pVoipWidget->isVisible());
    }

    void ownIdIsLeftOutOnceOnly()
    {
        EngineFixture f;
        beInvited(f);
        f.manager->m_callData.memberList = QStringList{"me", "anna", "me"};
        f.manager->responseVoipRequest(true);
        QCOMPARE(f.members(), QStringList({"anna 0*", "me 0"}));
        f.manager->slot_AddConfMember();
        QCOMPARE(f.host.received(MSG_ADD_CONFERENCE_MEMBER).constFirst().reader().takeTexts(),
                 QStringList({"anna", "me"}));
    }

    void acceptTellsTheWindowWhoseConferenceItIs_data()
    {
        QTest::addColumn<bool>("own");

        QTest::newRow("the own one") << true;
        QTest::newRow("another's") << false;
    }

    void acceptTellsTheWindowWhoseConferenceItIs()
    {
        QFETCH(bool, own);
        EngineFixture f;
        if (own) {
            startConference(f);
        } else {
            beInvited(f);
        }
        // What the window showed before must not count.
        f.manager->m_pVoipWidget->setVoipCallInfo({}, CVoipWidget::Conference, !own, false);
        f.manager->responseVoipRequest(true);
        QCOMPARE(f.takeJournal(), QStringList{"AcceptConf"});
        for (const char *button : {"btnMuteAll", "btnAddMember"}) {
            QCOMPARE(!f.manager->m_pVoipWidget->findChild<QWidget *>(button)->isHidden(), own);
        }
    }

    void membersComeAfterTheAccept()
    {
        EngineFixture f;
        beInvited(f);
        f.manager->responseVoipRequest(true);
        f.notify(18);
        f.notify(12, R"({"content":{"confId":"c1","conventioneer":["anna","me","bert"]}})");
        QCOMPARE(f.members(), QStringList({"anna 1*", "bert 1"}));
        QCOMPARE(f.state(), QString("connected anna"));
    }

    void rejectedInvitationSendsRejectConf()
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

    void anyoneHangingUpEndsItForThisSide_data()
    {
        QTest::addColumn<bool>("creator");
        QTest::addColumn<QStringList>("journal");

        QTest::newRow("the creator") << true << QStringList{"HangupConf", "SetMicEnable true", "SetSpeakerEnble true"};
        QTest::newRow("a member") << false
                                  << QStringList{"HangupConf", "4345 anna@kelvar.im", "SetMicEnable true",
                                                 "SetSpeakerEnble true"};
    }

    void anyoneHangingUpEndsItForThisSide()
    {
        QFETCH(bool, creator);
        EngineFixture f;
        if (creator) {
            startConference(f);
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

    void conferenceEndTakesAwayThePromptOfTheCreator()
    {
        EngineFixture f;
        beInvited(f);
        f.notify(4);
        QCOMPARE(f.takeJournal(), QStringList({"4345 anna@kelvar.im", "SetMicEnable true", "SetSpeakerEnble true"}));
        startConference(f);
        f.notify(7);
        QCOMPARE(f.takeJournal(), QStringList({"SetMicEnable true", "SetSpeakerEnble true"}));
    }

private:
    /// Anna has invited this side.
    static void beInvited(EngineFixture &f)
    {
        f.manager->m_strUserId = "me";
        f.notify(2, R"({"content":{"from":"anna","confId":"c1"}})");
        f.takeJournal();
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ConferenceFlow, Widgets)
#include "tst_ConferenceFlow.moc"
