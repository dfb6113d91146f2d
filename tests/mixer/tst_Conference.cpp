// A conference as its members see it, by the hall that it is held in.

#include "mixer/FocusTest.h"

using Talk::Word;

class tst_Conference : public FocusTest
{
    Q_OBJECT

private:
    /// What `leg` alone was told as Outcome or Denied since the last time.
    Talk::Message own(LegId leg, Word saying)
    {
        tellNow();
        for (const Talk::Message &message : side->takeBodies(leg)) {
            if (message.saying == saying) {
                return message;
            }
        }
        return {};
    }

private slots:
    void theCreatorIsAnsweredThenHeardThenTold()
    {
        const LegId leg = arrive("anna", creation("c", {"bert"}));
        QCOMPARE(side->takeLog(), QStringList("answer 1"));
        tellNow();
        QCOMPARE(side->takeLog(), QStringList());
        hall->takeUp(leg);
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
        hall->takeUp(anna);
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
        hall->takeEnd(legs.at(2));
        hall->takeEnd(legs.at(3));
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
        hall->takeRefusal(side->legOf("carl"), status);
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
        hall->takeRefusal(side->legOf("bert"), 486);
        hall->takeEnd(side->legOf("carl"));
        const Talk::Message message = own(leg, Word::Outcome);
        QCOMPARE(message.busy, QStringList("bert"));
        QCOMPARE(message.failed, (QStringList{"carl", "dora"}));
    }

    void bothWhoCallSomebodyHearOfHim()
    {
        const QList<LegId> legs = gathering({"bert"});
        say(legs.at(1), addition({"carl"}));
        say(legs.at(0), addition({"carl"}));
        QCOMPARE(side->takeLog(), QStringList("ring 3 carl"));
        hall->takeRefusal(3, 603);
        QCOMPARE(own(legs.at(0), Word::Outcome).refused, QStringList("carl"));
        QCOMPARE(own(legs.at(1), Word::Outcome).refused, QStringList("carl"));
    }

