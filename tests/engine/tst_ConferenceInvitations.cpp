// The notifications of being asked to a conference: this side's invitation, and in a conference of its own the answer
// to its creation, the additions that failed, the rejections.

#include "engine/ConferenceContent.h"
#include "fakes/EngineTest.h"
#include "fakes/QtMessages.h"
#include "ui/VoipWidget.h"

#include <QTest>

#include <limits>

namespace {

const qint64 cCreated = Q_INT64_C(1600000000123);

} // namespace

class tst_ConferenceInvitations : public EngineTest<EngineFixture>
{
    Q_OBJECT

private slots:
    void invitationSetsTheConference()
    {
        m_f->notify(Code::IncomingConf,
                    conferenceContent(
                        R"("from":"anna","conventioneer":["anna","me"],"confId":"c1","createTime":1600000000123)"));
        const CallData &call = m_f->manager->m_callData;
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
        QCOMPARE(m_f->state(), QString("incoming anna, receive, ring"));
        QCOMPARE(m_f->takeJournal(), QStringList{"4639 anna true false"});
        QVERIFY(!m_f->manager->m_pVoipWidget->isVisible());
        m_f->manager->m_pVoipWidget->addConferenceMember("anna");
        QCOMPARE(m_f->members(), QStringList{"anna 0*"});
    }

    void invitationRingsBeforeThePrompt()
    {
        QString stateMeanwhile;
        QStringList membersMeanwhile;
        m_f->whileHandled = [&](BaseEvent &event) {
            if (event.msgId != MSG_RECEVIE_VOIP_CALL) {
                return;
            }
            stateMeanwhile = m_f->state();
            m_f->manager->m_pVoipWidget->addConferenceMember("anna");
            membersMeanwhile = m_f->members();
        };
        m_f->notify(Code::IncomingConf, conferenceContent(R"("from":"anna","confId":"c1")"));
        // The window knows the creator by then; the timer runs from the prompt's end.
        QCOMPARE(stateMeanwhile, QString("incoming anna, ring"));
        QCOMPARE(membersMeanwhile, QStringList{"anna 0*"});
        QCOMPARE(m_f->state(), QString("incoming anna, receive, ring"));
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
        m_f->manager->m_callData.confId = "c1";
        m_f->manager->m_callData.bIsCaller = true;
        m_f->manager->m_callData.bIsVideo = true;
        m_f->notify(Code::IncomingConf, content);
        QCOMPARE(m_f->callText(), QString("1|0|0|0||||c1||"));
        QCOMPARE(m_f->state(), QString("idle"));
        QCOMPARE(m_f->takeJournal(), QStringList());
    }

    void callAfterARefusedInvitationGoesOnAsAConference()
    {
        m_f->notify(Code::IncomingConf, conferenceContent(R"("from":"anna","confId":"")"));
        // Placing a call does not write the flag, so its end is that of a conference: no record for the host.
        m_f->manager->callSingleUser("bert", false);
        QVERIFY(m_f->manager->m_callData.bIsConf);
        m_f->takeJournal();
        m_f->manager->hangupVoipCall();
        QCOMPARE(m_f->takeJournal(),
                 QStringList({"HangupConf", "4345 bert@kelvar.im", "SetMicEnable true", "SetSpeakerEnble true"}));
        QVERIFY(!m_f->manager->m_callData.bIsConf);
    }

    void invitationWithoutSenderKeepsThePeer()
    {
        m_f->notify(Code::IncomingCall, "bert");
        m_f->takeJournal();
        m_f->notify(Code::IncomingConf, conferenceContent(R"("confId":"c1")"));
        QCOMPARE(m_f->manager->m_callData.peerId, QString("bert"));
        QCOMPARE(m_f->takeJournal(), QStringList{"4639  true false"});
        // The creator is the sender, not whoever stands as the peer.
        m_f->manager->m_pVoipWidget->addConferenceMember("bert");
        QCOMPARE(m_f->members(), QStringList{"bert 0"});
    }

    void invitationOfTheSameConferenceIsTakenAgain()
    {
        m_f->notify(Code::IncomingConf, conferenceContent(R"("from":"anna","confId":"c1","createTime":1600000000123)"));
        m_f->notify(Code::IncomingConf, conferenceContent(R"("from":"bert","confId":"c1")"));
        QCOMPARE(m_f->manager->m_callData.peerId, QString("bert"));
        QCOMPARE(m_f->manager->m_callData.createTime, QDateTime::fromMSecsSinceEpoch(cCreated));
        QCOMPARE(m_f->takeJournal(), QStringList({"4639 anna true false", "4639 bert true false"}));
    }

