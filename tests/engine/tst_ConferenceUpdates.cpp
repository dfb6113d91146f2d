// The notifications of who is in a conference: the update of its members, and that one has left.

#include "ConferenceContent.h"
#include "WhileAsked.h"
#include "fakes/EngineFixture.h"
#include "ui/VoipWidget.h"

#include <QTest>

#include <utility>

class tst_ConferenceUpdates : public QObject
{
    Q_OBJECT

private slots:
    void updateAddsEachMemberOnceAndReplacesTheConnected()
    {
        EngineFixture f;
        f.createConference();
        const CallData &call = f.manager->m_callData;
        f.notify(12, conferenceContent(R"("confId":"c1","conventioneer":["me","carl","carl","anna"])"));
        QCOMPARE(call.memberList, QStringList({"anna", "bert", "me", "carl"}));
        QCOMPARE(call.connectedList, QStringList({"me", "carl", "carl", "anna"}));
        QCOMPARE(f.members(), QStringList({"anna 1", "bert 0", "carl 1"}));
        f.notify(12, conferenceContent(R"("confId":"c1","conventioneer":["me","carl","carl","anna"])"));
        QCOMPARE(call.memberList, QStringList({"anna", "bert", "me", "carl"}));
        QCOMPARE(f.members(), QStringList({"anna 1", "bert 0", "carl 1"}));
        f.notify(12, conferenceContent(R"("confId":"c1","conventioneer":["bert"])"));
        QCOMPARE(call.connectedList, QStringList{"bert"});
        QCOMPARE(f.members(), QStringList({"anna 1", "bert 1", "carl 1"}));
    }

