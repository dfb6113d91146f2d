// A conference as its members see it, by the hall that it is held in: who comes, who goes, who is told.

#include "mixer/FocusTest.h"

#include <limits>

using Talk::Word;

class tst_Conference : public FocusTest
{
    Q_OBJECT

private slots:
    void theCreatorIsAnsweredThenHeardThenTold()
    {
        const LegId leg = arrive("anna", creation("c", {"bert"}));
        QCOMPARE(side->takeLog(), QStringList("answer 1"));
        tellNow();
        QCOMPARE(side->takeLog(), QStringList());
        comeUp(leg);
        QCOMPARE(side->takeLog(), QStringList("ring 2 bert"));
        tellNow();
        QCOMPARE(side->takeLog(), QStringList("send 1 members"));
        const Talk::Message message = side->takeBodies(leg).value(0);
        QCOMPARE(message.connected, QStringList("anna"));
        QCOMPARE(message.joined, QStringList("anna"));
        QCOMPARE(message.members, (QStringList{"anna", "bert"}));
    }

    void nobodyIsCalledBeforeTheCreatorIsThere()
    {
        const LegId anna = arrive("anna", creation("c", {"bert", "carl"}));
        arriveAndStay("bert", creation("c", {}));
        QCOMPARE(side->takeLog(), (QStringList{"answer 1", "answer 2"}));
        comeUp(anna);
        QCOMPARE(side->takeLog(), QStringList("ring 3 carl"));
    }

    void whoIsCalledBelongsToItForEverybody()
    {
        const QList<LegId> legs = gathering({"bert"});
        say(legs.at(1), addition({"carl"}));
        const Talk::Message message = told(legs);
        QCOMPARE(message.members, (QStringList{"anna", "bert", "carl"}));
        QCOMPARE(message.connected, (QStringList{"anna", "bert"}));
    }

    void anInvitationSaysWhoIsConnected()
    {
        const qint64 before = QDateTime::currentMSecsSinceEpoch();
        const LegId leg = arriveAndStay("anna", creation("c", {"bert", "carl"}));
        const Talk::Message first = side->invitations.value("bert");
        QCOMPARE(first.connected, QStringList("anna"));
        QCOMPARE(first.creator, QStringLiteral("anna"));
        QVERIFY(first.createTime >= before && first.createTime <= QDateTime::currentMSecsSinceEpoch());
        accept("carl");
        say(leg, addition({"dora"}));
        const Talk::Message later = side->invitations.value("dora");
        QCOMPARE(later.connected, (QStringList{"anna", "carl"}));
        QCOMPARE(later.createTime, first.createTime);
    }

    void whoAcceptsIsToldOfAndTold()
    {
        const QList<LegId> legs = gathering({"bert", "carl"});
        say(legs.at(1), addition({"dora"}));
        const LegId dora = accept("dora");
        const Talk::Message message = told(legs + QList<LegId>{dora});
        QCOMPARE(message.joined, QStringList("dora"));
        QCOMPARE(message.connected, (QStringList{"anna", "bert", "carl", "dora"}));
    }

    void whoStillRingsIsToldNothing()
    {
        const LegId leg = arriveAndStay("anna", creation("c", {"bert", "carl"}));
        accept("bert");
        tellNow();
        QVERIFY(side->bodies.contains(leg) && side->bodies.contains(side->legOf("bert")));
        QVERIFY(!side->bodies.contains(side->legOf("carl")));
    }

    void manyChangesAreToldOnceAndTogether()
    {
        const QList<LegId> legs = gathering({"bert", "carl", "dora"});
        for (int i = 0; i < 200; ++i) {
            say(legs.at(0), word(i % 2 == 0 ? Word::Mute : Word::Unmute, "bert"));
        }
        leave(legs.at(2));
        leave(legs.at(3));
        side->takeLog();
        const Talk::Message message = told({legs.at(0), legs.at(1)});
        QCOMPARE(side->takeLog(), (QStringList{"send 1 members", "send 2 members"}));
        QCOMPARE(message.left, (QStringList{"carl", "dora"}));
        QCOMPARE(message.connected, (QStringList{"anna", "bert"}));
    }

    void changesAreGatheredForTheirTime()
    {
        const QList<LegId> legs = gathering({"bert"});
        QElapsedTimer timer;
        timer.start();
        say(legs.at(0), word(Word::Mute, "bert"));
        QVERIFY(QTest::qWaitFor([&] { return !side->bodies.isEmpty(); }, 30000));
        QVERIFY(timer.elapsed() >= 250);
        QCOMPARE(side->takeLog(), (QStringList{"silence 2", "send 1 members", "send 2 members"}));
    }

    void nothingIsToldWhereNothingHappens()
    {
        const QList<LegId> legs = gathering({"bert"});
        say(legs.at(0), word(Word::Unmute, "bert"));
        say(legs.at(0), addition({"bert"}));
        tellNow();
        QCOMPARE(side->takeLog(), QStringList());
    }

