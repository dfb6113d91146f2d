#include "mixer/FocusTest.h"

using Talk::Word;

class tst_Hall : public FocusTest
{
    Q_OBJECT

private:
    static Talk::Message revival(const QStringList &members, const QStringList &connected)
    {
        Talk::Message message = word(Word::Resume);
        message.id = QStringLiteral("c");
        message.creator = QStringLiteral("anna");
        message.members = members;
        message.connected = connected;
        return message;
    }

private slots:
    void conferencesDoNotHearOfEachOther()
    {
        const LegId anna = arriveAndStay("anna", creation("c", {"bert", "carl"}));
        const LegId dora = arriveAndStay("dora", creation("d", {"bert"}));
        const LegId bert = accept("bert");
        tellNow();
        QCOMPARE(hall->conferenceCount(), 2);
        QCOMPARE(side->takeBodies(anna).value(0).members, (QStringList{"anna", "bert", "carl"}));
        QCOMPARE(side->takeBodies(dora).value(0).connected, (QStringList{"dora", "bert"}));
        side->bodies.clear();
        side->takeLog();
        say(dora, word(Word::Kick, "carl"));
        say(dora, word(Word::Mute, "non_moderator"));
        QCOMPARE(side->takeLog(), QStringList("silence %1").replaceInStrings("%1", QString::number(bert)));
        leave(dora);
        leave(bert);
        tellNow();
        QCOMPARE(hall->conferenceCount(), 1);
        QVERIFY(!side->bodies.contains(anna));
        QVERIFY(side->open.contains(anna));
    }

    void anIdIsFreeAgainAfterwards()
    {
        leave(arriveAndStay("anna", creation("c", {})));
        const LegId dora = arriveAndStay("dora", creation("c", {"anna"}));
        QCOMPARE(told({dora}).creator, QStringLiteral("dora"));
        QCOMPARE(hall->conferenceCount(), 1);
    }

    void headersThatDoNotFitAreRefused_data()
    {
        QTest::addColumn<QByteArray>("header");
        QTest::addColumn<QString>("why");
        QTest::newRow("none") << QByteArray() << "no JSON object, at byte 0";
        QTest::newRow("binary") << QByteArray("\xff\x00", 2) << "no JSON object, at byte 1";
        QTest::newRow("too long") << QByteArray(16001, ' ') << "16001 bytes are too many";
        QTest::newRow("a word of an INFO") << Talk::written(addition({"bert"})) << "no word here: \"add\"";
        QTest::newRow("another conference") << Talk::written(creation("d", {})) << "header and address do not fit";
    }

    void headersThatDoNotFitAreRefused()
    {
        QFETCH(const QByteArray, header);
        QFETCH(const QString, why);
        hall->takeArrival(7, "c", "anna", header);
        QCOMPARE(side->takeLog(), QStringList("refuse 7 400"));
        QCOMPARE(side->reasons, QStringList(why));
        QCOMPARE(hall->conferenceCount(), 0);
        QCOMPARE(hall->legCount(), 0);
    }

    void whoCannotBeAUserIsRefused()
    {
        hall->takeArrival(7, "c", "a\nb", Talk::written(creation("c", {})));
        QCOMPARE(side->takeLog(), QStringList("refuse 7 400"));
    }

    void somebodyElsesConferenceIsRefused()
    {
        arriveAndStay("anna", creation("c", {"bert"}));
        const LegId leg = arrive("dora", creation("c", {"bert"}));
        QCOMPARE(side->takeLog().last(), QStringLiteral("refuse %1 403").arg(leg));
    }

    void limitsAreRefusedWithAReason_data()
    {
        QTest::addColumn<int>("conferences");
        QTest::addColumn<int>("members");
        QTest::addColumn<int>("legs");
        QTest::addColumn<QString>("refusal");
        QTest::addColumn<QString>("why");
        // "c" has two members and two legs; "d" wants three, since who makes it stands among them.
        QTest::newRow("as many as may be") << 2 << 3 << 5 << ""
                                           << "";
        QTest::newRow("conferences") << 1 << 3 << 5 << "503"
                                     << "the mixer has 1 conferences, as many as it may";
        QTest::newRow("members") << 2 << 2 << 5 << "403"
                                 << "a conference has 2 members at most";
        QTest::newRow("legs") << 2 << 3 << 4 << "503"
                              << "the mixer has only 2 legs left";
    }

    void limitsAreRefusedWithAReason()
    {
        QFETCH(const int, conferences);
        QFETCH(const int, members);
        QFETCH(const int, legs);
        QFETCH(const QString, refusal);
        QFETCH(const QString, why);
        make({conferences, members, legs, 60});
        gathering({"bert"});
        const LegId leg = arriveAndStay("dora", creation("d", {"dora", "emil", "fred"}));
        const QString expected = refusal.isEmpty() ? "answer %1" : "refuse %1 " + refusal;
        QCOMPARE(side->takeLog().value(0), expected.arg(leg));
        QCOMPARE(side->reasons.value(0), why);
        QCOMPARE(side->notes.contains("no conference d for dora: " + why), !refusal.isEmpty());
        QCOMPARE(hall->conferenceCount(), refusal.isEmpty() ? 2 : 1);
        QCOMPARE(hall->legCount(), refusal.isEmpty() ? 5 : 2);
    }

