// The notifications of being asked to a conference: this side's invitation, and in a conference of its own the answer
// to its creation, the additions that failed, the rejections.

#include "ConferenceContent.h"
#include "fakes/EngineFixture.h"
#include "fakes/QtMessages.h"
#include "ui/VoipWidget.h"

#include <QTest>

#include <limits>

namespace {

const qint64 cCreated = Q_INT64_C(1600000000123);

} // namespace

class tst_ConferenceInvitations : public QObject
{
    Q_OBJECT

private slots:
    void invitationSetsTheConference()
    {
        EngineFixture f;
        f.notify(2, conferenceContent(
                        R"("from":"anna","conventioneer":["anna","me"],"confId":"c1","createTime":1600000000123)"));
        const CallData &call = f.manager->m_callData;
        QVERIFY(call.bIsConf);
        QVERIFY(!call.bIsVideo);
        QVERIFY(!call.bIsCaller);
        QCOMPARE(call.confId, QString("c1"));
        QCOMPARE(call.peerId, QString("anna"));
        QCOMPARE(call.createTime, QDateTime::fromMSecsSinceEpoch(cCreated));
        QCOMPARE(call.createTime.timeSpec(), Qt::LocalTime);
        // Members come by the updates.
        QCOMPARE(call.memberList, QStringList());
        QCOMPARE(call.connectedList, QStringList());
        QCOMPARE(f.state(), QString("incoming anna, receive, ring"));
        QCOMPARE(f.takeJournal(), QStringList{"4639 anna true false"});
        QVERIFY(!f.manager->m_pVoipWidget->isVisible());
        f.manager->m_pVoipWidget->addConferenceMember("anna");
        QCOMPARE(f.members(), QStringList{"anna 0*"});
    }

    void invitationRingsBeforeThePrompt()
    {
        EngineFixture f;
        QString stateMeanwhile;
        QStringList membersMeanwhile;
        f.whileHandled = [&](BaseEvent &event) {
            if (event.msgId != MSG_RECEVIE_VOIP_CALL) {
                return;
            }
            stateMeanwhile = f.state();
            f.manager->m_pVoipWidget->addConferenceMember("anna");
            membersMeanwhile = f.members();
        };
        f.notify(2, conferenceContent(R"("from":"anna","confId":"c1")"));
        // The window knows the creator by then; the timer runs from the prompt's end.
        QCOMPARE(stateMeanwhile, QString("incoming anna, ring"));
        QCOMPARE(membersMeanwhile, QStringList{"anna 0*"});
        QCOMPARE(f.state(), QString("incoming anna, receive, ring"));
    }

    void invitationThatIsRefusedLeavesItsFlags_data()
    {
        QTest::addColumn<QString>("content");

        QTest::newRow("empty id") << conferenceContent(R"("from":"anna","confId":"")");
        QTest::newRow("no id") << conferenceContent(R"("from":"anna")");
        QTest::newRow("another conference") << conferenceContent(R"("from":"anna","confId":"c2","createTime":5)");
        QTest::newRow("no document") << "anna";
        QTest::newRow("nothing") << "";
        QTest::newRow("id of a wrong type") << conferenceContent(R"("from":"anna","confId":1)");
    }

    void invitationThatIsRefusedLeavesItsFlags()
    {
        QFETCH(QString, content);
        EngineFixture f;
        f.manager->m_callData.confId = "c1";
        f.manager->m_callData.bIsCaller = true;
        f.manager->m_callData.bIsVideo = true;
        f.notify(2, content);
        QCOMPARE(f.callText(), QString("1|0|0|0||||c1||"));
        QCOMPARE(f.state(), QString("idle"));
        QCOMPARE(f.takeJournal(), QStringList());
    }

    void callAfterARefusedInvitationGoesOnAsAConference()
    {
        EngineFixture f;
        f.notify(2, conferenceContent(R"("from":"anna","confId":"")"));
        // Placing a call does not write the flag, so its end is that of a conference: no record for the host.
        f.manager->callSingleUser("bert", false);
        QVERIFY(f.manager->m_callData.bIsConf);
        f.takeJournal();
        f.manager->hangupVoipCall();
        QCOMPARE(f.takeJournal(),
                 QStringList({"HangupConf", "4345 bert@kelvar.im", "SetMicEnable true", "SetSpeakerEnble true"}));
        QVERIFY(!f.manager->m_callData.bIsConf);
    }

