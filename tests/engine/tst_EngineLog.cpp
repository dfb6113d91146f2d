// The log records of the engine: each operation's words, at debug level but for the call process's path.

#include "fakes/EngineTest.h"
#include "fakes/LogCapture.h"

#include <QCoreApplication>
#include <QLocalSocket>
#include <QTest>

#include <functional>
#include <memory>

using Step = std::function<void(EngineFixture &)>;
Q_DECLARE_METATYPE(Step)

class tst_EngineLog : public EngineTest<EngineFixture>
{
    Q_OBJECT

private slots:
    void initTestCase() { m_log = std::make_unique<LogCapture>(); }

    void startNamesTheProgramAndTheSteps()
    {
        m_f.reset();
        takeTexts();
        begin();
        const QString program = QCoreApplication::applicationDirPath() + "/VoipSDK/Contents/MacOS/VoipSDK";
        QCOMPARE(takeTexts().mid(0, 4), QStringList({"DEBUG init VoipSDK", "INFO " + program,
                                                     "DEBUG creat sdk socket connect", "DEBUG sdk socket connected!"}));
    }

    void operationWritesItsRecord_data()
    {
        QTest::addColumn<Step>("run");
        QTest::addColumn<QString>("text");

        const auto add = [](const char *text, const Step &run) {
            QTest::newRow(text) << run << QString::fromUtf8(text);
        };
        add("DEBUG clear call data!", [](EngineFixture &f) { f.manager->clearLocalCallData(); });
        add("DEBUG play call ring", [](EngineFixture &f) { f.manager->playReceviceCall(); });
        add("DEBUG stop ring!", [](EngineFixture &f) { f.manager->stopRinging(); });
        add("DEBUG exit voip when client exit!", [](EngineFixture &f) { f.manager->exitVoip(); });
        add("DEBUG disconnenct voipsdk socket!", [](EngineFixture &f) { f.manager->exitVoip(); });
        add("DEBUG invite call time out!", [](EngineFixture &f) { f.manager->slot_inviteCallTimeout(); });
        add("DEBUG recevie call connect time out!", [](EngineFixture &f) { f.manager->slot_recevieCallTimeout(); });
        add("DEBUG creat sdk socket connect", [](EngineFixture &f) {
            f.process.close();
            f.manager->disconnectVoipSDKSocket();
            f.manager->slot_ReConnectVoipSDK();
        });
        add("DEBUG sdk socket error = 1",
            [](EngineFixture &f) { f.manager->slot_DisplayError(QLocalSocket::PeerClosedError); });
        add("DEBUG sdk socket disconnect errorUnknown error",
            [](EngineFixture &f) { f.manager->slot_VoipSDKDisConnected(); });
        add("DEBUG sendVoipMsg = text", [](EngineFixture &f) { f.manager->sendVoipMessage("text\n"); });
        add("DEBUG regedit userid = me, nickName = Nick",
            [](EngineFixture &f) { f.manager->regeditVoipUser("me", "Nick", "ticket"); });
        add("DEBUG unregedit current user ", [](EngineFixture &f) { f.manager->unRegeditCurrentVoipUser(); });
        add("DEBUG SetMicEnable = 1", [](EngineFixture &f) { f.manager->slot_SetMicEnable(true); });
        add("DEBUG SetSpeakerEnable = 0", [](EngineFixture &f) { f.manager->slot_SetSpeakerEnable(false); });
        add("DEBUG SetCameraEnable = 1", [](EngineFixture &f) { f.manager->slot_SetCameraEnable(true); });
        add("DEBUG Voip Sdk call back msg iCode=6, string=text", [](EngineFixture &f) { f.notify(6, "text"); });
        add("DEBUG Voip Sdk call back msg iCode=-7, string=", [](EngineFixture &f) { f.notify(-7); });
        add("DEBUG voipsdk:text", [](EngineFixture &f) { f.notify(Code::SdkLog, "text"); });
        add("DEBUG voipsdk:bert", [](EngineFixture &f) { f.notify(Code::ConfMemberRejected, "bert"); });
        add("DEBUG add conf member result={}", [](EngineFixture &f) { f.notify(Code::ConfAddResult, "{}"); });
        add("DEBUG user singlecall touser = anna, isVideo = 1",
            [](EngineFixture &f) { f.manager->callSingleUser("anna", true); });
        add("DEBUG recevie call user=bert, bIsConf=0, bIsVideo=0",
            [](EngineFixture &f) { f.notify(Code::IncomingCall, "bert"); });
        add("DEBUG recevie call user=anna, bIsConf=1, bIsVideo=1",
            [](EngineFixture &f) { f.manager->notifyRecevieVoipCall("anna", true, true); });
        add("DEBUG use response voip request, baccept = 0",
            [](EngineFixture &f) { f.manager->responseVoipRequest(false); });
        add("DEBUG accept voip call", [](EngineFixture &f) { f.manager->acceptVoipCall(); });
        add("DEBUG singel call accept !", [](EngineFixture &f) { f.manager->acceptVoipCall(); });
        add("DEBUG conf accepted!", [](EngineFixture &f) {
            f.manager->m_callData.bIsConf = true;
            f.manager->acceptVoipCall();
        });
        add("DEBUG reject call!", [](EngineFixture &f) { f.manager->rejectVoipCall(); });
        add("DEBUG hangup voip call!", [](EngineFixture &f) { f.manager->hangupVoipCall(); });
        add("DEBUG call finish!", [](EngineFixture &f) {
            f.notify(Code::IncomingCall, "bert");
            f.notify(Code::PeerCanceled);
        });
        add("DEBUG client connected, regedit user!", [](EngineFixture &f) { f.manager->clientConnectStatus(true); });
        add("DEBUG client disconnect, hangupcall, unrededit user!",
            [](EngineFixture &f) { f.manager->clientConnectStatus(false); });
        add("DEBUG call conf uselist = anna,bert", [](EngineFixture &f) {
            f.manager->callConference({"anna", "bert"}, true, "");
        });
        add("DEBUG add conf member = anna,bert", [](EngineFixture &f) {
            f.manager->addConferenceMember({"anna", "bert"});
        });
        add("DEBUG reInvite conf user = anna", [](EngineFixture &f) {
            f.manager->m_callData.bIsConf = true;
            f.manager->m_callData.bIsCaller = true;
            f.manager->slot_ReInviteConfUser("anna");
        });
        add("DEBUG remove conf member = anna",
            [](EngineFixture &f) { f.manager->slot_RemoveConferenceMember("anna"); });
        add("DEBUG mute conf user id = anna, bMute = 1",
            [](EngineFixture &f) { f.manager->slot_MuteConferenceMember("anna", true); });
        add("DEBUG bMuteAll = 0", [](EngineFixture &f) { f.manager->slot_MuteAll(false); });
        add("DEBUG control conf operation = 2, isAllMember = 1, userid = anna",
            [](EngineFixture &f) { f.manager->controlConference(CVoipManage::UnMute, true, "anna"); });
        add("DEBUG update conf connected users = anna,bert", [](EngineFixture &f) {
            f.manager->m_callData.connectedList = QStringList{"anna", "bert"};
            f.manager->updateConferenceListStatus();
        });
        add("DEBUG updateUserInfo userID = anna",
            [](EngineFixture &f) { f.manager->updateUserInfo("anna", VcardInfo()); });
        add("DEBUG show voice conf detaileInfo!", [](EngineFixture &f) { f.manager->showVoiceConf(); });
    }

