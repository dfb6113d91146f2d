// What a member costs the conference member list: counted in memory blocks, and in how it grows with the list.

#include "MemberListTest.h"
#include "ProcessorClock.h"

#include "fakes/Allocations.h"
#include "model/FriendData.h"
#include "plugin/VoipManageEventProcess.h"

#include <QStandardItem>

#include <algorithm>
#include <limits>

namespace {

/// The processor time that the work takes, in seconds; the least of some turns.
double processorTime(const std::function<void()> &work)
{
    double least = std::numeric_limits<double>::max();
    for (int turn = 0; turn < 5; ++turn) {
        const ProcessorClock clock;
        work();
        least = std::min(least, clock.seconds());
    }
    return least;
}

QString member(int iNumber)
{
    return QStringLiteral("m%1").arg(iNumber, 5, 10, QLatin1Char('0'));
}

} // namespace

class tst_ConferenceListCost : public MemberListTest
{
    Q_OBJECT

private slots:
    void unchangedStatusAsksForNothing()
    {
        const QString ann = uid("ann");
        m_pList->addUser(ann);
        m_pList->updateConferenceUserStatus(ann, ConferenceConnected);
        QCOMPARE(Allocations::during([&] { m_pList->updateConferenceUserStatus(ann, ConferenceConnected); }), 0);
        // A change is none for nothing.
        QVERIFY(Allocations::during([&] { m_pList->updateConferenceUserStatus(ann, ConferenceBusy); }) > 0);
        QCOMPARE(status(0), int(ConferenceBusy));
    }

    void newRowIsNoListOfRoles()
    {
        const QString ann = uid("ann");
        const QString bob = uid("bob");
        m_pList->addUser(ann);
        const QMap<int, QVariant> roles = m_pList->model()->itemData(index(0));
        const int whole = Allocations::during([&] { m_pList->addUser(bob); });
        const int roleByRole = Allocations::during([&] {
            QStandardItem row;
            for (auto role = roles.begin(); role != roles.end(); ++role) {
                row.setData(role.value(), role.key());
            }
        });
        const QString jid = ContactFixture::jid(bob);
        const int question =
            Allocations::during([&] { VoipManageEventProcess::getFriendInfoByJid(jid).displayName(); });
        QVERIFY2(whole - question < roleByRole,
                 qPrintable(QStringLiteral("%1, %2 of them for the question; role by role %3")
                                .arg(whole)
                                .arg(question)
                                .arg(roleByRole)));
    }

    void knownMemberIsFoundInALongListAsInAShortOne()
    {
        constexpr int rounds = 300;
        constexpr int fewMembers = 100;
        constexpr int manyMembers = 10000;
        QList<QString> members;
        const auto costOfTheLast = [&](int iMembers) {
            for (int i = members.size(); i < iMembers; ++i) {
                members.append(member(i));
                m_pList->addUser(members.last());
            }
            return processorTime([&] {
                for (int round = 0; round < rounds; ++round) {
                    m_pList->addUser(members.last());
                }
            });
        };
        const double few = costOfTheLast(fewMembers);
        const double many = costOfTheLast(manyMembers);
        // A walk over the list would make it a hundred times as much.
        QVERIFY2(many < 10 * few, qPrintable(QStringLiteral("%1 s, %2 s").arg(few).arg(many)));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ConferenceListCost, Widgets)
#include "tst_ConferenceListCost.moc"
