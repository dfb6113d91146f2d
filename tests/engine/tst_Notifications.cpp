// What each notification of the call process does, beyond the states of a single call.

#include "engine/VoipCallbacks.h"
#include "fakes/EngineFixture.h"
#include "fakes/QtMessages.h"
#include "ui/VoipWidget.h"

#include <QStackedWidget>
#include <QTest>

#include <limits>

namespace {

QString document(const QString &body)
{
    return "{\"content\":{" + body + "}}";
}

// Everything the call data hold, as one text.
QString dump(const CallData &call)
{
    const auto bit = [](bool value) { return value ? QStringLiteral("1") : QStringLiteral("0"); };
    return QStringList{bit(call.bIsConf),
                       bit(call.bIsVideo),
                       bit(call.bIsCaller),
                       bit(call.bIsConnected),
                       call.memberList.join('+'),
                       call.connectedList.join('+'),
                       call.peerId,
                       call.confId,
                       call.connectTime.toString(Qt::ISODateWithMs),
                       call.createTime.toString(Qt::ISODateWithMs)}
        .join('|');
}

const qint64 kCreated = Q_INT64_C(1600000000123);

} // namespace

class tst_Notifications : public QObject
{
    Q_OBJECT

private slots:
    void codeWithoutAnActionChangesNothing_data();
    void codeWithoutAnActionChangesNothing();
    void incomingCallSetsTheCall_data();
    void incomingCallSetsTheCall();

    void invitationSetsTheConference();
    void invitationThatIsRefusedLeavesItsFlags_data();
    void invitationThatIsRefusedLeavesItsFlags();
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

    void leavingMarksTheMemberAndReplacesTheConnected();
    void leavingTakesNoTime();
    void leavingOutsideAConferenceMarksNobody();
    void leavingOfAnotherConferenceChangesNothing();

    void sdkFlagIsTheWordTrue_data();
    void sdkFlagIsTheWordTrue();
    void connectionShowsTheCallingControls();
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
    void logLineOfTheCallProcessChangesNothing();

    void callbackActsAsANotification();
    void logCallbackDoesNothing();
    void callbacksMakeTheManager_data();
    void callbacksMakeTheManager();

private:
    static void createConference(EngineFixture &f);
};

/// This side has created the conference c1 with anna and bert.
void tst_Notifications::createConference(EngineFixture &f)
{
    f.manager->m_strUserId = "me";
    f.manager->callConference({"anna", "bert"}, false, "");
    f.notify(20, R"({"result":{"confId":"c1"}})");
    f.takeJournal();
    EngineFixture::deliverPosted();
    f.host.events.clear();
}

void tst_Notifications::codeWithoutAnActionChangesNothing_data()
{
    QTest::addColumn<int>("code");

    for (const int code : {6, 11, 14, 15, 16, 26, 27, 100, 998, 1000, -1, 2147483647})
        QTest::addRow("code %d", code) << code;
}

void tst_Notifications::codeWithoutAnActionChangesNothing()
{
    QFETCH(int, code);
    EngineFixture f;
    createConference(f);
    const QString before = dump(f.manager->m_callData);
    const QtMessages messages;
    f.notify(code, document(R"("confId":"c1","from":"anna","conventioneer":["x"],"createTime":5)"));
    f.notify(code);
    QCOMPARE(f.takeJournal(), QStringList());
    EngineFixture::deliverPosted();
    QCOMPARE(f.host.commands(), QList<int>());
    QCOMPARE(dump(f.manager->m_callData), before);
    QCOMPARE(f.members(), QStringList({"anna 0", "bert 0"}));
    QCOMPARE(messages.debugLines, QStringList());
}

void tst_Notifications::incomingCallSetsTheCall_data()
{
    QTest::addColumn<int>("code");

    QTest::newRow("code 0") << 0;
    QTest::newRow("code 1") << 1;
}

