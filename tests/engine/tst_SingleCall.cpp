// One call between two people: placing, receiving and accepting it, and what goes out meanwhile.

#include "WhileAsked.h"
#include "fakes/EngineFixture.h"
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

class tst_SingleCall : public QObject
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
        EngineFixture f;
        f.host.friendJids.insert(EngineFixture::jid("bert"));
        f.manager->callSingleUser(user, false);
        QTEST(strangerRequests(f), "requests");
    }

    void placedCallAsksTheHostAboutEverybody()
    {
        EngineFixture f;
        FriendData known(EngineFixture::jid("kv6005626532"));
        f.context.setFriendDataMap({{known.m_strJid, known}});
        f.manager->callSingleUser("kv6005626532", false);
        QCOMPARE(f.host.received(MSG_IS_EXIST_FRIEND).size(), 1);
        QCOMPARE(f.host.received(MSG_GET_FRIEND_INFO).size(), 0);
    }

    void placedCallIsSentAndShownBehindTheQueries()
    {
        EngineFixture f;
        WhileAsked asked(f);
        f.manager->callSingleUser("anna", true);
        // The caller and the peer are known by then, the video is not.
        QCOMPARE(asked.call, QString("0|0|1|0|||anna|||"));
        QCOMPARE(asked.lines, QStringList());
        QVERIFY(!asked.bShown);
        QCOMPARE(f.callText(), QString("0|1|1|0|||anna|||"));
    }

    void callWhileACallExistsIsRefusedWithAMessage_data()
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

    void callWhileACallExistsIsRefusedWithAMessage()
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

    void callWithoutTheChannelIsRefusedWithAMessage()
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

    void existingCallIsToldBeforeTheMissingChannel()
    {
        EngineFixture f(EngineFixture::NoCallProcess);
        f.notify(0, "bert");
        f.manager->callSingleUser("anna", false);
        QCOMPARE(f.boxes.texts, QStringList{"soundfailedinsound"});
    }

    void messageIsTitledAndHasOneButton()
    {
        EngineFixture f(EngineFixture::NoCallProcess);
        bool acceptShown = true;
        QStringList buttonTexts;
        const QWidget *parent = f.manager->m_pVoipWidget;
        f.boxes.whileOpen = [&] {
            const QWidget *box = QApplication::activeModalWidget();
            const auto *accept = box->findChild<PushButtonEx *>("acceptBtn");
            acceptShown = accept->isVisible();
            buttonTexts = QStringList{accept->text(), box->findChild<PushButtonEx *>("closeBtn")->text()};
            parent = box->parentWidget();
        };
        f.manager->callSingleUser("anna", false);
        QCOMPARE(f.boxes.titles, QStringList{"tip"});
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
        EngineFixture f;
        f.host.friendJids.insert(EngineFixture::jid("bert"));
        f.notify(0, user);
        QTEST(strangerRequests(f), "requests");
    }

    void promptComesAfterTheQueriesAndBeforeTheTimer()
    {
        EngineFixture f;
        QString stateMeanwhile;
        f.whileHandled = [&](BaseEvent &event) {
            if (event.msgId != MSG_RECEVIE_VOIP_CALL) {
                return;
            }
            stateMeanwhile = f.state();
        };
        f.notify(0, "bert");
        QCOMPARE(f.host.commands(), QList<int>({MSG_GET_FRIEND_INFO, MSG_IS_EXIST_FRIEND, MSG_RECEVIE_VOIP_CALL}));
        QCOMPARE(stateMeanwhile, QString("incoming bert, ring"));
        QCOMPARE(f.state(), QString("incoming bert, receive, ring"));
    }

    void acceptShowsTheWindowAndKeepsTheTimer()
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

    void acceptWithoutACallShowsTheWindow()
    {
        EngineFixture f;
        f.manager->responseVoipRequest(true);
        QCOMPARE(f.takeJournal(), QStringList{"AcceptCall"});
        QVERIFY(f.manager->m_pVoipWidget->isVisible());
        QVERIFY(!f.manager->isExistCall());
    }

    void videoCallIsNeverReportedAsVideo()
    {
        EngineFixture f;
        QVERIFY(!f.manager->isVideoCall());
        f.manager->callSingleUser("anna", true);
        QVERIFY(f.manager->m_callData.bIsVideo);
        QVERIFY(!f.manager->isVideoCall());
    }

    void deviceControlsGoOutWithoutACall()
    {
        EngineFixture f;
        f.manager->slot_SetMicEnable(false);
        f.manager->slot_SetSpeakerEnable(false);
        f.manager->slot_SetCameraEnable(false);
        QCOMPARE(f.takeLines(), QStringList({"SetMicEnable false", "SetSpeakerEnble false", "SetCamreraEnable false"}));
    }

    void nothingGoesOutWhileTheChannelIsDown()
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
