// The commands of a conference where their parameters are out of the ordinary.

#include "ConferenceContent.h"
#include "fakes/EngineFixture.h"

#include <QTest>

class tst_ConferenceCommands : public QObject
{
    Q_OBJECT

private slots:
    void requestLeavesOutEveryMentionOfTheCaller()
    {
        EngineFixture f;
        f.manager->m_strUserId = "me";
        f.manager->callConference({"me", "anna", "me"}, false, "");
        QCOMPARE(f.takeLines(), QStringList{"RequestConference \"me\" [\"anna\"] false \"\""});
        QCOMPARE(f.manager->m_callData.memberList, QStringList({"me", "anna", "me"}));
        QCOMPARE(f.members(), QStringList{"anna 0"});
    }

    void additionTellsWhetherTheCallIsVideo()
    {
        EngineFixture f;
        f.manager->m_strUserId = "me";
        // An invitation without an id leaves its flag behind, so that the video call is a conference as well.
        f.notify(2, conferenceContent(R"("from":"anna","confId":"")"));
        f.manager->callSingleUser("bert", true);
        f.manager->m_callData.connectedList = QStringList{"bert"};
        f.takeLines();
        f.manager->addConferenceMember({"carl"});
        QCOMPARE(f.takeLines(), QStringList{"Add2Conference [\"carl\"] \"me\" \"me\" true \"\" [\"bert\"]"});
    }

    void additionWithNobodyConnectedHasANullList()
    {
        EngineFixture f;
        f.createConference();
        f.manager->addConferenceMember({"carl"});
        QCOMPARE(f.takeLines(), QStringList{"Add2Conference [\"carl\"] \"me\" \"me\" false \"\" null"});
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ConferenceCommands, Widgets)
#include "tst_ConferenceCommands.moc"
