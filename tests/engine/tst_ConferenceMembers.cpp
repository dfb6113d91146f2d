// The members of a conference: adding them, inviting again, removing and muting, their cards.

#include "engine/StartedConference.h"
#include "fakes/EngineTest.h"
#include "ui/VoipWidget.h"

#include <QListView>
#include <QTest>

#include <functional>

using Step = std::function<void(EngineFixture &)>;
Q_DECLARE_METATYPE(Step)

class tst_ConferenceMembers : public EngineTest<EngineFixture>
{
    Q_OBJECT

private slots:
    void addingPeople_data()
    {
        QTest::addColumn<QStringList>("users");
        QTest::addColumn<QString>("line");
        QTest::addColumn<QStringList>("memberList");
        QTest::addColumn<QStringList>("members");

        const QString rest(" \"me\" \"me\" false \"\" [\"me\",\"anna\"]");
        QTest::newRow("one") << QStringList{"carl"} << "Add2Conference [\"carl\"]" + rest
                             << QStringList{"anna", "bert", "me", "carl"} << QStringList{"anna 0", "bert 0", "carl 0"};
        QTest::newRow("a known one") << QStringList{"bert", "carl"} << "Add2Conference [\"bert\",\"carl\"]" + rest
                                     << QStringList{"anna", "bert", "me", "carl"}
                                     << QStringList{"anna 0", "bert 0", "carl 0"};
        QTest::newRow("the same twice") << QStringList{"carl", "carl"} << "Add2Conference [\"carl\",\"carl\"]" + rest
                                        << QStringList{"anna", "bert", "me", "carl"}
                                        << QStringList{"anna 0", "bert 0", "carl 0"};
        QTest::newRow("the own id") << QStringList{"me"} << "Add2Conference [\"me\"]" + rest
                                    << QStringList{"anna", "bert", "me"} << QStringList{"anna 0", "bert 0", "me 0*"};
        QTest::newRow("nobody") << QStringList() << "Add2Conference null" + rest << QStringList{"anna", "bert", "me"}
                                << QStringList{"anna 0", "bert 0"};
    }

    void addingPeople()
    {
        QFETCH(QStringList, users);
        QFETCH(QString, line);
        startConference(*m_f);
        m_f->manager->addConferenceMember(users);
        QCOMPARE(m_f->takeJournal(), QStringList{line});
        QTEST(m_f->manager->m_callData.memberList, "memberList");
        QTEST(m_f->members(), "members");
        EngineFixture::deliverPosted();
        QCOMPARE(m_f->host.received(MSG_GET_STRANGER_SMALL_VCARD).size(), 1);
        QCOMPARE(m_f->host.received(MSG_IS_EXIST_FRIEND).size(), users.size());
    }

    void addedPeopleAreMembersBeforeTheHostIsAsked()
    {
        startConference(*m_f);
        QStringList memberListMeanwhile;
        QStringList membersMeanwhile;
        m_f->whileHandled = [&](BaseEvent &event) {
            if (event.msgId != MSG_IS_EXIST_FRIEND) {
                return;
            }
            memberListMeanwhile = m_f->manager->m_callData.memberList;
            membersMeanwhile = m_f->members();
        };
        m_f->manager->addConferenceMember({"carl"});
        QCOMPARE(memberListMeanwhile, QStringList({"anna", "bert", "me", "carl"}));
        // The window follows behind the queries.
        QCOMPARE(membersMeanwhile, QStringList({"anna 0", "bert 0"}));
    }

