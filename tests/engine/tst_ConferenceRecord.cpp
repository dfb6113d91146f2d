// What the record of a conference holds: its id, creator, time, length and members, whatever became of it.

#include "engine/RecordedConference.h"
#include "fakes/EngineTest.h"
#include "store/DBConfInfo.h"

#include <QTest>

class tst_ConferenceRecord : public EngineTest<RecordedEngine>
{
    Q_OBJECT

private slots:
    void initTestCase() { enterZoneOfRecords(); }

    void endBeforeTheConnectionHasNoLength()
    {
        createConference(*m_f);
        m_f->manager->hangupVoipCall();
        const QList<ConfInfoData> records = DBConfInfo::getAllConfInfo();
        QCOMPARE(records.size(), 1);
        QCOMPARE(records.constFirst().m_strCallTime, QString("0"));
        QVERIFY(!records.constFirst().m_bIsConnect);
        QCOMPARE(records.constFirst().m_listMember, QStringList({"anna", "bert", "me", "carl"}));
    }

    void rejectedInvitationIsStored()
    {
        m_f->notify(Code::IncomingConf, R"({"content":{"confId":"c1","from":"anna",)" + cCreateTime + "}}");
        m_f->manager->responseVoipRequest(false);
        QCOMPARE(m_f->records(), QStringList{"'c1' 'anna' '2023-11-15 06:13:20' '0' '' 0"});
        QCOMPARE(m_f->takeJournal(), QStringList({"4639 anna true false", "RejectConf", "4345 anna@kelvar.im",
                                                  "SetMicEnable true", "SetSpeakerEnble true"}));
    }

    void invitationThatTimesOutIsStored()
    {
        m_f->notify(Code::IncomingConf, R"({"content":{"confId":"c1","from":"anna"}})");
        m_f->manager->slot_recevieCallTimeout();
        QCOMPARE(m_f->records(), QStringList{"'c1' 'anna' '' '0' '' 0"});
        QCOMPARE(m_f->state(), QString("idle"));
    }

    void creationThatFailedIsStoredWithoutAnId()
    {
        m_f->manager->m_strUserId = "me";
        // An empty id is a key like any other: the second record finds it taken.
        for (int round = 0; round < 2; ++round) {
            m_f->manager->callConference({"anna"}, false, "");
            m_f->notify(Code::ConfCreated);
            QCOMPARE(m_f->records(), QStringList{"'' 'me' '' '0' 'anna,me,' 0"});
            QCOMPARE(m_f->state(), QString("idle"));
        }
    }

    void missingTimeIsAnEmptyTextNotNull()
    {
        m_f->createConference();
        m_f->notify(Code::CallEnded);
        QCOMPARE(m_f->records(), QStringList{"'c1' 'me' '' '0' 'anna,bert,me,' 0"});
    }

    void sameConferenceAgainKeepsItsFirstRecord()
    {
        m_f->notify(Code::IncomingConf, R"({"content":{"confId":"c1","from":"anna"}})");
        m_f->manager->responseVoipRequest(false);
        joinConference(*m_f);
        m_f->notify(Code::CallConnected);
        m_f->notify(Code::PeerHangup);
        QCOMPARE(m_f->records(), QStringList{"'c1' 'anna' '' '0' '' 0"});
        QCOMPARE(m_f->state(), QString("idle"));
    }

    void nextConferenceHasNothingOfTheOneBefore()
    {
        createConference(*m_f);
        m_f->notify(Code::CallConnected);
        m_f->connectedFor(65);
        m_f->notify(Code::PeerHangup);
        m_f->notify(Code::IncomingConf, R"({"content":{"confId":"c2","from":"dora"}})");
        m_f->notify(Code::ConfUpdate, R"({"content":{"confId":"c2","conventioneer":["dora"]}})");
        m_f->notify(Code::PeerCanceled);
        QCOMPARE(m_f->records().constLast(), QString("'c2' 'dora' '' '0' 'dora,' 0"));
        QCOMPARE(m_f->count(), 2);
    }

    void secondInvitationLeavesTheFirstOne()
    {
        m_f->notify(Code::IncomingConf, R"({"content":{"confId":"c1","from":"anna"}})");
        m_f->notify(Code::IncomingConf, R"({"content":{"confId":"c2","from":"bert",)" + cCreateTime + "}}");
        m_f->notify(Code::ConfUpdate, R"({"content":{"confId":"c2","conventioneer":["bert","me"]}})");
        QCOMPARE(m_f->takeJournal(), QStringList{"4639 anna true false"});
        QCOMPARE(m_f->state(), QString("incoming anna, receive, ring"));
        m_f->manager->responseVoipRequest(true);
        m_f->notify(Code::CallEnded);
        QCOMPARE(m_f->records(), QStringList{"'c1' 'anna' '' '0' '' 0"});
        // The second one is free to come again.
        m_f->notify(Code::IncomingConf, R"({"content":{"confId":"c2","from":"bert"}})");
        m_f->manager->responseVoipRequest(false);
        QCOMPARE(m_f->records().constLast(), QString("'c2' 'bert' '' '0' '' 0"));
    }

