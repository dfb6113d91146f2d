// A machine without any audio input. This test's program stands in a folder whose qt.conf hides the audio plug-ins.

#include "fakes/EngineFixture.h"
#include "fakes/Patience.h"
#include "ui/VoipWidget.h"

#include <QAudioDeviceInfo>
#include <QTest>

namespace {

const QString cCannotCall = QStringLiteral("未检测到麦克风，无法发起呼叫");
const QString cCannotAccept = QStringLiteral("未检测到麦克风，无法接受呼叫");
const QStringList cBertRejected{"RejectCall", "4345 bert@kelvar.im", "4478 false bert 26 false false",
                                "SetMicEnable true", "SetSpeakerEnble true"};

} // namespace

class tst_NoMicrophone : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(QAudioDeviceInfo::availableDevices(QAudio::AudioInput).isEmpty()); }

    void callIsRefusedWithTheFirstMessage_data()
    {
        QTest::addColumn<bool>("conference");
        QTest::addColumn<bool>("channel");
        QTest::addColumn<bool>("call");

        QTest::newRow("single call") << false << true << false;
        QTest::newRow("single call while a call exists") << false << true << true;
        QTest::newRow("single call while the channel is down") << false << false << false;
        QTest::newRow("conference") << true << true << false;
        QTest::newRow("conference while a call exists") << true << true << true;
        QTest::newRow("conference while the channel is down") << true << false << false;
    }

    void callIsRefusedWithTheFirstMessage()
    {
        QFETCH(bool, conference);
        QFETCH(bool, channel);
        QFETCH(bool, call);
        EngineFixture f(channel ? EngineFixture::WithCallProcess : EngineFixture::NoCallProcess);
        QVERIFY(!f.manager->getIsHasAudioInputDevice());
        if (call) {
            f.notify(0, "bert");
        }
        f.takeJournal();
        const QString before = f.state();
        if (conference) {
            f.manager->callConference({"anna"}, false, "");
        } else {
            f.manager->callSingleUser("anna", true);
        }
        QCOMPARE(f.boxes.texts, QStringList{cCannotCall});
        QCOMPARE(f.state(), before);
        QCOMPARE(f.takeJournal(), QStringList());
        QVERIFY(!f.manager->m_callData.bIsCaller);
        QVERIFY(!f.manager->m_callData.bIsVideo);
        QVERIFY(!f.manager->m_callData.bIsConf);
    }

    void acceptSaysSoAndRejects()
    {
        EngineFixture f;
        f.notify(0, "bert");
        f.takeJournal();
        f.boxes.whileOpen = [&f] { QCOMPARE(f.state(), QString("incoming bert, receive")); };
        f.manager->responseVoipRequest(true);
        QCOMPARE(f.boxes.texts, QStringList{cCannotAccept});
        QCOMPARE(f.takeJournal(), cBertRejected);
        QCOMPARE(f.state(), QString("idle"));
        QVERIFY(!f.manager->m_pVoipWidget->isVisible());
    }

    void acceptOfAConferenceRejectsTheConference()
    {
        EngineFixture f;
        f.notify(2, R"({"content":{"from":"anna","confId":"c1"}})");
        f.takeJournal();
        f.manager->responseVoipRequest(true);
        QCOMPARE(f.boxes.texts, QStringList{cCannotAccept});
        QCOMPARE(f.takeJournal(),
                 QStringList({"RejectConf", "4345 anna@kelvar.im", "SetMicEnable true", "SetSpeakerEnble true"}));
    }

    void ringStopsBeforeTheMessage()
    {
        EngineFixture f;
        f.notify(0, "bert");
        QString stateWhileOpen = f.state();
        QVERIFY(stateWhileOpen.contains("ring"));
        f.boxes.whileOpen = [&] { stateWhileOpen = f.state(); };
        f.manager->acceptVoipCall();
        QCOMPARE(stateWhileOpen, QString("incoming bert, receive"));
    }

    void receiveTimerMayEndTheCallWhileTheMessageIsOpen()
    {
        EngineFixture f;
        f.notify(0, "bert");
        f.takeJournal();
        QStringList journalWhileOpen;
        f.boxes.whileOpen = [&] {
            f.manager->slot_recevieCallTimeout();
            journalWhileOpen = f.takeJournal();
        };
        f.manager->responseVoipRequest(true);
        QCOMPARE(journalWhileOpen, cBertRejected);
        // The reject behind the message goes out again, and there is no call left to end.
        QCOMPARE(f.takeJournal(), QStringList{"RejectCall"});
        QCOMPARE(f.host.received(MSG_CALL_FINISHED).size(), 1);
    }

    void socketLinesAreHandledWhileTheMessageIsOpen()
    {
        EngineFixture f;
        f.notify(0, "bert");
        f.takeJournal();
        bool endedWhileOpen = false;
        f.boxes.whileOpen = [&] {
            f.process.send(FakeCallProcess::line(4));
            QTRY_VERIFY_WITH_TIMEOUT(!f.manager->isExistCall(), cPatienceMs);
            endedWhileOpen = true;
        };
        f.manager->responseVoipRequest(true);
        QVERIFY(endedWhileOpen);
        QCOMPARE(f.takeJournal(), QStringList({"4345 bert@kelvar.im", "4478 false bert 21 false false",
                                               "SetMicEnable true", "SetSpeakerEnble true", "RejectCall"}));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_NoMicrophone, Widgets)
#include "tst_NoMicrophone.moc"
