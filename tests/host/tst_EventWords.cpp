#include "EventWords.h"

#include "plugin/EventPayload.h"

#include <QTest>

class tst_EventWords : public QObject
{
    Q_OBJECT

private slots:
    void everyCommandOfTheContractHasARow();
    void payloadReadsInStreamOrder_data();
    void payloadReadsInStreamOrder();
    void answersAreSaid_data();
    void answersAreSaid();
    void questionsAreThoseWithAnAnswer();
    void unknownCommandIsItsNumber();
    void shortPayloadReadsAsEmpty();
    void brokenListReadsAsEmpty();
};

void tst_EventWords::everyCommandOfTheContractHasARow()
{
    QCOMPARE(EventWords::count(), 19);
    const EMsgId all[] = {
        MSG_UPDATE_USER_INFO,      MSG_CLIENT_CONNECT_STATUS, MSG_GET_FRIEND_INFO, MSG_GET_STRANGER_SMALL_VCARD,
        MSG_SHOW_SIGN_LIST,        MSG_IS_EXIST_FRIEND,       MSG_CLOSE_AV_MSGBOX, MSG_CALL_SINGLE_USER,
        MSG_CALL_FINISHED,         MSG_IS_EXIST_CALL,         MSG_IS_VIDEO_CALL,   MSG_CLOSE_SIGN_LIST,
        MSG_RECEVIE_VOIP_CALL,     MSG_RESPONSE_VOIP_REQUEST, MSG_CALL_CONFERENCE, MSG_CREATE_VOICE_CONFERENCE,
        MSG_ADD_CONFERENCE_MEMBER, MSG_SHOW_VOICE_CONF,       MSG_EXIT_VOIP};
    QCOMPARE(int(std::size(all)), EventWords::count());
    for (const EMsgId msgId : all) {
        QVERIFY2(EventWords::describe(msgId, QByteArray()).startsWith(QStringLiteral("%1 ").arg(int(msgId))),
                 qPrintable(QString::number(msgId)));
    }
}

void tst_EventWords::payloadReadsInStreamOrder_data()
{
    QTest::addColumn<int>("msgId");
    QTest::addColumn<QByteArray>("payload");
    QTest::addColumn<QString>("words");
    const QString user = QStringLiteral("30010001");
    QTest::newRow("call") << int(MSG_CALL_SINGLE_USER) << packPayload(true, user)
                          << QStringLiteral("4470 call a user: video=yes, user=30010001");
    QTest::newRow("finished") << int(MSG_CALL_FINISHED) << packPayload(false, user, qint32(26), true, false, qint64(7))
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

void tst_EventWords::payloadReadsInStreamOrder()
{
    QFETCH(int, msgId);
    QFETCH(QByteArray, payload);
    QTEST(EventWords::describe(EMsgId(msgId), payload), "words");
}

void tst_EventWords::answersAreSaid_data()
{
    QTest::addColumn<int>("msgId");
    QTest::addColumn<QByteArray>("payload");
    QTest::addColumn<QString>("words");
    QTest::newRow("record") << int(MSG_GET_FRIEND_INFO) << packPayload(qint64(1)) << QStringLiteral("record=(address)");
    QTest::newRow("friend") << int(MSG_IS_EXIST_FRIEND) << packPayload(true) << QStringLiteral("known=yes");
    QTest::newRow("members") << int(MSG_ADD_CONFERENCE_MEMBER) << packPayload(QStringList{QStringLiteral("a")})
                             << QStringLiteral("users=[a]");
    QTest::newRow("call") << int(MSG_IS_EXIST_CALL) << packPayload(false) << QStringLiteral("call=no");
    QTest::newRow("no question") << int(MSG_CALL_FINISHED) << packPayload(true) << QString();
}

void tst_EventWords::answersAreSaid()
{
    QFETCH(int, msgId);
    QFETCH(QByteArray, payload);
    QTEST(EventWords::answer(EMsgId(msgId), payload), "words");
}

void tst_EventWords::questionsAreThoseWithAnAnswer()
{
    for (const EMsgId msgId :
         {MSG_GET_FRIEND_INFO, MSG_IS_EXIST_FRIEND, MSG_ADD_CONFERENCE_MEMBER, MSG_IS_EXIST_CALL, MSG_IS_VIDEO_CALL}) {
        QVERIFY(EventWords::isQuestion(msgId));
    }
    for (const EMsgId msgId : {MSG_CALL_FINISHED, MSG_GET_STRANGER_SMALL_VCARD, MSG_EXIT_VOIP, EMsgId(17)}) {
        QVERIFY(!EventWords::isQuestion(msgId));
    }
}

void tst_EventWords::unknownCommandIsItsNumber()
{
    QCOMPARE(EventWords::describe(EMsgId(17), QByteArray("x")), QStringLiteral("17"));
    QCOMPARE(EventWords::answer(EMsgId(17), QByteArray("x")), QString());
}

void tst_EventWords::shortPayloadReadsAsEmpty()
{
    QCOMPARE(EventWords::describe(MSG_CALL_SINGLE_USER, QByteArray()),
             QStringLiteral("4470 call a user: video=no, user="));
}

void tst_EventWords::brokenListReadsAsEmpty()
{
    QCOMPARE(EventWords::describe(MSG_CREATE_VOICE_CONFERENCE, packPayload(quint32(0xfffffff0))),
             QStringLiteral("4734 pick members of a conference: users=[]"));
}

#include "support/TestProgram.h"
VOIP_TEST(tst_EventWords, Guiless)
#include "tst_EventWords.moc"
