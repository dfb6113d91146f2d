#include "mixer/focus/Roster.h"

#include <QtTest>

using Focus::Member;
using Focus::Roster;
using State = Focus::Member::State;

class tst_Roster : public QObject
{
    Q_OBJECT

private slots:
    void everybodyStandsThereOnceInTheOrderOfComing()
    {
        Roster roster("carl");
        roster.take("bert").muted = true;
        roster.take("anna");
        QVERIFY(roster.take("bert").muted);
        QCOMPARE(roster.creator(), QStringLiteral("carl"));
        QCOMPARE(roster.ids(), (QStringList{"carl", "bert", "anna"}));
        QCOMPARE(roster.muted(), QStringList("bert"));
        QVERIFY(roster.find("dora") == nullptr);
    }

    void whoIsThereIsCounted_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<bool>("present");
        QTest::addColumn<bool>("inUse");
        QTest::addColumn<bool>("connected");
        const auto row = [](const char *name, State state, bool present, bool inUse, bool connected) {
            QTest::newRow(name) << static_cast<int>(state) << present << inUse << connected;
        };
        row("invited", State::Invited, true, false, false);
        row("arriving", State::Arriving, true, true, false);
        row("connected", State::Connected, true, true, true);
        row("awaited", State::Awaited, true, true, false);
        row("left", State::Left, false, false, false);
        row("busy", State::Busy, false, false, false);
        row("refused", State::Refused, false, false, false);
        row("failed", State::Failed, false, false, false);
    }

    void whoIsThereIsCounted()
    {
        QFETCH(const int, state);
        QFETCH(const bool, present);
        QFETCH(const bool, inUse);
        QFETCH(const bool, connected);
        Roster roster("carl");
        roster.find("carl")->state = State::Left;
        roster.take("anna").state = static_cast<State>(state);
        QCOMPARE(roster.presentCount(), present ? 1 : 0);
        QCOMPARE(roster.isInUse(), inUse);
        QCOMPARE(roster.connected(), connected ? QStringList("anna") : QStringList());
    }

    void theCreatorIsNeverForgotten()
    {
        Roster roster("carl");
        roster.find("carl")->state = State::Left;
        roster.take("anna");
        roster.forget("carl");
        roster.forget("anna");
        roster.forget("nobody");
        QCOMPARE(roster.ids(), QStringList("carl"));
        QVERIFY(roster.find("carl") != nullptr && roster.find("anna") == nullptr);
        roster.forgetAbsent(0);
        QCOMPARE(roster.ids(), QStringList("carl"));
    }

    void theFirstOfTheAbsentAreForgotten()
    {
        Roster roster("carl");
        for (const char *id : {"a", "b", "c", "d"}) {
            roster.take(id).state = State::Left;
        }
        roster.find("b")->state = State::Connected;
        roster.forgetAbsent(3);
        QCOMPARE(roster.ids(), (QStringList{"carl", "b", "d"}));
        QVERIFY(roster.find("a") == nullptr && roster.find("c") == nullptr && roster.find("d") != nullptr);
        roster.forgetAbsent(3);
        QCOMPARE(roster.ids().size(), 3);
        roster.forgetAbsent(1);
        QCOMPARE(roster.ids(), (QStringList{"carl", "b"}));
    }

    void aMemberStaysWhereHeIs()
    {
        Roster roster("carl");
        const Member *first = &roster.take("anna");
        for (int i = 0; i < 1000; ++i) {
            roster.take(QString::number(i));
        }
        roster.forget("7");
        QCOMPARE(static_cast<const Member *>(roster.find("anna")), first);
        QCOMPARE(roster.find("8")->id, QStringLiteral("8"));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_Roster, Appless)
#include "tst_Roster.moc"