    void invitationWithoutSenderKeepsThePeer()
    {
        EngineFixture f;
        f.notify(0, "bert");
        f.takeJournal();
        f.notify(2, conferenceContent(R"("confId":"c1")"));
        QCOMPARE(f.manager->m_callData.peerId, QString("bert"));
        QCOMPARE(f.takeJournal(), QStringList{"4639  true false"});
        // The creator is the sender, not whoever stands as the peer.
        f.manager->m_pVoipWidget->addConferenceMember("bert");
        QCOMPARE(f.members(), QStringList{"bert 0"});
    }

    void invitationOfTheSameConferenceIsTakenAgain()
    {
        EngineFixture f;
        f.notify(2, conferenceContent(R"("from":"anna","confId":"c1","createTime":1600000000123)"));
        f.notify(2, conferenceContent(R"("from":"bert","confId":"c1")"));
        QCOMPARE(f.manager->m_callData.peerId, QString("bert"));
        QCOMPARE(f.manager->m_callData.createTime, QDateTime::fromMSecsSinceEpoch(cCreated));
        QCOMPARE(f.takeJournal(), QStringList({"4639 anna true false", "4639 bert true false"}));
    }

    void secondInvitationTakesTheCreatorsRights()
    {
        EngineFixture f;
        f.createConference();
        QVERIFY(f.manager->m_callData.bIsCaller);
        f.notify(2, conferenceContent(R"("from":"dora","confId":"c2")"));
        QCOMPARE(f.takeJournal(), QStringList());
        QVERIFY(!f.manager->m_callData.bIsCaller);
        f.manager->slot_ReInviteConfUser("anna");
        QCOMPARE(f.takeJournal(), QStringList());
    }

    void createTimeIsTakenWhenAboveZero_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("number");
        QTest::addColumn<QDateTime>("createTime");

