// A machine without any audio input. This test's program stands in a folder whose qt.conf hides the audio plug-ins.

#include "fakes/EngineTest.h"
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

class tst_NoMicrophone : public EngineTest<EngineFixture>
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
        begin(channel ? EngineFixture::WithCallProcess : EngineFixture::NoCallProcess);
        QVERIFY(!m_f->manager->getIsHasAudioInputDevice());
        if (call) {
            m_f->notify(Code::IncomingCall, "bert");
        }
        m_f->takeJournal();
        const QString before = m_f->state();
        if (conference) {
            m_f->manager->callConference({"anna"}, false, "");
        } else {
            m_f->manager->callSingleUser("anna", true);
        }
        QCOMPARE(m_f->boxes.texts, QStringList{cCannotCall});
        QCOMPARE(m_f->state(), before);
        QCOMPARE(m_f->takeJournal(), QStringList());
        QVERIFY(!m_f->manager->m_callData.bIsCaller);
        QVERIFY(!m_f->manager->m_callData.bIsVideo);
        QVERIFY(!m_f->manager->m_callData.bIsConf);
    }

    void acceptSaysSoAndRejects()
    {
        m_f->notify(Code::IncomingCall, "bert");
        m_f->takeJournal();
        m_f->boxes.whileOpen = [this] { QCOMPARE(m_f->state(), QString("incoming bert, receive")); };
        m_f->manager->responseVoipRequest(true);
        QCOMPARE(m_f->boxes.texts, QStringList{cCannotAccept});
        QCOMPARE(m_f->takeJournal(), cBertRejected);
        QCOMPARE(m_f->state(), QString("idle"));
        QVERIFY(!m_f->manager->m_pVoipWidget->isVisible());
    }

    void acceptOfAConferenceRejectsTheConference()
    {
        m_f->notify(Code::IncomingConf, R"({"content":{"from":"anna","confId":"c1"}})");
        m_f->takeJournal();
        m_f->manager->responseVoipRequest(true);
        QCOMPARE(m_f->boxes.texts, QStringList{cCannotAccept});
        QCOMPARE(m_f->takeJournal(),
                 QStringList({"RejectConf", "4345 anna@kelvar.im", "SetMicEnable true", "SetSpeakerEnble true"}));
    }

    void ringStopsBeforeTheMessage()
    {
        m_f->notify(Code::IncomingCall, "bert");
        QString stateWhileOpen = m_f->state();
        QVERIFY(stateWhileOpen.contains("ring"));
        m_f->boxes.whileOpen = [&] { stateWhileOpen = m_f->state(); };
        m_f->manager->acceptVoipCall();
        QCOMPARE(stateWhileOpen, QString("incoming bert, receive"));
    }

    void receiveTimerMayEndTheCallWhileTheMessageIsOpen()
    {
        m_f->notify(Code::IncomingCall, "bert");
        m_f->takeJournal();
        QStringList journalWhileOpen;
        m_f->boxes.whileOpen = [&] {
            m_f->manager->slot_recevieCallTimeout();
            journalWhileOpen = m_f->takeJournal();
        };
        m_f->manager->responseVoipRequest(true);
        QCOMPARE(journalWhileOpen, cBertRejected);
        // The reject behind the message goes out again, and there is no call left to end.
        QCOMPARE(m_f->takeJournal(), QStringList{"RejectCall"});
        QCOMPARE(m_f->host.received(MSG_CALL_FINISHED).size(), 1);
    }

    void socketLinesAreHandledWhileTheMessageIsOpen()
    {
        m_f->notify(Code::IncomingCall, "bert");
        m_f->takeJournal();
        bool endedWhileOpen = false;
        m_f->boxes.whileOpen = [&] {
            m_f->process.send(FakeCallProcess::line(Code::PeerCanceled));
            QTRY_VERIFY_WITH_TIMEOUT(!m_f->manager->isExistCall(), cPatienceMs);
            endedWhileOpen = true;
        };
        m_f->manager->responseVoipRequest(true);
        QVERIFY(endedWhileOpen);
        QCOMPARE(m_f->takeJournal(), QStringList({"4345 bert@kelvar.im", "4478 false bert 21 false false",
                                                  "SetMicEnable true", "SetSpeakerEnble true", "RejectCall"}));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_NoMicrophone, Widgets)
#include "tst_NoMicrophone.moc"