    void pickerGetsTheOthersAndIsReadAgainstTheListAsItIs()
    {
        startConference(*m_f);
        m_f->manager->m_callData.connectedList.clear();
        m_f->host.membersToAdd = QStringList{"bert", "carl", "dora"};
        m_f->whileHandled = [this](BaseEvent &event) {
            // Dora joins while the user picks.
            if (event.msgId == MSG_ADD_CONFERENCE_MEMBER) {
                m_f->notify(Code::ConfUpdate, R"({"content":{"confId":"c1","conventioneer":["dora"]}})");
            }
        };
        m_f->manager->slot_AddConfMember();
        QCOMPARE(m_f->host.received(MSG_ADD_CONFERENCE_MEMBER).constFirst().reader().takeTexts(),
                 QStringList({"anna", "bert"}));
        QCOMPARE(m_f->takeJournal(), QStringList{"Add2Conference [\"carl\"] \"me\" \"me\" false \"\" [\"dora\"]"});
        // Picking only those who are there already still asks the call process.
        m_f->whileHandled = nullptr;
        m_f->host.membersToAdd = QStringList{"bert"};
        m_f->manager->slot_AddConfMember();
        QCOMPARE(m_f->takeJournal(), QStringList{"Add2Conference null \"me\" \"me\" false \"\" [\"dora\"]"});
    }

    void emptyAnswerOfThePickerDoesNothing()
    {
        startConference(*m_f);
        m_f->manager->slot_AddConfMember();
        QCOMPARE(m_f->takeJournal(), QStringList());
        EngineFixture::deliverPosted();
        QCOMPARE(m_f->host.commands(), QList<int>{MSG_ADD_CONFERENCE_MEMBER});
    }

    void addingOutsideAConferenceSendsNothing()
    {
        m_f->manager->addConferenceMember({"carl"});
        QCOMPARE(m_f->takeJournal(), QStringList());
        QCOMPARE(m_f->manager->m_callData.memberList, QStringList{"carl"});
        QCOMPARE(m_f->members(), QStringList{"carl 0"});
    }

    void addingWhileTheChannelIsDownSendsNothing()
    {
        startConference(*m_f);
        m_f->manager->m_bSocketConnected = false;
        m_f->manager->addConferenceMember({"carl"});
        QCOMPARE(m_f->takeJournal(), QStringList());
        QCOMPARE(m_f->manager->m_callData.memberList, QStringList({"anna", "bert", "me", "carl"}));
        QCOMPARE(m_f->members(), QStringList({"anna 0", "bert 0", "carl 0"}));
    }

    void invitingAgainIsTheCreatorsRight_data()
    {
        QTest::addColumn<bool>("conference");
        QTest::addColumn<bool>("caller");
        QTest::addColumn<QStringList>("journal");
        QTest::addColumn<QStringList>("members");

        const QStringList unchanged{"anna 0", "bert 5"};
        QTest::newRow("creator") << true << true
                                 << QStringList{"Add2Conference [\"bert\"] \"me\" \"me\" false \"\" [\"me\",\"anna\"]"}
                                 << QStringList{"anna 0", "bert 0"};
        QTest::newRow("invited") << true << false << QStringList() << unchanged;
        QTest::newRow("no conference") << false << true << QStringList() << unchanged;
    }

    void invitingAgainIsTheCreatorsRight()
    {
        QFETCH(bool, conference);
        QFETCH(bool, caller);
        startConference(*m_f);
        m_f->notify(Code::UserRejected, "bert");
        m_f->manager->m_callData.bIsConf = conference;
        m_f->manager->m_callData.bIsCaller = caller;
        m_f->manager->slot_ReInviteConfUser("bert");
        QTEST(m_f->takeJournal(), "journal");
        QTEST(m_f->members(), "members");
    }

    void removingAMember_data()
    {
        QTest::addColumn<QString>("user");
        QTest::addColumn<QStringList>("journal");
        QTest::addColumn<QStringList>("memberList");
        QTest::addColumn<QStringList>("members");

        QTest::newRow("connected") << "anna" << QStringList{"ControlConf \"kick\" \"anna\""}
                                   << QStringList{"bert", "me"} << QStringList{"bert 0"};
        QTest::newRow("not connected yet")
            << "bert" << QStringList() << QStringList{"anna", "me"} << QStringList{"anna 0"};
        QTest::newRow("unknown") << "carl" << QStringList() << QStringList{"anna", "bert", "me"}
                                 << QStringList{"anna 0", "bert 0"};
        QTest::newRow("connected but no member")
            << "dora" << QStringList() << QStringList{"anna", "bert", "me"} << QStringList{"anna 0", "bert 0"};
    }

