// The notifications that carry a conference: invitation, update, leaving, creation, additions, rejection.

#include "fakes/EngineFixture.h"
#include "fakes/QtMessages.h"
#include "ui/VoipWidget.h"

#include <QTest>

#include <limits>

namespace {

QString document(const QString &body)
{
    return "{\"content\":{" + body + "}}";
}

const qint64 kCreated = Q_INT64_C(1600000000123);

} // namespace

class tst_ConferenceNotifications : public QObject
{
    Q_OBJECT

private slots:
    void invitationSetsTheConference();
    void invitationRingsBeforeThePrompt();
    void invitationThatIsRefusedLeavesItsFlags_data();
    void invitationThatIsRefusedLeavesItsFlags();
    void callAfterARefusedInvitationGoesOnAsAConference();
    void invitationWithoutSenderKeepsThePeer();
    void invitationOfTheSameConferenceIsTakenAgain();
    void secondInvitationTakesTheCreatorsRights();
    void createTimeIsTakenWhenAboveZero_data();
    void createTimeIsTakenWhenAboveZero();
    void rejectionInAConference_data();
    void rejectionInAConference();
    void updateAddsEachMemberOnceAndReplacesTheConnected();
    void updateAsksForStrangersEvenWithNone();
    void updateNeverTakesAMemberAway();
    void updateLeavesTheOwnIdOutOfTheWindow();
    void updateOfAnotherConferenceIsIgnored_data();
    void updateOfAnotherConferenceIsIgnored();
    void updateInIdleHasItsEffects();
    void updateSeesMembersThatCameWhileTheHostAnswered();
    void updateAsksTheHostBetweenTheMembersAndTheConnected();
    void leavingMarksTheMemberAndReplacesTheConnected();
    void leavingTakesNoTime();
    void leavingOutsideAConferenceMarksNobody();
    void leavingOfAnotherConferenceChangesNothing();
    void createdIdIsTaken();
    void createdAnswerThatDoesNotParseClearsTheId();
    void emptyCreatedAnswerEndsTheCallAsFailed();
    void createdIdOutsideACallIsTaken();
    void failedAdditionsAreShown_data();
    void failedAdditionsAreShown();
    void addResultIsWrittenToTheDebugLog_data();
    void addResultIsWrittenToTheDebugLog();
    void rejectedMemberIsMarkedInAConferenceOnly_data();
    void rejectedMemberIsMarkedInAConferenceOnly();
};

