// What the member list of the call window shows of each event of a conference.

#include "fakes/EngineTest.h"
#include "model/MemberRoles.h"
#include "ui/ConferenceListView.h"
#include "ui/VoipWidget.h"

#include <QAbstractItemModel>
#include <QLabel>
#include <QTest>

#include <functional>

using Step = std::function<void(EngineFixture &)>;
Q_DECLARE_METATYPE(Step)

namespace {

/// Notes each change of a row, as uid and status code, and each new row.
class RowChanges
{
public:
    explicit RowChanges(const EngineFixture &f)
    {
        const QAbstractItemModel *rows = f.manager->m_pVoipWidget->findChild<CConferenceListView *>()->model();
        const auto note = [this](const QModelIndex &index, const char *what) {
            noted << index.data(ROLE_USER_ID).toString() + what + index.data(ROLE_CALL_STATUS).toString();
        };
        QObject::connect(rows, &QAbstractItemModel::dataChanged, &m_guard,
                         [note](const QModelIndex &index, const QModelIndex &, const QVector<int> &roles) {
                             if (roles.contains(ROLE_CALL_STATUS)) {
                                 note(index, " to ");
                             }
                         });
        QObject::connect(rows, &QAbstractItemModel::rowsInserted, &m_guard,
                         [note, rows](const QModelIndex &, int first, int) { note(rows->index(first, 0), " new "); });
    }

    QStringList noted;

private:
    QObject m_guard;
};

QString document(const char *fields)
{
    return QString(R"({"content":{"confId":"c1",%1}})").arg(fields);
}

} // namespace

class tst_ConferenceWindow : public EngineTest<EngineFixture>
{
    Q_OBJECT

private slots:
    void eachEventHasItsWindowCall_data()
    {
        QTest::addColumn<Step>("run");
        QTest::addColumn<QStringList>("changes");

        const auto add = [](const char *name, const Step &run, const QStringList &changes) {
            QTest::newRow(name) << run << changes;
        };
        add("code 5 naming another member: rejected", [](EngineFixture &f) { f.notify(Code::UserRejected, "bert"); },
            {"bert to 5"});
        add("code 5 naming an unknown one: nothing", [](EngineFixture &f) { f.notify(Code::UserRejected, "zoe"); }, {});
        add("code 25: rejected", [](EngineFixture &f) { f.notify(Code::ConfMemberRejected, "bert"); }, {"bert to 5"});
        add("code 13: hung up, then the list's status",
            [](EngineFixture &f) {
                f.notify(Code::ConfMemberLeft, document(R"("from":"bert","conventioneer":["me","anna"])"));
            },
            {"bert to 4", "anna to 1"});
        add("code 13 of one who is still there: hung up, then connected",
            [](EngineFixture &f) {
                f.notify(Code::ConfMemberLeft, document(R"("from":"bert","conventioneer":["bert"])"));
            },
            {"bert to 4", "bert to 1"});
        add("code 13 without a sender: the list's status alone",
            [](EngineFixture &f) { f.notify(Code::ConfMemberLeft, document(R"("conventioneer":["bert"])")); },
            {"bert to 1"});
        add("code 12: new rows, then the list's status",
            [](EngineFixture &f) {
                f.notify(Code::ConfUpdate, document(R"("conventioneer":["me","bert","carl","dora"])"));
            },
            {"carl new 0", "dora new 0", "bert to 1", "carl to 1", "dora to 1"});
        add("code 12 without members: nothing",
            [](EngineFixture &f) { f.notify(Code::ConfUpdate, document(R"("conventioneer":[])")); }, {});
        add("code 21: the failed ones",
            [](EngineFixture &f) {
                f.notify(Code::ConfAddResult, R"({"status":1,"result":{"failedNums":["bert","zoe","anna"]}})");
            },
            {"bert to 2", "anna to 2"});
        add("code 21 without failed ones: nothing",
            [](EngineFixture &f) { f.notify(Code::ConfAddResult, R"({"status":0,"result":{}})"); }, {});
        add("invited again: calling",
            [](EngineFixture &f) {
                f.notify(Code::ConfMemberRejected, "bert");
                f.manager->slot_ReInviteConfUser("bert");
            },
            {"bert to 5", "bert to 0"});
    }