    void operationWritesItsRecord()
    {
        QFETCH(Step, run);
        QFETCH(QString, text);
        takeTexts();
        run(*m_f);
        const QStringList texts = takeTexts();
        QVERIFY2(texts.count(text) == 1, qPrintable(texts.join('\n')));
    }

    void operationWithoutAnEffectWritesNothing()
    {
        takeTexts();
        m_f->manager->slot_ReInviteConfUser("anna");
        m_f->manager->slot_SetMicVolume(50);
        m_f->manager->recevieVoipMessage("no JSON\n");
        m_f->manager->recevieVoipMessage("{\"resultCode\":-1}\n");
        m_f->manager->voipLogPrint("u", "v");
        QCOMPARE(takeTexts(), QStringList("DEBUG sendVoipMsg = {\"messagetype\":\"SetMicVolume\",\"param1\":5}"));
    }

    void commandWithoutASocketIsStillLogged()
    {
        m_f->manager->disconnectVoipSDKSocket();
        takeTexts();
        m_f->manager->sendVoipMessage("text\n");
        QCOMPARE(takeTexts(), QStringList{"DEBUG sendVoipMsg = text"});
    }

    void wholeCallReadsInItsOrder()
    {
        takeTexts();
        m_f->notify(Code::IncomingCall, "bert");
        m_f->manager->responseVoipRequest(false);
        const QStringList texts = takeTexts();
        QCOMPARE(texts.mid(0, 11),
                 QStringList({"DEBUG Voip Sdk call back msg iCode=0, string=bert", "DEBUG play call ring",
                              "DEBUG recevie call user=bert, bIsConf=0, bIsVideo=0",
                              "DEBUG use response voip request, baccept = 0", "DEBUG reject call!",
                              "DEBUG sendVoipMsg = {\"messagetype\":\"RejectCall\"}", "DEBUG stop ring!",
                              "DEBUG call finish!", "DEBUG clear call data!", "DEBUG clear call info!",
                              "DEBUG setmic bMute = 0"}));
    }

