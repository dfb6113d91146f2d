// One call between two people: placing, receiving and accepting it, and what goes out meanwhile.

#include "engine/WhileAsked.h"
#include "fakes/EngineTest.h"
#include "ui/VoipWidget.h"
#include "widgets/PushButtonEx.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QTest>

#include <functional>

using Step = std::function<void(EngineFixture &)>;
Q_DECLARE_METATYPE(Step)

class tst_SingleCall : public EngineTest<EngineFixture>
{
    Q_OBJECT

private slots:
    void placedCallGoesOutAndShowsTheWindow_data()
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

    void placedCallGoesOutAndShowsTheWindow()
    {
        QFETCH(QString, user);
        QFETCH(bool, video);
        QFETCH(QString, line);
        m_f->manager->callSingleUser(user, video);
        QCOMPARE(m_f->takeJournal(), QStringList{line});
        QCOMPARE(m_f->state(), "outgoing " + user + ", invite");
        QCOMPARE(m_f->manager->m_callData.bIsVideo, video);
        QVERIFY(!m_f->manager->m_callData.bIsConf);
        QVERIFY(m_f->manager->m_pVoipWidget->isVisible());
        QTEST(m_f->manager->m_pVoipWidget->windowTitle(), "title");
        // The window speaks of the own call, in its request state.
        QCOMPARE(m_f->manager->m_pVoipWidget->findChild<QLabel *>("lblStatus")->text(), QStringLiteral("正在呼叫..."));
        QCOMPARE(m_f->manager->m_pVoipWidget->findChild<QStackedWidget *>("controlPane")->currentIndex(), 0);
        QCOMPARE(m_f->boxes.texts, QStringList());
    }

    void placedCallAsksForTheCardOfAStrangerOnly_data()
    {
        QTest::addColumn<QString>("user");
        QTest::addColumn<QStringList>("requests");

        QTest::newRow("stranger") << "anna" << QStringList{"anna|-1|1"};
        QTest::newRow("stranger by jid") << "anna@kelvar.im" << QStringList{"anna|-1|1"};
        QTest::newRow("contact") << "bert" << QStringList();
        QTest::newRow("the system account") << "kv6005626532" << QStringList();
    }

    void placedCallAsksForTheCardOfAStrangerOnly()
    {
        QFETCH(QString, user);
        m_f->host.friendJids.insert(EngineFixture::jid("bert"));
        m_f->manager->callSingleUser(user, false);
        QTEST(strangerRequests(*m_f), "requests");
    }

    void placedCallAsksTheHostAboutEverybody()
    {
        FriendData known(EngineFixture::jid("kv6005626532"));
        m_f->context.setFriendDataMap({{known.m_strJid, known}});
        m_f->manager->callSingleUser("kv6005626532", false);
        QCOMPARE(m_f->host.received(MSG_IS_EXIST_FRIEND).size(), 1);
        QCOMPARE(m_f->host.received(MSG_GET_FRIEND_INFO).size(), 0);
    }

    void placedCallIsSentAndShownBehindTheQueries()
    {
        WhileAsked asked(*m_f);
        m_f->manager->callSingleUser("anna", true);
        // The caller and the peer are known by then, the video is not.
        QCOMPARE(asked.call, QString("0|0|1|0|||anna|||"));
        QCOMPARE(asked.lines, QStringList());
        QVERIFY(!asked.bShown);
        QCOMPARE(m_f->callText(), QString("0|1|1|0|||anna|||"));
    }

    void callWhileACallExistsIsRefusedWithAMessage_data()
    {
        QTest::addColumn<Step>("enter");
        QTest::addColumn<QString>("state");

        QTest::newRow("outgoing") << Step([](EngineFixture &f) { f.manager->callSingleUser("anna", false); })
                                  << "outgoing anna, invite";
        QTest::newRow("incoming, only ringing")
            << Step([](EngineFixture &f) { f.notify(Code::IncomingCall, "bert"); }) << "incoming bert, receive, ring";
        QTest::newRow("connected") << Step([](EngineFixture &f) {
            f.manager->callSingleUser("anna", false);
            f.notify(Code::CallConnected);
        }) << "connected anna";
        QTest::newRow("conference") << Step([](EngineFixture &f) { f.manager->callConference({"anna"}, false, ""); })
                                    << "outgoing anna+, invite";
    }

