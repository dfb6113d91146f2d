// The record of a conference: written once at its end, whoever ends it and whatever became of it.

#include "engine/RecordedEngine.h"
#include "store/DBConfInfo.h"
#include "ui/VoipWidget.h"

#include <QTest>

#include <ctime>
#include <functional>

using Step = std::function<void(RecordedEngine &)>;
Q_DECLARE_METATYPE(Step)

namespace {

/// 2023-11-14 22:13:20 UTC.
const QString kCreateTime(R"("createTime":1700000000000)");

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
        {"code 3", Both, AnyTime, [](RecordedEngine &f) { f.notify(3); }},
        {"code 4", Both, AnyTime, [](RecordedEngine &f) { f.notify(4); }},
        {"code 5 with the own id", Both, AnyTime, [](RecordedEngine &f) { f.notify(5, "me"); }},
        {"code 7", Both, AnyTime, [](RecordedEngine &f) { f.notify(7); }},
        {"code 8", Both, AnyTime, [](RecordedEngine &f) { f.notify(8); }},
        {"code 9", Both, AnyTime, [](RecordedEngine &f) { f.notify(9); }},
        {"code 10", Both, AnyTime, [](RecordedEngine &f) { f.notify(10); }},
        {"code 19", Both, AnyTime, [](RecordedEngine &f) { f.notify(19); }},
        {"code 20 without content", Both, AnyTime, [](RecordedEngine &f) { f.notify(20); }},
        {"code 22", Both, AnyTime, [](RecordedEngine &f) { f.notify(22); }},
        {"code 23", Both, AnyTime, [](RecordedEngine &f) { f.notify(23); }},
        {"code 24", Both, AnyTime, [](RecordedEngine &f) { f.notify(24); }},
        {"hung up", Both, AnyTime, [](RecordedEngine &f) { f.manager->hangupVoipCall(); }},
        {"the window closed", Both, AnyTime, [](RecordedEngine &f) { f.manager->m_pVoipWidget->close(); }},
        {"the client offline", Both, AnyTime, [](RecordedEngine &f) { f.manager->clientConnectStatus(false); }},
        {"the client's exit", Both, AnyTime, [](RecordedEngine &f) { f.manager->exitVoip(); }},
        {"refused by the host", Both, AnyTime, [](RecordedEngine &f) { f.manager->responseVoipRequest(false); }},
        {"the invite timer", Creator, BeforeTheConnection,
         [](RecordedEngine &f) {
             f.manager->m_inviteTimer.start(0);
             QTRY_VERIFY(!f.manager->m_inviteTimer.isActive());
         }},
        {"the receive timer", Invited, BeforeTheConnection,
         [](RecordedEngine &f) {
             f.manager->m_recevieTimer.start(0);
             QTRY_VERIFY(!f.manager->m_recevieTimer.isActive());
         }},
        {"hung up after the socket was lost", Both, AnyTime,
         [](RecordedEngine &f) {
             f.process.close();
             QTRY_VERIFY(!f.manager->m_bSocketConnected);
             QCOMPARE(f.count(), 0);
             QVERIFY(f.manager->isExistCall());
             f.manager->hangupVoipCall();
         }},
    };
    return s_ends;
}

} // namespace

class tst_ConferenceRecord : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void everyEndWritesOneRecord_data();
    void everyEndWritesOneRecord();
    void endBeforeTheConnectionHasNoLength();
    void rejectedInvitationIsStored();
    void invitationThatTimesOutIsStored();
    void creationThatFailedIsStoredWithoutAnId();
    void missingTimeIsAnEmptyTextNotNull();
    void secondEndWritesNoSecondRecord();
    void endWhileTheHostTakesItsPromptAwayWritesOneRecord();
    void sameConferenceAgainKeepsItsFirstRecord();
    void nextConferenceHasNothingOfTheOneBefore();
    void secondInvitationLeavesTheFirstOne();
    void creatorInvitedElsewhereIsNoCreatorInTheRecord();
    void callThatOverwritesAConferenceLeavesNoConferenceRecord();
    void removedMemberIsNotInTheRecord();
    void memberTextIsStoredAsItIs_data();
    void memberTextIsStoredAsItIs();
    void oddConferenceIds_data();
    void oddConferenceIds();
    void singleCallLeavesNoRecord();
    void recordIsThereWhenTheWindowCloses();
    void withoutAStoreTheConferenceEndsAllTheSame();
    void deletingARecord_data();
    void deletingARecord();

