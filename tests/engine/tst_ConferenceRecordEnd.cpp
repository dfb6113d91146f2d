// When a conference is recorded: once, at its end, whoever ends it and however.

#include "engine/RecordedConference.h"
#include "fakes/Patience.h"
#include "store/DBConfInfo.h"
#include "ui/VoipWidget.h"

#include <QTest>

#include <functional>

using Step = std::function<void(RecordedEngine &)>;
Q_DECLARE_METATYPE(Step)

namespace {

/// Whom an end concerns: the creator, an invited member, or both.
enum Side
{
    Both,
    Creator,
    Invited
};

/// When an end can come: at any time, or before the connection only.
enum Time
{
    AnyTime,
    BeforeTheConnection
};

struct End
{
    const char *name;
    Side side;
    Time time;
    Step run;
};

const QList<End> &ends()
{
    static const QList<End> s_ends{
        {"code 3", Both, AnyTime, [](RecordedEngine &f) { f.notify(Code::RejectRequest); }},
        {"code 4", Both, AnyTime, [](RecordedEngine &f) { f.notify(Code::PeerCanceled); }},
        {"code 5 with the own id", Both, AnyTime, [](RecordedEngine &f) { f.notify(Code::UserRejected, "me"); }},
        {"code 7", Both, AnyTime, [](RecordedEngine &f) { f.notify(Code::CallEnded); }},
        {"code 8", Both, AnyTime, [](RecordedEngine &f) { f.notify(Code::PeerHangup); }},
        {"code 9", Both, AnyTime, [](RecordedEngine &f) { f.notify(Code::PeerHangupAlt); }},
        {"code 10", Both, AnyTime, [](RecordedEngine &f) { f.notify(Code::PeerRejected); }},
        {"code 19", Both, AnyTime, [](RecordedEngine &f) { f.notify(Code::CallFailed); }},
        {"code 20 without content", Both, AnyTime, [](RecordedEngine &f) { f.notify(Code::ConfCreated); }},
        {"code 22", Both, AnyTime, [](RecordedEngine &f) { f.notify(Code::PeerBusy); }},
        {"code 23", Both, AnyTime, [](RecordedEngine &f) { f.notify(Code::CallFailedAlt); }},
        {"code 24", Both, AnyTime, [](RecordedEngine &f) { f.notify(Code::CallFailedAlt2); }},
        {"hung up", Both, AnyTime, [](RecordedEngine &f) { f.manager->hangupVoipCall(); }},
        {"the window closed", Both, AnyTime, [](RecordedEngine &f) { f.manager->m_pVoipWidget->close(); }},
        {"the client offline", Both, AnyTime, [](RecordedEngine &f) { f.manager->clientConnectStatus(false); }},
        {"the client's exit", Both, AnyTime, [](RecordedEngine &f) { f.manager->exitVoip(); }},
        {"refused by the host", Both, AnyTime, [](RecordedEngine &f) { f.manager->responseVoipRequest(false); }},
        {"the invite timer", Creator, BeforeTheConnection,
         [](RecordedEngine &f) {
             f.manager->m_inviteTimer.start(0);
             QTRY_VERIFY_WITH_TIMEOUT(!f.manager->m_inviteTimer.isActive(), cPatienceMs);
         }},
        {"the receive timer", Invited, BeforeTheConnection,
         [](RecordedEngine &f) {
             f.manager->m_recevieTimer.start(0);
             QTRY_VERIFY_WITH_TIMEOUT(!f.manager->m_recevieTimer.isActive(), cPatienceMs);
         }},
        {"hung up after the socket was lost", Both, AnyTime,
         [](RecordedEngine &f) {
             f.process.close();
             QTRY_VERIFY_WITH_TIMEOUT(!f.manager->m_bSocketConnected, cPatienceMs);
             QCOMPARE(f.count(), 0);
             QVERIFY(f.manager->isExistCall());
             f.manager->hangupVoipCall();
         }},
    };
    return s_ends;
}

} // namespace