    void aConferenceThatComesBackIsHeldToTheLimitsToo_data()
    {
        QTest::addColumn<QStringList>("members");
        QTest::addColumn<QStringList>("connected");
        QTest::addColumn<bool>("comes");
        // Two may be in it at once, four may belong to it; "anna" calls, who has made it.
        const QStringList four{"anna", "bert", "carl", "dora"};
        QTest::newRow("as many as may be") << four << QStringList{"anna", "bert"} << true;
        QTest::newRow("too many belong to it")
            << QStringList{"anna", "bert", "carl", "dora", "emil"} << QStringList{"anna"} << false;
        QTest::newRow("too many with her") << people("u", 4) << QStringList() << false;
        QTest::newRow("too many are in it") << four << QStringList{"anna", "bert", "carl"} << false;
        QTest::newRow("too many are in it with her") << four << QStringList{"bert", "carl"} << false;
    }

    void aConferenceThatComesBackIsHeldToTheLimitsToo()
    {
        QFETCH(const QStringList, members);
        QFETCH(const QStringList, connected);
        QFETCH(const bool, comes);
        make({1, 2, 2, 60});
        Talk::Message message = revival(members, connected);
        arriveAndStay("anna", message);
        QCOMPARE(side->takeLog(), QStringList(comes ? "answer 1" : "refuse 1 403"));
        QCOMPARE(hall->conferenceCount(), comes ? 1 : 0);
        if (comes) {
            arriveAndStay("bert", message);
            QCOMPARE(hall->legCount(), 2);
            message.id = QStringLiteral("d");
            arrive("anna", message);
            QCOMPARE(side->takeLog().last(), QStringLiteral("refuse 3 503"));
        }
    }

    void whatAFullConferenceWasToldBringsItBack()
    {
        Focus::Limits limits;
        limits.members = 5;
        make(limits);
        QList<LegId> legs = gathering({"bert"});
        for (const QString &id : people("u", 20)) {
            say(legs.at(0), addition({id}));
            decline(side->legOf(id), 603);
        }
        const Talk::Message last = told(legs);
        QVERIFY(last.members.size() > limits.members);
        make(limits);
        legs = {arriveAndStay("bert", resumption(last)), arriveAndStay("anna", resumption(last))};
        QCOMPARE(told(legs).members, last.members);
        QCOMPARE(hall->legCount(), 2);
    }

    void manyArrivalsThatDoNotFitAreFewNotes()
    {
        for (int i = 0; i < 1000; ++i) {
            hall->takeArrival(side->nextLeg(), "c", "anna", i % 2 == 0 ? "{}" : Talk::written(revival({"bert"}, {})));
            hall->takeArrival(side->nextLeg(), "c", "emil", Talk::written(revival({"bert"}, {})));
        }
        QCOMPARE(hall->conferenceCount(), 1);
        expire("notes");
        // One more tells that a conference goes on here.
        QCOMPARE(side->notes.size(), 12);
        QCOMPARE(side->notes.last(), QStringLiteral("of arrivals, 491 more notes in a minute"));
        side->notes.clear();
        expire("notes");
        QCOMPARE(side->notes, QStringList());
        hall->takeArrival(side->nextLeg(), "c", "anna", "{}");
        QCOMPARE(side->notes.size(), 1);
    }

    void noLegIsLeftForWhoIsCalledOrCalls()
    {
        make({5, 5, 3, 60});
        const QList<LegId> legs = gathering({"bert", "carl"});
        say(legs.at(0), addition({"dora"}));
        tellNow();
        const QList<Talk::Message> bodies = side->takeBodies(legs.at(0));
        QCOMPARE(bodies.value(0).failed, QStringList("dora"));
        QCOMPARE(bodies.value(1).why, QStringLiteral("the mixer has no leg left"));
        leave(legs.at(2));
        arriveAndStay("emil", creation("e", {}));
        const LegId carl = arrive("carl", creation("c", {}));
        QCOMPARE(side->takeLog().last(), QStringLiteral("refuse %1 503").arg(carl));
        // Who has a leg needs no other one.
        const LegId bert = arrive("bert", creation("c", {}));
        QCOMPARE(side->takeLog(), (QStringList{"end 2", QStringLiteral("answer %1").arg(bert)}));
        QCOMPARE(hall->legCount(), 3);
    }

    void aStormIsToldInFewWords()
    {
        const QStringList crowd = people("u", 30);
        const LegId anna = arriveAndStay("anna", creation("c", crowd));
        QElapsedTimer timer;
        timer.start();
        int words = 0;
        // 30 come and 30 go within a second, and meanwhile 200 are muted.
        for (int i = 0; i < 30; ++i) {
            accept(crowd.at(i));
            for (int k = 0; k < 7; ++k, ++words) {
                say(anna, word(words % 2 == 0 ? Word::Mute : Word::Unmute, crowd.at(i / 2)));
            }
            QTest::qWait(15);
        }
        for (const QString &id : crowd) {
            leave(side->legOf(id));
            QTest::qWait(15);
        }
        const qint64 most = timer.elapsed() / Focus::cGatherMs + 1;
        QVERIFY(words > 200);
        for (auto bodies = side->bodies.cbegin(); bodies != side->bodies.cend(); ++bodies) {
            QVERIFY2(bodies->size() <= most, qPrintable(QString::number(bodies->size())));
        }
        const Talk::Message last = told({anna});
        QCOMPARE(last.connected, QStringList("anna"));
        QCOMPARE(last.members.size(), 31);
        QCOMPARE(hall->legCount(), 1);
    }

    void legsThatNobodyKnowsAreNobodys()
    {
        const QList<LegId> legs = gathering({"bert"});
        for (const LegId leg : {Focus::cNoLeg, -1, 99}) {
            comeUp(leg);
            decline(leg, 486);
            hall->takeBody(leg, Talk::written(addition({"carl"})));
            leave(leg);
        }
        tellNow();
        QCOMPARE(side->takeLog(), QStringList());
        QCOMPARE(hall->legCount(), legs.size());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_Hall, Guiless)
#include "tst_Hall.moc"
