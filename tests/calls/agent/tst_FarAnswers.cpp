// What the called one's telephone may answer, sent by a telephone of another make through the exchange: the word that
// the caller's client gets for it.

#include "calls/peers/AnsweringPeer.h"
#include "calls/peers/Person.h"
#include "calls/sound/SoundBox.h"

#include "fakes/Patience.h"

#include <QtTest>

#include <array>

namespace {

struct Row
{
    int status;
    const char *word;
};
// clang-format off
constexpr std::array<Row, 28> cRows{{
    {200, "24"}, {400, "19"}, {403, "19"}, {404, "23"}, {405, "19"}, {406, "19"}, {408, "23"}, {410, "23"}, {413, "19"},
    {415, "24"}, {416, "19"}, {420, "19"}, {480, "23"}, {481, "19"}, {482, "19"}, {483, "19"}, {484, "19"}, {485, "19"},
    {486, "22"}, {487, "19"}, {488, "24"}, {500, "19"}, {501, "19"}, {503, "19"}, {600, "22"}, {603, "10"}, {604, "23"},
    {606, "24"},
}};
// clang-format on

} // namespace

class tst_FarAnswers : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QList<int> statuses;
        for (const Row &row : cRows) {
            statuses << row.status;
        }
        m_exchange.setPeer(m_peer.port());
        QVERIFY(m_exchange.start() && m_peer.start(statuses) && m_sound.start({m_caller.id()}) && m_caller.arrive());
    }

    void answerBecomesAWord_data()
    {
        QTest::addColumn<QString>("word");
        for (const Row &row : cRows) {
            QTest::addRow("%d", row.status) << QString::fromLatin1(row.word);
        }
    }

    void answerBecomesAWord()
    {
        QFETCH(QString, word);
        m_caller.say("CallUser", {QStringLiteral("peer-") + QString::fromLatin1(QTest::currentDataTag()), false});
        QCOMPARE(m_caller.hears(), word);
    }

    void plainAnswerIsToldToAnOperator()
    {
        m_caller.say("CallUser", {QStringLiteral("peer-200"), false});
        QCOMPARE(m_caller.hears(), QStringLiteral("24"));
        const QString why = QStringLiteral("the call ended: 488 no common encryption or codec");
        QTRY_VERIFY_WITH_TIMEOUT(!m_caller.peer().trace().filter(why).isEmpty(), cPatienceMs);
    }

    void keysThatAreNeverAgreedOnEndTheCall()
    {
        Person caller(m_exchange, QStringLiteral("200"));
        caller.set(QStringLiteral("media/encryption"), QStringLiteral("zrtp"));
        QVERIFY(caller.arrive());
        caller.say("CallUser", {QStringLiteral("peer-200"), false});
        QCOMPARE(caller.hears(), QStringLiteral("24"));
    }

private:
    TestExchange m_exchange;
    AnsweringPeer m_peer;
    SoundBox m_sound;
    Person m_caller{m_exchange, QStringLiteral("100")};
};

#include "support/TestProgram.h"
VOIP_TEST(tst_FarAnswers, Guiless)
#include "tst_FarAnswers.moc"