private:
    static void create(RecordedEngine &f);
    static void join(RecordedEngine &f);
};

void tst_ConferenceRecord::initTestCase()
{
    // The creation time is stored in local time: eight hours east of Greenwich.
    qputenv("TZ", "CST-8");
    tzset();
}

/// This side has created c1 with anna and bert, carl has come to it.
void tst_ConferenceRecord::create(RecordedEngine &f)
{
    f.createConference();
    f.notify(12, R"({"content":{"confId":"c1","conventioneer":["me","anna","carl"],)" + kCreateTime + "}}");
}

/// Anna has invited this side to c1, where bert is too; it has accepted.
void tst_ConferenceRecord::join(RecordedEngine &f)
{
    f.manager->m_strUserId = "me";
    f.notify(2, R"({"content":{"confId":"c1","from":"anna",)" + kCreateTime + "}}");
    f.notify(12, R"({"content":{"confId":"c1","conventioneer":["anna","me","bert"]}})");
    f.manager->responseVoipRequest(true);
}

void tst_ConferenceRecord::everyEndWritesOneRecord_data()
{
    QTest::addColumn<bool>("creator");
    QTest::addColumn<bool>("connected");
    QTest::addColumn<Step>("run");

    for (const End &end : ends()) {
        for (const bool creator : {true, false}) {
            if (end.side == (creator ? Invited : Creator))
                continue;
            QTest::addRow("%s, %s", end.name, creator ? "creator" : "invited") << creator << false << end.run;
            if (end.time == AnyTime)
                QTest::addRow("%s, connected %s", end.name, creator ? "creator" : "invited")
                    << creator << true << end.run;
        }
    }
}

void tst_ConferenceRecord::everyEndWritesOneRecord()
{
    QFETCH(bool, creator);
    QFETCH(bool, connected);
    QFETCH(Step, run);
    RecordedEngine f;
    creator ? create(f) : join(f);
    if (connected) {
        f.notify(18);
        f.connectedFor(65);
    }
    run(f);
    const QList<QStringList> rows = f.rows();
    QCOMPARE(rows.size(), 1);
    const int seconds = QString(rows.constFirst().at(3)).remove('\'').toInt();
    QVERIFY(connected ? seconds >= 65 && seconds < 600 : seconds == 0);
    QCOMPARE(
        rows.constFirst(),
        QStringList({"'c1'", creator ? "'me'" : "'anna'", "'2023-11-15 06:13:20'", "'" + QString::number(seconds) + "'",
                     creator ? "'anna,bert,me,carl,'" : "'anna,me,bert,'", connected ? "1" : "0"}));
    QCOMPARE(f.state(), QString("idle"));
    QVERIFY(!f.manager->m_pVoipWidget->isVisible());
    QCOMPARE(f.host.received(MSG_CALL_FINISHED).size(), 0);
}

void tst_ConferenceRecord::endBeforeTheConnectionHasNoLength()
{
    RecordedEngine f;
    create(f);
    f.manager->hangupVoipCall();
    const QList<ConfInfoData> records = DBConfInfo::getAllConfInfo();
    QCOMPARE(records.size(), 1);
    QCOMPARE(records.constFirst().m_strCallTime, QString("0"));
    QVERIFY(!records.constFirst().m_bIsConnect);
    QCOMPARE(records.constFirst().m_listMember, QStringList({"anna", "bert", "me", "carl"}));
}

