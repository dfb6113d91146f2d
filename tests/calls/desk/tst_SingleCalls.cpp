// Calls between people, with an exchange, a sound server and a call process for each of them: how they begin and end.

#include "calls/CallsTest.h"

#include "wire/Commands.h"

#include <QFile>
#include <QRegularExpression>

class tst_SingleCalls : public CallsTest
{
    Q_OBJECT

private slots:
    void callIsAnsweredAndHungUp_data()
    {
        QTest::addColumn<bool>("byCaller");
        QTest::newRow("by the caller") << true;
        QTest::newRow("by the called") << false;
    }

    void callIsAnsweredAndHungUp()
    {
        QFETCH(bool, byCaller);
        Person caller(m_exchange, QStringLiteral("100"));
        Person called(m_exchange, QStringLiteral("200"));
        QVERIFY(caller.arrive() && called.arrive());
        QVERIFY(connectCall(caller, called));
        (byCaller ? caller : called).say("HangUpCall");
        QCOMPARE((byCaller ? called : caller).hears(), QStringLiteral("8"));
        // Nothing of it is left.
        QVERIFY(connectCall(called, caller));
    }

    void callIsRejected()
    {
        Person caller(m_exchange, QStringLiteral("100"));
        Person called(m_exchange, QStringLiteral("200"));
        QVERIFY(caller.arrive() && called.arrive());
        caller.call(called);
        QCOMPARE(called.hears(), QStringLiteral("0 100"));
        called.say("RejectCall");
        QCOMPARE(caller.hears(), QStringLiteral("10"));
        QVERIFY(connectCall(called, caller));
    }

    void callIsCancelled()
    {
        Person caller(m_exchange, QStringLiteral("100"));
        Person called(m_exchange, QStringLiteral("200"));
        QVERIFY(caller.arrive() && called.arrive());
        caller.call(called);
        QCOMPARE(called.hears(), QStringLiteral("0 100"));
        caller.say("HangUpCall");
        QCOMPARE(called.hears(), QStringLiteral("4"));
        QVERIFY(connectCall(caller, called));
    }

    void nobodyIsThere_data()
    {
        QTest::addColumn<QString>("id");
        QTest::newRow("not registered") << QStringLiteral("300");
        QTest::newRow("unknown") << QStringLiteral("nobody");
        QTest::newRow("foreign letters") << QStringLiteral("李雷");
        QTest::newRow("an address") << QStringLiteral("300@elsewhere.test");
        QTest::newRow("SIP's own letters") << QStringLiteral("300;transport=udp>\r\nRoute: <sip:127.0.0.1>");
    }

    void nobodyIsThere()
    {
        QFETCH(QString, id);
        Person caller(m_exchange, QStringLiteral("100"));
        QVERIFY(caller.arrive());
        caller.say("CallUser", {id, false});
        QCOMPARE(caller.hears(), QStringLiteral("23"));
    }