void tst_ConferenceNotifications::invitationSetsTheConference()
{
    EngineFixture f;
    f.notify(2, document(R"("from":"anna","conventioneer":["anna","me"],"confId":"c1","createTime":1600000000123)"));
    const CallData &call = f.manager->m_callData;
    QVERIFY(call.bIsConf);
    QVERIFY(!call.bIsVideo);
    QVERIFY(!call.bIsCaller);
    QCOMPARE(call.confId, QString("c1"));
    QCOMPARE(call.peerId, QString("anna"));
    QCOMPARE(call.createTime, QDateTime::fromMSecsSinceEpoch(kCreated));
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

void tst_ConferenceNotifications::invitationRingsBeforeThePrompt()
{
    EngineFixture f;
    QString stateMeanwhile;
    QStringList membersMeanwhile;
    f.whileHandled = [&](BaseEvent &event) {
        if (event.msgId != MSG_RECEVIE_VOIP_CALL)
            return;
        stateMeanwhile = f.state();
        f.manager->m_pVoipWidget->addConferenceMember("anna");
        membersMeanwhile = f.members();
    };
    f.notify(2, document(R"("from":"anna","confId":"c1")"));
    // The window knows the creator by then; the timer runs from the prompt's end.
    QCOMPARE(stateMeanwhile, QString("incoming anna, ring"));
    QCOMPARE(membersMeanwhile, QStringList{"anna 0*"});
    QCOMPARE(f.state(), QString("incoming anna, receive, ring"));
}

void tst_ConferenceNotifications::invitationThatIsRefusedLeavesItsFlags_data()
{
    QTest::addColumn<QString>("content");

    QTest::newRow("empty id") << document(R"("from":"anna","confId":"")");
    QTest::newRow("no id") << document(R"("from":"anna")");
    QTest::newRow("another conference") << document(R"("from":"anna","confId":"c2","createTime":5)");
    QTest::newRow("no document") << "anna";
    QTest::newRow("nothing") << "";
    QTest::newRow("id of a wrong type") << document(R"("from":"anna","confId":1)");
}

void tst_ConferenceNotifications::invitationThatIsRefusedLeavesItsFlags()
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

void tst_ConferenceNotifications::callAfterARefusedInvitationGoesOnAsAConference()
{
    EngineFixture f;
    f.notify(2, document(R"("from":"anna","confId":"")"));
    // Placing a call does not write the flag, so its end is that of a conference: no record for the host.
    f.manager->callSingleUser("bert", false);
    QVERIFY(f.manager->m_callData.bIsConf);
    f.takeJournal();
    f.manager->hangupVoipCall();
    QCOMPARE(f.takeJournal(),
             QStringList({"HangupConf", "4345 bert@kelvar.im", "SetMicEnable true", "SetSpeakerEnble true"}));
    QVERIFY(!f.manager->m_callData.bIsConf);
}

void tst_ConferenceNotifications::invitationWithoutSenderKeepsThePeer()
{
    EngineFixture f;
    f.notify(0, "bert");
    f.takeJournal();
    f.notify(2, document(R"("confId":"c1")"));
    QCOMPARE(f.manager->m_callData.peerId, QString("bert"));
    QCOMPARE(f.takeJournal(), QStringList{"4639  true false"});
    // The creator is the sender, not whoever stands as the peer.
    f.manager->m_pVoipWidget->addConferenceMember("bert");
    QCOMPARE(f.members(), QStringList{"bert 0"});
}

void tst_ConferenceNotifications::invitationOfTheSameConferenceIsTakenAgain()
{
    EngineFixture f;
    f.notify(2, document(R"("from":"anna","confId":"c1","createTime":1600000000123)"));
    f.notify(2, document(R"("from":"bert","confId":"c1")"));
    QCOMPARE(f.manager->m_callData.peerId, QString("bert"));
    QCOMPARE(f.manager->m_callData.createTime, QDateTime::fromMSecsSinceEpoch(kCreated));
    QCOMPARE(f.takeJournal(), QStringList({"4639 anna true false", "4639 bert true false"}));
}

void tst_ConferenceNotifications::secondInvitationTakesTheCreatorsRights()
{
    EngineFixture f;
    f.createConference();
    QVERIFY(f.manager->m_callData.bIsCaller);
    f.notify(2, document(R"("from":"dora","confId":"c2")"));
    QCOMPARE(f.takeJournal(), QStringList());
    QVERIFY(!f.manager->m_callData.bIsCaller);
    f.manager->slot_ReInviteConfUser("anna");
    QCOMPARE(f.takeJournal(), QStringList());
}

void tst_ConferenceNotifications::createTimeIsTakenWhenAboveZero_data()
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
        add("fraction", "1600000000123.75", QDateTime::fromMSecsSinceEpoch(kCreated));
        add("beyond 64 bits", "1e300", QDateTime::fromMSecsSinceEpoch(std::numeric_limits<qint64>::max()));
    }
}

void tst_ConferenceNotifications::createTimeIsTakenWhenAboveZero()
{
    QFETCH(int, code);
    QFETCH(QString, number);
    EngineFixture f;
    f.notify(code, document("\"confId\":\"c1\",\"createTime\":" + number));
    QCOMPARE(f.manager->m_callData.confId, QString("c1"));
    QTEST(f.manager->m_callData.createTime, "createTime");
}

void tst_ConferenceNotifications::rejectionInAConference_data()
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

