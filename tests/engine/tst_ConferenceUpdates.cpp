// The notifications of who is in a conference: the update of its members, and that one has left.

#include "engine/ConferenceContent.h"
#include "engine/WhileAsked.h"
#include "fakes/EngineTest.h"
#include "ui/VoipWidget.h"

#include <QTest>

#include <utility>

class tst_ConferenceUpdates : public EngineTest<EngineFixture>
{
    Q_OBJECT

private slots:
    void updateAddsEachMemberOnceAndReplacesTheConnected()
    {
        m_f->createConference();
        const CallData &call = m_f->manager->m_callData;
        m_f->notify(Code::ConfUpdate,
                    conferenceContent(R"("confId":"c1","conventioneer":["me","carl","carl","anna"])"));
        QCOMPARE(call.memberList, QStringList({"anna", "bert", "me", "carl"}));
        QCOMPARE(call.connectedList, QStringList({"me", "carl", "carl", "anna"}));
        QCOMPARE(m_f->members(), QStringList({"anna 1", "bert 0", "carl 1"}));
        m_f->notify(Code::ConfUpdate,
                    conferenceContent(R"("confId":"c1","conventioneer":["me","carl","carl","anna"])"));
        QCOMPARE(call.memberList, QStringList({"anna", "bert", "me", "carl"}));
        QCOMPARE(m_f->members(), QStringList({"anna 1", "bert 0", "carl 1"}));
        m_f->notify(Code::ConfUpdate, conferenceContent(R"("confId":"c1","conventioneer":["bert"])"));
        QCOMPARE(call.connectedList, QStringList{"bert"});
        QCOMPARE(m_f->members(), QStringList({"anna 1", "bert 1", "carl 1"}));
    }

    void updateAsksForStrangersEvenWithNone()
    {
        m_f->createConference();
        m_f->host.friendJids.insert(EngineFixture::jid("dora"));
        const auto asked = [this] {
            EngineFixture::deliverPosted();
            QStringList lists;
            for (const ReceivedEvent &event : m_f->host.received(MSG_GET_STRANGER_SMALL_VCARD)) {
                PayloadReader reader = event.reader();
                const QString ids = reader.takeTexts().join('+');
                const QString versions = reader.takeTexts().join('+');
                const QString flag = reader.take<bool>() ? "1" : "0";
                lists << ids + '|' + versions + '|' + flag;
            }
            m_f->host.events.clear();
            return lists;
        };
        m_f->notify(Code::ConfUpdate,
                    conferenceContent(R"("confId":"c1","conventioneer":["carl","dora","kv6005626532","emil"])"));
        QCOMPARE(asked(), QStringList{"carl+emil|-1+-1|1"});
        // Known members are not asked for again.
        m_f->notify(Code::ConfUpdate, conferenceContent(R"("confId":"c1","conventioneer":["carl","dora"])"));
        QCOMPARE(asked(), QStringList{"||1"});
    }

    void updateAsksForTheOwnIdToo()
    {
        m_f->manager->m_strUserId = "me";
        m_f->notify(Code::ConfUpdate, conferenceContent(R"("confId":"c1","conventioneer":["me"])"));
        QCOMPARE(m_f->host.received(MSG_IS_EXIST_FRIEND).size(), 1);
        EngineFixture::deliverPosted();
        QCOMPARE(m_f->host.received(MSG_GET_STRANGER_SMALL_VCARD).constLast().reader().takeTexts(), QStringList{"me"});
    }

    void updateNeverTakesAMemberAway()
    {
        m_f->createConference();
        m_f->notify(Code::ConfUpdate, conferenceContent(R"("confId":"c1","conventioneer":[])"));
        QCOMPARE(m_f->manager->m_callData.memberList, QStringList({"anna", "bert", "me"}));
        QCOMPARE(m_f->manager->m_callData.connectedList, QStringList());
        QCOMPARE(m_f->members(), QStringList({"anna 0", "bert 0"}));
    }

    void updateLeavesTheOwnIdOutOfTheWindow()
    {
        m_f->manager->m_strUserId = "me";
        m_f->notify(Code::IncomingConf, conferenceContent(R"("from":"anna","confId":"c1")"));
        m_f->notify(Code::ConfUpdate, conferenceContent(R"("confId":"c1","conventioneer":["anna","me"])"));
        QCOMPARE(m_f->manager->m_callData.memberList, QStringList({"anna", "me"}));
        QCOMPARE(m_f->members(), QStringList{"anna 1*"});
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
        m_f->createConference();
        const QString before = m_f->callText();
        m_f->notify(Code::ConfUpdate, content);
        QCOMPARE(m_f->callText(), before);
        EngineFixture::deliverPosted();
        QCOMPARE(m_f->host.commands(), QList<int>());
    }

    void updateInIdleHasItsEffects()
    {
        m_f->notify(Code::ConfUpdate,
                    conferenceContent(R"("confId":"c1","conventioneer":["anna"],"createTime":1600000000123)"));
        QCOMPARE(m_f->manager->m_callData.confId, QString("c1"));
        QCOMPARE(m_f->manager->m_callData.memberList, QStringList{"anna"});
        QVERIFY(!m_f->manager->m_callData.bIsConf);
        QVERIFY(m_f->manager->isExistCall());
        m_f->notify(Code::ConfMemberLeft, conferenceContent(R"("confId":"c1","conventioneer":[])"));
        QCOMPARE(m_f->manager->m_callData.connectedList, QStringList());
    }

