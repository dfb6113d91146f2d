#include "fakes/FakeHost.h"
#include "model/LoginData.h"
#include "model/SharedContext.h"
#include "plugin/StrangerCards.h"
#include "plugin/VoipManageMessageProcess.h"

#include <QCoreApplication>
#include <QTest>

#include <limits>
#include <memory>

namespace {

const QString systemAccount = QStringLiteral("kv6005626532");

} // namespace

class tst_StrangerCards : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void strangerIsNotedWithTheVersionAtHand_data();
    void strangerIsNotedWithTheVersionAtHand();
    void friendIsNotNoted();
    void systemAccountIsNeverNoted_data();
    void systemAccountIsNeverNoted();
    void systemAccountIsStillAskedAbout();
    void existenceIsAskedAlsoForRecordsOfTheSharedMap();
    void recordOfTheSharedMapGivesTheVersion();
    void recordIsAskedForBeforeExistence();
    void jidIsNotedAsUserId();
    void idInOtherCaseIsNotTheSystemAccount();
    void withoutAnswerEveryoneIsAStrangerWithoutCard();
    void requestGoesOutAlsoWithoutStrangers();
    void requestCarriesAllStrangersInTheirOrder();

private:
    void setRecordVersion(const QString &jid, int version);

    std::unique_ptr<FakeHost> m_host;
    CommonData m_context;
    LoginData m_login;
};

void tst_StrangerCards::init()
{
    m_host = std::make_unique<FakeHost>();
    m_login.m_strUid = QStringLiteral("me");
    m_login.m_strDomain = QStringLiteral("d");
    m_context.setLoginData(&m_login);
    m_context.setFriendDataMap({});
    SharedContext::setCommonData(&m_context);
    VoipManageMessageProcess::instance()->setSendEvent(m_host.get());
}

void tst_StrangerCards::cleanup()
{
    m_host.reset();
    SharedContext::setCommonData(nullptr);
}

void tst_StrangerCards::setRecordVersion(const QString &jid, int version)
{
    FriendData record;
    record.m_strJid = jid;
    record.m_vcardInfo.m_iSmallVersion = version;
    m_host->setRecord(jid, record);
}

void tst_StrangerCards::strangerIsNotedWithTheVersionAtHand_data()
{
    QTest::addColumn<int>("version");
    QTest::addColumn<QString>("text");
    QTest::newRow("never received") << -1 << "-1";
    QTest::newRow("zero") << 0 << "0";
    QTest::newRow("greatest") << std::numeric_limits<qint32>::max() << "2147483647";
    QTest::newRow("least") << std::numeric_limits<qint32>::min() << "-2147483648";
}

void tst_StrangerCards::strangerIsNotedWithTheVersionAtHand()
{
    QFETCH(int, version);
    QFETCH(QString, text);
    setRecordVersion(QStringLiteral("u1@d"), version);
    StrangerCards cards;
    QVERIFY(cards.test(QStringLiteral("u1")));
    QCOMPARE(cards.ids, QStringList(QStringLiteral("u1")));
    QCOMPARE(cards.versions, QStringList(text));
}

void tst_StrangerCards::friendIsNotNoted()
{
    m_host->friendJids.insert(QStringLiteral("u1@d"));
    StrangerCards cards;
    QVERIFY(!cards.test(QStringLiteral("u1")));
    QVERIFY(cards.ids.isEmpty());
    QVERIFY(cards.versions.isEmpty());
}

void tst_StrangerCards::systemAccountIsNeverNoted_data()
{
    QTest::addColumn<bool>("bFriend");
    QTest::newRow("stranger") << false;
    QTest::newRow("friend") << true;
}

void tst_StrangerCards::systemAccountIsNeverNoted()
{
    QFETCH(bool, bFriend);
    if (bFriend) {
        m_host->friendJids.insert(systemAccount + QStringLiteral("@d"));
    }
    StrangerCards cards;
    QVERIFY(!cards.test(systemAccount));
    QVERIFY(cards.ids.isEmpty());
    QVERIFY(cards.versions.isEmpty());
}