    void answerOfTheExchangeBecomesAWord_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("word");
        const auto row = [](int status, const char *word) {
            QTest::addRow("%d", status) << status << QString::fromLatin1(word);
        };
        row(403, "19");
        row(404, "23");
        row(408, "23");
        row(410, "23");
        row(415, "24");
        row(480, "23");
        row(486, "22");
        row(488, "24");
        row(500, "19");
        row(503, "19");
        row(600, "22");
        row(603, "10");
        row(604, "23");
        row(606, "24");
    }

    void answerOfTheExchangeBecomesAWord()
    {
        QFETCH(int, status);
        QFETCH(QString, word);
        Person caller(m_exchange, QStringLiteral("100"));
        QVERIFY(caller.arrive());
        caller.say("CallUser", {QStringLiteral("code-%1").arg(status), false});
        QCOMPARE(caller.hears(), word);
    }

    void secondCallerFindsTheLineBusyAndTheCalledHearsNothing_data()
    {
        QTest::addColumn<bool>("connected");
        QTest::newRow("while it rings") << false;
        QTest::newRow("in a call") << true;
    }

    void secondCallerFindsTheLineBusyAndTheCalledHearsNothing()
    {
        QFETCH(bool, connected);
        Person caller(m_exchange, QStringLiteral("100"));
        Person called(m_exchange, QStringLiteral("200"));
        Person second(m_exchange, QStringLiteral("300"));
        QVERIFY(caller.arrive() && called.arrive() && second.arrive());
        if (connected) {
            QVERIFY(connectCall(caller, called));
        } else {
            caller.call(called);
            QCOMPARE(called.hears(), QStringLiteral("0 100"));
        }
        second.call(called);
        QCOMPARE(second.hears(), QStringLiteral("22"));
        second.call(caller);
        QCOMPARE(second.hears(), QStringLiteral("22"));
        caller.say("HangUpCall");
        // Its next word is about the first call.
        QCOMPARE(called.hears(), connected ? QStringLiteral("8") : QStringLiteral("4"));
    }

    void bothAtOnceEndsWithAWordForBoth_data()
    {
        QTest::addColumn<int>("round");
        for (int round = 0; round < 5; ++round) {
            QTest::addRow("%d", round) << round;
        }
    }

    void bothAtOnceEndsWithAWordForBoth()
    {
        Person one(m_exchange, QStringLiteral("100"));
        Person other(m_exchange, QStringLiteral("200"));
        QVERIFY(one.arrive() && other.arrive());
        one.call(other);
        other.call(one);
        // It may have rung first at one whose process is slow to read.
        QVERIFY(one.hearsAtLast(QStringLiteral("22")) && other.hearsAtLast(QStringLiteral("22")));
        // No call is left over, and nothing more is said of it.
        QVERIFY(connectCall(one, other));
        one.say("HangUpCall");
        QCOMPARE(other.hears(), QStringLiteral("8"));
        QVERIFY(connectCall(other, one));
    }

    void callOfOneWhoIsAboutToBeRungEndsBusyForBoth()
    {
        Person caller(m_exchange, QStringLiteral("100"));
        Person called(m_exchange, QStringLiteral("200"));
        QVERIFY(caller.arrive() && called.arrive());
        caller.call(called);
        QCOMPARE(called.hears(), QStringLiteral("0 100"));
        // Written before his client knew of the other call.
        called.call(caller);
        QCOMPARE(called.hears(), QStringLiteral("22"));
        QCOMPARE(caller.hears(), QStringLiteral("22"));
        QVERIFY(connectCall(called, caller));
    }

    void lineOfOneselfIsBusy()
    {
        Person caller(m_exchange, QStringLiteral("100"));
        QVERIFY(caller.arrive());
        caller.call(caller);
        QCOMPARE(caller.hears(), QStringLiteral("22"));
    }

    void nextCallTakesThePlaceOfTheOneThatIsOn()
    {
        Person caller(m_exchange, QStringLiteral("100"));
        Person first(m_exchange, QStringLiteral("200"));
        Person second(m_exchange, QStringLiteral("300"));
        QVERIFY(caller.arrive() && first.arrive() && second.arrive());
        QVERIFY(connectCall(caller, first));
        caller.call(second);
        QCOMPARE(first.hears(), QStringLiteral("8"));
        QCOMPARE(second.hears(), QStringLiteral("0 100"));
        second.say("AcceptCall");
        QCOMPARE(caller.hears(), QStringLiteral("18"));
    }

    void nextCallThatComesToNothingEndsTheOneThatIsOn()
    {
        Person caller(m_exchange, QStringLiteral("100"));
        Person called(m_exchange, QStringLiteral("200"));
        QVERIFY(caller.arrive() && called.arrive());
        QVERIFY(connectCall(caller, called));
        caller.say("CallUser", {QString(), false});
        QCOMPARE(caller.hears(), QStringLiteral("23"));
        QCOMPARE(called.hears(), QStringLiteral("8"));
    }

    void killedFarEndIsNoticedByItsSilence()
    {
        Person caller(m_exchange, QStringLiteral("100"));
        caller.set(QStringLiteral("media/no-media"), QStringLiteral("5"));
        Person called(m_exchange, QStringLiteral("200"));
        QVERIFY(caller.arrive() && called.arrive());
        QVERIFY(connectCall(caller, called));
        called.peer().process().kill();
        QCOMPARE(caller.hears(), QStringLiteral("9"));
    }

    void callOutlastsTheExchange()
    {
        TestExchange exchange;
        QVERIFY(exchange.start());
        Person caller(exchange, QStringLiteral("100"));
        Person called(exchange, QStringLiteral("200"));
        QVERIFY(caller.arrive() && called.arrive());
        QVERIFY(connectCall(caller, called));
        QVERIFY(exchange.kill());
        QCOMPARE(caller.hears(), QStringLiteral("17 false"));
        QCOMPARE(called.hears(), QStringLiteral("17 false"));
        QVERIFY(exchange.start());
        QCOMPARE(caller.hears(), QStringLiteral("17 true"));
        QCOMPARE(called.hears(), QStringLiteral("17 true"));
        QVERIFY(m_sound.speak(called.id(), 660) && m_sound.listen(caller.id()));
        QTRY_VERIFY_WITH_TIMEOUT(m_sound.heard(caller.id(), 660) > 2000, cPatienceMs);
    }

    void acceptedTooLateIsCancelled()
    {
        Person person(m_exchange, QStringLiteral("100"));
        QVERIFY(person.arrive());
        person.say("AcceptCall");
        QCOMPARE(person.hears(), QStringLiteral("4"));
    }

    void conferenceCommandsAreAnswered()
    {
        Person person(m_exchange, QStringLiteral("100"));
        QVERIFY(person.arrive());
        person.say("RequestConference",
                   {person.id(), QJsonArray{QStringLiteral("200")}, true, QStringLiteral("title")});
        QCOMPARE(person.hears(), QStringLiteral("20"));
        person.say("Add2Conference",
                   {QJsonArray{QStringLiteral("200")}, person.id(), person.id(), false, QString(), QJsonValue()});
        QCOMPARE(person.hears(), QStringLiteral("21 {\"result\":{\"failedNums\":[\"200\"]},\"status\":0}"));
        person.say("AcceptConf");
        QCOMPARE(person.hears(), QStringLiteral("7"));
    }

    void everyExampleOfTheDocumentIsServed()
    {
        QFile document(QStringLiteral(VOIP_DOCUMENT));
        QVERIFY(document.open(QIODevice::ReadOnly));
        const QStringList examples = QString::fromUtf8(document.readAll())
                                         .split('\n')
                                         .filter(QRegularExpression(QStringLiteral("^\\{\"messagetype\"")));
        QVERIFY(examples.size() >= int(Wire::cCommands.size()));
        Person person(m_exchange, QStringLiteral("100"));
        QVERIFY(person.arrive());
        for (const QString &example : examples) {
            person.peer().write(example.toUtf8() + '\n');
        }
        person.say("HangUpCall");
        person.signIn(TestExchange::secretOf(person.id()));
        QVERIFY(person.hearsAtLast(QStringLiteral("17 true")));
        const QStringList complaints = person.peer().trace().filter(QRegularExpression(QStringLiteral("^! ")));
        QVERIFY2(complaints.isEmpty(), qPrintable(complaints.join('\n')));
    }

    void callWithoutAClientIsNotOffered()
    {
        Person caller(m_exchange, QStringLiteral("100"));
        Person called(m_exchange, QStringLiteral("200"));
        QVERIFY(caller.arrive() && called.arrive());
        called.peer().client().disconnectFromServer();
        QVERIFY(called.peer().waitTrace(QStringLiteral("= disconnected")));
        caller.call(called);
        QCOMPARE(caller.hears(), QStringLiteral("23"));
    }

    void callOutlastsItsClientsConnection()
    {
        Person caller(m_exchange, QStringLiteral("100"));
        Person called(m_exchange, QStringLiteral("200"));
        QVERIFY(caller.arrive() && called.arrive());
        QVERIFY(connectCall(caller, called));
        QVERIFY(called.peer().connectClient());
        called.signIn(TestExchange::secretOf(called.id()));
        QCOMPARE(called.hears(), QStringLiteral("17 true"));
        caller.say("HangUpCall");
        QCOMPARE(called.hears(), QStringLiteral("8"));
    }

    void terminatedProcessHangsUp()
    {
        Person caller(m_exchange, QStringLiteral("100"));
        Person called(m_exchange, QStringLiteral("200"));
        QVERIFY(caller.arrive() && called.arrive());
        QVERIFY(connectCall(caller, called));
        called.peer().process().terminate();
        QCOMPARE(caller.hears(), QStringLiteral("8"));
        QCOMPARE(called.peer().exitCode(), 0);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_SingleCalls, Guiless)
#include "tst_SingleCalls.moc"