    void updateAsksForStrangersEvenWithNone()
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
        f.notify(12, conferenceContent(R"("confId":"c1","conventioneer":["carl","dora","kv6005626532","emil"])"));
        QCOMPARE(asked(), QStringList{"carl+emil|-1+-1|1"});
        // Known members are not asked for again.
        f.notify(12, conferenceContent(R"("confId":"c1","conventioneer":["carl","dora"])"));
        QCOMPARE(asked(), QStringList{"||1"});
    }

    void updateAsksForTheOwnIdToo()
    {
        EngineFixture f;
        f.manager->m_strUserId = "me";
        f.notify(12, conferenceContent(R"("confId":"c1","conventioneer":["me"])"));
        QCOMPARE(f.host.received(MSG_IS_EXIST_FRIEND).size(), 1);
        EngineFixture::deliverPosted();
        QCOMPARE(f.host.received(MSG_GET_STRANGER_SMALL_VCARD).constLast().reader().takeTexts(), QStringList{"me"});
    }

    void updateNeverTakesAMemberAway()
    {
        EngineFixture f;
        f.createConference();
        f.notify(12, conferenceContent(R"("confId":"c1","conventioneer":[])"));
        QCOMPARE(f.manager->m_callData.memberList, QStringList({"anna", "bert", "me"}));
        QCOMPARE(f.manager->m_callData.connectedList, QStringList());
        QCOMPARE(f.members(), QStringList({"anna 0", "bert 0"}));
    }

    void updateLeavesTheOwnIdOutOfTheWindow()
    {
        EngineFixture f;
        f.manager->m_strUserId = "me";
        f.notify(2, conferenceContent(R"("from":"anna","confId":"c1")"));
        f.notify(12, conferenceContent(R"("confId":"c1","conventioneer":["anna","me"])"));
        QCOMPARE(f.manager->m_callData.memberList, QStringList({"anna", "me"}));
        QCOMPARE(f.members(), QStringList{"anna 1*"});
    }

    void updateOfAnotherConferenceIsIgnored_data()
    {
        QTest::addColumn<QString>("content");

        QTest::newRow("another id") << conferenceContent(R"("confId":"c2","conventioneer":["x"],"createTime":5)");
        QTest::newRow("empty id") << conferenceContent(R"("confId":"","conventioneer":["x"],"createTime":5)");
        QTest::newRow("no id") << conferenceContent(R"("conventioneer":["x"])");
        QTest::newRow("no document") << "x";
    }

    void updateOfAnotherConferenceIsIgnored()
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

    void updateInIdleHasItsEffects()
    {
        EngineFixture f;
        f.notify(12, conferenceContent(R"("confId":"c1","conventioneer":["anna"],"createTime":1600000000123)"));
        QCOMPARE(f.manager->m_callData.confId, QString("c1"));
        QCOMPARE(f.manager->m_callData.memberList, QStringList{"anna"});
        QVERIFY(!f.manager->m_callData.bIsConf);
        QVERIFY(f.manager->isExistCall());
        f.notify(13, conferenceContent(R"("confId":"c1","conventioneer":[])"));
        QCOMPARE(f.manager->m_callData.connectedList, QStringList());
    }

    void updateSeesMembersThatCameWhileTheHostAnswered()
    {
        EngineFixture f;
        f.createConference();
        f.whileHandled = [&f](BaseEvent &event) {
            QStringList &members = f.manager->m_callData.memberList;
            if (event.msgId == MSG_IS_EXIST_FRIEND && !members.contains("dora")) {
                members.append("dora");
            }
        };
        f.notify(12, conferenceContent(R"("confId":"c1","conventioneer":["carl","dora"])"));
        QCOMPARE(f.manager->m_callData.memberList, QStringList({"anna", "bert", "me", "carl", "dora"}));
    }

    void updateSeesMembersThatChangedPlacesWhileTheHostAnswered()
    {
        EngineFixture f;
        f.createConference();
        f.whileHandled = [&f, bAsked = false](BaseEvent &event) mutable {
            if (event.msgId != MSG_IS_EXIST_FRIEND || std::exchange(bAsked, true)) {
                return;
            }
            // While carl is asked about one goes and one comes: the list is as long as before.
            QStringList &members = f.manager->m_callData.memberList;
            members.removeOne("anna");
            members.append("dora");
        };
        f.notify(12, conferenceContent(R"("confId":"c1","conventioneer":["carl","dora","anna"])"));
        QCOMPARE(f.manager->m_callData.memberList, QStringList({"bert", "me", "carl", "dora", "anna"}));
    }

    void updateTakesIdAndTimeBeforeTheHostIsAsked()
    {
        EngineFixture f;
        WhileAsked asked(f);
        f.notify(12, conferenceContent(R"("confId":"c1","conventioneer":["anna"],"createTime":1600000000123)"));
        const QString time = QDateTime::fromMSecsSinceEpoch(1600000000123).toString(Qt::ISODateWithMs);
        QCOMPARE(asked.call, "0|0|0|0|anna|||c1||" + time);
    }

    void updateAsksTheHostBetweenTheMembersAndTheConnected()
    {
        EngineFixture f;
        f.createConference();
        f.manager->m_callData.connectedList = QStringList{"me"};
        QStringList membersMeanwhile;
        QStringList connectedMeanwhile;
        f.whileHandled = [&](BaseEvent &event) {
            if (event.msgId != MSG_IS_EXIST_FRIEND) {
                return;
            }
            membersMeanwhile = f.members();
            connectedMeanwhile = f.manager->m_callData.connectedList;
        };
        f.notify(12, conferenceContent(R"("confId":"c1","conventioneer":["me","carl"])"));
        QCOMPARE(membersMeanwhile, QStringList({"anna 0", "bert 0", "carl 0"}));
        QCOMPARE(connectedMeanwhile, QStringList{"me"});
    }

    void leavingMarksTheMemberAndReplacesTheConnected()
    {
        EngineFixture f;
        f.createConference();
        f.notify(12, conferenceContent(R"("confId":"c1","conventioneer":["me","anna","bert"])"));
        f.notify(13, conferenceContent(R"("confId":"c1","from":"bert","conventioneer":["me","anna"])"));
        QCOMPARE(f.members(), QStringList({"anna 1", "bert 4"}));
        QCOMPARE(f.manager->m_callData.connectedList, QStringList({"me", "anna"}));
        QCOMPARE(f.manager->m_callData.memberList, QStringList({"anna", "bert", "me"}));
        // Without a sender only the lists follow.
        f.notify(13, conferenceContent(R"("confId":"c1","conventioneer":["me"])"));
        QCOMPARE(f.members(), QStringList({"anna 1", "bert 4"}));
        QCOMPARE(f.manager->m_callData.connectedList, QStringList{"me"});
    }

    void leavingTakesNoTime()
    {
        EngineFixture f;
        f.notify(13, conferenceContent(R"("confId":"c1","conventioneer":["anna"],"createTime":1600000000123)"));
        QCOMPARE(f.manager->m_callData.confId, QString("c1"));
        QCOMPARE(f.manager->m_callData.connectedList, QStringList{"anna"});
        QVERIFY(f.manager->m_callData.createTime.isNull());
    }

    void leavingOutsideAConferenceMarksNobody()
    {
        EngineFixture f;
        f.manager->m_pVoipWidget->addConferenceMember("bert");
        f.notify(13, conferenceContent(R"("confId":"c1","from":"bert")"));
        QCOMPARE(f.members(), QStringList{"bert 0"});
    }

    void leavingOfAnotherConferenceChangesNothing()
    {
        EngineFixture f;
        f.createConference();
        const QString before = f.callText();
        f.notify(13, conferenceContent(R"("confId":"c2","from":"bert","conventioneer":["anna"])"));
        QCOMPARE(f.callText(), before);
        QCOMPARE(f.members(), QStringList({"anna 0", "bert 0"}));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ConferenceUpdates, Widgets)
#include "tst_ConferenceUpdates.moc"