    void calledAgainHeRefusesAgain()
    {
        const LegId leg = arriveAndStay("anna", creation("c", {"bert"}));
        for (int i = 0; i < 2; ++i) {
            hall->takeRefusal(side->legOf("bert"), 603);
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
            hall->takeEnd(legs.at(1));
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
        hall->takeEnd(legs.at(1));
        hall->takeRefusal(legs.at(1), 603);
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

    void wordsOfTheWrongOneChangeNothing_data()
    {
        QTest::addColumn<int>("word");
        for (const Word word : {Word::Kick, Word::Mute, Word::Unmute}) {
            QTest::newRow(Talk::rowOf(word).name) << static_cast<int>(word);
        }
    }

    void wordsOfTheWrongOneChangeNothing()
    {
        QFETCH(const int, word);
        const QList<LegId> legs = gathering({"bert", "carl", "dora"});
        say(legs.at(0), FocusTest::word(Word::Mute, "dora"));
        tellNow();
        side->takeLog();
        side->notes.clear();
        for (const char *user : {"anna", "carl", "dora", "non_moderator"}) {
            say(legs.at(1), FocusTest::word(static_cast<Word>(word), user));
        }
        QCOMPARE(side->takeLog(), QStringList());
        const Talk::Message message = own(legs.at(1), Word::Denied);
        const QString name = Talk::rowOf(static_cast<Word>(word)).name;
        QCOMPARE(message.word, name);
        QCOMPARE(message.why, QStringLiteral("the creator alone may do that, and 3 more"));
        QCOMPARE(side->notes, QStringList("conference c refuses bert, " + name + ": " + message.why));
        const Talk::Message members = told({legs.at(0), legs.at(2), legs.at(3)});
        QCOMPARE(members.connected.size(), 4);
        QCOMPARE(members.muted, QStringList("dora"));
    }

    void theCreatorIsKnownByHisLegAlsoAfterHisReturn()
    {
        const QList<LegId> legs = gathering({"bert", "carl"});
        hall->takeEnd(legs.at(0));
        tellNow();
        side->bodies.clear();
        Talk::Message claim = word(Word::Resume);
        claim.id = QStringLiteral("c");
        claim.creator = QStringLiteral("bert");
        claim.members = QStringList{"bert"};
        const LegId bert = arriveAndStay("bert", claim);
        say(bert, word(Word::Kick, "carl"));
        QCOMPARE(told({bert, legs.at(2)}).creator, QStringLiteral("anna"));
        const LegId anna = arriveAndStay("anna", creation("c", {}));
        say(anna, word(Word::Mute, "non_moderator"));
        const Talk::Message message = told({anna, bert, legs.at(2)});
        QCOMPARE(message.muted, (QStringList{"bert", "carl"}));
        QCOMPARE(message.connected, (QStringList{"anna", "bert", "carl"}));
    }

    void everybodyIsAllButTheCreator()
    {
        const QList<LegId> legs = gathering({"bert", "carl", "dora"});
        hall->takeEnd(legs.at(3));
        tellNow();
        side->takeLog();
        say(legs.at(0), word(Word::Mute, "non_moderator"));
        QCOMPARE(side->takeLog(), (QStringList{"silence 2", "silence 3"}));
        // Who is away too: his row in the windows is muted.
        QCOMPARE(told(legs.mid(0, 3)).muted, (QStringList{"bert", "carl", "dora"}));
        say(legs.at(0), word(Word::Unmute, "non_moderator"));
        QCOMPARE(told(legs.mid(0, 3)).muted, QStringList());
        QCOMPARE(side->silent.value(1, false), false);
        QCOMPARE(side->silent.value(2), false);
    }

    void whoIsRemovedIsToldAndGone()
    {
        const QList<LegId> legs = gathering({"bert", "carl"});
        say(legs.at(0), word(Word::Mute, "bert"));
        const Talk::Message before = told(legs);
        side->takeLog();
        say(legs.at(0), word(Word::Kick, "bert"));
        QCOMPARE(side->takeLog(), (QStringList{"send 2 over", "end 2"}));
        const Talk::Message after = told({legs.at(0), legs.at(2)});
        QCOMPARE(after.left, QStringList("bert"));
        QCOMPARE(after.members, (QStringList{"anna", "carl"}));
        const LegId back = arrive("bert", resumption(before));
        QCOMPARE(side->takeLog().last(), QStringLiteral("refuse %1 403").arg(back));
        QCOMPARE(side->reasons, QStringList("bert does not belong to the conference"));
        say(legs.at(2), addition({"bert"}));
        const LegId again = accept("bert");
        QCOMPARE(told({legs.at(0), legs.at(2), again}).muted, QStringList());
        QVERIFY(!side->silent.contains(again));
    }

    void whoIsRemovedWhileItRingsHearsNoMore()
    {
        const LegId leg = arriveAndStay("anna", creation("c", {"bert"}));
        side->takeLog();
        say(leg, word(Word::Kick, "bert"));
        QCOMPARE(side->takeLog(), QStringList("end 2"));
        QCOMPARE(told({leg}).left, QStringList());
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
        hall->takeEnd(anna);
        QCOMPARE(hall->conferenceCount(), 1);
        tellNow();
        side->takeLog();
        hall->takeEnd(bert);
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
        hall->takeEnd(anna);
        QCOMPARE(side->takeLog(), QStringList("answer 1"));
        QCOMPARE(hall->conferenceCount(), 0);
    }

    void whoIsAnsweredKeepsItUp()
    {
        const QList<LegId> legs = gathering({"bert"});
        hall->takeEnd(legs.at(1));
        const LegId bert = arrive("bert", creation("c", {}));
        hall->takeEnd(legs.at(0));
        QCOMPARE(hall->conferenceCount(), 1);
        hall->takeEnd(bert);
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

    void anyBodyIsTakenWithoutHarm_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QString>("why");
        QTest::newRow("nothing") << QByteArray() << "no JSON object, at byte 0";
        QTest::newRow("binary") << QByteArray("\xff\x00\xfe", 3) << "no JSON object, at byte 1";
        QTest::newRow("deep") << QByteArray(60000, '[') << "no JSON object, at byte 1025";
        QTest::newRow("long") << QByteArray(1000000, '[') << "1000000 bytes are too many";
        QTest::newRow("a word of the mixer's") << QByteArray(R"({"say":"over","why":""})") << "no word here: \"over\"";
        QTest::newRow("a word of an INVITE") << QByteArray(R"({"say":"create"})") << "no word here: \"create\"";
        QTest::newRow("half a word") << QByteArray(R"({"say":"kick"})") << "kick without a proper user";
    }

    void anyBodyIsTakenWithoutHarm()
    {
        QFETCH(const QByteArray, body);
        QFETCH(const QString, why);
        const QList<LegId> legs = gathering({"bert"});
        hall->takeBody(legs.at(0), body);
        QCOMPARE(side->takeLog(), QStringList());
        QCOMPARE(own(legs.at(0), Word::Denied).why, why);
        QCOMPARE(told({legs.at(1)}).connected, (QStringList{"anna", "bert"}));
    }

    void whoIsNotInItYetHasNoSay()
    {
        const LegId leg = arriveAndStay("anna", creation("c", {"bert"}));
        say(side->legOf("bert"), addition({"carl"}));
        tellNow();
        QVERIFY(!side->rung.contains("carl"));
        QCOMPARE(side->notes.last(),
                 QStringLiteral("conference c refuses bert, add: the conference has not been joined"));
        QCOMPARE(told({leg}).members, (QStringList{"anna", "bert"}));
    }

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
        hall->takeRefusal(3, 603);
        say(legs.at(1), addition({"dora"}));
        QCOMPARE(side->takeLog().last(), QStringLiteral("ring 4 dora"));
    }

    void strangersAreNotRememberedForEver()
    {
        Focus::Limits limits;
        limits.members = 5;
        make(limits);
        const QList<LegId> legs = gathering({"bert"});
        for (int i = 0; i < 100; ++i) {
            say(legs.at(0), addition({QString::number(i)}));
            hall->takeRefusal(side->legOf(QString::number(i)), 603);
        }
        const Talk::Message message = told(legs);
        QCOMPARE(message.members.size(), 10);
        QCOMPARE(message.members.mid(0, 2), (QStringList{"anna", "bert"}));
        QCOMPARE(message.members.last(), QStringLiteral("99"));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_Conference, Guiless)
#include "tst_Conference.moc"
