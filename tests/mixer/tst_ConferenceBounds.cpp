// A conference at its limits: members, names that are remembered, words that do not fit.

#include "mixer/FocusTest.h"

using Talk::Word;

class tst_ConferenceBounds : public FocusTest
{
    Q_OBJECT

private slots:
    void aMemberLimitHoldsForTheOnesWhoAreCalled()
    {
        Focus::Limits limits;
        limits.members = 3;
        make(limits);
        const QList<LegId> legs = gathering({"bert"});
        say(legs.at(1), addition({"carl", "dora", "emil"}));
        QCOMPARE(side->takeLog(), QStringList("ring 3 carl"));
        tellNow();
        const QList<Talk::Message> bodies = side->takeBodies(legs.at(1));
        QCOMPARE(bodies.size(), 3);
        QCOMPARE(bodies.at(1).failed, (QStringList{"dora", "emil"}));
        QCOMPARE(bodies.at(2).why, QStringLiteral("the conference has 3 members, as many as it may, and 1 more"));
        decline(3, 603);
        say(legs.at(1), addition({"dora"}));
        QCOMPARE(side->takeLog().last(), QStringLiteral("ring 4 dora"));
    }

    void aMemberLimitHoldsForTheOnesWhoCall()
    {
        Focus::Limits limits;
        limits.members = 3;
        make(limits);
        const QList<LegId> legs = gathering({"bert", "carl"});
        leave(legs.at(2));
        say(legs.at(0), addition({"dora"}));
        accept("dora");
        const LegId carl = arrive("carl", creation("c", {}));
        QCOMPARE(side->takeLog().last(), QStringLiteral("refuse %1 403").arg(carl));
        QCOMPARE(side->reasons, QStringList("the conference has 3 members, as many as it may"));
        // Who is in it needs no other place.
        const LegId bert = arriveAndStay("bert", creation("c", {}));
        QCOMPARE(side->takeLog(), (QStringList{"end 2", QStringLiteral("answer %1").arg(bert)}));
        leave(bert);
        arriveAndStay("carl", creation("c", {}));
        QCOMPARE(hall->legCount(), 3);
    }

    void anInvitationThatDoesNotFitIsAFailure()
    {
        const QStringList crowd = people(QString(120, QChar(0x20ac)), 25);
        const QList<LegId> legs = gathering({"bert"});
        say(legs.at(0), addition(crowd));
        for (const QString &id : crowd) {
            accept(id);
        }
        tellNow();
        side->bodies.clear();
        say(legs.at(1), addition({"zoe", "yve"}));
        QVERIFY(!side->rung.contains("zoe"));
        tellNow();
        const QList<Talk::Message> bodies = side->takeBodies(legs.at(1));
        QCOMPARE(bodies.size(), 3);
        QCOMPARE(bodies.at(1).failed, (QStringList{"zoe", "yve"}));
        const QString why = "more are in it than an invitation can tell, and 1 more";
        QCOMPARE(bodies.at(2).why, why);
        QVERIFY(side->notes.last().endsWith("add: " + why));
    }

    void manyWhoFailAtOnceAreAllTold()
    {
        Focus::Limits limits;
        limits.members = 2;
        make(limits);
        const QList<LegId> legs = gathering({"bert"});
        say(legs.at(1), addition(people("a", 300)));
        say(legs.at(1), addition(people("b", 300)));
        tellNow();
        QStringList failed;
        for (const Talk::Message &message : side->takeBodies(legs.at(1))) {
            failed += message.failed;
        }
        QCOMPARE(failed, people("a", 300) + people("b", 300));
    }

    void whatDoesNotFitIsOmittedFromHowItStands()
    {
        // Each of these has 726 bytes where it is told.
        const QStringList crowd = people(QString(120, QChar(0x20ac)), 90);
        const LegId anna = arriveAndStay("anna", creation("c", {}));
        say(anna, addition(crowd.mid(0, 60)));
        say(anna, addition(crowd.mid(60)));
        say(anna, addition({"bert"}));
        const LegId bert = accept("bert");
        say(anna, word(Word::Kick, "nobody"));
        tellNow();
        const QList<Talk::Message> bodies = side->takeBodies(anna);
        QCOMPARE(bodies.size(), 2);
        QCOMPARE(bodies.at(0).connected, (QStringList{"anna", "bert"}));
        QCOMPARE(bodies.at(0).members, (QStringList{"anna", "bert"}));
        QCOMPARE(bodies.at(1).word, QStringLiteral("kick"));
        QCOMPARE(side->takeBodies(bert).size(), 1);
    }

    void strangersAreNotRememberedForEver()
    {
        Focus::Limits limits;
        limits.members = 5;
        make(limits);
        const QList<LegId> legs = gathering({"bert"});
        for (int i = 0; i < 100; ++i) {
            say(legs.at(0), addition({QString::number(i)}));
            decline(side->legOf(QString::number(i)), 603);
        }
        const Talk::Message outcome = own(legs.at(0), Word::Outcome);
        QCOMPARE(outcome.refused, people(QString(), 100));
        const Talk::Message message = told({legs.at(1)});
        QCOMPARE(message.members.size(), 10);
        QCOMPARE(message.members.mid(0, 2), (QStringList{"anna", "bert"}));
        QCOMPARE(message.members.last(), QStringLiteral("99"));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ConferenceBounds, Guiless)
#include "tst_ConferenceBounds.moc"