    void removingAMember()
    {
        QFETCH(QString, user);
        startConference(*m_f);
        const QStringList connected{"me", "anna", "dora"};
        m_f->manager->m_callData.connectedList = connected;
        m_f->manager->slot_RemoveConferenceMember(user);
        QTEST(m_f->takeJournal(), "journal");
        QTEST(m_f->manager->m_callData.memberList, "memberList");
        QTEST(m_f->members(), "members");
        QCOMPARE(m_f->manager->m_callData.connectedList, connected);
    }

    void control_data()
    {
        QTest::addColumn<Step>("run");
        QTest::addColumn<QStringList>("journal");

        const auto add = [](const char *name, const Step &run, const QStringList &journal) {
            QTest::newRow(name) << run << journal;
        };
        add("mute one", [](EngineFixture &f) { f.manager->slot_MuteConferenceMember("anna", true); },
            {"ControlConf \"mute\" \"anna\""});
        add("unmute one", [](EngineFixture &f) { f.manager->slot_MuteConferenceMember("anna", false); },
            {"ControlConf \"unmute\" \"anna\""});
        add("mute nobody", [](EngineFixture &f) { f.manager->slot_MuteConferenceMember("", true); }, {});
        add("mute all", [](EngineFixture &f) { f.manager->slot_MuteAll(true); },
            {"ControlConf \"mute\" \"non_moderator\""});
        add("unmute all", [](EngineFixture &f) { f.manager->slot_MuteAll(false); },
            {"ControlConf \"unmute\" \"non_moderator\""});
        add("kick", [](EngineFixture &f) { f.manager->controlConference(CVoipManage::Kick, false, "bert"); },
            {"ControlConf \"kick\" \"bert\""});
        add("an id with all members",
            [](EngineFixture &f) { f.manager->controlConference(CVoipManage::Kick, true, "b"); },
            {"ControlConf \"kick\" \"non_moderator\""});
        add("an operation that does not exist",
            [](EngineFixture &f) {
                f.manager->controlConference(static_cast<CVoipManage::ConfControlSignal>(3), false, "anna");
            },
            {});
        add("outside a conference",
            [](EngineFixture &f) {
                f.manager->m_callData.bIsConf = false;
                f.manager->slot_MuteAll(true);
            },
            {});
        add("while the channel is down",
            [](EngineFixture &f) {
                f.manager->m_bSocketConnected = false;
                f.manager->slot_MuteAll(true);
                f.manager->slot_MuteConferenceMember("anna", false);
                f.manager->slot_RemoveConferenceMember("anna");
            },
            {});
    }

    void control()
    {
        QFETCH(Step, run);
        startConference(*m_f);
        run(*m_f);
        QTEST(m_f->takeJournal(), "journal");
    }

    void mutingKeepsNoState()
    {
        startConference(*m_f);
        m_f->manager->slot_MuteAll(true);
        m_f->manager->slot_MuteAll(true);
        QCOMPARE(m_f->takeJournal(),
                 QStringList({"ControlConf \"mute\" \"non_moderator\"", "ControlConf \"mute\" \"non_moderator\""}));
    }

    void cardIsHandedToTheWindow()
    {
        startConference(*m_f);
        VcardInfo card;
        card.m_strNickName = QStringLiteral("安娜");
        m_f->manager->updateUserInfo(EngineFixture::jid("anna"), card);
        const QAbstractItemModel *rows = m_f->manager->m_pVoipWidget->findChild<QListView *>("listView")->model();
        QCOMPARE(rows->index(0, 0).data(Qt::UserRole + 1).toString(), QStringLiteral("安娜"));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ConferenceMembers, Widgets)
#include "tst_ConferenceMembers.moc"
