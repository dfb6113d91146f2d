// Whoever takes part in a call dies at each of its steps: what the others tell their clients, and that nothing is left
// over. Two fronts at the exchange that the first of them has started.

#include "calls/ExchangeTest.h"
#include "calls/Person.h"
#include "calls/SoundBox.h"

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
        QVERIFY(m_sound.start({cCaller, cCalled}));
        callAnew();
    }

    void cleanupTestCase()
    {
        m_caller.reset();
        m_called.reset();
        end();
    }

    void isToldToTheOthers_data()
    {
        QTest::addColumn<int>("row");
        for (size_t i = 0; i < cRows.size(); ++i) {
            QTest::newRow(cRows[i].name) << int(i);
        }
    }

    void isToldToTheOthers()
    {
        QFETCH(int, row);
        const Row &now = cRows.at(size_t(row));
        QVERIFY(m_caller && m_called);
        std::map<const Person *, int> sockets;
        for (Person *person : {m_caller.get(), m_called.get()}) {
            sockets[person] = socketsOf(*person);
        }
        comeTo(now.step, now.victim);
        if (!QTest::currentTestFailed()) {
            kill(now.victim);
            hearsAll(m_caller.get(), now.callerHears);
            hearsAll(m_called.get(), now.calledHears);
        }
        if (QTest::currentTestFailed()) {
            return;
        }
        if (now.step == Step::Talking && now.victim == Victim::Exchange) {
            m_caller->say("HangUpCall");
            QCOMPARE(m_called->hears(), QStringLiteral("8"));
        }
        for (Person *person : {m_caller.get(), m_called.get()}) {
            if (person != nullptr) {
                QTRY_COMPARE_WITH_TIMEOUT(socketsOf(*person), sockets[person], cPatienceMs);
            }
        }
        callAnew();
    }

private:
    std::unique_ptr<Person> arrived(const QString &id) const
    {
        auto person = std::make_unique<Person>(folder(), id);
        person->set(QStringLiteral("media/no-media"), QStringLiteral("5"));
        return person->arrive() ? std::move(person) : nullptr;
    }

    /// Brings them to the step. Whoever dies in what is over at once is stopped before.
    void comeTo(Step step, Victim victim)
    {
        if (step == Step::Registering) {
            m_caller->say("UnReg");
            QVERIFY(m_caller->peer().waitTrace(QStringLiteral("UnReg")));
            stop(victim);
            m_caller->signIn(QStringLiteral("any"));
            return;
        }
        m_caller->call(*m_called);
        QCOMPARE(m_called->hears(), QStringLiteral("0 ") + m_caller->id());
        QVERIFY(m_caller->peer().waitTrace(QStringLiteral("it rings there")));
        if (step == Step::Ringing) {
            return;
        }
        if (step == Step::Accepting) {
            stop(victim);
            m_called->say("AcceptCall");
            return;
        }
        m_called->say("AcceptCall");
        QCOMPARE(m_called->hears(), QStringLiteral("18"));
        QCOMPARE(m_caller->hears(), QStringLiteral("18"));
        if (step == Step::HangingUp) {
            stop(victim);
            m_caller->say("HangUpCall");
        }
    }

    QList<qint64> processesOf(Victim victim) const
    {
        switch (victim) {
        case Victim::Caller:
            return {m_caller->peer().process().processId()};
        case Victim::Called:
            return {m_called->peer().process().processId()};
        case Victim::Exchange:
            break;
        }
        return servers();
    }

    void stop(Victim victim) const
    {
        for (const qint64 pid : processesOf(victim)) {
            QCOMPARE(::kill(pid_t(pid), SIGSTOP), 0);
        }
    }

    void kill(Victim victim)
    {
        if (victim == Victim::Exchange) {
            // Its parent last: those whom a stopped one leaves behind go on, and one that runs ends the others.
            const qint64 parent = firstServer();
            for (const qint64 pid : servers()) {
                if (pid != parent) {
                    ::kill(pid_t(pid), SIGKILL);
                }
            }
            ::kill(pid_t(parent), SIGKILL);
        } else {
            std::unique_ptr<Person> &person = victim == Victim::Caller ? m_caller : m_called;
            killAndWait(person->peer().process().processId());
            QVERIFY(person->peer().process().waitForFinished(cPatienceMs));
            person.reset();
        }
    }

    /// Waits until he has heard all of that, in any order, and nothing else.
    static void hearsAll(Person *person, const char *words)
    {
        QStringList due = QString::fromLatin1(words).split(QLatin1Char(','), Qt::SkipEmptyParts);
        while (person != nullptr && !due.isEmpty()) {
            const QString heard = person->hears();
            const auto fits = [&heard](const QString &word) {
                return QRegularExpression(QRegularExpression::anchoredPattern(word)).match(heard).hasMatch();
            };
            const auto found = std::find_if(due.begin(), due.end(), fits);
            QVERIFY2(
                found != due.end(),
                qPrintable(
                    QStringLiteral("%1 heard \"%2\", due: %3").arg(person->id(), heard, due.join(QLatin1Char(',')))));
            due.erase(found);
        }
    }

    /// Whoever died comes again, and the two can call each other.
    void callAnew()
    {
        for (auto *person : {&m_caller, &m_called}) {
            if (!*person) {
                *person = arrived(person == &m_caller ? cCaller : cCalled);
            }
            QVERIFY(*person);
        }
        QVERIFY(m_called->reaches(*m_caller));
        m_called->say("HangUpCall");
        QCOMPARE(m_caller->hears(), QStringLiteral("8"));
        QVERIFY(m_caller->reaches(*m_called));
        m_caller->say("HangUpCall");
        QCOMPARE(m_called->hears(), QStringLiteral("8"));
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

    static const QString cCaller;
    static const QString cCalled;

    SoundBox m_sound;
    std::unique_ptr<Person> m_caller;
    std::unique_ptr<Person> m_called;
};

const QString tst_KilledParts::cCaller = QStringLiteral("100");
const QString tst_KilledParts::cCalled = QStringLiteral("200");

#include "support/TestProgram.h"
VOIP_TEST(tst_KilledParts, Guiless)
#include "tst_KilledParts.moc"
