#include "traffic/EventWords.h"

#include "plugin/EventPayload.h"
#include "plugin/HostEvents.h"

#include <QSet>
#include <QTest>

class tst_EventWords : public QObject
{
    Q_OBJECT

private slots:
    void everyEventOfTheContractHasItsWords()
    {
        QSet<QString> words;
        QSet<QString> sentences;
        for (const HostEvent &event : cHostEvents) {
            const QString described = EventWords::describe(event.msgId, QByteArray());
            const QString number = QStringLiteral("%1 ").arg(int(event.msgId));
            QVERIFY2(described.startsWith(number) && described.size() > number.size(), qPrintable(described));
            words.insert(described);
            QVERIFY(EventWords::isKnown(event.msgId));
            const QString sentence = EventWords::say(event.msgId, QByteArray(), QByteArray()).text();
            QVERIFY2(sentence.startsWith(QLatin1String("the ")), qPrintable(sentence));
            sentences.insert(sentence);
        }
        QCOMPARE(words.size(), 19);
        QCOMPARE(sentences.size(), 19);
    }

    void payloadReadsInStreamOrder_data()
    {
        QTest::addColumn<int>("msgId");
        QTest::addColumn<QByteArray>("payload");
        QTest::addColumn<QString>("words");
        const QString user = QStringLiteral("30010001");
        QTest::newRow("call") << int(MSG_CALL_SINGLE_USER) << packPayload(true, user)
                              << QStringLiteral("4470 call a user: video=yes, user=30010001");
        QTest::newRow("finished") << int(MSG_CALL_FINISHED)
                                  << packPayload(false, user, qint32(26), true, false, qint64(7))
                                  << QStringLiteral("4478 call finished: video=no, user=30010001, result=26 rejected, "
                                                    "caller=yes, connected=no, seconds=7");
        QTest::newRow("incoming") << int(MSG_RECEVIE_VOIP_CALL) << packPayload(user, false, true)
                                  << QStringLiteral("4639 incoming call: user=30010001, conference=no, video=yes");
        QTest::newRow("cards") << int(MSG_GET_STRANGER_SMALL_VCARD)
                               << packPayload(QStringList{QStringLiteral("a"), QStringLiteral("b")},
                                              QStringList{QStringLiteral("-1"), QStringLiteral("3")}, true)
                               << QStringLiteral("4159 fetch cards: users=[a, b], versions=[-1, 3], flag=yes");
        QTest::newRow("signature") << int(MSG_SHOW_SIGN_LIST)
                                   << packPayload(user, qint32(1), qint32(-2), qint32(3), true, false)
                                   << QStringLiteral("4267 show signature card: text=30010001, x=1, y=-2, height=3, "
                                                     "b1=yes, b2=no");
        QTest::newRow("card with an address") << int(MSG_UPDATE_USER_INFO) << packPayload(user, qint64(99))
                                              << QStringLiteral("4105 a user's card: user=30010001, card=(address)");
        QTest::newRow("card without one") << int(MSG_UPDATE_USER_INFO) << packPayload(user, qint64(0))
                                          << QStringLiteral("4105 a user's card: user=30010001, card=(none)");
        QTest::newRow("nothing to carry") << int(MSG_EXIT_VOIP) << QByteArray() << QStringLiteral("4763 quit");
    }

    void payloadReadsInStreamOrder()
    {
        QFETCH(int, msgId);
        QFETCH(QByteArray, payload);
        QTEST(EventWords::describe(EMsgId(msgId), payload), "words");
    }

    void answersAreSaid_data()
    {
        QTest::addColumn<int>("msgId");
        QTest::addColumn<QByteArray>("payload");
        QTest::addColumn<QString>("words");
        QTest::newRow("record") << int(MSG_GET_FRIEND_INFO) << packPayload(qint64(1))
                                << QStringLiteral("record=(address)");
        QTest::newRow("friend") << int(MSG_IS_EXIST_FRIEND) << packPayload(true) << QStringLiteral("known=yes");
        QTest::newRow("members") << int(MSG_ADD_CONFERENCE_MEMBER) << packPayload(QStringList{QStringLiteral("a")})
                                 << QStringLiteral("users=[a]");
        QTest::newRow("call") << int(MSG_IS_EXIST_CALL) << packPayload(false) << QStringLiteral("call=no");
        QTest::newRow("no question") << int(MSG_CALL_FINISHED) << packPayload(true) << QString();
    }