void tst_ConferenceNotifications::rejectionInAConference()
{
    QFETCH(QString, id);
    EngineFixture f;
    f.createConference();
    f.notify(5, id);
    QTEST(f.takeJournal(), "journal");
    QTEST(f.state(), "state");
    QTEST(f.members(), "members");
}

void tst_ConferenceNotifications::updateAddsEachMemberOnceAndReplacesTheConnected()
{
    EngineFixture f;
    f.createConference();
    const CallData &call = f.manager->m_callData;
    f.notify(12, document(R"("confId":"c1","conventioneer":["me","carl","carl","anna"])"));
    QCOMPARE(call.memberList, QStringList({"anna", "bert", "me", "carl"}));
    QCOMPARE(call.connectedList, QStringList({"me", "carl", "carl", "anna"}));
    QCOMPARE(f.members(), QStringList({"anna 1", "bert 0", "carl 1"}));
    f.notify(12, document(R"("confId":"c1","conventioneer":["me","carl","carl","anna"])"));
    QCOMPARE(call.memberList, QStringList({"anna", "bert", "me", "carl"}));
    QCOMPARE(f.members(), QStringList({"anna 1", "bert 0", "carl 1"}));
    f.notify(12, document(R"("confId":"c1","conventioneer":["bert"])"));
    QCOMPARE(call.connectedList, QStringList{"bert"});
    QCOMPARE(f.members(), QStringList({"anna 1", "bert 1", "carl 1"}));
}

void tst_ConferenceNotifications::updateAsksForStrangersEvenWithNone()
{
    EngineFixture f;
    f.createConference();
    f.host.friendJids.insert(EngineFixture::jid("dora"));
    const auto asked = [&f] {
        EngineFixture::deliverPosted();
        QStringList lists;
        for (const ReceivedEvent &event : f.host.received(MSG_GET_STRANGER_SMALL_VCARD)) {
            PayloadReader reader = event.reader();
            const QString ids = reader.takeTexts().join('+');
            const QString versions = reader.takeTexts().join('+');
            const QString flag = reader.take<bool>() ? "1" : "0";
            lists << ids + '|' + versions + '|' + flag;
        }
        f.host.events.clear();
        return lists;
    };
    f.notify(12, document(R"("confId":"c1","conventioneer":["carl","dora","kv6005626532","emil"])"));
    QCOMPARE(asked(), QStringList{"carl+emil|-1+-1|1"});
    // Known members are not asked for again.
    f.notify(12, document(R"("confId":"c1","conventioneer":["carl","dora"])"));
    QCOMPARE(asked(), QStringList{"||1"});
}

void tst_ConferenceNotifications::updateNeverTakesAMemberAway()
{
    EngineFixture f;
    f.createConference();
    f.notify(12, document(R"("confId":"c1","conventioneer":[])"));
    QCOMPARE(f.manager->m_callData.memberList, QStringList({"anna", "bert", "me"}));
    QCOMPARE(f.manager->m_callData.connectedList, QStringList());
    QCOMPARE(f.members(), QStringList({"anna 0", "bert 0"}));
}

void tst_ConferenceNotifications::updateLeavesTheOwnIdOutOfTheWindow()
{
    EngineFixture f;
    f.manager->m_strUserId = "me";
    f.notify(2, document(R"("from":"anna","confId":"c1")"));
    f.notify(12, document(R"("confId":"c1","conventioneer":["anna","me"])"));
    QCOMPARE(f.manager->m_callData.memberList, QStringList({"anna", "me"}));
    QCOMPARE(f.members(), QStringList{"anna 1*"});
}

void tst_ConferenceNotifications::updateOfAnotherConferenceIsIgnored_data()
{
    QTest::addColumn<QString>("content");

    QTest::newRow("another id") << document(R"("confId":"c2","conventioneer":["x"],"createTime":5)");
    QTest::newRow("empty id") << document(R"("confId":"","conventioneer":["x"],"createTime":5)");
    QTest::newRow("no id") << document(R"("conventioneer":["x"])");
    QTest::newRow("no document") << "x";
}

