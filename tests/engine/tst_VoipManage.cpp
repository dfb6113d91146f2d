// The call manager itself: how it starts, what it offers to Qt, the ring, the window's wires, the exit.

#include "fakes/EngineFixture.h"
#include "fakes/QtMessages.h"
#include "plugin/VoipManageMessageProcess.h"
#include "ui/VoipWidget.h"

#include <QMetaMethod>
#include <QProcess>
#include <QSound>
#include <QTest>

#include <functional>

using WindowSignal = std::function<void(CVoipWidget &)>;
Q_DECLARE_METATYPE(WindowSignal)

class tst_VoipManage : public QObject
{
    Q_OBJECT

private slots:
    void startsIdle()
    {
        EngineFixture f;
        QCOMPARE(f.state(), QString("idle"));
        const CallData &call = f.manager->m_callData;
        QVERIFY(!call.bIsConf && !call.bIsVideo && !call.bIsCaller && !call.bIsConnected);
        QVERIFY(call.memberList.isEmpty() && call.connectedList.isEmpty());
        QVERIFY(call.peerId.isEmpty() && call.confId.isEmpty());
        QVERIFY(call.connectTime.isNull() && call.createTime.isNull());
        QCOMPARE(f.manager->m_strUserId + f.manager->m_strNickName + f.manager->m_strRegValue, QString());
        QVERIFY(!f.manager->m_bSdkFlag);
        QCOMPARE(f.manager->m_nReconnectCount, Q_INT64_C(0));
        QVERIFY(!f.manager->m_pVoiceConfWidget);
        QVERIFY(f.manager->m_pVoipProcess);
        QVERIFY(f.manager->m_pVoipWidget);
        QVERIFY(!f.manager->m_pVoipWidget->parent());
        QVERIFY(!f.manager->m_pVoipWidget->isVisible());
        QCOMPARE(f.manager->m_pRingSound->fileName(), QString("Resources/Audio/ring.wav"));
        QCOMPARE(f.manager->m_pRingSound->loops(), -1);
        QCOMPARE(f.host.commands(), QList<int>());
    }

    void startPrintsTheOneKnownWarningAndNoOther()
    {
        EngineFixture f;
        // Qt says the sender's name in a second line, which belongs to the first.
        QCOMPARE(f.startWarnings, QStringList({"QObject::connect: No such slot CVoipManage::clearLocalCallData()",
                                               "QObject::connect:  (sender name:   'CVoipWidget')"}));
    }

    void missingCallProcessIsWrittenToTheDebugLog()
    {
        // No call process stands beside this program.
        const QtMessages messages;
        EngineFixture f(EngineFixture::NoCallProcess);
        QVERIFY(messages.debugLines.contains("voip startDetached,bResult: false"));
    }

