#include "mixer/focus/Bulletin.h"

#include <QtTest>

using Focus::Letter;
using State = Focus::Member::State;

namespace {

struct Told
{
    Focus::LegId leg;
    Talk::Message message;
};

Talk::Message head()
{
    Talk::Message message;
    message.id = QStringLiteral("c");
    message.creator = QStringLiteral("anna");
    message.createTime = 5;
    return message;
}

} // namespace

class tst_Bulletin : public QObject
{
    Q_OBJECT

private:
    Focus::Member &with(const char *id, State state, Focus::LegId leg = Focus::cNoLeg)
    {
        Focus::Member &member = m_roster->take(id);
        member.state = state;
        member.leg = leg;
        return member;
    }

    void come(const char *id, Focus::LegId leg)
    {
        with(id, State::Connected, leg);
        m_bulletin->noteJoined(id);
        m_bulletin->noteChange();
    }

    void go(const char *id)
    {
        with(id, State::Left);
        m_bulletin->noteLeft(id);
        m_bulletin->noteChange();
    }

    QList<Told> take()
    {
        m_notes.clear();
        QList<Told> told;
        for (const Letter &letter : m_bulletin->take(*m_roster, head(), &m_notes)) {
            const Talk::Heard heard = Talk::read(letter.body, Talk::Road::InfoDown);
            told.append({letter.leg, heard.message.value_or(Talk::Message())});
        }
        return told;
    }

    std::unique_ptr<Focus::Roster> m_roster;
    std::unique_ptr<Focus::Bulletin> m_bulletin;
    QStringList m_notes;

private slots:
    void init()
    {
        m_roster = std::make_unique<Focus::Roster>("anna");
        m_bulletin = std::make_unique<Focus::Bulletin>();
        come("anna", 1);
        come("bert", 2);
        take();
    }

    void howItStandsGoesToEachWhoIsInIt()
    {
        with("carl", State::Invited, 3);
        with("dora", State::Arriving, 4).muted = true;
        go("emil");
        come("bert", 2);
        const QList<Told> told = take();
        QCOMPARE(told.size(), 2);
        QCOMPARE(told.at(0).leg, 1);
        QCOMPARE(told.at(1).leg, 2);
        QCOMPARE(Talk::written(told.at(0).message), Talk::written(told.at(1).message));
        const Talk::Message message = told.at(0).message;
        QCOMPARE(message.saying, Talk::Word::Members);
        QCOMPARE(message.id, QStringLiteral("c"));
        QCOMPARE(message.creator, QStringLiteral("anna"));
        QCOMPARE(message.createTime, Q_INT64_C(5));
        QCOMPARE(message.members, (QStringList{"anna", "bert", "carl", "dora", "emil"}));
        QCOMPARE(message.connected, (QStringList{"anna", "bert"}));
        QCOMPARE(message.muted, QStringList("dora"));
        QCOMPARE(message.joined, QStringList("bert"));
        QCOMPARE(message.left, QStringList("emil"));
    }

    void newsIsToldOnce()
    {
        go("emil");
        m_bulletin->noteLeft("fred");
        m_bulletin->noteLeft("emil");
        QCOMPARE(take().at(0).message.left, (QStringList{"emil", "fred"}));
        m_bulletin->noteChange();
        const Talk::Message again = take().at(0).message;
        QCOMPARE(again.left, QStringList());
        QCOMPARE(again.joined, QStringList());
    }

    void howItStandsIsToldWhereItHasChangedAlone()
    {
        QCOMPARE(take().size(), 0);
        m_bulletin->noteDenial("bert", "kick", "no");
        m_bulletin->noteOutcome("anna", State::Busy, "carl");
        const QList<Told> told = take();
        QCOMPARE(told.size(), 2);
        QCOMPARE(told.at(0).message.saying, Talk::Word::Outcome);
        QCOMPARE(told.at(1).message.saying, Talk::Word::Denied);
    }