class tst_ConferenceRecordEnd : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { enterZoneOfRecords(); }

    void everyEndWritesOneRecord_data()
    {
        QTest::addColumn<bool>("creator");
        QTest::addColumn<bool>("connected");
        QTest::addColumn<Step>("run");

        for (const End &end : ends()) {
            for (const bool creator : {true, false}) {
                if (end.side == (creator ? Invited : Creator)) {
                    continue;
                }
                QTest::addRow("%s, %s", end.name, creator ? "creator" : "invited") << creator << false << end.run;
                if (end.time == AnyTime) {
                    QTest::addRow("%s, connected %s", end.name, creator ? "creator" : "invited")
                        << creator << true << end.run;
                }
            }
        }
    }

    void everyEndWritesOneRecord()
    {
        QFETCH(bool, creator);
        QFETCH(bool, connected);
        QFETCH(Step, run);
        RecordedEngine f;
        creator ? createConference(f) : joinConference(f);
        if (connected) {
            f.notify(Code::CallConnected);
            f.connectedFor(65);
        }
        run(f);
        const QList<QStringList> rows = f.rows();
        QCOMPARE(rows.size(), 1);
        const int seconds = QString(rows.constFirst().at(3)).remove('\'').toInt();
        QVERIFY(connected ? seconds >= 65 && seconds < 600 : seconds == 0);
        QCOMPARE(rows.constFirst(),
                 QStringList({"'c1'", creator ? "'me'" : "'anna'", "'2023-11-15 06:13:20'",
                              "'" + QString::number(seconds) + "'",
                              creator ? "'anna,bert,me,carl,'" : "'anna,me,bert,'", connected ? "1" : "0"}));
        QCOMPARE(f.state(), QString("idle"));
        QVERIFY(!f.manager->m_pVoipWidget->isVisible());
        QCOMPARE(f.host.received(MSG_CALL_FINISHED).size(), 0);
    }

    void secondEndWritesNoSecondRecord()
    {
        RecordedEngine f;
        createConference(f);
        f.notify(Code::CallEnded);
        const QStringList records = f.records();
        DBConfInfo::deleteConfInfo("c1");
        f.notify(Code::CallEnded);
        f.manager->hangupVoipCall();
        f.manager->callFinished(CallData::FinishHangup);
        QCOMPARE(records.size(), 1);
        QCOMPARE(f.count(), 0);
    }

    void endWhileTheHostTakesItsPromptAwayWritesOneRecord()
    {
        RecordedEngine f;
        joinConference(f);
        f.notify(Code::CallConnected);
        int prompts = 0;
        f.whileHandled = [&](BaseEvent &event) {
            // Once only: the end within the end takes the prompt away as well.
            if (event.msgId == MSG_CLOSE_AV_MSGBOX && ++prompts == 1) {
                f.manager->callFinished(CallData::FinishHangup);
            }
        };
        f.notify(Code::CallEnded);
        QCOMPARE(prompts, 2);
        QCOMPARE(f.records(), QStringList{"'c1' 'anna' '2023-11-15 06:13:20' '0' 'anna,me,bert,' 1"});
        QCOMPARE(f.state(), QString("idle"));
    }

    void singleCallLeavesNoRecord()
    {
        RecordedEngine f;
        f.manager->callSingleUser("anna", false);
        f.notify(Code::CallConnected);
        f.notify(Code::PeerHangup);
        f.notify(Code::IncomingCall, "bert");
        f.notify(Code::PeerCanceled);
        QCOMPARE(f.host.received(MSG_CALL_FINISHED).size(), 2);
        QCOMPARE(f.count(), 0);
    }

    void recordIsThereWhenTheWindowCloses()
    {
        RecordedEngine f;
        createConference(f);
        QList<int> counts;
        connect(f.manager->m_pVoipWidget, &CVoipWidget::signal_HangupCurrentCall, this, [&] { counts << f.count(); });
        f.notify(Code::CallEnded);
        QCOMPARE(counts, QList<int>{1});
    }

    void withoutAStoreTheConferenceEndsAllTheSame()
    {
        EngineFixture f;
        f.createConference();
        f.notify(Code::CallEnded);
        QCOMPARE(f.state(), QString("idle"));
        QVERIFY(!f.manager->m_pVoipWidget->isVisible());
        f.manager->slot_DeleteConfInfoData("c1");
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ConferenceRecordEnd, Widgets)
#include "tst_ConferenceRecordEnd.moc"