    void slotsStandInTheirOrderWithTheirParameters()
    {
        const QStringList expected{"slot_SetMicEnable(bool bEnable)",
                                   "slot_SetSpeakerEnable(bool bEnable)",
                                   "slot_SetCameraEnable(bool bEnable)",
                                   "slot_SetMicVolume(qlonglong iVolume)",
                                   "slot_SetSpeakerVolume(qlonglong iVolume)",
                                   "slot_HangupCurrentCall()",
                                   "slot_AddConfMember()",
                                   "slot_VoipSDKConnected()",
                                   "slot_VoipSDKDisConnected()",
                                   "slot_VoipSDKDataRecevie()",
                                   "slot_DisplayError(QLocalSocket::LocalSocketError socketError)",
                                   "slot_ReConnectVoipSDK()",
                                   "slot_inviteCallTimeout()",
                                   "slot_recevieCallTimeout()",
                                   "slot_RemoveConferenceMember(QString strUserID)",
                                   "slot_MuteConferenceMember(QString strUserID, bool bMute)",
                                   "slot_VoiceConfWidgetClose()",
                                   "slot_MuteAll(bool bMute)",
                                   "slot_ReInviteConfUser(QString strUserID)",
                                   "slot_DeleteConfInfoData(QString strConfID)"};
        QStringList found;
        const QMetaObject &meta = CVoipManage::staticMetaObject;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            const QMetaMethod method = meta.method(i);
            QCOMPARE(method.methodType(), QMetaMethod::Slot);
            QCOMPARE(method.access(), QMetaMethod::Public);
            QStringList parameters;
            for (int p = 0; p < method.parameterCount(); ++p) {
                parameters << method.parameterTypes().at(p) + ' ' + method.parameterNames().at(p);
            }
            found << method.name() + '(' + parameters.join(", ") + ')';
        }
        QCOMPARE(found, expected);
    }

    void finishResultsAndControlSignalsHaveTheirNumbers()
    {
        QCOMPARE(int(CallData::FinishCanceled), 21);
        QCOMPARE(int(CallData::FinishFailed), 22);
        QCOMPARE(int(CallData::FinishHangup), 24);
        QCOMPARE(int(CallData::FinishBusy), 25);
        QCOMPARE(int(CallData::FinishRejected), 26);
        QCOMPARE(int(CVoipManage::Kick), 0);
        QCOMPARE(int(CVoipManage::Mute), 1);
        QCOMPARE(int(CVoipManage::UnMute), 2);
    }

    void instanceIsMadeOnceWithoutAParent()
    {
        EngineFixture f;
        f.manager.reset();
        const QtMessages messages;
        CVoipManage *made = CVoipManage::instance();
        QVERIFY(made);
        QVERIFY(!made->parent());
        QCOMPARE(CVoipManage::instance(), made);
        delete made;
        VoipManageProbe::forget();
    }

    void callExistsByPeerOrMembers()
    {
        EngineFixture f;
        CallData &call = f.manager->m_callData;
        QVERIFY(!f.manager->isExistCall());
        call.bIsConnected = true;
        call.confId = "c1";
        call.connectedList = QStringList{"x"};
        QVERIFY(!f.manager->isExistCall());
        call.peerId = "anna";
        QVERIFY(f.manager->isExistCall());
        call.peerId.clear();
        call.memberList = QStringList{"anna"};
        QVERIFY(f.manager->isExistCall());
    }

    void clearingTouchesTheCallOnly()
    {
        EngineFixture f;
        f.notify(Code::IncomingCall, "bert");
        f.manager->m_pVoipWidget->show();
        f.manager->m_inviteTimer.start(60000);
        CallData &call = f.manager->m_callData;
        call = CallData{true,   true,
                        true,   true,
                        {"a"},  {"b"},
                        "bert", QDateTime::currentDateTimeUtc(),
                        "c1",   QDateTime::currentDateTime()};
        f.takeJournal();
        f.manager->clearLocalCallData();
        QVERIFY(!call.bIsConf && !call.bIsVideo && !call.bIsCaller && !call.bIsConnected);
        QVERIFY(call.memberList.isEmpty() && call.connectedList.isEmpty());
        QVERIFY(call.peerId.isEmpty() && call.confId.isEmpty());
        QVERIFY(call.connectTime.isNull() && call.createTime.isNull());
        QCOMPARE(f.state(), QString("idle, invite, receive, ring"));
        QVERIFY(f.manager->m_pVoipWidget->isVisible());
        QCOMPARE(f.takeJournal(), QStringList());
    }

    void windowSignalsReachTheirSlots_data()
    {
        QTest::addColumn<WindowSignal>("signal");
        QTest::addColumn<QStringList>("journal");

        const auto add = [](const char *name, const WindowSignal &signal, const QStringList &journal) {
            QTest::newRow(name) << signal << journal;
        };
        add("microphone", [](CVoipWidget &w) { emit w.signal_SetMicEnable(false); }, {"SetMicEnable false"});
        add("speaker", [](CVoipWidget &w) { emit w.signal_SetSpeakerEnable(false); }, {"SetSpeakerEnble false"});
        add("camera", [](CVoipWidget &w) { emit w.signal_SetCameraEnable(true); }, {"SetCamreraEnable true"});
        add("microphone volume", [](CVoipWidget &w) { emit w.signal_SetMicVolume(57); }, {"SetMicVolume 5"});
        add("speaker volume", [](CVoipWidget &w) { emit w.signal_SetSpeakerVolume(57); }, {"SetSpeakerVolume 5"});
        add("hang-up", [](CVoipWidget &w) { emit w.signal_HangupCurrentCall(); },
            {"HangupConf", "SetMicEnable true", "SetSpeakerEnble true"});
        add("adding members", [](CVoipWidget &w) { emit w.signal_AddConferenceMember(); },
            {"Add2Conference [\"carl\"] \"me\" \"me\" false \"\" [\"anna\"]"});
        add("removing a member", [](CVoipWidget &w) { emit w.signal_RemoveUser("anna"); },
            {"ControlConf \"kick\" \"anna\""});
        add("muting a member", [](CVoipWidget &w) { emit w.signal_MuteUser("anna", true); },
            {"ControlConf \"mute\" \"anna\""});
        add("muting all", [](CVoipWidget &w) { emit w.signal_MuteAll(false); },
            {"ControlConf \"unmute\" \"non_moderator\""});
        add("clearing", [](CVoipWidget &w) { emit w.signal_ClearCallData(); }, {});
        add("inviting again", [](CVoipWidget &w) { emit w.signal_ReInviteConfUser("bert"); },
            {"Add2Conference [\"bert\"] \"me\" \"me\" false \"\" [\"anna\"]"});
    }

    void windowSignalsReachTheirSlots()
    {
        QFETCH(WindowSignal, signal);
        EngineFixture f;
        f.manager->m_strUserId = "me";
        f.host.membersToAdd = QStringList{"carl"};
        f.manager->callConference({"anna", "bert"}, false, "");
        f.manager->m_callData.connectedList = QStringList{"anna"};
        f.takeJournal();
        signal(*f.manager->m_pVoipWidget);
        QTEST(f.takeJournal(), "journal");
    }

    void windowCannotClearTheCall()
    {
        EngineFixture f;
        f.manager->callSingleUser("anna", true);
        emit f.manager->m_pVoipWidget->signal_ClearCallData();
        QCOMPARE(f.state(), QString("outgoing anna, invite"));
        QVERIFY(f.manager->m_callData.bIsVideo);
    }

    void volumesGoOutAsTenths_data()
    {
        QTest::addColumn<qint64>("volume");
        QTest::addColumn<QString>("sent");

        QTest::newRow("57") << Q_INT64_C(57) << "5";
        QTest::newRow("9") << Q_INT64_C(9) << "0";
        QTest::newRow("10") << Q_INT64_C(10) << "1";
        QTest::newRow("0") << Q_INT64_C(0) << "0";
        QTest::newRow("-9 is cut towards zero") << Q_INT64_C(-9) << "0";
        QTest::newRow("-19") << Q_INT64_C(-19) << "-1";
        QTest::newRow("beyond 32 bits") << Q_INT64_C(99999999999) << "9999999999";
    }

    void volumesGoOutAsTenths()
    {
        QFETCH(qint64, volume);
        QFETCH(QString, sent);
        EngineFixture f;
        f.manager->slot_SetMicVolume(volume);
        f.manager->slot_SetSpeakerVolume(volume);
        QCOMPARE(f.takeLines(), QStringList({"SetMicVolume " + sent, "SetSpeakerVolume " + sent}));
    }

    void ringIsSilentWhenTheSettingSaysSo_data()
    {
        QTest::addColumn<QString>("closeVoice");
        QTest::addColumn<QString>("state");

        const QString rings = "incoming bert, receive, ring";
        QTest::newRow("1") << "1"
                           << "incoming bert, receive";
        QTest::newRow("0") << "0" << rings;
        QTest::newRow("empty") << "" << rings;
        QTest::newRow("true") << "true" << rings;
        QTest::newRow("1 and a blank") << "1 " << rings;
    }

    void ringIsSilentWhenTheSettingSaysSo()
    {
        QFETCH(QString, closeVoice);
        EngineFixture f;
        f.settings.m_strCloseVoice = closeVoice;
        f.notify(Code::IncomingCall, "bert");
        QTEST(f.state(), "state");
        QCOMPARE(f.takeJournal(), QStringList{"4639 bert false false"});
    }

    void ringLoopsUntilStopped()
    {
        EngineFixture f;
        f.manager->stopRinging();
        f.manager->playReceviceCall();
        QVERIFY(!f.manager->m_pRingSound->isFinished());
        f.manager->playReceviceCall();
        f.manager->stopRinging();
        QVERIFY(f.manager->m_pRingSound->isFinished());
    }

    void ringWithoutSettingsSounds()
    {
        EngineFixture f;
        f.context.setSystemSetData(nullptr);
        f.manager->playReceviceCall();
        QVERIFY(!f.manager->m_pRingSound->isFinished());
    }

    void closingTheLastWindowDoesNotEndTheHost()
    {
        EngineFixture f;
        QVERIFY(!f.manager->m_pVoipWidget->testAttribute(Qt::WA_QuitOnClose));
    }

    void lifeWithoutAHost()
    {
        EngineFixture f;
        f.given.reset();
        VoipManageMessageProcess::instance()->setSendEvent(nullptr);
        f.manager->clientConnectStatus(true);
        f.notify(Code::IncomingCall, "bert");
        f.manager->responseVoipRequest(true);
        f.notify(Code::CallConnected);
        f.notify(Code::CallEnded);
        f.manager->callConference({"anna"}, false, "");
        f.notify(Code::ConfUpdate, R"({"content":{"confId":"c1","conventioneer":["anna","carl"]}})");
        // Nobody picks: the question's own list is read as the answer, and nobody in it is new.
        f.manager->slot_AddConfMember();
        f.manager->clientConnectStatus(false);
        QCOMPARE(f.state(), QString("idle"));
        QCOMPARE(f.takeLines(), QStringList({"RegeditUser \"\" \"\" \"\" false", "AcceptCall", "SetMicEnable true",
                                             "SetSpeakerEnble true", "RequestConference \"\" [\"anna\"] false \"\"",
                                             "Add2Conference null \"\" \"\" false \"\" [\"anna\",\"carl\"]",
                                             "HangupConf", "SetMicEnable true", "SetSpeakerEnble true", "UnReg \"\""}));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_VoipManage, Widgets)
#include "tst_VoipManage.moc"