    void whoComesAndGoesIsToldAsItEnded()
    {
        come("carl", 3);
        go("carl");
        go("bert");
        come("bert", 4);
        come("dora", 5);
        m_bulletin->noteLeft("dora");
        m_roster->forget("dora");
        const Talk::Message message = take().at(0).message;
        QCOMPARE(message.left, (QStringList{"carl", "bert", "dora"}));
        QCOMPARE(message.joined, QStringList("bert"));
    }

    void outcomesGoToWhoHasCalled_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<QString>("field");
        QTest::newRow("busy") << static_cast<int>(State::Busy) << "busy";
        QTest::newRow("refused") << static_cast<int>(State::Refused) << "refused";
        QTest::newRow("failed") << static_cast<int>(State::Failed) << "failed";
        QTest::newRow("left before he was in it") << static_cast<int>(State::Left) << "failed";
    }

    void outcomesGoToWhoHasCalled()
    {
        QFETCH(const int, state);
        QFETCH(const QString, field);
        for (const char *id : {"carl", "dora", "carl"}) {
            m_bulletin->noteOutcome("bert", static_cast<State>(state), id);
        }
        m_bulletin->noteOutcome("nobody", static_cast<State>(state), "carl");
        const QList<Told> told = take();
        QCOMPARE(told.size(), 1);
        QCOMPARE(told.at(0).leg, 2);
        const Talk::Message message = told.at(0).message;
        QCOMPARE(message.saying, Talk::Word::Outcome);
        const QStringList both{"carl", "dora"};
        QCOMPARE(message.busy, field == "busy" ? both : QStringList());
        QCOMPARE(message.refused, field == "refused" ? both : QStringList());
        QCOMPARE(message.failed, field == "failed" ? both : QStringList());
        QCOMPARE(take().size(), 0);
    }

    void moreNewsThanAWordBearsComesInSeveral()
    {
        QStringList gone;
        QStringList called;
        for (int i = 0; i < Talk::cMostUsers + 1; ++i) {
            gone << QString::number(i);
            called << gone.last().rightJustified(128, '0');
            m_bulletin->noteLeft(gone.last());
            m_bulletin->noteOutcome("anna", State::Busy, called.last());
        }
        come("bert", 2);
        QStringList left;
        QStringList joined;
        QStringList busy;
        for (const Told &told : take()) {
            if (told.leg == 1) {
                QVERIFY(joined.isEmpty() || told.message.left.isEmpty());
                left += told.message.left;
                joined += told.message.joined;
                busy += told.message.busy;
            }
        }
        QCOMPARE(left, gone);
        QCOMPARE(joined, QStringList("bert"));
        QCOMPARE(busy, called);
    }

    void denialsAreGatheredForEach()
    {
        m_bulletin->noteDenial("bert", "kick", "no");
        m_bulletin->noteDenial("bert", "mute", "never");
        m_bulletin->noteDenial("bert", "mute", "never");
        m_bulletin->noteDenial("anna", "kick", "nobody");
        m_bulletin->noteDenial("gone", "add", "no");
        m_bulletin->noteChange();
        m_bulletin->noteOutcome("bert", State::Busy, "carl");
        const QList<Told> told = take();
        QCOMPARE(told.size(), 5);
        // How it stands, what came of it, what is refused.
        QCOMPARE(told.at(2).message.saying, Talk::Word::Outcome);
        QCOMPARE(told.at(3).leg, 1);
        QCOMPARE(told.at(3).message.saying, Talk::Word::Denied);
        QCOMPARE(told.at(3).message.why, QStringLiteral("nobody"));
        QCOMPARE(told.at(4).leg, 2);
        QCOMPARE(told.at(4).message.word, QStringLiteral("kick"));
        QCOMPARE(told.at(4).message.why, QStringLiteral("no, and 2 more"));
        QCOMPARE(m_notes, (QStringList{"anna, kick: nobody", "bert, kick: no, and 2 more", "gone, add: no"}));
        QCOMPARE(take().size(), 0);
        QCOMPARE(m_notes, QStringList());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_Bulletin, Appless)
#include "tst_Bulletin.moc"