void tst_ConferenceRecord::rejectedInvitationIsStored()
{
    RecordedEngine f;
    f.notify(2, R"({"content":{"confId":"c1","from":"anna",)" + kCreateTime + "}}");
    f.manager->responseVoipRequest(false);
    QCOMPARE(f.records(), QStringList{"'c1' 'anna' '2023-11-15 06:13:20' '0' '' 0"});
    QCOMPARE(f.takeJournal(), QStringList({"4639 anna true false", "RejectConf", "4345 anna@kelvar.im",
                                           "SetMicEnable true", "SetSpeakerEnble true"}));
}

void tst_ConferenceRecord::invitationThatTimesOutIsStored()
{
    RecordedEngine f;
    f.notify(2, R"({"content":{"confId":"c1","from":"anna"}})");
    f.manager->slot_recevieCallTimeout();
    QCOMPARE(f.records(), QStringList{"'c1' 'anna' '' '0' '' 0"});
    QCOMPARE(f.state(), QString("idle"));
}

void tst_ConferenceRecord::creationThatFailedIsStoredWithoutAnId()
{
    RecordedEngine f;
    f.manager->m_strUserId = "me";
    // An empty id is a key like any other: the second record finds it taken.
    for (int round = 0; round < 2; ++round) {
        f.manager->callConference({"anna"}, false, "");
        f.notify(20);
        QCOMPARE(f.records(), QStringList{"'' 'me' '' '0' 'anna,me,' 0"});
        QCOMPARE(f.state(), QString("idle"));
    }
}

void tst_ConferenceRecord::missingTimeIsAnEmptyTextNotNull()
{
    RecordedEngine f;
    f.createConference();
    f.notify(7);
    QCOMPARE(f.records(), QStringList{"'c1' 'me' '' '0' 'anna,bert,me,' 0"});
}

void tst_ConferenceRecord::secondEndWritesNoSecondRecord()
{
    RecordedEngine f;
    create(f);
    f.notify(7);
    const QStringList records = f.records();
    DBConfInfo::deleteConfInfo("c1");
    f.notify(7);
    f.manager->hangupVoipCall();
    f.manager->callFinished(CallData::FinishHangup);
    QCOMPARE(records.size(), 1);
    QCOMPARE(f.count(), 0);
}

void tst_ConferenceRecord::endWhileTheHostTakesItsPromptAwayWritesOneRecord()
{
    RecordedEngine f;
    join(f);
    f.notify(18);
    int prompts = 0;
    f.whileHandled = [&](BaseEvent &event) {
        // Once only: the end within the end takes the prompt away as well.
        if (event.msgId == MSG_CLOSE_AV_MSGBOX && ++prompts == 1)
            f.manager->callFinished(CallData::FinishHangup);
    };
    f.notify(7);
    QCOMPARE(prompts, 2);
    QCOMPARE(f.records(), QStringList{"'c1' 'anna' '2023-11-15 06:13:20' '0' 'anna,me,bert,' 1"});
    QCOMPARE(f.state(), QString("idle"));
}

void tst_ConferenceRecord::sameConferenceAgainKeepsItsFirstRecord()
{
    RecordedEngine f;
    f.notify(2, R"({"content":{"confId":"c1","from":"anna"}})");
    f.manager->responseVoipRequest(false);
    join(f);
    f.notify(18);
    f.notify(8);
    QCOMPARE(f.records(), QStringList{"'c1' 'anna' '' '0' '' 0"});
    QCOMPARE(f.state(), QString("idle"));
}

void tst_ConferenceRecord::nextConferenceHasNothingOfTheOneBefore()
{
    RecordedEngine f;
    create(f);
    f.notify(18);
    f.connectedFor(65);
    f.notify(8);
    f.notify(2, R"({"content":{"confId":"c2","from":"dora"}})");
    f.notify(12, R"({"content":{"confId":"c2","conventioneer":["dora"]}})");
    f.notify(4);
    QCOMPARE(f.records().constLast(), QString("'c2' 'dora' '' '0' 'dora,' 0"));
    QCOMPARE(f.count(), 2);
}