    void creatorInvitedElsewhereIsNoCreatorInTheRecord()
    {
        createConference(*m_f);
        m_f->notify(Code::CallConnected);
        m_f->takeJournal();
        m_f->notify(Code::IncomingConf, R"({"content":{"confId":"c2","from":"dora"}})");
        QCOMPARE(m_f->takeJournal(), QStringList());
        m_f->manager->slot_ReInviteConfUser("bert");
        QCOMPARE(m_f->takeJournal(), QStringList());
        m_f->manager->slot_MuteAll(true);
        QCOMPARE(m_f->takeJournal(), QStringList{"ControlConf \"mute\" \"non_moderator\""});
        m_f->notify(Code::PeerHangup);
        QCOMPARE(m_f->records(), QStringList{"'c1' '' '2023-11-15 06:13:20' '0' 'anna,bert,me,carl,' 1"});
        QCOMPARE(m_f->state(), QString("idle"));
    }

    void callThatOverwritesAConferenceLeavesNoConferenceRecord()
    {
        createConference(*m_f);
        m_f->notify(Code::IncomingCall, "dora");
        m_f->notify(Code::PeerCanceled);
        QCOMPARE(m_f->count(), 0);
        QCOMPARE(m_f->takeJournal().filter("4478"), QStringList{"4478 false dora 21 false false"});
        QCOMPARE(m_f->state(), QString("idle"));
    }

    void removedMemberIsNotInTheRecord()
    {
        createConference(*m_f);
        m_f->manager->slot_RemoveConferenceMember("anna");
        m_f->manager->addConferenceMember({"dora", "anna"});
        m_f->manager->slot_RemoveConferenceMember("bert");
        m_f->notify(Code::CallEnded);
        QCOMPARE(m_f->rows().constFirst().at(4), QString("'me,carl,dora,anna,'"));
    }

    void memberTextIsStoredAsItIs_data()
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
        for (int i = 0; i < 2000; ++i) {
            many << "member" + QString::number(i);
        }
        QTest::newRow("more than the column's nominal width")
            << many << many.join(',') + ",me," << many + QStringList{"me"};
    }

    void memberTextIsStoredAsItIs()
    {
        QFETCH(QStringList, users);
        QFETCH(QString, text);
        m_f->manager->m_strUserId = "me";
        m_f->manager->callConference(users, false, "");
        m_f->notify(Code::ConfCreated, R"({"result":{"confId":"c1"}})");
        m_f->notify(Code::PeerCanceled);
        QCOMPARE(m_f->rows().constFirst().at(4), "'" + text + "'");
        QTEST(QStringList(DBConfInfo::getAllConfInfo().constFirst().m_listMember), "readBack");
    }

    void oddConferenceIds_data()
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

    void oddConferenceIds()
    {
        QFETCH(QString, id);
        m_f->notify(Code::IncomingConf, "{\"content\":{\"confId\":\"" + id + "\",\"from\":\"anna\"}}");
        m_f->notify(Code::PeerCanceled);
        QCOMPARE(m_f->count(), 1);
        QTEST(m_f->rows().constFirst().constFirst(), "stored");
    }

    void deletingARecord_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QStringList>("left");

        QTest::newRow("a known id") << "c1" << QStringList{"''", "'c2'"};
        QTest::newRow("an unknown id") << "c3" << QStringList{"''", "'c1'", "'c2'"};
        QTest::newRow("no id touches nothing") << "" << QStringList{"''", "'c1'", "'c2'"};
    }

    void deletingARecord()
    {
        QFETCH(QString, id);
        for (const char *known : {"", "c1", "c2"}) {
            ConfInfoData record;
            record.m_strConfID = known;
            QVERIFY(DBConfInfo::saveConfInfo(record));
        }
        m_f->manager->slot_DeleteConfInfoData(id);
        QStringList left;
        for (const QStringList &row : m_f->rows()) {
            left << row.constFirst();
        }
        QTEST(left, "left");
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ConferenceRecord, Widgets)
#include "tst_ConferenceRecord.moc"
