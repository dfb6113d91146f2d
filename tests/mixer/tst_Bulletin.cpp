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
        member.hasNews = true;
        member.leg = leg;
        return member;
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
        with("anna", State::Connected, 1);
        with("bert", State::Connected, 2);
        take();
    }

    void howItStandsGoesToEachWhoIsInIt()
    {
        with("carl", State::Invited, 3);
        with("dora", State::Arriving, 4).muted = true;
        with("emil", State::Left);
        with("bert", State::Connected, 2);
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
        with("emil", State::Left);
        m_bulletin->noteRemoved("fred");
        QCOMPARE(take().at(0).message.left, (QStringList{"emil", "fred"}));
        const Talk::Message again = take().at(0).message;
        QCOMPARE(again.left, QStringList());
        QCOMPARE(again.joined, QStringList());
    }

    void outcomesGoToWhoHasCalled_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<QString>("field");
        QTest::newRow("busy") << static_cast<int>(State::Busy) << "busy";
        QTest::newRow("refused") << static_cast<int>(State::Refused) << "refused";
        QTest::newRow("failed") << static_cast<int>(State::Failed) << "failed";
        QTest::newRow("left") << static_cast<int>(State::Left) << "none";
    }

    void outcomesGoToWhoHasCalled()
    {
        QFETCH(const int, state);
        QFETCH(const QString, field);
        with("carl", static_cast<State>(state)).askers = QStringList{"bert", "nobody"};
        with("dora", static_cast<State>(state)).askers = QStringList{"bert"};
        const QList<Told> told = take();
        QCOMPARE(told.size(), field == "none" ? 2 : 3);
        QCOMPARE(m_roster->find("carl")->askers, QStringList());
        if (field == "none") {
            return;
        }
        QCOMPARE(told.at(2).leg, 2);
        const Talk::Message message = told.at(2).message;
        QCOMPARE(message.saying, Talk::Word::Outcome);
        const QStringList both{"carl", "dora"};
        QCOMPARE(message.busy, field == "busy" ? both : QStringList());
        QCOMPARE(message.refused, field == "refused" ? both : QStringList());
        QCOMPARE(message.failed, field == "failed" ? both : QStringList());
        QCOMPARE(take().size(), 2);
    }

    void whoeverStillRingsIsWaitedFor()
    {
        with("carl", State::Invited, 3).askers = QStringList{"bert"};
        QCOMPARE(take().size(), 2);
        QCOMPARE(m_roster->find("carl")->askers, QStringList("bert"));
    }

    void whatCouldNotBeTriedIsToldWithTheRest()
    {
        m_bulletin->noteFailure("bert", "gerd");
        with("carl", State::Failed).askers = QStringList{"bert"};
        const QList<Told> told = take();
        QCOMPARE(told.size(), 3);
        QCOMPARE(told.at(2).message.failed, (QStringList{"gerd", "carl"}));
        QCOMPARE(take().size(), 2);
    }

    void denialsAreGatheredForEach()
    {
        m_bulletin->noteDenial("bert", "kick", "no");
        m_bulletin->noteDenial("bert", "mute", "never");
        m_bulletin->noteDenial("bert", "mute", "never");
        m_bulletin->noteDenial("anna", "kick", "nobody");
        m_bulletin->noteDenial("gone", "add", "no");
        with("carl", State::Busy).askers = QStringList{"bert"};
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
        QCOMPARE(take().size(), 2);
        QCOMPARE(m_notes, QStringList());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_Bulletin, Appless)
#include "tst_Bulletin.moc"
