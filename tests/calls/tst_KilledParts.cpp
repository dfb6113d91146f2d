// Whoever takes part in a call dies at each of its steps: what the others tell their clients, and that nothing is left
// over. Two fronts for each step, at the exchange that the first of all has started; the callers of all steps are
// killed in one go, and so are the exchange and the called ones.

#include "calls/exchange/ExchangeTest.h"
#include "calls/peers/Person.h"
#include "calls/sound/SoundBox.h"

#include "fakes/Patience.h"

#include <QDir>
#include <QRegularExpression>
#include <QtTest>

#include <algorithm>
#include <array>
#include <csignal>
#include <map>

namespace {

enum class Step
{
    Registering,
    Ringing,
    Accepting,
    Talking,
    HangingUp
};

enum class Victim
{
    Caller,
    Exchange,
    Called
};

/// What each of those who are left hears, in any order: words apart by commas, each a pattern.
struct Row
{
    const char *name;
    Step step;
    Victim victim;
    const char *callerHears;
    const char *calledHears;
};
// clang-format off
constexpr std::array<Row, 15> cRows{{
    {"caller as he registers",       Step::Registering, Victim::Caller,   "",                        ""},
    {"exchange as he registers",     Step::Registering, Victim::Exchange, "17 false,17 true",        "17 false,17 true"},
    {"called as he registers",       Step::Registering, Victim::Called,   "17 true",                 ""},
    {"caller while it rings",        Step::Ringing,     Victim::Caller,   "",                        "4"},
    {"exchange while it rings",      Step::Ringing,     Victim::Exchange, "17 false,19,17 true",     "17 false,4,17 true"},
    {"called while it rings",        Step::Ringing,     Victim::Called,   "23",                      ""},
    {"caller as it is accepted",     Step::Accepting,   Victim::Caller,   "",                        "18,9"},
    {"exchange as it is accepted",   Step::Accepting,   Victim::Exchange, "17 false,19,17 true",     "18,17 false,9,17 true"},
    {"called as it is accepted",     Step::Accepting,   Victim::Called,   "23",                      ""},
    {"caller in the call",           Step::Talking,     Victim::Caller,   "",                        "9"},
    {"exchange in the call",         Step::Talking,     Victim::Exchange, "17 false,17 true",        "17 false,17 true"},
    {"called in the call",           Step::Talking,     Victim::Called,   "9",                       ""},
    {"caller as he hangs up",        Step::HangingUp,   Victim::Caller,   "",                        "[89]"},
    {"exchange as the caller hangs up", Step::HangingUp, Victim::Exchange, "17 false,17 true",       "17 false,[89],17 true"},
    {"called as the caller hangs up", Step::HangingUp,  Victim::Called,   "",                        ""},
}};
// clang-format on

} // namespace

class tst_KilledParts : public ExchangeTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        begin();
        QStringList people;
        for (size_t i = 0; i < cSteps; ++i) {
            m_pairs.at(i).step = Step(i);
            people << m_pairs.at(i).callersId() << m_pairs.at(i).calledsId();
        }
        QVERIFY(m_sound.start(people));
        callAnew();
    }

    void cleanupTestCase()
    {
        for (Pair &pair : m_pairs) {
            pair.caller.reset();
            pair.called.reset();
        }
        end();
    }

    void isToldToTheOthers_data()
    {
        QTest::addColumn<int>("victim");
        QTest::newRow("caller") << int(Victim::Caller);
        QTest::newRow("exchange") << int(Victim::Exchange);
        QTest::newRow("called") << int(Victim::Called);
    }

    void isToldToTheOthers()
    {
        QFETCH(int, victim);
        const auto each = [&](auto deed) {
            for (Pair &pair : m_pairs) {
                if (!QTest::currentTestFailed()) {
                    deed(pair, rowOf(pair.step, Victim(victim)));
                }
            }
        };
        std::map<const Person *, int> sockets;
        for (Person *person : everybody()) {
            sockets[person] = socketsOf(*person);
        }
        each([](Pair &pair, const Row & /*row*/) { comeTo(pair); });
        each([&](Pair &pair, const Row & /*row*/) { stop(pair, Victim(victim)); });
        each([](Pair &pair, const Row & /*row*/) { takeStep(pair); });
        each([&](Pair &pair, const Row & /*row*/) { kill(pair, Victim(victim)); });
        each([](Pair &pair, const Row &row) {
            hearsAll(pair.caller.get(), row.name, row.callerHears);
            hearsAll(pair.called.get(), row.name, row.calledHears);
        });
        each([](Pair &pair, const Row &row) {
            if (row.step == Step::Talking && row.victim == Victim::Exchange) {
                pair.caller->say("HangUpCall");
                QCOMPARE(pair.called->hears(), QStringLiteral("8"));
            }
        });
        if (QTest::currentTestFailed()) {
            return;
        }
        for (Person *person : everybody()) {
            QTRY_COMPARE_WITH_TIMEOUT(socketsOf(*person), sockets[person], cPatienceMs);
        }
        callAnew();
    }