    void whoDoesNotComeIsToldToWhoCalledHim_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("field");
        for (const int status : {486, 600}) {
            QTest::addRow("%d", status) << status << "busy";
        }
        QTest::addRow("603") << 603 << "refused";
        for (const int status : {404, 408, 410, 480, 488, 500, 0}) {
            QTest::addRow("%d", status) << status << "failed";
        }
    }

    void whoDoesNotComeIsToldToWhoCalledHim()
    {
        QFETCH(const int, status);
        QFETCH(const QString, field);
        const QList<LegId> legs = gathering({"bert"});
        say(legs.at(1), addition({"carl"}));
        decline(side->legOf("carl"), status);
        const Talk::Message message = own(legs.at(1), Word::Outcome);
        const QStringList carl("carl");
        QCOMPARE(message.busy, field == "busy" ? carl : QStringList());
        QCOMPARE(message.refused, field == "refused" ? carl : QStringList());
        QCOMPARE(message.failed, field == "failed" ? carl : QStringList());
        QCOMPARE(side->takeBodies(legs.at(0)).size(), 1);
        QCOMPARE(hall->legCount(), 2);
    }

    void aCreatorHearsOfThoseOfTheBeginning()
    {
        side->unreachable.insert("dora");
        const LegId leg = arriveAndStay("anna", creation("c", {"bert", "carl", "dora", "anna"}));
        decline(side->legOf("bert"), 486);
        leave(side->legOf("carl"));
        const Talk::Message message = own(leg, Word::Outcome);
        QCOMPARE(message.busy, QStringList("bert"));
        QCOMPARE(message.failed, (QStringList{"dora", "carl"}));
    }

    void bothWhoCallSomebodyHearOfHim()
    {
        const QList<LegId> legs = gathering({"bert"});
        say(legs.at(1), addition({"carl"}));
        say(legs.at(0), addition({"carl"}));
        QCOMPARE(side->takeLog(), QStringList("ring 3 carl"));
        decline(3, 603);
        QCOMPARE(own(legs.at(0), Word::Outcome).refused, QStringList("carl"));
        QCOMPARE(own(legs.at(1), Word::Outcome).refused, QStringList("carl"));
    }

    void calledAgainHeRefusesAgain()
    {
        const LegId leg = arriveAndStay("anna", creation("c", {"bert"}));
        for (int i = 0; i < 2; ++i) {
            decline(side->legOf("bert"), 603);
            QCOMPARE(own(leg, Word::Outcome).refused, QStringList("bert"));
            say(leg, addition({"bert"}));
        }
        QCOMPARE(side->legOf("bert"), 4);
    }

    void whoComesBackIsTheSameMember_data()
    {
        QTest::addColumn<bool>("isCalled");
        QTest::addColumn<bool>("hasLeft");
        QTest::newRow("called again") << true << true;
        QTest::newRow("calls again") << false << true;
        QTest::newRow("calls again before his loss was noticed") << false << false;
    }

    void whoComesBackIsTheSameMember()
    {
        QFETCH(const bool, isCalled);
        QFETCH(const bool, hasLeft);
        const QList<LegId> legs = gathering({"bert", "carl"});
        say(legs.at(0), word(Word::Mute, "bert"));
        const Talk::Message before = told(legs);
        QCOMPARE(before.muted, QStringList("bert"));
        if (hasLeft) {
            leave(legs.at(1));
            QCOMPARE(told({legs.at(0), legs.at(2)}).left, QStringList("bert"));
        }
        side->takeLog();
        if (isCalled) {
            say(legs.at(2), addition({"bert"}));
        }
        const LegId leg = isCalled ? accept("bert") : arriveAndStay("bert", resumption(before));
        const QStringList end = hasLeft ? QStringList() : QStringList("end 2");
        const QStringList comes{isCalled ? "ring 4 bert" : "answer 4", "silence 4"};
        QCOMPARE(side->takeLog(), end + comes);
        const Talk::Message after = told({legs.at(0), legs.at(2), leg});
        QCOMPARE(after.members, before.members);
        QCOMPARE(after.connected, before.connected);
        QCOMPARE(after.muted, QStringList("bert"));
        QCOMPARE(after.left, QStringList());
        QCOMPARE(hall->legCount(), 3);
    }

    void theEndOfAnEarlierLegIsNobodysEnd()
    {
        const QList<LegId> legs = gathering({"bert"});
        const LegId leg = arriveAndStay("bert", creation("c", {}));
        leave(legs.at(1));
        decline(legs.at(1), 603);
        say(legs.at(1), addition({"carl"}));
        QCOMPARE(told({legs.at(0), leg}).connected, (QStringList{"anna", "bert"}));
        QVERIFY(!side->rung.contains("carl"));
    }

    void whoCallsWhileItRingsAtHimIsIn()
    {
        const LegId leg = arriveAndStay("anna", creation("c", {"bert"}));
        const LegId rings = side->legOf("bert");
        const LegId own = arriveAndStay("bert", creation("c", {}));
        QVERIFY(!side->open.contains(rings));
        QCOMPARE(told({leg, own}).connected, (QStringList{"anna", "bert"}));
    }

    void itIsOverWhenTheLastHasLeft_data()
    {
        QTest::addColumn<bool>("atOnce");
        QTest::newRow("the end of a leg is told later") << false;
        QTest::newRow("the end of a leg is told at once") << true;
    }

    void itIsOverWhenTheLastHasLeft()
    {
        QFETCH(const bool, atOnce);
        side->hall = atOnce ? hall.get() : nullptr;
        const LegId anna = arriveAndStay("anna", creation("c", {"bert", "carl"}));
        const LegId bert = accept("bert");
        leave(anna);
        QCOMPARE(hall->conferenceCount(), 1);
        tellNow();
        side->takeLog();
        leave(bert);
        QCOMPARE(side->takeLog(), QStringList("end 3"));
        QCOMPARE(side->notes.last(), QStringLiteral("conference c is over: nobody is in it any more"));
        QCOMPARE(hall->conferenceCount(), 0);
        QCOMPARE(hall->legCount(), 0);
        tellNow();
        QCOMPARE(side->takeLog(), QStringList());
    }

    void itIsOverWhenItsCreatorNeverCame()
    {
        const LegId anna = arrive("anna", creation("c", {"bert"}));
        leave(anna);
        QCOMPARE(side->takeLog(), QStringList("answer 1"));
        QCOMPARE(hall->conferenceCount(), 0);
    }

    void whoIsAnsweredKeepsItUp()
    {
        const QList<LegId> legs = gathering({"bert"});
        leave(legs.at(1));
        const LegId bert = arrive("bert", creation("c", {}));
        leave(legs.at(0));
        QCOMPARE(hall->conferenceCount(), 1);
        leave(bert);
        QCOMPARE(hall->conferenceCount(), 0);
    }

    void aLifeHasAnEnd()
    {
        Focus::Limits limits;
        limits.lifetime = 7;
        make(limits);
        const QList<LegId> legs = gathering({"bert"});
        say(legs.at(0), addition({"carl"}));
        side->takeLog();
        QCOMPARE(hall->findChildren<QTimer *>("life").value(0)->interval(), 7000);
        expire("life");
        QCOMPARE(side->takeLog(), (QStringList{"send 1 over", "end 1", "send 2 over", "end 2", "end 3"}));
        QCOMPARE(side->bodies.value(2).value(0).why, QStringLiteral("it has lasted as long as a conference may"));
        QCOMPARE(hall->conferenceCount(), 0);
        QCOMPARE(hall->legCount(), 0);
    }

    void aLongLifeIsNoShortOne()
    {
        Focus::Limits limits;
        limits.lifetime = std::numeric_limits<int>::max();
        make(limits);
        gathering({});
        const int interval = hall->findChildren<QTimer *>("life").value(0)->interval();
        QVERIFY2(interval > 24 * 86400 * 1000, qPrintable(QString::number(interval)));
    }

    void whoLeftIsToldAlsoWhenHeIsCalledAtOnce()
    {
        const QList<LegId> legs = gathering({"bert", "carl"});
        leave(legs.at(1));
        say(legs.at(2), addition({"bert"}));
        decline(side->legOf("bert"), 486);
        tellNow();
        QCOMPARE(side->takeBodies(legs.at(0)).value(0).left, QStringList("bert"));
        const QList<Talk::Message> bodies = side->takeBodies(legs.at(2));
        QCOMPARE(bodies.value(0).left, QStringList("bert"));
        QCOMPARE(bodies.value(1).busy, QStringList("bert"));
    }

    void whoWasNeverInItHasNotLeft_data()
    {
        QTest::addColumn<bool>("isRemoved");
        QTest::newRow("his leg ends") << false;
        QTest::newRow("he is removed") << true;
    }

    void whoWasNeverInItHasNotLeft()
    {
        QFETCH(const bool, isRemoved);
        const QList<LegId> legs = gathering({"bert"});
        say(legs.at(1), addition({"carl"}));
        const LegId carl = arrive("carl", creation("c", {}));
        if (isRemoved) {
            say(legs.at(0), word(Word::Kick, "carl"));
        } else {
            leave(carl);
        }
        tellNow();
        QCOMPARE(side->takeBodies(legs.at(0)).value(0).left, QStringList());
        QCOMPARE(side->takeBodies(legs.at(1)).value(1).failed, QStringList("carl"));
    }

    void whoLosesHisLegWhileHeComesBackHasLeft()
    {
        const QList<LegId> legs = gathering({"bert"});
        const LegId bert = arrive("bert", creation("c", {}));
        leave(bert);
        QCOMPARE(told({legs.at(0)}).left, QStringList("bert"));
    }

    void whoWaitsForSomebodyHearsThatHeIsRemoved()
    {
        const QList<LegId> legs = gathering({"bert"});
        say(legs.at(1), addition({"carl"}));
        say(legs.at(0), addition({"carl"}));
        say(legs.at(0), word(Word::Kick, "carl"));
        QCOMPARE(own(legs.at(1), Word::Outcome).failed, QStringList("carl"));
        // Who has removed him knows.
        QCOMPARE(side->takeBodies(legs.at(0)).size(), 1);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_Conference, Guiless)
#include "tst_Conference.moc"
