// A conference as a whole: starting it, being invited to it, its end.

#include "engine/StartedConference.h"
#include "engine/WhileAsked.h"
#include "fakes/EngineTest.h"
#include "ui/VoipWidget.h"

#include <QStackedWidget>
#include <QTest>

class tst_ConferenceFlow : public EngineTest<EngineFixture>
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
        m_f->manager->m_strUserId = "me";
        m_f->manager->callConference(users, false, "");
        QCOMPARE(m_f->takeJournal(), QStringList{"RequestConference \"me\" " + list + " false \"\""});
        QTEST(m_f->manager->m_callData.memberList, "memberList");
        QVERIFY(m_f->manager->m_callData.peerId.isEmpty());
        QVERIFY(m_f->manager->isExistCall());
    }

    void requestPassesFlagAndTextOn()
    {
        m_f->manager->m_strUserId = "me";
        m_f->manager->callConference({"anna"}, true, QStringLiteral("周会"));
        QCOMPARE(m_f->takeLines(), QStringList{QStringLiteral("RequestConference \"me\" [\"anna\"] true \"周会\"")});
    }

    void startedConferenceShowsTheWindow()
    {
        m_f->manager->m_strUserId = "me";
        m_f->manager->callConference({"anna", "me", "bert"}, false, "");
        QVERIFY(m_f->manager->m_pVoipWidget->isVisible());
        QCOMPARE(m_f->manager->m_pVoipWidget->windowTitle(), QStringLiteral("语音会议"));
        QCOMPARE(m_f->members(), QStringList({"anna 0", "bert 0"}));
        QCOMPARE(m_f->manager->m_pVoipWidget->findChild<QStackedWidget *>("controlPane")->currentIndex(), 0);
        const CallData &call = m_f->manager->m_callData;
        QVERIFY(call.bIsConf && call.bIsCaller && !call.bIsVideo && !call.bIsConnected);
        QVERIFY(m_f->manager->m_inviteTimer.isActive());
        QCOMPARE(m_f->manager->m_inviteTimer.interval(), 60000);
        // The own row, once it is there, bears the creator's mark.
        m_f->manager->m_pVoipWidget->addConferenceMember("me");
        QCOMPARE(m_f->members().constLast(), QString("me 0*"));
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
        m_f->manager->m_strUserId = "me";
        m_f->host.friendJids.insert(EngineFixture::jid("bert"));
        m_f->manager->callConference(users, false, "");
        EngineFixture::deliverPosted();
        const QList<ReceivedEvent> requests = m_f->host.received(MSG_GET_STRANGER_SMALL_VCARD);
        QCOMPARE(requests.size(), 1);
        QTEST(requests.constFirst().reader().takeTexts(), "ids");
        // Asked about those that the host named, the own id only when it is among them.
        QCOMPARE(m_f->host.received(MSG_IS_EXIST_FRIEND).size(), users.size());
    }

    void startIsSentAndShownBehindTheQueries()
    {
        m_f->manager->m_strUserId = "me";
        WhileAsked asked(*m_f);
        m_f->manager->callConference({"anna", "bert"}, false, "");
        // The list is still the host's: the own id comes behind the queries.
        QCOMPARE(asked.call, QString("1|0|1|0|anna+bert|||||"));
        QCOMPARE(asked.lines, QStringList());
        QVERIFY(!asked.bShown);
        QCOMPARE(m_f->callText(), QString("1|0|1|0|anna+bert+me|||||"));
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
        begin(channel ? EngineFixture::WithCallProcess : EngineFixture::NoCallProcess);
        if (call) {
            m_f->notify(Code::IncomingCall, "bert");
        }
        m_f->takeJournal();
        m_f->manager->callConference({"anna"}, false, "");
        QCOMPARE(m_f->boxes.texts, QStringList{message});
        QCOMPARE(m_f->boxes.titles, QStringList{"tip"});
        QTEST(m_f->state(), "state");
        QVERIFY(!m_f->manager->m_callData.bIsConf);
        QVERIFY(!m_f->manager->m_callData.bIsCaller);
        QCOMPARE(m_f->manager->m_callData.memberList, QStringList());
        QCOMPARE(m_f->takeJournal(), QStringList());
        QVERIFY(!m_f->manager->m_pVoipWidget->isVisible());
    }

    void startIsRefusedInAConferenceOfOnesOwn()
    {
        // A creator has no peer: what tells of the call is the member list alone.
        startConference(*m_f);
        QCOMPARE(m_f->manager->m_callData.peerId, QString());
        m_f->manager->callConference({"carl"}, false, "");
        m_f->manager->callSingleUser("carl", false);
        QCOMPARE(m_f->boxes.texts, QStringList({"soundfailedinsound", "soundfailedinsound"}));
        QCOMPARE(m_f->manager->m_callData.memberList, QStringList({"anna", "bert", "me"}));
        QCOMPARE(m_f->manager->m_callData.peerId, QString());
        QCOMPARE(m_f->takeJournal(), QStringList());
    }

    void conferenceThatNobodyJoinsTimesOut()
    {
        startConference(*m_f);
        m_f->manager->slot_inviteCallTimeout();
        QCOMPARE(m_f->takeJournal(), QStringList({"HangupConf", "SetMicEnable true", "SetSpeakerEnble true"}));
        QCOMPARE(m_f->state(), QString("idle"));
        QVERIFY(!m_f->manager->m_pVoipWidget->isVisible());
    }

    void createdIdLetsTheUpdatesPass()
    {
        startConference(*m_f);
        m_f->notify(Code::ConfCreated, R"({"result":{"confId":"c1"}})");
        m_f->notify(Code::ConfUpdate, R"({"content":{"confId":"c1","conventioneer":["me","bert","carl"]}})");
        QCOMPARE(m_f->manager->m_callData.memberList, QStringList({"anna", "bert", "me", "carl"}));
        QCOMPARE(m_f->members(), QStringList({"anna 0", "bert 1", "carl 1"}));
        m_f->notify(Code::CallConnected);
        QVERIFY(m_f->manager->m_callData.bIsConnected);
        QVERIFY(!m_f->manager->m_inviteTimer.isActive());
    }

    void acceptedInvitationShowsTheMembers()
    {
        beInvited(*m_f);
        m_f->manager->m_callData.memberList = QStringList{"anna", "me", "bert"};
        m_f->manager->responseVoipRequest(true);
        QCOMPARE(m_f->takeJournal(), QStringList{"AcceptConf"});
        QCOMPARE(m_f->members(), QStringList({"anna 0*", "bert 0"}));
        QCOMPARE(m_f->manager->m_callData.memberList, QStringList({"anna", "me", "bert"}));
        QVERIFY(m_f->manager->m_pVoipWidget->isVisible());
        QCOMPARE(m_f->manager->m_pVoipWidget->windowTitle(), QStringLiteral("语音会议"));
        QCOMPARE(m_f->state(), QString("incoming anna, receive"));
    }

    void acceptedInvitationWithoutMembersShowsAnEmptyList()
    {
        beInvited(*m_f);
        m_f->manager->responseVoipRequest(true);
        QCOMPARE(m_f->takeJournal(), QStringList{"AcceptConf"});
        QCOMPARE(m_f->members(), QStringList());
        QVERIFY(m_f->manager->m_pVoipWidget->isVisible());
    }

    void ownIdIsLeftOutOnceOnly()
    {
        beInvited(*m_f);
        m_f->manager->m_callData.memberList = QStringList{"me", "anna", "me"};
        m_f->manager->responseVoipRequest(true);
        QCOMPARE(m_f->members(), QStringList({"anna 0*", "me 0"}));
        m_f->manager->slot_AddConfMember();
        QCOMPARE(m_f->host.received(MSG_ADD_CONFERENCE_MEMBER).constFirst().reader().takeTexts(),
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
        if (own) {
            startConference(*m_f);
        } else {
            beInvited(*m_f);
        }
        // What the window showed before must not count.
        m_f->manager->m_pVoipWidget->setVoipCallInfo({}, CVoipWidget::Conference, !own, false);
        m_f->manager->responseVoipRequest(true);
        QCOMPARE(m_f->takeJournal(), QStringList{"AcceptConf"});
        for (const char *button : {"btnMuteAll", "btnAddMember"}) {
            QCOMPARE(!m_f->manager->m_pVoipWidget->findChild<QWidget *>(button)->isHidden(), own);
        }
    }

    void membersComeAfterTheAccept()
    {
        beInvited(*m_f);
        m_f->manager->responseVoipRequest(true);
        m_f->notify(Code::CallConnected);
        m_f->notify(Code::ConfUpdate, R"({"content":{"confId":"c1","conventioneer":["anna","me","bert"]}})");
        QCOMPARE(m_f->members(), QStringList({"anna 1*", "bert 1"}));
        QCOMPARE(m_f->state(), QString("connected anna"));
    }

    void rejectedInvitationSendsRejectConf()
    {
        beInvited(*m_f);
        m_f->manager->responseVoipRequest(false);
        QCOMPARE(m_f->takeJournal(),
                 QStringList({"RejectConf", "4345 anna@kelvar.im", "SetMicEnable true", "SetSpeakerEnble true"}));
        QCOMPARE(m_f->state(), QString("idle"));
        QCOMPARE(m_f->manager->m_callData.confId, QString());
        QVERIFY(!m_f->manager->m_callData.bIsConf);
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
        if (creator) {
            startConference(*m_f);
        } else {
            beInvited(*m_f);
            m_f->manager->responseVoipRequest(true);
        }
        m_f->notify(Code::CallConnected);
        m_f->takeJournal();
        m_f->manager->hangupVoipCall();
        QTEST(m_f->takeJournal(), "journal");
        QCOMPARE(m_f->state(), QString("idle"));
        QCOMPARE(m_f->host.received(MSG_CALL_FINISHED).size(), 0);
    }

    void conferenceEndTakesAwayThePromptOfTheCreator()
    {
        beInvited(*m_f);
        m_f->notify(Code::PeerCanceled);
        QCOMPARE(m_f->takeJournal(), QStringList({"4345 anna@kelvar.im", "SetMicEnable true", "SetSpeakerEnble true"}));
        startConference(*m_f);
        m_f->notify(Code::CallEnded);
        QCOMPARE(m_f->takeJournal(), QStringList({"SetMicEnable true", "SetSpeakerEnble true"}));
    }

private:
    /// Anna has invited this side.
    static void beInvited(EngineFixture &f)
    {
        f.manager->m_strUserId = "me";
        f.notify(Code::IncomingConf, R"({"content":{"from":"anna","confId":"c1"}})");
        f.takeJournal();
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ConferenceFlow, Widgets)
#include "tst_ConferenceFlow.moc"