    void updateSeesMembersThatCameWhileTheHostAnswered()
    {
        m_f->createConference();
        m_f->whileHandled = [this](BaseEvent &event) {
            QStringList &members = m_f->manager->m_callData.memberList;
            if (event.msgId == MSG_IS_EXIST_FRIEND && !members.contains("dora")) {
                members.append("dora");
            }
        };
        m_f->notify(Code::ConfUpdate, conferenceContent(R"("confId":"c1","conventioneer":["carl","dora"])"));
        QCOMPARE(m_f->manager->m_callData.memberList, QStringList({"anna", "bert", "me", "carl", "dora"}));
    }

    void updateSeesMembersThatChangedPlacesWhileTheHostAnswered()
    {
        m_f->createConference();
        m_f->whileHandled = [this, bAsked = false](BaseEvent &event) mutable {
            if (event.msgId != MSG_IS_EXIST_FRIEND || std::exchange(bAsked, true)) {
                return;
            }
            // While carl is asked about one goes and one comes: the list is as long as before.
            QStringList &members = m_f->manager->m_callData.memberList;
            members.removeOne("anna");
            members.append("dora");
        };
        m_f->notify(Code::ConfUpdate, conferenceContent(R"("confId":"c1","conventioneer":["carl","dora","anna"])"));
        QCOMPARE(m_f->manager->m_callData.memberList, QStringList({"bert", "me", "carl", "dora", "anna"}));
    }

    void updateTakesIdAndTimeBeforeTheHostIsAsked()
    {
        WhileAsked asked(*m_f);
        m_f->notify(Code::ConfUpdate,
                    conferenceContent(R"("confId":"c1","conventioneer":["anna"],"createTime":1600000000123)"));
        const QString time = QDateTime::fromMSecsSinceEpoch(1600000000123).toString(Qt::ISODateWithMs);
        QCOMPARE(asked.call, "0|0|0|0|anna|||c1||" + time);
    }

    void updateAsksTheHostBetweenTheMembersAndTheConnected()
    {
        m_f->createConference();
        m_f->manager->m_callData.connectedList = QStringList{"me"};
        QStringList membersMeanwhile;
        QStringList connectedMeanwhile;
        m_f->whileHandled = [&](BaseEvent &event) {
            if (event.msgId != MSG_IS_EXIST_FRIEND) {
                return;
            }
            membersMeanwhile = m_f->members();
            connectedMeanwhile = m_f->manager->m_callData.connectedList;
        };
        m_f->notify(Code::ConfUpdate, conferenceContent(R"("confId":"c1","conventioneer":["me","carl"])"));
        QCOMPARE(membersMeanwhile, QStringList({"anna 0", "bert 0", "carl 0"}));
        QCOMPARE(connectedMeanwhile, QStringList{"me"});
    }

    void leavingMarksTheMemberAndReplacesTheConnected()
    {
        m_f->createConference();
        m_f->notify(Code::ConfUpdate, conferenceContent(R"("confId":"c1","conventioneer":["me","anna","bert"])"));
        m_f->notify(Code::ConfMemberLeft,
                    conferenceContent(R"("confId":"c1","from":"bert","conventioneer":["me","anna"])"));
        QCOMPARE(m_f->members(), QStringList({"anna 1", "bert 4"}));
        QCOMPARE(m_f->manager->m_callData.connectedList, QStringList({"me", "anna"}));
        QCOMPARE(m_f->manager->m_callData.memberList, QStringList({"anna", "bert", "me"}));
        // Without a sender only the lists follow.
        m_f->notify(Code::ConfMemberLeft, conferenceContent(R"("confId":"c1","conventioneer":["me"])"));
        QCOMPARE(m_f->members(), QStringList({"anna 1", "bert 4"}));
        QCOMPARE(m_f->manager->m_callData.connectedList, QStringList{"me"});
    }

    void leavingTakesNoTime()
    {
        m_f->notify(Code::ConfMemberLeft,
                    conferenceContent(R"("confId":"c1","conventioneer":["anna"],"createTime":1600000000123)"));
        QCOMPARE(m_f->manager->m_callData.confId, QString("c1"));
        QCOMPARE(m_f->manager->m_callData.connectedList, QStringList{"anna"});
        QVERIFY(m_f->manager->m_callData.createTime.isNull());
    }

    void leavingOutsideAConferenceMarksNobody()
    {
        m_f->manager->m_pVoipWidget->addConferenceMember("bert");
        m_f->notify(Code::ConfMemberLeft, conferenceContent(R"("confId":"c1","from":"bert")"));
        QCOMPARE(m_f->members(), QStringList{"bert 0"});
    }

    void leavingOfAnotherConferenceChangesNothing()
    {
        m_f->createConference();
        const QString before = m_f->callText();
        m_f->notify(Code::ConfMemberLeft, conferenceContent(R"("confId":"c2","from":"bert","conventioneer":["anna"])"));
        QCOMPARE(m_f->callText(), before);
        QCOMPARE(m_f->members(), QStringList({"anna 0", "bert 0"}));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ConferenceUpdates, Widgets)
#include "tst_ConferenceUpdates.moc"