void tst_ConferenceNotifications::updateOfAnotherConferenceIsIgnored()
{
    QFETCH(QString, content);
    EngineFixture f;
    f.createConference();
    const QString before = f.callText();
    f.notify(12, content);
    QCOMPARE(f.callText(), before);
    EngineFixture::deliverPosted();
    QCOMPARE(f.host.commands(), QList<int>());
}

void tst_ConferenceNotifications::updateInIdleHasItsEffects()
{
    EngineFixture f;
    f.notify(12, document(R"("confId":"c1","conventioneer":["anna"],"createTime":1600000000123)"));
    QCOMPARE(f.manager->m_callData.confId, QString("c1"));
    QCOMPARE(f.manager->m_callData.memberList, QStringList{"anna"});
    QVERIFY(!f.manager->m_callData.bIsConf);
    QVERIFY(f.manager->isExistCall());
    f.notify(13, document(R"("confId":"c1","conventioneer":[])"));
    QCOMPARE(f.manager->m_callData.connectedList, QStringList());
}

void tst_ConferenceNotifications::updateSeesMembersThatCameWhileTheHostAnswered()
{
    EngineFixture f;
    f.createConference();
    f.whileHandled = [&f](BaseEvent &event) {
        QStringList &members = f.manager->m_callData.memberList;
        if (event.msgId == MSG_IS_EXIST_FRIEND && !members.contains("dora"))
            members.append("dora");
    };
    f.notify(12, document(R"("confId":"c1","conventioneer":["carl","dora"])"));
    QCOMPARE(f.manager->m_callData.memberList, QStringList({"anna", "bert", "me", "carl", "dora"}));
}

void tst_ConferenceNotifications::updateAsksTheHostBetweenTheMembersAndTheConnected()
{
    EngineFixture f;
    f.createConference();
    f.manager->m_callData.connectedList = QStringList{"me"};
    QStringList membersMeanwhile;
    QStringList connectedMeanwhile;
    f.whileHandled = [&](BaseEvent &event) {
        if (event.msgId != MSG_IS_EXIST_FRIEND)
            return;
        membersMeanwhile = f.members();
        connectedMeanwhile = f.manager->m_callData.connectedList;
    };
    f.notify(12, document(R"("confId":"c1","conventioneer":["me","carl"])"));
    QCOMPARE(membersMeanwhile, QStringList({"anna 0", "bert 0", "carl 0"}));
    QCOMPARE(connectedMeanwhile, QStringList{"me"});
}

void tst_ConferenceNotifications::leavingMarksTheMemberAndReplacesTheConnected()
{
    EngineFixture f;
    f.createConference();
    f.notify(12, document(R"("confId":"c1","conventioneer":["me","anna","bert"])"));
    f.notify(13, document(R"("confId":"c1","from":"bert","conventioneer":["me","anna"])"));
    QCOMPARE(f.members(), QStringList({"anna 1", "bert 4"}));
    QCOMPARE(f.manager->m_callData.connectedList, QStringList({"me", "anna"}));
    QCOMPARE(f.manager->m_callData.memberList, QStringList({"anna", "bert", "me"}));
    // Without a sender only the lists follow.
    f.notify(13, document(R"("confId":"c1","conventioneer":["me"])"));
    QCOMPARE(f.members(), QStringList({"anna 1", "bert 4"}));
    QCOMPARE(f.manager->m_callData.connectedList, QStringList{"me"});
}

void tst_ConferenceNotifications::leavingTakesNoTime()
{
    EngineFixture f;
    f.notify(13, document(R"("confId":"c1","conventioneer":["anna"],"createTime":1600000000123)"));
    QCOMPARE(f.manager->m_callData.confId, QString("c1"));
    QCOMPARE(f.manager->m_callData.connectedList, QStringList{"anna"});
    QVERIFY(f.manager->m_callData.createTime.isNull());
}