    void answersAreSaid()
    {
        QFETCH(int, msgId);
        QFETCH(QByteArray, payload);
        QTEST(EventWords::answer(EMsgId(msgId), payload), "words");
    }

    void questionsAreThoseWithAnAnswer()
    {
        for (const EMsgId msgId : {MSG_GET_FRIEND_INFO, MSG_IS_EXIST_FRIEND, MSG_ADD_CONFERENCE_MEMBER,
                                   MSG_IS_EXIST_CALL, MSG_IS_VIDEO_CALL}) {
            QVERIFY(EventWords::isQuestion(msgId));
        }
        for (const EMsgId msgId : {MSG_CALL_FINISHED, MSG_GET_STRANGER_SMALL_VCARD, MSG_EXIT_VOIP, EMsgId(17)}) {
            QVERIFY(!EventWords::isQuestion(msgId));
        }
    }

    void unknownCommandIsItsNumber()
    {
        QCOMPARE(EventWords::describe(EMsgId(17), QByteArray("x")), QStringLiteral("17"));
        QVERIFY(!EventWords::isKnown(EMsgId(17)));
        QCOMPARE(EventWords::answer(EMsgId(17), QByteArray("x")), QString());
    }

    void shortPayloadReadsAsEmpty()
    {
        QCOMPARE(EventWords::describe(MSG_CALL_SINGLE_USER, QByteArray()),
                 QStringLiteral("4470 call a user: video=no, user="));
    }

    void brokenListReadsAsEmpty()
    {
        QCOMPARE(EventWords::describe(MSG_CREATE_VOICE_CONFERENCE, packPayload(quint32(0xfffffff0))),
                 QStringLiteral("4734 pick members of a conference: users=[]"));
    }

    void sentencesSayWhatThePayloadMeans_data()
    {
        QTest::addColumn<int>("msgId");
        QTest::addColumn<QByteArray>("payload");
        QTest::addColumn<QByteArray>("reply");
        QTest::addColumn<QString>("words");
        const QString user = QStringLiteral("30010001");
        const QByteArray nothing;
        QTest::newRow("call") << int(MSG_CALL_SINGLE_USER) << packPayload(true, user) << nothing
                              << "the client asks the plug-in to call 30010001 with picture (4470)";
        QTest::newRow("finished")
            << int(MSG_CALL_FINISHED) << packPayload(false, user, qint32(24), true, true, qint64(7)) << nothing
            << "the plug-in reports the end of the call with 30010001: hung up; called by this side, "
               "connected, 7 s (4478)";
        QTest::newRow("signed out") << int(MSG_CLIENT_CONNECT_STATUS) << packPayload(false) << nothing
                                    << "the client tells the plug-in that the user is signed out (4135)";
        QTest::newRow("invited") << int(MSG_RECEVIE_VOIP_CALL) << packPayload(user, true, false) << nothing
                                 << "the plug-in reports that 30010001 invites to a conference, with sound only (4639)";
        QTest::newRow("record") << int(MSG_GET_FRIEND_INFO) << packPayload(user) << packPayload(qint64(1))
                                << "the plug-in asks who 30010001 is: here is the record (4157)";
        QTest::newRow("members") << int(MSG_ADD_CONFERENCE_MEMBER) << packPayload(QStringList{"a", "b"})
                                 << packPayload(QStringList())
                                 << "the plug-in asks whom to add to the conference of a, b: nobody (4735)";
        QTest::newRow("no call") << int(MSG_IS_EXIST_CALL) << nothing << packPayload(false)
                                 << "the client asks whether there is a call: no (4491)";
        QTest::newRow("rejected") << int(MSG_RESPONSE_VOIP_REQUEST) << packPayload(false) << nothing
                                  << "the client tells the plug-in that the user rejects the call (4732)";
        QTest::newRow("short payload") << int(MSG_CALL_SINGLE_USER) << nothing << nothing
                                       << "the client asks the plug-in to call — with sound only (4470)";
        QTest::newRow("unknown") << 17 << QByteArray("xy") << nothing
                                 << "a command that is not in the contract, with 2 bytes of payload (17)";
    }

    void sentencesSayWhatThePayloadMeans()
    {
        QFETCH(int, msgId);
        QFETCH(QByteArray, payload);
        QFETCH(QByteArray, reply);
        QTEST(EventWords::say(EMsgId(msgId), payload, reply).text(), "words");
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_EventWords, Guiless)
#include "tst_EventWords.moc"
