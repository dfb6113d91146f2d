// A conference that comes to a mixer which knows nothing of it, since its own was lost.

#include "mixer/FocusTest.h"

using Talk::Word;

class tst_LostMixer : public FocusTest
{
    Q_OBJECT

private:
    /// What the members were told last: "anna" had made it, "dora" had left, "bert" was muted.
    static Talk::Message lastWord()
    {
        Talk::Message message = word(Word::Resume);
        message.id = QStringLiteral("c");
        message.creator = QStringLiteral("anna");
        message.createTime = 1700000000000;
        message.members = QStringList{"anna", "bert", "carl", "dora"};
        message.connected = QStringList{"anna", "bert", "carl"};
        message.muted = QStringList{"bert"};
        return message;
    }

private slots:
    void theFirstWhoComesBringsItBack()
    {
        const LegId bert = arriveAndStay("bert", lastWord());
        QCOMPARE(side->takeLog(), (QStringList{"answer 1", "silence 1"}));
        const Talk::Message first = told({bert});
        QCOMPARE(first.creator, QStringLiteral("anna"));
        QCOMPARE(first.createTime, Q_INT64_C(1700000000000));
        QCOMPARE(first.members, lastWord().members);
        QCOMPARE(first.connected, QStringList("bert"));
        QCOMPARE(first.muted, QStringList("bert"));
        QCOMPARE(first.left, QStringList());
        const LegId carl = arriveAndStay("carl", lastWord());
        QCOMPARE(told({bert, carl}).joined, QStringList("carl"));
        QCOMPARE(hall->conferenceCount(), 1);
        QVERIFY(side->rung.isEmpty());
    }

    void whoDoesNotComeHasLeft()
    {
        const LegId anna = arriveAndStay("anna", lastWord());
        arriveAndStay("bert", lastWord());
        told({anna});
        QCOMPARE(hall->findChildren<QTimer *>("await").value(0)->interval(), Focus::cAwaitMs);
        expire("await");
        const Talk::Message message = told({anna});
        QCOMPARE(message.left, QStringList("carl"));
        QCOMPARE(message.connected, (QStringList{"anna", "bert"}));
        const LegId carl = arriveAndStay("carl", lastWord());
        QCOMPARE(told({anna, carl}).joined, QStringList("carl"));
    }

    void theAwaitedKeepItUp()
    {
        const LegId bert = arriveAndStay("bert", lastWord());
        leave(bert);
        QCOMPARE(hall->conferenceCount(), 1);
        expire("await");
        QCOMPARE(hall->conferenceCount(), 0);
    }

    void aCreatorWhoComesLateWaitsForNobody()
    {
        const LegId bert = arriveAndStay("bert", lastWord());
        expire("await");
        const LegId anna = arriveAndStay("anna", lastWord());
        leave(bert);
        leave(anna);
        QCOMPARE(hall->conferenceCount(), 0);
    }

    void theCreatorsWordIsTheLast()
    {
        Talk::Message wrong = lastWord();
        wrong.members << "emil";
        wrong.connected << "emil";
        wrong.muted = QStringList{"carl"};
        wrong.createTime = 5;
        const LegId emil = arriveAndStay("emil", wrong);
        const LegId carl = arriveAndStay("carl", wrong);
        tellNow();
        side->takeLog();
        const LegId anna = arriveAndStay("anna", lastWord());
        QCOMPARE(side->takeLog(),
                 (QStringList{QStringLiteral("send %1 over").arg(emil), QStringLiteral("end %1").arg(emil),
                              QStringLiteral("hear %1").arg(carl), "answer 3"}));
        const Talk::Message message = told({anna, carl});
        QCOMPARE(message.members, lastWord().members);
        QCOMPARE(message.muted, QStringList("bert"));
        QCOMPARE(message.createTime, Q_INT64_C(1700000000000));
        QCOMPARE(message.left, QStringList("emil"));
    }