    void refusedCallIsLoggedBeforeItsTests_data()
    {
        QTest::addColumn<Step>("run");
        QTest::addColumn<QString>("text");

        QTest::newRow("single call") << Step([](EngineFixture &f) { f.manager->callSingleUser("anna", false); })
                                     << "DEBUG user singlecall touser = anna, isVideo = 0";
        QTest::newRow("conference") << Step([](EngineFixture &f) { f.manager->callConference({"anna"}, false, ""); })
                                    << "DEBUG call conf uselist = anna";
    }

    void refusedCallIsLoggedBeforeItsTests()
    {
        QFETCH(Step, run);
        QFETCH(QString, text);
        m_f->notify(Code::IncomingCall, "bert");
        takeTexts();
        run(*m_f);
        QCOMPARE(m_f->boxes.texts.size(), 1);
        QCOMPARE(takeTexts(), QStringList{text});
    }

    void operationReadsInItsOrder_data()
    {
        QTest::addColumn<Step>("run");
        QTest::addColumn<QStringList>("texts");

        const auto add = [](const char *name, const Step &run, const QStringList &texts) {
            QTest::newRow(name) << run << texts;
        };
        add("accept", [](EngineFixture &f) { f.manager->acceptVoipCall(); },
            {"DEBUG accept voip call", "DEBUG stop ring!"});
        add("hang-up", [](EngineFixture &f) { f.manager->hangupVoipCall(); },
            {"DEBUG hangup voip call!", "DEBUG stop ring!"});
        add("mute one", [](EngineFixture &f) { f.manager->slot_MuteConferenceMember("anna", true); },
            {"DEBUG mute conf user id = anna, bMute = 1",
             "DEBUG control conf operation = 1, isAllMember = 0, userid = anna"});
        add("mute all", [](EngineFixture &f) { f.manager->slot_MuteAll(true); },
            {"DEBUG bMuteAll = 1", "DEBUG control conf operation = 1, isAllMember = 1, userid = "});
        add("invite again", [](EngineFixture &f) { f.manager->slot_ReInviteConfUser("anna"); },
            {"DEBUG reInvite conf user = anna", "DEBUG add conf member = anna"});
        add("remove", [](EngineFixture &f) { f.manager->slot_RemoveConferenceMember("anna"); },
            {"DEBUG remove conf member = anna", "DEBUG control conf operation = 0, isAllMember = 0, userid = anna"});
    }

    void operationReadsInItsOrder()
    {
        QFETCH(Step, run);
        QFETCH(QStringList, texts);
        m_f->createConference();
        m_f->manager->m_callData.connectedList = QStringList{"anna"};
        takeTexts();
        run(*m_f);
        QCOMPARE(takeTexts().mid(0, texts.size()), texts);
    }

    void clientGoneUnregistersBehindTheHangUp()
    {
        takeTexts();
        m_f->manager->clientConnectStatus(false);
        QCOMPARE(takeTexts().mid(0, 4),
                 QStringList({"DEBUG client disconnect, hangupcall, unrededit user!", "DEBUG hangup voip call!",
                              "DEBUG stop ring!", "DEBUG unregedit current user "}));
    }

    void cleanupTestCase() { m_log.reset(); }

private:
    /// What has been logged since the last call, as "LEVEL text".
    QStringList takeTexts() { return m_log->takeTexts(); }

    std::unique_ptr<LogCapture> m_log;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_EngineLog, Widgets)
#include "tst_EngineLog.moc"