void tst_Notifications::incomingCallSetsTheCall()
{
    QFETCH(int, code);
    EngineFixture f;
    f.manager->m_callData.bIsConf = true;
    f.manager->m_callData.bIsVideo = true;
    f.manager->m_callData.bIsCaller = true;
    f.notify(code, "bert");
    QCOMPARE(dump(f.manager->m_callData), QString("0|0|0|0|||bert|||"));
    QCOMPARE(f.state(), QString("incoming bert, receive, ring"));
    QCOMPARE(f.takeJournal(), QStringList{"4639 bert false false"});
    QVERIFY(!f.manager->m_pVoipWidget->isVisible());
}

void tst_Notifications::invitationSetsTheConference()
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

void tst_Notifications::invitationThatIsRefusedLeavesItsFlags_data()
{
    QTest::addColumn<QString>("content");

    QTest::newRow("empty id") << document(R"("from":"anna","confId":"")");
    QTest::newRow("no id") << document(R"("from":"anna")");
    QTest::newRow("another conference") << document(R"("from":"anna","confId":"c2","createTime":5)");
    QTest::newRow("no document") << "anna";
    QTest::newRow("nothing") << "";
    QTest::newRow("id of a wrong type") << document(R"("from":"anna","confId":1)");
}

void tst_Notifications::invitationThatIsRefusedLeavesItsFlags()
{
    QFETCH(QString, content);
    EngineFixture f;
    f.manager->m_callData.confId = "c1";
    f.manager->m_callData.bIsCaller = true;
    f.manager->m_callData.bIsVideo = true;
    f.notify(2, content);
    QCOMPARE(dump(f.manager->m_callData), QString("1|0|0|0||||c1||"));
    QCOMPARE(f.state(), QString("idle"));
    QCOMPARE(f.takeJournal(), QStringList());
}

void tst_Notifications::invitationWithoutSenderKeepsThePeer()
{
    EngineFixture f;
    f.notify(0, "bert");
    f.takeJournal();
    f.notify(2, document(R"("confId":"c1")"));
    QCOMPARE(f.manager->m_callData.peerId, QString("bert"));
    QCOMPARE(f.takeJournal(), QStringList{"4639  true false"});
}

void tst_Notifications::invitationOfTheSameConferenceIsTakenAgain()
{
    EngineFixture f;
    f.notify(2, document(R"("from":"anna","confId":"c1","createTime":1600000000123)"));
    f.notify(2, document(R"("from":"bert","confId":"c1")"));
    QCOMPARE(f.manager->m_callData.peerId, QString("bert"));
    QCOMPARE(f.manager->m_callData.createTime, QDateTime::fromMSecsSinceEpoch(kCreated));
    QCOMPARE(f.takeJournal(), QStringList({"4639 anna true false", "4639 bert true false"}));
}

void tst_Notifications::secondInvitationTakesTheCreatorsRights()
{
    EngineFixture f;
    createConference(f);
    QVERIFY(f.manager->m_callData.bIsCaller);
    f.notify(2, document(R"("from":"dora","confId":"c2")"));
    QCOMPARE(f.takeJournal(), QStringList());
    QVERIFY(!f.manager->m_callData.bIsCaller);
    f.manager->slot_ReInviteConfUser("anna");
    QCOMPARE(f.takeJournal(), QStringList());
}

void tst_Notifications::createTimeIsTakenWhenAboveZero_data()
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

void tst_Notifications::createTimeIsTakenWhenAboveZero()
{
    QFETCH(int, code);
    QFETCH(QString, number);
    EngineFixture f;
    f.notify(code, document("\"confId\":\"c1\",\"createTime\":" + number));
    QCOMPARE(f.manager->m_callData.confId, QString("c1"));
    QTEST(f.manager->m_callData.createTime, "createTime");
}

void tst_Notifications::rejectionInAConference_data()
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

