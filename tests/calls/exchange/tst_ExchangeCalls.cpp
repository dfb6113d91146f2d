// What the exchange lets users do, by real SIP over TLS: who may sign in, who is reached, and how calls to others end.

#include "calls/exchange/ExchangeTest.h"
#include "calls/exchange/SipClient.h"

#include "fakes/Patience.h"

#include <QtTest>

class tst_ExchangeCalls : public ExchangeTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        begin();
        m_exchange = joined();
        QVERIFY(m_exchange);
    }

    void cleanupTestCase()
    {
        m_exchange.reset();
        end();
    }

    void signsInWithTheUsersSecretAlone()
    {
        SipClient right(m_exchange->place(), "30010001");
        QVERIFY2(right.connectToExchange(), qPrintable(right.error()));
        QCOMPARE(right.registerUser(), 200);
        QCOMPARE(right.registerUser(), 200);
        SipClient wrong(m_exchange->place(), "30010001", "guessed");
        QVERIFY(wrong.connectToExchange());
        QCOMPARE(wrong.registerUser(), 403);
        SipClient others(m_exchange->place(), "30010001", m_exchange->place().passwordOf("30010002"));
        QVERIFY(others.connectToExchange());
        QCOMPARE(others.registerUser(), 403);
    }

    void isItsOwnCertificatesAlone()
    {
        ExchangePlace other = m_exchange->place();
        other.caFile = "/dev/null";
        SipClient client(other, "30010001");
        QVERIFY(!client.connectToExchange());
    }

    void nobodySpeaksForSomebodyElse()
    {
        SipClient client(m_exchange->place(), "30010001");
        QVERIFY(client.connectToExchange());
        QCOMPARE(client.registerUser(60, "30010002"), 403);
        SipClient::Wish lie = client.callTo("30010001");
        lie.from = "30010002";
        QCOMPARE(client.request(lie), 403);
    }

    void everyRequestIsSigned_data()
    {
        QTest::addColumn<QByteArray>("method");
        QTest::addColumn<bool>("within");
        QTest::addColumn<int>("code");
        for (const char *method : {"INVITE", "BYE", "INFO", "UPDATE", "MESSAGE", "OPTIONS", "SUBSCRIBE", "REGISTER"}) {
            for (const bool within : {false, true}) {
                QTest::addRow("%s%s", method, within ? " within a call" : "")
                    << QByteArray(method) << within << (QByteArray(method) == "REGISTER" ? 401 : 407);
            }
        }
    }

    void everyRequestIsSigned()
    {
        QFETCH(QByteArray, method);
        QFETCH(bool, within);
        QFETCH(int, code);
        SipClient client(m_exchange->place(), "30010001");
        QVERIFY(client.connectToExchange());
        SipClient::Wish wish{
            method, method == "REGISTER" ? "sip:" + client.domain() : client.uriOf("30010002"), {}, {}, {}, false};
        if (method == "REGISTER") {
            wish.to = client.uriOf("30010001");
        }
        if (within) {
            wish.to = '<' + client.uriOf(method == "REGISTER" ? "30010001" : "30010002") + ">;tag=1";
        }
        QCOMPARE(client.request(wish), code);
    }

    void callIdThatReadsAsTwoIsRefused()
    {
        SipClient client(m_exchange->place(), "30010001");
        SipClient called(m_exchange->place(), "30010002");
        QVERIFY(client.connectToExchange() && called.connectToExchange());
        QCOMPARE(called.registerUser(), 200);
        SipClient::Wish wish = client.callTo("30010002");
        wish.callId = "one|0";
        QCOMPARE(client.request(wish), 400);
    }

    void itCarriesNothingElsewhere()
    {
        SipClient client(m_exchange->place(), "30010001");
        QVERIFY(client.connectToExchange());
        QCOMPARE(client.request({"INVITE", "sip:30010002@example.org", {}, {}, {}}), 403);
        const QByteArray to = '<' + client.uriOf("30010002") + ">;tag=1";
        QCOMPARE(client.request({"BYE", "sip:x@127.0.0.1:9", {}, to, "Route: <sip:127.0.0.1:9;lr>\r\n"}), 403);
        const QByteArray own = m_exchange->place().proxy.toUtf8().replace("localhost", "127.0.0.1") + ";lr";
        QCOMPARE(client.request({"BYE", "sip:x@127.0.0.1:9", {}, to, "Route: <" + own + ">\r\n"}), 480);
        QCOMPARE(client.request({"BYE", "sip:x@127.0.0.1:9", {}, to, "Route: <" + own + ">,<sip:127.0.0.1:9;lr>\r\n"}),
                 403);
    }

    void whoIsNotHereCannotBeReached()
    {
        SipClient caller(m_exchange->place(), "30010001");
        SipClient called(m_exchange->place(), "30010008");
        QVERIFY(caller.connectToExchange() && called.connectToExchange());
        QCOMPARE(caller.registerUser(), 200);
        QCOMPARE(caller.call("30010008"), 404);
        QCOMPARE(caller.call("conf-1"), 480);
        QCOMPARE(called.registerUser(), 200);
        QCOMPARE(called.registerUser(0), 200);
        QCOMPARE(caller.call("30010008"), 480);
    }

    /// A contact that the exchange has made leads to who has registered, though his connection is still there.
    void whoHasLeftIsReachedByNoContact()
    {
        SipClient caller(m_exchange->place(), "30010001");
        SipClient called(m_exchange->place(), "30010006");
        QVERIFY(caller.connectToExchange() && called.connectToExchange());
        QCOMPARE(caller.registerUser(), 200);
        QCOMPARE(called.registerUser(), 200);
        QCOMPARE(called.registerUser(0), 200);
        const QByteArray contact = called.uriOf("30010006") + ";gr=urn:uuid:1;alias=127.0.0.1~" +
                                   QByteArray::number(called.localPort()) + "~3";
        const QByteArray own = m_exchange->place().proxy.toUtf8().replace("localhost", "127.0.0.1") + ";lr";
        QCOMPARE(caller.request(
                     {"BYE", contact, {}, '<' + caller.uriOf("30010006") + ">;tag=1", "Route: <" + own + ">\r\n"}),
                 480);
    }

    void whoLostTheConnectionIsNotHere()
    {
        SipClient caller(m_exchange->place(), "30010001");
        SipClient called(m_exchange->place(), "30010007");
        QVERIFY(caller.connectToExchange() && called.connectToExchange());
        QCOMPARE(caller.registerUser(), 200);
        QCOMPARE(called.registerUser(3600), 200);
        called.disconnectFromExchange();
        // Until he is taken off the list a call to him is one that nobody answers.
        QTRY_COMPARE_WITH_TIMEOUT(caller.call("30010007"), 480, cPatienceMs);
    }

    void ringsNoMoreWhereTheCallerIsLost()
    {
        SipClient caller(m_exchange->place(), "30010001");
        SipClient called(m_exchange->place(), "30010008");
        QVERIFY(caller.connectToExchange() && called.connectToExchange());
        QCOMPARE(called.registerUser(), 200);
        caller.begin(caller.callTo("30010008"));
        const SipMessage invitation = ring(called);
        caller.disconnectFromExchange();
        const SipMessage end = called.next();
        QVERIFY2(end.firstLine.startsWith("CANCEL "), end.firstLine);
        QCOMPARE(end.header("Call-ID"), invitation.header("Call-ID"));
    }

    void callerHearsThatTheCalledIsLost()
    {
        SipClient caller(m_exchange->place(), "30010001");
        SipClient called(m_exchange->place(), "30010009");
        QVERIFY(caller.connectToExchange() && called.connectToExchange());
        QCOMPARE(called.registerUser(), 200);
        caller.begin(caller.callTo("30010009"));
        ring(called);
        called.disconnectFromExchange();
        QCOMPARE(caller.finish(), 480);
    }

    void ringsOnAsLongAsItRingsAnywhere()
    {
        SipClient caller(m_exchange->place(), "30010001");
        SipClient here(m_exchange->place(), "30010010");
        SipClient there(m_exchange->place(), "30010010");
        QVERIFY(caller.connectToExchange() && here.connectToExchange() && there.connectToExchange());
        QCOMPARE(here.registerUser(), 200);
        QCOMPARE(there.registerUser(), 200);
        caller.begin(caller.callTo("30010010"));
        ring(here);
        const SipMessage invitation = ring(there);
        here.disconnectFromExchange();
        // Who was lost later has been noticed, so has who was lost first.
        callerHearsThatTheCalledIsLost();
        there.answer(invitation, "200 OK");
        QCOMPARE(caller.finish(), 200);
    }

    void callsEndAsTheOtherEndSays_data()
    {
        QTest::addColumn<QByteArray>("status");
        QTest::addColumn<int>("code");
        for (const char *status :
             {"486 Busy Here", "603 Decline", "488 Not Acceptable Here", "480 Temporarily Unavailable",
              "408 Request Timeout", "503 Service Unavailable", "415 Unsupported Media Type", "200 OK"}) {
            QTest::newRow(status) << QByteArray(status) << QByteArray(status).left(3).toInt();
        }
    }

    void callsEndAsTheOtherEndSays()
    {
        QFETCH(QByteArray, status);
        QFETCH(int, code);
        SipClient caller(m_exchange->place(), "30010001");
        SipClient called(m_exchange->place(), "30010002");
        QVERIFY(caller.connectToExchange() && called.connectToExchange());
        QCOMPARE(caller.registerUser(), 200);
        QCOMPARE(called.registerUser(), 200);
        SipClient::Wish wish = caller.callTo("30010002");
        wish.more = "X-Conference: {}\r\nP-Asserted-Identity: <sip:30010009@calls.invalid>\r\n";
        caller.begin(wish);
        const SipMessage invitation = called.next();
        QVERIFY2(invitation.firstLine.startsWith("INVITE sip:30010002@"), invitation.firstLine);
        QVERIFY(invitation.header("From").startsWith("<sip:30010001@"));
        QCOMPARE(invitation.header("X-Conference"), QByteArray("{}"));
        // Who calls is in From, and nothing that proves a secret goes on.
        QVERIFY(invitation.headersNamed("P-Asserted-Identity").isEmpty());
        QVERIFY(invitation.headersNamed("Proxy-Authorization").isEmpty());
        called.answer(invitation, status);
        QCOMPARE(caller.finish(), code == 503 ? 500 : code);
    }

    void aCallEndsFromTheCalledSideToo()
    {
        SipClient caller(m_exchange->place(), "30010001");
        SipClient called(m_exchange->place(), "30010002");
        QVERIFY(caller.connectToExchange() && called.connectToExchange());
        QCOMPARE(caller.registerUser(), 200);
        QCOMPARE(called.registerUser(), 200);
        caller.begin(caller.callTo("30010002"));
        const SipMessage invitation = called.next();
        called.answer(invitation, "200 OK");
        QCOMPARE(caller.finish(), 200);
        const QByteArray route = invitation.header("Record-Route");
        const QByteArray contact = invitation.header("Contact");
        called.begin({"BYE",
                      contact.mid(1, contact.indexOf('>') - 1),
                      {},
                      invitation.header("From"),
                      "Route: " + route + "\r\n"});
        const SipMessage bye = caller.next();
        QVERIFY2(bye.firstLine.startsWith("BYE sip:30010001@"), bye.firstLine);
        caller.answer(bye, "200 OK");
        QCOMPARE(called.finish(), 200);
    }

private:
    /// Has it ring there. The invitation; empty when none comes.
    static SipMessage ring(SipClient &called)
    {
        const SipMessage invitation = called.next();
        called.answer(invitation, "180 Ringing");
        return invitation;
    }

    std::unique_ptr<EmbeddedExchange> m_exchange;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ExchangeCalls, Guiless)
#include "tst_ExchangeCalls.moc"
