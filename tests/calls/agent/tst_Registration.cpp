// Signing in at an exchange: what the plug-in hears of it, and what becomes of the user before.

#include "calls/CallsTest.h"
#include "calls/sound/Tones.h"

#include <QDir>

class tst_Registration : public CallsTest
{
    Q_OBJECT

private slots:
    void signInIsAnsweredEachTime()
    {
        Person person(m_exchange, QStringLiteral("100"));
        QVERIFY(person.arrive());
        person.signIn(TestExchange::secretOf(person.id()));
        QCOMPARE(person.hears(), QStringLiteral("17 true"));
        QVERIFY(person.remarks().contains(QStringLiteral("registered 100")));
    }

    void wrongSecretIsRefused()
    {
        Person person(m_exchange, QStringLiteral("100"));
        QVERIFY(person.start());
        person.signIn(QStringLiteral("wrong"));
        QCOMPARE(person.hears(), QStringLiteral("17 false"));
        person.call(person);
        QCOMPARE(person.hears(), QStringLiteral("19"));
        person.signIn(TestExchange::secretOf(person.id()));
        QCOMPARE(person.hears(), QStringLiteral("17 true"));
    }

    void secretThatIsNoneIsRefused_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("value");
        QTest::newRow("no user") << QString() << QStringLiteral("secret");
        QTest::newRow("hidden letters") << QStringLiteral("1\u202E00") << QStringLiteral("secret");
        QTest::newRow("no secret") << QStringLiteral("100") << QString();
    }

    void secretThatIsNoneIsRefused()
    {
        QFETCH(QString, id);
        QFETCH(QString, value);
        Person person(m_exchange, QStringLiteral("100"));
        QVERIFY(person.start());
        person.say("RegeditUser", {id, QStringLiteral("Nick"), value, false});
        QCOMPARE(person.hears(), QStringLiteral("17 false"));
    }

    void serverWithACertificateOfSomebodyElseIsNotSpokenTo()
    {
        TestExchange other;
        QVERIFY(other.start());
        Person person(m_exchange, QStringLiteral("100"));
        person.set(QStringLiteral("exchange/ca-file"), other.caFile());
        QVERIFY(person.start());
        person.signIn(TestExchange::secretOf(person.id()));
        QCOMPARE(person.hears(), QStringLiteral("17 false"));
    }

    void serverWithACertificateOfAnotherNameIsNotSpokenTo()
    {
        Person person(m_exchange, QStringLiteral("100"));
        person.set(QStringLiteral("exchange/servers"), QStringLiteral("127.0.0.1:%1").arg(m_exchange.port()));
        QVERIFY(person.start());
        person.signIn(TestExchange::secretOf(person.id()));
        QCOMPARE(person.hears(), QStringLiteral("17 false"));
    }

    void telephoneThatCannotStartIsToldAndStartsLater()
    {
        Person person(m_exchange, QStringLiteral("100"));
        const QString voice = QDir::current().absoluteFilePath(QStringLiteral("late.wav"));
        person.set(QStringLiteral("sound/wav-in"), voice);
        QVERIFY(person.start());
        const QString fault =
            QStringLiteral("not registered: sound/wav-in is %1: No such file or directory").arg(voice);
        for (int i = 0; i < 2; ++i) {
            person.signIn(TestExchange::secretOf(person.id()));
            QCOMPARE(person.hears(), QStringLiteral("17 false"));
            QVERIFY(person.peer().waitTrace(fault));
        }
        person.call(person);
        QCOMPARE(person.hears(), QStringLiteral("19"));
        QVERIFY(writeTone(voice, cRingBackTone, 1));
        QCOMPARE(person.hears(), QStringLiteral("17 true"));
        QCOMPARE(person.remarks().filter(fault).size(), 2);
    }

    void anotherUserTakesTheFirstOnesPlace()
    {
        Person person(m_exchange, QStringLiteral("100"));
        Person caller(m_exchange, QStringLiteral("300"));
        QVERIFY(person.arrive() && caller.arrive());
        person.say("RegeditUser", {QStringLiteral("200"), QStringLiteral("Other"),
                                   TestExchange::secretOf(QStringLiteral("200")), false});
        QCOMPARE(person.hears(), QStringLiteral("17 true"));
        caller.say("CallUser", {QStringLiteral("200"), false});
        QCOMPARE(person.hears(), QStringLiteral("0 300"));
        person.say("RejectCall");
        QCOMPARE(caller.hears(), QStringLiteral("10"));
        // The registration of the first is taken back meanwhile.
        const auto isGone = [&] {
            caller.say("CallUser", {QStringLiteral("100"), false});
            return caller.hears() == QLatin1String("23");
        };
        QTRY_VERIFY_WITH_TIMEOUT(isGone(), cPatienceMs);
    }

    void whoUnregistersCannotBeReached()
    {
        Person person(m_exchange, QStringLiteral("100"));
        Person caller(m_exchange, QStringLiteral("300"));
        QVERIFY(person.arrive() && caller.arrive());
        person.say("UnReg", {person.id()});
        const auto isGone = [&] {
            caller.call(person);
            return caller.hears() == QLatin1String("23");
        };
        QTRY_VERIFY_WITH_TIMEOUT(isGone(), cPatienceMs);
        // A call that overtook the word may have rung here.
        person.call(caller);
        QVERIFY(person.hearsAtLast(QStringLiteral("19")));
    }

    void callThatTheExchangeStillHandsOnIsNotOffered()
    {
        Person person(m_exchange, QStringLiteral("stays"));
        Person caller(m_exchange, QStringLiteral("300"));
        QVERIFY(person.arrive() && caller.arrive());
        person.say("UnReg", {person.id()});
        // Whoever says this hears at once that there is no call.
        person.say("AcceptCall");
        QCOMPARE(person.hears(), QStringLiteral("4"));
        caller.call(person);
        QCOMPARE(caller.hears(), QStringLiteral("23"));
        person.say("AcceptCall");
        QCOMPARE(person.hears(), QStringLiteral("4"));
    }

    void quitTakesTheRegistrationBack()
    {
        Person caller(m_exchange, QStringLiteral("300"));
        QVERIFY(caller.arrive());
        Person person(m_exchange, QStringLiteral("100"));
        QVERIFY(person.arrive());
        person.peer().write("quit\n");
        QCOMPARE(person.peer().exitCode(), 0);
        caller.call(person);
        QCOMPARE(caller.hears(), QStringLiteral("23"));
    }

    void lostExchangeIsToldAndFoundAgain()
    {
        TestExchange exchange;
        QVERIFY(exchange.start());
        Person person(exchange, QStringLiteral("100"));
        QVERIFY(person.arrive());
        QVERIFY(exchange.kill());
        QCOMPARE(person.hears(), QStringLiteral("17 false"));
        person.call(person);
        QCOMPARE(person.hears(), QStringLiteral("19"));
        QVERIFY(exchange.start());
        QCOMPARE(person.hears(), QStringLiteral("17 true"));
    }

    void callThatRingsEndsWithTheExchange()
    {
        TestExchange exchange;
        QVERIFY(exchange.start());
        Person caller(exchange, QStringLiteral("100"));
        Person called(exchange, QStringLiteral("200"));
        QVERIFY(caller.arrive() && called.arrive());
        caller.call(called);
        QCOMPARE(called.hears(), QStringLiteral("0 100"));
        QVERIFY(exchange.kill());
        QVERIFY(caller.hearsAtLast(QStringLiteral("19")));
        QVERIFY(called.hearsAtLast(QStringLiteral("4")));
    }

    void nextServerIsTakenWhereOneDoesNotAnswer()
    {
        TestExchange gone;
        Person person(m_exchange, QStringLiteral("100"));
        person.set(QStringLiteral("exchange/servers"),
                   QStringLiteral("localhost:%1, localhost:%2").arg(gone.port()).arg(m_exchange.port()));
        QVERIFY(person.start());
        person.signIn(TestExchange::secretOf(person.id()));
        QCOMPARE(person.hears(), QStringLiteral("17 false"));
        QCOMPARE(person.hears(), QStringLiteral("17 true"));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_Registration, Guiless)
#include "tst_Registration.moc"