void tst_StrangerCards::systemAccountIsStillAskedAbout()
{
    StrangerCards cards;
    cards.test(systemAccount);
    QCOMPARE(m_host->commands(), (QList<int>{4157, 4337}));
}

void tst_StrangerCards::existenceIsAskedAlsoForRecordsOfTheSharedMap()
{
    m_context.setFriendDataMap({{QStringLiteral("u1@d"), FriendData()}});
    StrangerCards cards;
    QVERIFY(cards.test(QStringLiteral("u1")));
    QCOMPARE(m_host->commands(), QList<int>{4337});
}

void tst_StrangerCards::recordOfTheSharedMapGivesTheVersion()
{
    FriendData record;
    record.m_vcardInfo.m_iSmallVersion = 5;
    m_context.setFriendDataMap({{QStringLiteral("u1@d"), record}});
    StrangerCards cards;
    cards.test(QStringLiteral("u1"));
    QCOMPARE(cards.versions, QStringList(QStringLiteral("5")));
}

void tst_StrangerCards::recordIsAskedForBeforeExistence()
{
    StrangerCards cards;
    cards.test(QStringLiteral("u1"));
    QCOMPARE(m_host->commands(), (QList<int>{4157, 4337}));
    for (const ReceivedEvent &event : qAsConst(m_host->events)) {
        QCOMPARE(event.reader().take<QString>(), QStringLiteral("u1@d"));
    }
}

void tst_StrangerCards::jidIsNotedAsUserId()
{
    StrangerCards cards;
    QVERIFY(cards.test(QStringLiteral("u1@elsewhere")));
    QCOMPARE(m_host->events.first().reader().take<QString>(), QStringLiteral("u1@elsewhere"));
    QCOMPARE(cards.ids, QStringList(QStringLiteral("u1")));
}

void tst_StrangerCards::idInOtherCaseIsNotTheSystemAccount()
{
    StrangerCards cards;
    QVERIFY(cards.test(systemAccount.toUpper()));
}

void tst_StrangerCards::withoutAnswerEveryoneIsAStrangerWithoutCard()
{
    m_host->bAnswers = false;
    StrangerCards cards;
    QVERIFY(cards.test(QStringLiteral("u1")));
    QCOMPARE(cards.versions, QStringList(QStringLiteral("-1")));
}

void tst_StrangerCards::requestGoesOutAlsoWithoutStrangers()
{
    StrangerCards().request();
    QCoreApplication::sendPostedEvents(m_host.get());
    QCOMPARE(m_host->commands(), QList<int>{4159});
    QCOMPARE(m_host->events.first().payload, packPayload(QStringList(), QStringList(), true));
}

void tst_StrangerCards::requestCarriesAllStrangersInTheirOrder()
{
    setRecordVersion(QStringLiteral("u2@d"), 3);
    m_host->friendJids.insert(QStringLiteral("u3@d"));
    StrangerCards cards;
    for (const char *uid : {"u2", "u3", "u1"}) {
        cards.test(QString::fromLatin1(uid));
    }
    m_host->events.clear();
    cards.request();
    QCoreApplication::sendPostedEvents(m_host.get());
    QCOMPARE(m_host->commands(), QList<int>{4159});
    PayloadReader reader = m_host->events.first().reader();
    QCOMPARE(reader.takeTexts(), (QStringList{QStringLiteral("u2"), QStringLiteral("u1")}));
    QCOMPARE(reader.takeTexts(), (QStringList{QStringLiteral("3"), QStringLiteral("-1")}));
    QCOMPARE(reader.take<bool>(), true);
}

#include "support/TestProgram.h"
VOIP_TEST(tst_StrangerCards, Guiless)
#include "tst_StrangerCards.moc"