    void secondInvitationTakesTheCreatorsRights()
    {
        m_f->createConference();
        QVERIFY(m_f->manager->m_callData.bIsCaller);
        m_f->notify(Code::IncomingConf, conferenceContent(R"("from":"dora","confId":"c2")"));
        QCOMPARE(m_f->takeJournal(), QStringList());
        QVERIFY(!m_f->manager->m_callData.bIsCaller);
        m_f->manager->slot_ReInviteConfUser("anna");
        QCOMPARE(m_f->takeJournal(), QStringList());
    }

    void createTimeIsTakenWhenAboveZero_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("number");
        QTest::addColumn<QDateTime>("createTime");

        for (const int code : {int(Code::IncomingConf), int(Code::ConfUpdate)}) {
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
        m_f->notify(code, conferenceContent("\"confId\":\"c1\",\"createTime\":" + number));
        QCOMPARE(m_f->manager->m_callData.confId, QString("c1"));
        QTEST(m_f->manager->m_callData.createTime, "createTime");
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
        m_f->createConference();
        m_f->notify(Code::UserRejected, id);
        QTEST(m_f->takeJournal(), "journal");
        QTEST(m_f->state(), "state");
        QTEST(m_f->members(), "members");
    }

    void createdIdIsTaken()
    {
        m_f->manager->callConference({"anna"}, false, "");
        QCOMPARE(m_f->manager->m_callData.confId, QString());
        m_f->notify(Code::ConfCreated, R"({"result":{"confId":"c1"}})");
        QCOMPARE(m_f->manager->m_callData.confId, QString("c1"));
        m_f->notify(Code::ConfUpdate, conferenceContent(R"("confId":"c1","conventioneer":["carl"])"));
        QVERIFY(m_f->manager->m_callData.memberList.contains("carl"));
    }

    void createdAnswerThatDoesNotParseClearsTheId()
    {
        m_f->createConference();
        m_f->notify(Code::ConfCreated, R"({"result":{"confId":"c9"})");
        QCOMPARE(m_f->manager->m_callData.confId, QString());
        QCOMPARE(m_f->state(), QString("outgoing anna+bert+me, invite"));
        QCOMPARE(m_f->takeJournal(), QStringList());
    }

    void emptyCreatedAnswerEndsTheCallAsFailed()
    {
        m_f->manager->callSingleUser("anna", false);
        m_f->takeJournal();
        m_f->notify(Code::ConfCreated);
        QCOMPARE(m_f->takeJournal(), QStringList({"4345 anna@kelvar.im", "4478 false anna 22 true false",
                                                  "SetMicEnable true", "SetSpeakerEnble true"}));
        QCOMPARE(m_f->state(), QString("idle"));
        m_f->createConference();
        m_f->notify(Code::ConfCreated);
        QCOMPARE(m_f->takeJournal(), QStringList({"SetMicEnable true", "SetSpeakerEnble true"}));
        QCOMPARE(m_f->state(), QString("idle"));
    }

    void createdIdOutsideACallIsTaken()
    {
        m_f->notify(Code::ConfCreated, R"({"result":{"confId":"c1"}})");
        QCOMPARE(m_f->manager->m_callData.confId, QString("c1"));
        QCOMPARE(m_f->state(), QString("idle"));
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
        m_f->createConference();
        const QString before = m_f->callText();
        m_f->notify(Code::ConfAddResult, content);
        QTEST(m_f->members(), "members");
        QCOMPARE(m_f->callText(), before);
        QCOMPARE(m_f->takeJournal(), QStringList());
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
        const QtMessages messages;
        m_f->notify(Code::ConfAddResult, content);
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
        m_f->createConference();
        m_f->manager->m_callData.bIsConf = conference;
        const QString before = m_f->callText();
        const QtMessages messages;
        m_f->notify(Code::ConfMemberRejected, "bert");
        QTEST(m_f->members(), "members");
        QCOMPARE(messages.debugLines, QStringList{"voipsdk:bert"});
        QCOMPARE(m_f->callText(), before);
        QCOMPARE(m_f->takeJournal(), QStringList());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ConferenceInvitations, Widgets)
#include "tst_ConferenceInvitations.moc"