        for (const int code : {2, 12}) {
            const auto add = [code](const char *name, const char *number, const QDateTime &time) {
                QTest::addRow("code %d, %s", code, name) << code << QString(number) << time;
            };
            add("zero", "0", QDateTime());
            add("negative", "-1", QDateTime());
            add("below one", "0.9", QDateTime());
            add("wrong type", "\"1600000000123\"", QDateTime());
            add("one", "1", QDateTime::fromMSecsSinceEpoch(1));
            add("fraction", "1600000000123.75", QDateTime::fromMSecsSinceEpoch(cCreated));
            add("beyond 64 bits", "1e300", QDateTime::fromMSecsSinceEpoch(std::numeric_limits<qint64>::max()));
        }
    }

    void createTimeIsTakenWhenAboveZero()
    {
        QFETCH(int, code);
        QFETCH(QString, number);
        EngineFixture f;
        f.notify(code, conferenceContent("\"confId\":\"c1\",\"createTime\":" + number));
        QCOMPARE(f.manager->m_callData.confId, QString("c1"));
        QTEST(f.manager->m_callData.createTime, "createTime");
    }

    void rejectionInAConference_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QStringList>("journal");
        QTest::addColumn<QString>("state");
        QTest::addColumn<QStringList>("members");

        QTest::newRow("another member") << "bert" << QStringList() << "outgoing anna+bert+me, invite"
                                        << QStringList({"anna 0", "bert 5"});
        QTest::newRow("someone else") << "carl" << QStringList() << "outgoing anna+bert+me, invite"
                                      << QStringList({"anna 0", "bert 0"});
        QTest::newRow("this side") << "me" << QStringList({"SetMicEnable true", "SetSpeakerEnble true"}) << "idle"
                                   << QStringList();
    }

    void rejectionInAConference()
    {
        QFETCH(QString, id);
        EngineFixture f;
        f.createConference();
        f.notify(5, id);
        QTEST(f.takeJournal(), "journal");
        QTEST(f.state(), "state");
        QTEST(f.members(), "members");
    }

    void createdIdIsTaken()
    {
        EngineFixture f;
        f.manager->callConference({"anna"}, false, "");
        QCOMPARE(f.manager->m_callData.confId, QString());
        f.notify(20, R"({"result":{"confId":"c1"}})");
        QCOMPARE(f.manager->m_callData.confId, QString("c1"));
        f.notify(12, conferenceContent(R"("confId":"c1","conventioneer":["carl"])"));
        QVERIFY(f.manager->m_callData.memberList.contains("carl"));
    }

    void createdAnswerThatDoesNotParseClearsTheId()
    {
        EngineFixture f;
        f.createConference();
        f.notify(20, R"({"result":{"confId":"c9"})");
        QCOMPARE(f.manager->m_callData.confId, QString());
        QCOMPARE(f.state(), QString("outgoing anna+bert+me, invite"));
        QCOMPARE(f.takeJournal(), QStringList());
    }

    void emptyCreatedAnswerEndsTheCallAsFailed()
    {
        EngineFixture f;
        f.manager->callSingleUser("anna", false);
        f.takeJournal();
        f.notify(20);
        QCOMPARE(f.takeJournal(), QStringList({"4345 anna@kelvar.im", "4478 false anna 22 true false",
                                               "SetMicEnable true", "SetSpeakerEnble true"}));
        QCOMPARE(f.state(), QString("idle"));
        f.createConference();
        f.notify(20);
        QCOMPARE(f.takeJournal(), QStringList({"SetMicEnable true", "SetSpeakerEnble true"}));
        QCOMPARE(f.state(), QString("idle"));
    }

    void createdIdOutsideACallIsTaken()
    {
        EngineFixture f;
        f.notify(20, R"({"result":{"confId":"c1"}})");
        QCOMPARE(f.manager->m_callData.confId, QString("c1"));
        QCOMPARE(f.state(), QString("idle"));
    }

    void failedAdditionsAreShown_data()
    {
        QTest::addColumn<QString>("content");
        QTest::addColumn<QStringList>("members");

        const QStringList nobody{"anna 0", "bert 0"};
        QTest::newRow("one") << R"({"status":1,"result":{"failedNums":["bert"]}})" << QStringList({"anna 0", "bert 2"});
        QTest::newRow("both") << R"({"status":1,"result":{"failedNums":["bert","anna"]}})"
                              << QStringList({"anna 2", "bert 2"});
        QTest::newRow("nobody") << R"({"status":0,"result":{"failedNums":[]}})" << nobody;
        QTest::newRow("no list") << R"({"status":0,"result":{}})" << nobody;
        QTest::newRow("no document") << "x" << nobody;
        QTest::newRow("empty") << "" << nobody;
    }

    void failedAdditionsAreShown()
    {
        QFETCH(QString, content);
        EngineFixture f;
        f.createConference();
        const QString before = f.callText();
        f.notify(21, content);
        QTEST(f.members(), "members");
        QCOMPARE(f.callText(), before);
        QCOMPARE(f.takeJournal(), QStringList());
    }

    void addResultIsWrittenToTheDebugLog_data()
    {
        QTest::addColumn<QString>("content");
        QTest::addColumn<QStringList>("lines");

        QTest::newRow("text") << "{\"status\":0}" << QStringList{"{\"status\":0}"};
        QTest::newRow("empty") << "" << QStringList();
    }

    void addResultIsWrittenToTheDebugLog()
    {
        QFETCH(QString, content);
        EngineFixture f;
        const QtMessages messages;
        f.notify(21, content);
        QTEST(messages.debugLines, "lines");
    }

    void rejectedMemberIsMarkedInAConferenceOnly_data()
    {
        QTest::addColumn<bool>("conference");
        QTest::addColumn<QStringList>("members");

        QTest::newRow("conference") << true << QStringList({"anna 0", "bert 5"});
        QTest::newRow("otherwise") << false << QStringList({"anna 0", "bert 0"});
    }

    void rejectedMemberIsMarkedInAConferenceOnly()
    {
        QFETCH(bool, conference);
        EngineFixture f;
        f.createConference();
        f.manager->m_callData.bIsConf = conference;
        const QString before = f.callText();
        const QtMessages messages;
        f.notify(25, "bert");
        QTEST(f.members(), "members");
        QCOMPARE(messages.debugLines, QStringList{"voipsdk:bert"});
        QCOMPARE(f.callText(), before);
        QCOMPARE(f.takeJournal(), QStringList());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ConferenceInvitations, Widgets)
#include "tst_ConferenceInvitations.moc"
