#include "EventSentences.h"
#include "EventWords.h"

#include "plugin/EventPayload.h"

#include <QTest>

class tst_EventSentences : public QObject
{
    Q_OBJECT

private slots:
    void everyCommandWithWordsHasASentence();
    void sentencesSayWhatThePayloadMeans_data();
    void sentencesSayWhatThePayloadMeans();
};

void tst_EventSentences::everyCommandWithWordsHasASentence()
{
    QCOMPARE(EventSentences::count(), EventWords::count());
    int known = 0;
    for (int number = 4000; number < 5000; ++number) {
        const bool hasWords = EventWords::describe(EMsgId(number), QByteArray()) != QString::number(number);
        QCOMPARE(EventSentences::isKnown(EMsgId(number)), hasWords);
        known += hasWords ? 1 : 0;
    }
    QCOMPARE(known, EventSentences::count());
}

void tst_EventSentences::sentencesSayWhatThePayloadMeans_data()
{
    QTest::addColumn<int>("msgId");
    QTest::addColumn<QByteArray>("payload");
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<QString>("words");
    const QString user = QStringLiteral("30010001");
    const QByteArray nothing;
    QTest::newRow("call") << int(MSG_CALL_SINGLE_USER) << packPayload(true, user) << nothing
                          << "the client asks the plug-in to call 30010001 with picture (4470)";
    QTest::newRow("finished") << int(MSG_CALL_FINISHED) << packPayload(false, user, qint32(24), true, true, qint64(7))
                              << nothing
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

void tst_EventSentences::sentencesSayWhatThePayloadMeans()
{
    QFETCH(int, msgId);
    QFETCH(QByteArray, payload);
    QFETCH(QByteArray, reply);
    QTEST(EventSentences::say(EMsgId(msgId), payload, reply).text(), "words");
}

#include "support/TestProgram.h"
VOIP_TEST(tst_EventSentences, Guiless)
#include "tst_EventSentences.moc"