void tst_Notifications::rejectionInAConference()
{
    QFETCH(QString, id);
    EngineFixture f;
    createConference(f);
    f.notify(5, id);
    QTEST(f.takeJournal(), "journal");
    QTEST(f.state(), "state");
    QTEST(f.members(), "members");
}

void tst_Notifications::updateAddsEachMemberOnceAndReplacesTheConnected()
{
    EngineFixture f;
    createConference(f);
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

void tst_Notifications::updateAsksForStrangersEvenWithNone()
{
    EngineFixture f;
    createConference(f);
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

void tst_Notifications::updateNeverTakesAMemberAway()
{
    EngineFixture f;
    createConference(f);
    f.notify(12, document(R"("confId":"c1","conventioneer":[])"));
    QCOMPARE(f.manager->m_callData.memberList, QStringList({"anna", "bert", "me"}));
    QCOMPARE(f.manager->m_callData.connectedList, QStringList());
    QCOMPARE(f.members(), QStringList({"anna 0", "bert 0"}));
}

void tst_Notifications::updateLeavesTheOwnIdOutOfTheWindow()
{
    EngineFixture f;
    f.manager->m_strUserId = "me";
    f.notify(2, document(R"("from":"anna","confId":"c1")"));
    f.notify(12, document(R"("confId":"c1","conventioneer":["anna","me"])"));
    QCOMPARE(f.manager->m_callData.memberList, QStringList({"anna", "me"}));
    QCOMPARE(f.members(), QStringList{"anna 1*"});
}

void tst_Notifications::updateOfAnotherConferenceIsIgnored_data()
{
    QTest::addColumn<QString>("content");

    QTest::newRow("another id") << document(R"("confId":"c2","conventioneer":["x"],"createTime":5)");
    QTest::newRow("empty id") << document(R"("confId":"","conventioneer":["x"],"createTime":5)");
    QTest::newRow("no id") << document(R"("conventioneer":["x"])");
    QTest::newRow("no document") << "x";
}

void tst_Notifications::updateOfAnotherConferenceIsIgnored()
{
    QFETCH(QString, content);
    EngineFixture f;
    createConference(f);
    const QString before = dump(f.manager->m_callData);
    f.notify(12, content);
    QCOMPARE(dump(f.manager->m_callData), before);
    EngineFixture::deliverPosted();
    QCOMPARE(f.host.commands(), QList<int>());
}

void tst_Notifications::updateInIdleHasItsEffects()
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

void tst_Notifications::updateSeesMembersThatCameWhileTheHostAnswered()
{
    EngineFixture f;
    createConference(f);
    f.whileHandled = [&f](BaseEvent &event) {
        QStringList &members = f.manager->m_callData.memberList;
        if (event.msgId == MSG_IS_EXIST_FRIEND && !members.contains("dora"))
            members.append("dora");
    };
    f.notify(12, document(R"("confId":"c1","conventioneer":["carl","dora"])"));
    QCOMPARE(f.manager->m_callData.memberList, QStringList({"anna", "bert", "me", "carl", "dora"}));
}

void tst_Notifications::leavingMarksTheMemberAndReplacesTheConnected()
{
    EngineFixture f;
    createConference(f);
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

void tst_Notifications::leavingTakesNoTime()
{
    EngineFixture f;
    f.notify(13, document(R"("confId":"c1","conventioneer":["anna"],"createTime":1600000000123)"));
    QCOMPARE(f.manager->m_callData.confId, QString("c1"));
    QCOMPARE(f.manager->m_callData.connectedList, QStringList{"anna"});
    QVERIFY(f.manager->m_callData.createTime.isNull());
}

void tst_Notifications::leavingOutsideAConferenceMarksNobody()
{
    EngineFixture f;
    f.manager->m_pVoipWidget->addConferenceMember("bert");
    f.notify(13, document(R"("confId":"c1","from":"bert")"));
    QCOMPARE(f.members(), QStringList{"bert 0"});
}

void tst_Notifications::leavingOfAnotherConferenceChangesNothing()
{
    EngineFixture f;
    createConference(f);
    const QString before = dump(f.manager->m_callData);
    f.notify(13, document(R"("confId":"c2","from":"bert","conventioneer":["anna"])"));
    QCOMPARE(dump(f.manager->m_callData), before);
    QCOMPARE(f.members(), QStringList({"anna 0", "bert 0"}));
}

void tst_Notifications::sdkFlagIsTheWordTrue_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<bool>("flag");

    QTest::newRow("true") << "true" << true;
    QTest::newRow("false") << "false" << false;
    QTest::newRow("capitals") << "True" << false;
    QTest::newRow("blank") << "true " << false;
    QTest::newRow("number") << "1" << false;
    QTest::newRow("empty") << "" << false;
}

void tst_Notifications::sdkFlagIsTheWordTrue()
{
    QFETCH(QString, content);
    QFETCH(bool, flag);
    EngineFixture f;
    f.manager->m_bSdkFlag = !flag;
    f.notify(17, content);
    QCOMPARE(f.manager->m_bSdkFlag, flag);
}

void tst_Notifications::connectionShowsTheCallingControls()
{
    EngineFixture f;
    f.manager->callSingleUser("anna", false);
    const auto *controls = f.manager->m_pVoipWidget->findChild<QStackedWidget *>("controlPane");
    QCOMPARE(controls->currentIndex(), 0);
    const QDateTime before = QDateTime::currentDateTimeUtc();
    f.notify(18, "not read");
    const QDateTime after = QDateTime::currentDateTimeUtc();
    QCOMPARE(controls->currentIndex(), 1);
    QVERIFY(f.manager->m_callData.bIsConnected);
    QCOMPARE(f.manager->m_callData.connectTime.timeSpec(), Qt::UTC);
    QVERIFY(f.manager->m_callData.connectTime >= before && f.manager->m_callData.connectTime <= after);
}

void tst_Notifications::createdIdIsTaken()
{
    EngineFixture f;
    f.manager->callConference({"anna"}, false, "");
    QCOMPARE(f.manager->m_callData.confId, QString());
    f.notify(20, R"({"result":{"confId":"c1"}})");
    QCOMPARE(f.manager->m_callData.confId, QString("c1"));
    f.notify(12, document(R"("confId":"c1","conventioneer":["carl"])"));
    QVERIFY(f.manager->m_callData.memberList.contains("carl"));
}

void tst_Notifications::createdAnswerThatDoesNotParseClearsTheId()
{
    EngineFixture f;
    createConference(f);
    f.notify(20, R"({"result":{"confId":"c9"})");
    QCOMPARE(f.manager->m_callData.confId, QString());
    QCOMPARE(f.state(), QString("outgoing anna+bert+me, invite"));
    QCOMPARE(f.takeJournal(), QStringList());
}

void tst_Notifications::emptyCreatedAnswerEndsTheCallAsFailed()
{
    EngineFixture f;
    f.manager->callSingleUser("anna", false);
    f.takeJournal();
    f.notify(20);
    QCOMPARE(f.takeJournal(), QStringList({"4345 anna@kelvar.im", "4478 false anna 22 true false", "SetMicEnable true",
                                           "SetSpeakerEnble true"}));
    QCOMPARE(f.state(), QString("idle"));
    createConference(f);
    f.notify(20);
    QCOMPARE(f.takeJournal(), QStringList({"SetMicEnable true", "SetSpeakerEnble true"}));
    QCOMPARE(f.state(), QString("idle"));
}

void tst_Notifications::createdIdOutsideACallIsTaken()
{
    EngineFixture f;
    f.notify(20, R"({"result":{"confId":"c1"}})");
    QCOMPARE(f.manager->m_callData.confId, QString("c1"));
    QCOMPARE(f.state(), QString("idle"));
}

void tst_Notifications::failedAdditionsAreShown_data()
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

void tst_Notifications::failedAdditionsAreShown()
{
    QFETCH(QString, content);
    EngineFixture f;
    createConference(f);
    const QString before = dump(f.manager->m_callData);
    f.notify(21, content);
    QTEST(f.members(), "members");
    QCOMPARE(dump(f.manager->m_callData), before);
    QCOMPARE(f.takeJournal(), QStringList());
}

void tst_Notifications::addResultIsWrittenToTheDebugLog_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<QStringList>("lines");

    QTest::newRow("text") << "{\"status\":0}" << QStringList{"{\"status\":0}"};
    QTest::newRow("empty") << "" << QStringList();
}

void tst_Notifications::addResultIsWrittenToTheDebugLog()
{
    QFETCH(QString, content);
    EngineFixture f;
    const QtMessages messages;
    f.notify(21, content);
    QTEST(messages.debugLines, "lines");
}

void tst_Notifications::rejectedMemberIsMarkedInAConferenceOnly_data()
{
    QTest::addColumn<bool>("conference");
    QTest::addColumn<QStringList>("members");

    QTest::newRow("conference") << true << QStringList({"anna 0", "bert 5"});
    QTest::newRow("otherwise") << false << QStringList({"anna 0", "bert 0"});
}

void tst_Notifications::rejectedMemberIsMarkedInAConferenceOnly()
{
    QFETCH(bool, conference);
    EngineFixture f;
    createConference(f);
    f.manager->m_callData.bIsConf = conference;
    const QString before = dump(f.manager->m_callData);
    const QtMessages messages;
    f.notify(25, "bert");
    QTEST(f.members(), "members");
    QCOMPARE(messages.debugLines, QStringList{"voipsdk:bert"});
    QCOMPARE(dump(f.manager->m_callData), before);
    QCOMPARE(f.takeJournal(), QStringList());
}

void tst_Notifications::logLineOfTheCallProcessChangesNothing()
{
    EngineFixture f;
    createConference(f);
    const QString before = dump(f.manager->m_callData);
    const QtMessages messages;
    f.notify(999, "media up");
    QCOMPARE(messages.debugLines, QStringList{"voipsdk:media up"});
    QCOMPARE(dump(f.manager->m_callData), before);
    QCOMPARE(f.members(), QStringList({"anna 0", "bert 0"}));
    QCOMPARE(f.takeJournal(), QStringList());
}

void tst_Notifications::callbackActsAsANotification()
{
    EngineFixture f;
    const QtMessages messages;
    voipCallback(0, "bert");
    QCOMPARE(messages.debugLines, QStringList{"void sdkResultCallback(, iCode: 0result: bert"});
    QCOMPARE(f.state(), QString("incoming bert, receive, ring"));
}

void tst_Notifications::logCallbackDoesNothing()
{
    EngineFixture f;
    const QString before = dump(f.manager->m_callData);
    const QtMessages messages;
    voipLogCallback("u", "v");
    QCOMPARE(messages.debugLines, QStringList{"void sdkCloudTrackCallback(, url:  uvalue: v"});
    QCOMPARE(dump(f.manager->m_callData), before);
    QCOMPARE(f.takeJournal(), QStringList());
}

void tst_Notifications::callbacksMakeTheManager_data()
{
    QTest::addColumn<bool>("log");

    QTest::newRow("notification") << false;
    QTest::newRow("log") << true;
}

void tst_Notifications::callbacksMakeTheManager()
{
    QFETCH(bool, log);
    EngineFixture f;
    f.manager.reset();
    QVERIFY(!VoipManageProbe::exists());
    const QtMessages messages;
    if (log)
        voipLogCallback("u", "v");
    else
        voipCallback(17, "true");
    QVERIFY(VoipManageProbe::exists());
    delete CVoipManage::instance();
    VoipManageProbe::forget();
}

QTEST_MAIN(tst_Notifications)
#include "tst_Notifications.moc"
