// What members say in a conference: who may, what it does, and what has no effect.

#include "mixer/FocusTest.h"

using Talk::Word;

class tst_ConferenceRights : public FocusTest
{
    Q_OBJECT

private slots:
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
        side->bodies.clear();
        say(legs.at(0), FocusTest::word(Word::Mute, "carl"));
        const Talk::Message members = told(legs);
        QCOMPARE(members.connected.size(), 4);
        QCOMPARE(members.muted, (QStringList{"carl", "dora"}));
    }

    void theCreatorIsKnownByHisLegAlsoAfterHisReturn()
    {
        const QList<LegId> legs = gathering({"bert", "carl"});
        leave(legs.at(0));
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
        leave(legs.at(3));
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

    void anyBodyIsTakenWithoutHarm_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QString>("why");
        QTest::newRow("nothing") << QByteArray() << "no JSON object, at byte 0";
        QTest::newRow("binary") << QByteArray("\xff\x00\xfe", 3) << "no JSON object, at byte 1";
        QTest::newRow("deep") << QByteArray(60000, '[') << "more than lists in an object, or a key twice";
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
        // Nothing has changed, so nobody is told how it stands.
        QCOMPARE(side->takeLog(), QStringList("send 1 denied"));
    }

    void aNameFromOutsideIsToldAsItIs()
    {
        const QList<LegId> legs = gathering({"bert"});
        const QByteArray body = R"({"say":"add","users":[],"%1":0})";
        hall->takeBody(legs.at(1), body);
        hall->takeBody(legs.at(1), body);
        QCOMPARE(own(legs.at(1), Word::Denied).why, QStringLiteral("add has no \"%1\", and 1 more"));
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
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ConferenceRights, Guiless)
#include "tst_ConferenceRights.moc"
