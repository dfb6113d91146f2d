// The commands of a conference where their parameters are out of the ordinary.

#include "engine/ConferenceContent.h"
#include "fakes/EngineTest.h"

#include <QTest>

class tst_ConferenceCommands : public EngineTest<EngineFixture>
{
    Q_OBJECT

private slots:
    void requestLeavesOutEveryMentionOfTheCaller()
    {
        m_f->manager->m_strUserId = "me";
        m_f->manager->callConference({"me", "anna", "me"}, false, "");
        QCOMPARE(m_f->takeLines(), QStringList{"RequestConference \"me\" [\"anna\"] false \"\""});
        QCOMPARE(m_f->manager->m_callData.memberList, QStringList({"me", "anna", "me"}));
        QCOMPARE(m_f->members(), QStringList{"anna 0"});
    }

    void additionTellsWhetherTheCallIsVideo()
    {
        m_f->manager->m_strUserId = "me";
        // An invitation without an id leaves its flag behind, so that the video call is a conference as well.
        m_f->notify(Code::IncomingConf, conferenceContent(R"("from":"anna","confId":"")"));
        m_f->manager->callSingleUser("bert", true);
        m_f->manager->m_callData.connectedList = QStringList{"bert"};
        m_f->takeLines();
        m_f->manager->addConferenceMember({"carl"});
        QCOMPARE(m_f->takeLines(), QStringList{"Add2Conference [\"carl\"] \"me\" \"me\" true \"\" [\"bert\"]"});
    }

    void additionWithNobodyConnectedHasANullList()
    {
        m_f->createConference();
        m_f->manager->addConferenceMember({"carl"});
        QCOMPARE(m_f->takeLines(), QStringList{"Add2Conference [\"carl\"] \"me\" \"me\" false \"\" null"});
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ConferenceCommands, Widgets)
#include "tst_ConferenceCommands.moc"