    void eachEventHasItsWindowCall()
    {
        QFETCH(Step, run);
        m_f->createConference();
        const RowChanges changes(*m_f);
        run(*m_f);
        QTEST(changes.noted, "changes");
    }

    void membersBeforeTheAcceptStandInTheListTwice()
    {
        m_f->manager->m_strUserId = "me";
        m_f->notify(Code::IncomingConf, document(R"("from":"anna")"));
        m_f->notify(Code::ConfUpdate, document(R"("conventioneer":["anna","me","bert"])"));
        QCOMPARE(m_f->members(), QStringList({"anna 1*", "bert 1"}));
        m_f->manager->responseVoipRequest(true);
        // Deliberate: the accept adds the members without a look at the rows that are there.
        QCOMPARE(m_f->members(), QStringList({"anna 1*", "bert 1", "anna 0*", "bert 0"}));
        m_f->notify(Code::ConfUpdate, document(R"("conventioneer":["anna","me","bert"])"));
        QCOMPARE(m_f->members(), QStringList({"anna 1*", "bert 1", "anna 1*", "bert 1"}));
        QCOMPARE(m_f->manager->m_callData.memberList, QStringList({"anna", "me", "bert"}));
    }

    void countIsThatOfTheMembersShown()
    {
        m_f->createConference();
        const auto *count = m_f->manager->m_pVoipWidget->findChild<QLabel *>("lblListCount");
        QCOMPARE(count->text(), QStringLiteral("参与人员(2)"));
        m_f->notify(Code::ConfUpdate, document(R"("conventioneer":["me","anna","carl"])"));
        QCOMPARE(count->text(), QStringLiteral("参与人员(3)"));
        m_f->manager->slot_RemoveConferenceMember("carl");
        QCOMPARE(count->text(), QStringLiteral("参与人员(2)"));
        m_f->notify(Code::ConfUpdate, document(R"("conventioneer":["carl"])"));
        QCOMPARE(count->text(), QStringLiteral("参与人员(3)"));
        QCOMPARE(m_f->members(), QStringList({"anna 1", "bert 0", "carl 1"}));
    }

    void endForgetsTheMembersShown()
    {
        m_f->createConference();
        m_f->notify(Code::CallEnded);
        QCOMPARE(m_f->members(), QStringList());
        m_f->notify(Code::IncomingConf, R"({"content":{"confId":"c2","from":"anna"}})");
        m_f->manager->responseVoipRequest(true);
        m_f->notify(Code::ConfUpdate, R"({"content":{"confId":"c2","conventioneer":["anna","bert"]}})");
        QCOMPARE(m_f->members(), QStringList({"anna 1*", "bert 1"}));
    }

    void knownMemberIsFoundByCount()
    {
        // The host may name somebody twice: taken out once, the second entry still counts as known. The row that is
        // left of it belongs to nobody any more and stays.
        m_f->manager->m_strUserId = "me";
        m_f->manager->callConference({"anna", "anna", "bert"}, false, "");
        QCOMPARE(m_f->manager->m_callData.memberList, QStringList({"anna", "anna", "bert", "me"}));
        QCOMPARE(m_f->members(), QStringList({"anna 0", "anna 0", "bert 0"}));
        m_f->manager->slot_RemoveConferenceMember("anna");
        QCOMPARE(m_f->manager->m_callData.memberList, QStringList({"anna", "bert", "me"}));
        QCOMPARE(m_f->members(), QStringList({"anna 0", "bert 0"}));
        m_f->manager->addConferenceMember({"anna"});
        QCOMPARE(m_f->manager->m_callData.memberList, QStringList({"anna", "bert", "me"}));
        QCOMPARE(m_f->members(), QStringList({"anna 0", "bert 0"}));
        m_f->manager->slot_RemoveConferenceMember("anna");
        QCOMPARE(m_f->manager->m_callData.memberList, QStringList({"bert", "me"}));
        m_f->manager->addConferenceMember({"anna"});
        QCOMPARE(m_f->manager->m_callData.memberList, QStringList({"bert", "me", "anna"}));
        QCOMPARE(m_f->members(), QStringList({"anna 0", "bert 0"}));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ConferenceWindow, Widgets)
#include "tst_ConferenceWindow.moc"