    void callWhileACallExistsIsRefusedWithAMessage()
    {
        QFETCH(Step, enter);
        QFETCH(QString, state);
        enter(*m_f);
        m_f->takeJournal();
        m_f->manager->callSingleUser("carl", true);
        QCOMPARE(m_f->boxes.texts, QStringList{"soundfailedinsound"});
        QCOMPARE(m_f->takeJournal(), QStringList());
        QCOMPARE(m_f->state(), state);
        QVERIFY(!m_f->manager->m_callData.bIsVideo);
    }

    void callWithoutTheChannelIsRefusedWithAMessage()
    {
        begin(EngineFixture::NoCallProcess);
        m_f->manager->callSingleUser("anna", true);
        QCOMPARE(m_f->boxes.texts, QStringList{QStringLiteral("音频通话初始化失败，请尝试重启客户端解决")});
        QCOMPARE(m_f->state(), QString("idle"));
        QVERIFY(!m_f->manager->m_callData.bIsCaller);
        QVERIFY(!m_f->manager->m_callData.bIsVideo);
        QVERIFY(!m_f->manager->m_pVoipWidget->isVisible());
        QCOMPARE(m_f->host.commands(), QList<int>());
    }

    void existingCallIsToldBeforeTheMissingChannel()
    {
        begin(EngineFixture::NoCallProcess);
        m_f->notify(Code::IncomingCall, "bert");
        m_f->manager->callSingleUser("anna", false);
        QCOMPARE(m_f->boxes.texts, QStringList{"soundfailedinsound"});
    }

    void messageIsTitledAndHasOneButton()
    {
        begin(EngineFixture::NoCallProcess);
        bool acceptShown = true;
        QStringList buttonTexts;
        const QWidget *parent = m_f->manager->m_pVoipWidget;
        m_f->boxes.whileOpen = [&] {
            const QWidget *box = QApplication::activeModalWidget();
            const auto *accept = box->findChild<PushButtonEx *>("acceptBtn");
            acceptShown = accept->isVisible();
            buttonTexts = QStringList{accept->text(), box->findChild<PushButtonEx *>("closeBtn")->text()};
            parent = box->parentWidget();
        };
        m_f->manager->callSingleUser("anna", false);
        QCOMPARE(m_f->boxes.titles, QStringList{"tip"});
        QVERIFY(!acceptShown);
        QCOMPARE(buttonTexts, QStringList({"", "sure"}));
        QVERIFY(!parent);
    }

    void incomingCallAsksForCardsInAnyCase_data()
    {
        QTest::addColumn<QString>("user");
        QTest::addColumn<QStringList>("requests");

        QTest::newRow("stranger") << "anna" << QStringList{"anna|-1|1"};
        QTest::newRow("contact") << "bert" << QStringList{"||1"};
        QTest::newRow("the system account") << "kv6005626532" << QStringList{"||1"};
    }

    void incomingCallAsksForCardsInAnyCase()
    {
        QFETCH(QString, user);
        m_f->host.friendJids.insert(EngineFixture::jid("bert"));
        m_f->notify(Code::IncomingCall, user);
        QTEST(strangerRequests(*m_f), "requests");
    }

    void promptComesAfterTheQueriesAndBeforeTheTimer()
    {
        QString stateMeanwhile;
        m_f->whileHandled = [&](BaseEvent &event) {
            if (event.msgId != MSG_RECEVIE_VOIP_CALL) {
                return;
            }
            stateMeanwhile = m_f->state();
        };
        m_f->notify(Code::IncomingCall, "bert");
        QCOMPARE(m_f->host.commands(), QList<int>({MSG_GET_FRIEND_INFO, MSG_IS_EXIST_FRIEND, MSG_RECEVIE_VOIP_CALL}));
        QCOMPARE(stateMeanwhile, QString("incoming bert, ring"));
        QCOMPARE(m_f->state(), QString("incoming bert, receive, ring"));
    }