void tst_ConferenceRecord::secondInvitationLeavesTheFirstOne()
{
    RecordedEngine f;
    f.notify(2, R"({"content":{"confId":"c1","from":"anna"}})");
    f.notify(2, R"({"content":{"confId":"c2","from":"bert",)" + kCreateTime + "}}");
    f.notify(12, R"({"content":{"confId":"c2","conventioneer":["bert","me"]}})");
    QCOMPARE(f.takeJournal(), QStringList{"4639 anna true false"});
    QCOMPARE(f.state(), QString("incoming anna, receive, ring"));
    f.manager->responseVoipRequest(true);
    f.notify(7);
    QCOMPARE(f.records(), QStringList{"'c1' 'anna' '' '0' '' 0"});
    // The second one is free to come again.
    f.notify(2, R"({"content":{"confId":"c2","from":"bert"}})");
    f.manager->responseVoipRequest(false);
    QCOMPARE(f.records().constLast(), QString("'c2' 'bert' '' '0' '' 0"));
}

void tst_ConferenceRecord::creatorInvitedElsewhereIsNoCreatorInTheRecord()
{
    RecordedEngine f;
    create(f);
    f.notify(18);
    f.takeJournal();
    f.notify(2, R"({"content":{"confId":"c2","from":"dora"}})");
    QCOMPARE(f.takeJournal(), QStringList());
    f.manager->slot_ReInviteConfUser("bert");
    QCOMPARE(f.takeJournal(), QStringList());
    f.manager->slot_MuteAll(true);
    QCOMPARE(f.takeJournal(), QStringList{"ControlConf \"mute\" \"non_moderator\""});
    f.notify(8);
    QCOMPARE(f.records(), QStringList{"'c1' '' '2023-11-15 06:13:20' '0' 'anna,bert,me,carl,' 1"});
    QCOMPARE(f.state(), QString("idle"));
}

void tst_ConferenceRecord::callThatOverwritesAConferenceLeavesNoConferenceRecord()
{
    RecordedEngine f;
    create(f);
    f.notify(0, "dora");
    f.notify(4);
    QCOMPARE(f.count(), 0);
    QCOMPARE(f.takeJournal().filter("4478"), QStringList{"4478 false dora 21 false false"});
    QCOMPARE(f.state(), QString("idle"));
}

void tst_ConferenceRecord::removedMemberIsNotInTheRecord()
{
    RecordedEngine f;
    create(f);
    f.manager->slot_RemoveConferenceMember("anna");
    f.manager->addConferenceMember({"dora", "anna"});
    f.manager->slot_RemoveConferenceMember("bert");
    f.notify(7);
    QCOMPARE(f.rows().constFirst().at(4), QString("'me,carl,dora,anna,'"));
}

void tst_ConferenceRecord::memberTextIsStoredAsItIs_data()
{
    QTest::addColumn<QStringList>("users");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("readBack");

    QTest::newRow("nobody") << QStringList() << "me," << QStringList{"me"};
    QTest::newRow("a comma") << QStringList{"a,b"} << "a,b,me," << QStringList{"a", "b", "me"};
    QTest::newRow("an empty id") << QStringList{"", "a"} << ",a,me," << QStringList{"a", "me"};
    QTest::newRow("an apostrophe") << QStringList{"o'neil"} << "o''neil,me," << QStringList{"o'neil", "me"};
    QTest::newRow("a quote") << QStringList{"\"x\""} << "\"x\",me," << QStringList{"\"x\"", "me"};
    QTest::newRow("a line feed") << QStringList{"a\nb"} << "a\nb,me," << QStringList{"a\nb", "me"};
    QTest::newRow("the same twice") << QStringList{"a", "a"} << "a,a,me," << QStringList{"a", "a", "me"};
    QStringList many;
    for (int i = 0; i < 2000; ++i)
        many << "member" + QString::number(i);
    QTest::newRow("more than the column's nominal width")
        << many << many.join(',') + ",me," << many + QStringList{"me"};
}