private:
    static constexpr size_t cSteps = size_t(Step::HangingUp) + 1;
    static_assert(cRows.size() == cSteps * (size_t(Victim::Called) + 1), "a row for each step and victim");

    /// Two who call each other, for one step.
    struct Pair
    {
        Step step{};
        std::unique_ptr<Person> caller;
        std::unique_ptr<Person> called;

        QString callersId() const { return QString::number(100 + 10 * int(step)); }
        QString calledsId() const { return QString::number(101 + 10 * int(step)); }
    };

    static const Row &rowOf(Step step, Victim victim)
    {
        return *std::find_if(cRows.begin(), cRows.end(),
                             [&](const Row &row) { return row.step == step && row.victim == victim; });
    }

    /// Who lives.
    QList<Person *> everybody()
    {
        QList<Person *> people;
        for (Pair &pair : m_pairs) {
            for (Person *person : {pair.caller.get(), pair.called.get()}) {
                if (person != nullptr) {
                    people << person;
                }
            }
        }
        return people;
    }

    std::unique_ptr<Person> arrived(const QString &id) const
    {
        auto person = std::make_unique<Person>(folder(), id);
        person->set(QStringLiteral("media/no-media"), QStringLiteral("5"));
        return person->arrive() ? std::move(person) : nullptr;
    }

    /// Brings them to where the step begins.
    static void comeTo(Pair &pair)
    {
        if (pair.step == Step::Registering) {
            pair.caller->say("UnReg");
            QVERIFY(pair.caller->peer().waitTrace(QStringLiteral("UnReg")));
            return;
        }
        pair.caller->call(*pair.called);
        QCOMPARE(pair.called->hears(), QStringLiteral("0 ") + pair.caller->id());
        QVERIFY(pair.caller->peer().waitTrace(QStringLiteral("it rings there")));
        if (pair.step == Step::Talking || pair.step == Step::HangingUp) {
            pair.called->say("AcceptCall");
            QCOMPARE(pair.called->hears(), QStringLiteral("18"));
            QCOMPARE(pair.caller->hears(), QStringLiteral("18"));
        }
    }

    /// What is over at once: whoever dies in it is stopped before.
    static void takeStep(Pair &pair)
    {
        if (pair.step == Step::Registering) {
            pair.caller->signIn(QStringLiteral("any"));
        } else if (pair.step == Step::Accepting) {
            pair.called->say("AcceptCall");
        } else if (pair.step == Step::HangingUp) {
            pair.caller->say("HangUpCall");
        }
    }

    QList<qint64> processesOf(const Pair &pair, Victim victim) const
    {
        switch (victim) {
        case Victim::Caller:
            return {pair.caller->peer().process().processId()};
        case Victim::Called:
            return {pair.called->peer().process().processId()};
        case Victim::Exchange:
            break;
        }
        return servers();
    }

    void stop(const Pair &pair, Victim victim) const
    {
        if (pair.step == Step::Ringing || pair.step == Step::Talking) {
            return;
        }
        for (const qint64 pid : processesOf(pair, victim)) {
            QCOMPARE(::kill(pid_t(pid), SIGSTOP), 0);
        }
    }

    void kill(Pair &pair, Victim victim)
    {
        if (victim != Victim::Exchange) {
            std::unique_ptr<Person> &person = victim == Victim::Caller ? pair.caller : pair.called;
            killAndWait(person->peer().process().processId());
            QVERIFY(person->peer().process().waitForFinished(cPatienceMs));
            person.reset();
        } else if (&pair == &m_pairs.front()) {
            // One for all. Its parent last: those whom a stopped one leaves behind go on, and one that runs ends the
            // others.
            const qint64 parent = firstServer();
            for (const qint64 pid : servers()) {
                if (pid != parent) {
                    ::kill(pid_t(pid), SIGKILL);
                }
            }
            ::kill(pid_t(parent), SIGKILL);
        }
    }

    /// Waits until he has heard all of that, in any order, and nothing else.
    static void hearsAll(Person *person, const char *row, const char *words)
    {
        QStringList due = QString::fromLatin1(words).split(QLatin1Char(','), Qt::SkipEmptyParts);
        while (person != nullptr && !due.isEmpty()) {
            const QString heard = person->hears();
            const auto fits = [&heard](const QString &word) {
                return QRegularExpression(QRegularExpression::anchoredPattern(word)).match(heard).hasMatch();
            };
            const auto found = std::find_if(due.begin(), due.end(), fits);
            QVERIFY2(found != due.end(),
                     qPrintable(QStringLiteral("%1: %2 heard \"%3\", due: %4")
                                    .arg(QString::fromLatin1(row), person->id(), heard, due.join(QLatin1Char(',')))));
            due.erase(found);
        }
    }

    /// Whoever died comes again, and the two of each pair can call each other.
    void callAnew()
    {
        for (Pair &pair : m_pairs) {
            if (!pair.caller) {
                pair.caller = arrived(pair.callersId());
            }
            if (!pair.called) {
                pair.called = arrived(pair.calledsId());
            }
            QVERIFY(pair.caller && pair.called);
            QVERIFY(pair.called->reaches(*pair.caller));
            pair.called->say("HangUpCall");
            QCOMPARE(pair.caller->hears(), QStringLiteral("8"));
            QVERIFY(pair.caller->reaches(*pair.called));
            pair.caller->say("HangUpCall");
            QCOMPARE(pair.called->hears(), QStringLiteral("8"));
        }
        QCOMPARE(keepers().size(), 1);
    }

    /// How many sockets his process has open.
    static int socketsOf(Person &person)
    {
        const QDir open(QStringLiteral("/proc/%1/fd").arg(person.peer().process().processId()));
        int sockets = 0;
        for (const QFileInfo &one : open.entryInfoList(QDir::Files | QDir::System)) {
            sockets += one.symLinkTarget().contains(QLatin1String("socket:")) ? 1 : 0;
        }
        return sockets;
    }

    SoundBox m_sound;
    std::array<Pair, cSteps> m_pairs;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_KilledParts, Guiless)
#include "tst_KilledParts.moc"