void tst_ConferenceNotifications::leavingOutsideAConferenceMarksNobody()
{
    EngineFixture f;
    f.manager->m_pVoipWidget->addConferenceMember("bert");
    f.notify(13, document(R"("confId":"c1","from":"bert")"));
    QCOMPARE(f.members(), QStringList{"bert 0"});
}

void tst_ConferenceNotifications::leavingOfAnotherConferenceChangesNothing()
{
    EngineFixture f;
    f.createConference();
    const QString before = f.callText();
    f.notify(13, document(R"("confId":"c2","from":"bert","conventioneer":["anna"])"));
    QCOMPARE(f.callText(), before);
    QCOMPARE(f.members(), QStringList({"anna 0", "bert 0"}));
}

void tst_ConferenceNotifications::createdIdIsTaken()
{
    EngineFixture f;
    f.manager->callConference({"anna"}, false, "");
    QCOMPARE(f.manager->m_callData.confId, QString());
    f.notify(20, R"({"result":{"confId":"c1"}})");
    QCOMPARE(f.manager->m_callData.confId, QString("c1"));
    f.notify(12, document(R"("confId":"c1","conventioneer":["carl"])"));
    QVERIFY(f.manager->m_callData.memberList.contains("carl"));
}

void tst_ConferenceNotifications::createdAnswerThatDoesNotParseClearsTheId()
{
    EngineFixture f;
    f.createConference();
    f.notify(20, R"({"result":{"confId":"c9"})");
    QCOMPARE(f.manager->m_callData.confId, QString());
    QCOMPARE(f.state(), QString("outgoing anna+bert+me, invite"));
    QCOMPARE(f.takeJournal(), QStringList());
}

void tst_ConferenceNotifications::emptyCreatedAnswerEndsTheCallAsFailed()
{
    EngineFixture f;
    f.manager->callSingleUser("anna", false);
    f.takeJournal();
    f.notify(20);
    QCOMPARE(f.takeJournal(), QStringList({"4345 anna@kelvar.im", "4478 false anna 22 true false", "SetMicEnable true",
                                           "SetSpeakerEnble true"}));
    QCOMPARE(f.state(), QString("idle"));
    f.createConference();
    f.notify(20);
    QCOMPARE(f.takeJournal(), QStringList({"SetMicEnable true", "SetSpeakerEnble true"}));
    QCOMPARE(f.state(), QString("idle"));
}

void tst_ConferenceNotifications::createdIdOutsideACallIsTaken()
{
    EngineFixture f;
    f.notify(20, R"({"result":{"confId":"c1"}})");
    QCOMPARE(f.manager->m_callData.confId, QString("c1"));
    QCOMPARE(f.state(), QString("idle"));
}

void tst_ConferenceNotifications::failedAdditionsAreShown_data()
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

void tst_ConferenceNotifications::failedAdditionsAreShown()
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

void tst_ConferenceNotifications::addResultIsWrittenToTheDebugLog_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<QStringList>("lines");

    QTest::newRow("text") << "{\"status\":0}" << QStringList{"{\"status\":0}"};
    QTest::newRow("empty") << "" << QStringList();
}

void tst_ConferenceNotifications::addResultIsWrittenToTheDebugLog()
{
    QFETCH(QString, content);
    EngineFixture f;
    const QtMessages messages;
    f.notify(21, content);
    QTEST(messages.debugLines, "lines");
}

void tst_ConferenceNotifications::rejectedMemberIsMarkedInAConferenceOnly_data()
{
    QTest::addColumn<bool>("conference");
    QTest::addColumn<QStringList>("members");

    QTest::newRow("conference") << true << QStringList({"anna 0", "bert 5"});
    QTest::newRow("otherwise") << false << QStringList({"anna 0", "bert 0"});
}

void tst_ConferenceNotifications::rejectedMemberIsMarkedInAConferenceOnly()
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

QTEST_MAIN(tst_ConferenceNotifications)
#include "tst_ConferenceNotifications.moc"