void tst_ConferenceRecord::memberTextIsStoredAsItIs()
{
    QFETCH(QStringList, users);
    QFETCH(QString, text);
    RecordedEngine f;
    f.manager->m_strUserId = "me";
    f.manager->callConference(users, false, "");
    f.notify(20, R"({"result":{"confId":"c1"}})");
    f.notify(4);
    QCOMPARE(f.rows().constFirst().at(4), "'" + text + "'");
    QTEST(QStringList(DBConfInfo::getAllConfInfo().constFirst().m_listMember), "readBack");
}

void tst_ConferenceRecord::oddConferenceIds_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("stored");

    QTest::newRow("an apostrophe") << "c'1"
                                   << "'c''1'";
    QTest::newRow("a comma") << "c,1"
                             << "'c,1'";
    QTest::newRow("a quote") << "c\\\"1"
                             << "'c\"1'";
    QTest::newRow("a line feed") << "c\\n1"
                                 << "'c\n1'";
    // Stored whole; what quotes it for this test stops at the NUL.
    QTest::newRow("NUL") << "c\\u00001"
                         << "'c'";
    QTest::newRow("a statement") << "'; DROP TABLE voipConferenceInfo; --"
                                 << "'''; DROP TABLE voipConferenceInfo; --'";
    QTest::newRow("ten thousand characters") << QString(10000, 'c') << "'" + QString(10000, 'c') + "'";
}

void tst_ConferenceRecord::oddConferenceIds()
{
    QFETCH(QString, id);
    RecordedEngine f;
    f.notify(2, R"({"content":{"confId":")" + id + R"(","from":"anna"}})");
    f.notify(4);
    QCOMPARE(f.count(), 1);
    QTEST(f.rows().constFirst().constFirst(), "stored");
}

void tst_ConferenceRecord::singleCallLeavesNoRecord()
{
    RecordedEngine f;
    f.manager->callSingleUser("anna", false);
    f.notify(18);
    f.notify(8);
    f.notify(0, "bert");
    f.notify(4);
    QCOMPARE(f.host.received(MSG_CALL_FINISHED).size(), 2);
    QCOMPARE(f.count(), 0);
}

void tst_ConferenceRecord::recordIsThereWhenTheWindowCloses()
{
    RecordedEngine f;
    create(f);
    QList<int> counts;
    connect(f.manager->m_pVoipWidget, &CVoipWidget::signal_HangupCurrentCall, this, [&] { counts << f.count(); });
    f.notify(7);
    QCOMPARE(counts, QList<int>{1});
}

void tst_ConferenceRecord::withoutAStoreTheConferenceEndsAllTheSame()
{
    EngineFixture f;
    f.createConference();
    f.notify(7);
    QCOMPARE(f.state(), QString("idle"));
    QVERIFY(!f.manager->m_pVoipWidget->isVisible());
    f.manager->slot_DeleteConfInfoData("c1");
}

void tst_ConferenceRecord::deletingARecord_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QStringList>("left");

    QTest::newRow("a known id") << "c1" << QStringList{"''", "'c2'"};
    QTest::newRow("an unknown id") << "c3" << QStringList{"''", "'c1'", "'c2'"};
    QTest::newRow("no id touches nothing") << "" << QStringList{"''", "'c1'", "'c2'"};
}

void tst_ConferenceRecord::deletingARecord()
{
    QFETCH(QString, id);
    RecordedEngine f;
    for (const char *known : {"", "c1", "c2"}) {
        ConfInfoData record;
        record.m_strConfID = known;
        QVERIFY(DBConfInfo::saveConfInfo(record));
    }
    f.manager->slot_DeleteConfInfoData(id);
    QStringList left;
    for (const QStringList &row : f.rows())
        left << row.constFirst();
    QTEST(left, "left");
}

QTEST_MAIN(tst_ConferenceRecord)
#include "tst_ConferenceRecord.moc"