    void acceptShowsTheWindowAndKeepsTheTimer()
    {
        m_f->notify(Code::IncomingCall, "bert");
        m_f->takeJournal();
        m_f->manager->responseVoipRequest(true);
        QCOMPARE(m_f->takeJournal(), QStringList{"AcceptCall"});
        QCOMPARE(m_f->state(), QString("incoming bert, receive"));
        QVERIFY(m_f->manager->m_pVoipWidget->isVisible());
        QCOMPARE(m_f->manager->m_pVoipWidget->windowTitle(), QStringLiteral("语音通话"));
        QCOMPARE(m_f->manager->m_pVoipWidget->findChild<QLabel *>("lblStatus")->text(), QStringLiteral("正在连接..."));
        QCOMPARE(m_f->manager->m_pVoipWidget->findChild<QStackedWidget *>("controlPane")->currentIndex(), 0);
    }

    void acceptWithoutACallShowsTheWindow()
    {
        m_f->manager->responseVoipRequest(true);
        QCOMPARE(m_f->takeJournal(), QStringList{"AcceptCall"});
        QVERIFY(m_f->manager->m_pVoipWidget->isVisible());
        QVERIFY(!m_f->manager->isExistCall());
    }

    void videoCallIsNeverReportedAsVideo()
    {
        QVERIFY(!m_f->manager->isVideoCall());
        m_f->manager->callSingleUser("anna", true);
        QVERIFY(m_f->manager->m_callData.bIsVideo);
        QVERIFY(!m_f->manager->isVideoCall());
    }

    void deviceControlsGoOutWithoutACall()
    {
        m_f->manager->slot_SetMicEnable(false);
        m_f->manager->slot_SetSpeakerEnable(false);
        m_f->manager->slot_SetCameraEnable(false);
        QCOMPARE(m_f->takeLines(),
                 QStringList({"SetMicEnable false", "SetSpeakerEnble false", "SetCamreraEnable false"}));
    }

    void nothingGoesOutWhileTheChannelIsDown()
    {
        // Only the flag is down, so that what went out in spite of it would arrive.
        m_f->manager->m_bSocketConnected = false;
        m_f->manager->regeditVoipUser("me", "Nick", "ticket");
        m_f->manager->unRegeditCurrentVoipUser();
        m_f->manager->slot_SetMicEnable(true);
        m_f->manager->slot_SetSpeakerEnable(true);
        m_f->manager->slot_SetCameraEnable(true);
        m_f->manager->slot_SetMicVolume(50);
        m_f->manager->slot_SetSpeakerVolume(50);
        m_f->notify(Code::IncomingCall, "bert");
        m_f->manager->rejectVoipCall();
        m_f->notify(Code::IncomingCall, "bert");
        m_f->notify(Code::CallConnected);
        m_f->manager->hangupVoipCall();
        m_f->notify(Code::IncomingConf, R"({"content":{"from":"anna","confId":"c1"}})");
        m_f->manager->addConferenceMember({"carl"});
        m_f->manager->slot_MuteAll(true);
        m_f->manager->rejectVoipCall();
        QCOMPARE(m_f->takeLines(), QStringList());
        QCOMPARE(m_f->manager->m_strUserId, QString("me"));
        // Accepting alone does not look at the channel.
        m_f->manager->acceptVoipCall();
        QCOMPARE(m_f->takeLines(), QStringList{"AcceptCall"});
    }

private:
    /// The 4159 requests so far as "ids|versions|flag".
    static QStringList strangerRequests(EngineFixture &f)
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
};

#include "support/TestProgram.h"
VOIP_TEST(tst_SingleCall, Widgets)
#include "tst_SingleCall.moc"