    void theCreatorHasTheLastWordOnce()
    {
        const LegId anna = arriveAndStay("anna", lastWord());
        const LegId bert = arriveAndStay("bert", lastWord());
        say(anna, addition({"emil"}));
        const LegId emil = accept("emil");
        leave(anna);
        tellNow();
        side->bodies.clear();
        const LegId back = arriveAndStay("anna", lastWord());
        QCOMPARE(told({back, bert, emil}).connected, (QStringList{"anna", "bert", "emil"}));
    }

    void aCreatorWhoComesLateHasNoLastWord()
    {
        const LegId bert = arriveAndStay("bert", lastWord());
        say(bert, addition({"emil"}));
        const LegId emil = accept("emil");
        expire("await");
        tellNow();
        side->bodies.clear();
        Talk::Message late = lastWord();
        late.muted = QStringList{"carl"};
        const LegId anna = arriveAndStay("anna", late);
        const Talk::Message message = told({anna, bert, emil});
        QCOMPARE(message.connected, (QStringList{"anna", "bert", "emil"}));
        QCOMPARE(message.muted, QStringList("bert"));
    }

    void theCreatorsWordMakesRoomForHimself()
    {
        make({1, 3, 9, 60});
        Talk::Message wrong = lastWord();
        wrong.members = QStringList{"anna", "bert", "emil", "fred"};
        wrong.connected = QStringList{"bert", "emil", "fred"};
        const LegId bert = arriveAndStay("bert", wrong);
        Talk::Message right = lastWord();
        right.members.removeAll("dora");
        const LegId anna = arriveAndStay("anna", right);
        const Talk::Message message = told({anna, bert});
        QCOMPARE(message.members, (QStringList{"anna", "bert", "carl"}));
        QCOMPARE(message.left, (QStringList{"emil", "fred"}));
    }

    void theCreatorsWordIsHeldToTheLimitsToo()
    {
        make({1, 3, 9, 60});
        Talk::Message first = lastWord();
        first.members = QStringList{"anna", "bert", "carl"};
        first.connected = first.members;
        const LegId bert = arriveAndStay("bert", first);
        Talk::Message more = first;
        more.members += people("u", 20);
        more.connected = QStringList{"anna"} + people("u", 20);
        const LegId anna = arriveAndStay("anna", more);
        QCOMPARE(told({anna, bert}).members, (QStringList{"anna", "bert", "carl", "u0", "u1", "u2"}));
        // "carl" is awaited still, so there is no place for another one.
        const LegId stranger = arrive("u0", more);
        QCOMPARE(side->takeLog().last(), QStringLiteral("refuse %1 403").arg(stranger));
        const LegId carl = arriveAndStay("carl", first);
        QCOMPARE(told({anna, bert, carl}).connected, (QStringList{"anna", "bert", "carl"}));
    }

    void aConferenceThatWasMadeHereTakesNobodysWord()
    {
        const QList<LegId> legs = gathering({"bert"});
        leave(legs.at(0));
        tellNow();
        side->bodies.clear();
        const LegId anna = arriveAndStay("anna", lastWord());
        const Talk::Message message = told({anna, legs.at(1)});
        QCOMPARE(message.members, (QStringList{"anna", "bert"}));
        QCOMPARE(message.muted, QStringList());
    }

    void aStrangerDoesNotBringItBack()
    {
        arrive("emil", lastWord());
        QCOMPARE(side->takeLog(), QStringList("refuse 1 403"));
        QCOMPARE(hall->conferenceCount(), 0);
        arriveAndStay("bert", lastWord());
        Talk::Message claim = lastWord();
        claim.members << "emil";
        arrive("emil", claim);
        QCOMPARE(side->takeLog().last(), QStringLiteral("refuse 3 403"));
    }

    void aCreatorWhoIsNotListedBelongsToIt()
    {
        Talk::Message message = lastWord();
        message.members.removeAll("anna");
        const LegId anna = arriveAndStay("anna", message);
        QCOMPARE(told({anna}).connected, QStringList("anna"));
        const LegId bert = arriveAndStay("bert", message);
        say(anna, word(Word::Unmute, "bert"));
        QCOMPARE(told({anna, bert}).muted, QStringList());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_LostMixer, Guiless)
#include "tst_LostMixer.moc"
