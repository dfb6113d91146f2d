#include "fakes/FakeHost.h"
#include "fakes/GivenContext.h"
#include "model/CommonData.h"
#include "model/LoginData.h"
#include "plugin/StrangerCards.h"
#include "plugin/VoipManageMessageProcess.h"

#include <QCoreApplication>
#include <QTest>

#include <limits>
#include <memory>
#include <optional>

namespace {

const QString cSystemAccount = QStringLiteral("kv6005626532");

} // namespace

class tst_StrangerCards : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_host = std::make_unique<FakeHost>();
        m_login.m_strUid = QStringLiteral("me");
        m_login.m_strDomain = QStringLiteral("d");
        m_context.setLoginData(&m_login);
        m_context.setFriendDataMap({});
        m_given.emplace(m_context);
        VoipManageMessageProcess::instance()->setSendEvent(m_host.get());
    }

    void cleanup()
    {
        m_host.reset();
        m_given.reset();
    }

    void strangerIsNotedWithTheVersionAtHand_data()
    {
        QTest::addColumn<int>("version");
        QTest::addColumn<QString>("text");
        QTest::newRow("never received") << -1 << "-1";
        QTest::newRow("zero") << 0 << "0";
        QTest::newRow("greatest") << std::numeric_limits<qint32>::max() << "2147483647";
        QTest::newRow("least") << std::numeric_limits<qint32>::min() << "-2147483648";
    }

    void strangerIsNotedWithTheVersionAtHand()
    {
        QFETCH(int, version);
        QFETCH(QString, text);
        setRecordVersion(QStringLiteral("u1@d"), version);
        StrangerCards cards;
        QVERIFY(cards.test(QStringLiteral("u1")));
        QCOMPARE(cards.ids, QStringList(QStringLiteral("u1")));
        QCOMPARE(cards.versions, QStringList(text));
    }

    void friendIsNotNoted()
    {
        m_host->friendJids.insert(QStringLiteral("u1@d"));
        StrangerCards cards;
        QVERIFY(!cards.test(QStringLiteral("u1")));
        QVERIFY(cards.ids.isEmpty());
        QVERIFY(cards.versions.isEmpty());
    }

    void systemAccountIsNeverNoted_data()
    {
        QTest::addColumn<bool>("bFriend");
        QTest::newRow("stranger") << false;
        QTest::newRow("friend") << true;
    }

    void systemAccountIsNeverNoted()
    {
        QFETCH(bool, bFriend);
        if (bFriend) {
            m_host->friendJids.insert(cSystemAccount + QStringLiteral("@d"));
        }
        StrangerCards cards;
        QVERIFY(!cards.test(cSystemAccount));
        QVERIFY(cards.ids.isEmpty());
        QVERIFY(cards.versions.isEmpty());
    }

    void systemAccountIsStillAskedAbout()
    {
        StrangerCards cards;
        cards.test(cSystemAccount);
        QCOMPARE(m_host->commands(), (QList<int>{4157, 4337}));
    }

    void existenceIsAskedAlsoForRecordsOfTheSharedMap()
    {
        m_context.setFriendDataMap({{QStringLiteral("u1@d"), FriendData()}});
        StrangerCards cards;
        QVERIFY(cards.test(QStringLiteral("u1")));
        QCOMPARE(m_host->commands(), QList<int>{4337});
    }

    void recordOfTheSharedMapGivesTheVersion()
    {
        FriendData record;
        record.m_vcardInfo.m_iSmallVersion = 5;
        m_context.setFriendDataMap({{QStringLiteral("u1@d"), record}});
        StrangerCards cards;
        cards.test(QStringLiteral("u1"));
        QCOMPARE(cards.versions, QStringList(QStringLiteral("5")));
    }

    void recordIsAskedForBeforeExistence()
    {
        StrangerCards cards;
        cards.test(QStringLiteral("u1"));
        QCOMPARE(m_host->commands(), (QList<int>{4157, 4337}));
        for (const ReceivedEvent &event : qAsConst(m_host->events)) {
            QCOMPARE(event.reader().take<QString>(), QStringLiteral("u1@d"));
        }
    }

    void jidIsNotedAsUserId()
    {
        StrangerCards cards;
        QVERIFY(cards.test(QStringLiteral("u1@elsewhere")));
        QCOMPARE(m_host->events.first().reader().take<QString>(), QStringLiteral("u1@elsewhere"));
        QCOMPARE(cards.ids, QStringList(QStringLiteral("u1")));
    }

    void idInOtherCaseIsNotTheSystemAccount()
    {
        StrangerCards cards;
        QVERIFY(cards.test(cSystemAccount.toUpper()));
    }

    void withoutAnswerEveryoneIsAStrangerWithoutCard()
    {
        m_host->bAnswers = false;
        StrangerCards cards;
        QVERIFY(cards.test(QStringLiteral("u1")));
        QCOMPARE(cards.versions, QStringList(QStringLiteral("-1")));
    }

    void requestGoesOutAlsoWithoutStrangers()
    {
        StrangerCards().request();
        QCoreApplication::sendPostedEvents(m_host.get());
        QCOMPARE(m_host->commands(), QList<int>{4159});
        QCOMPARE(m_host->events.first().payload, packPayload(QStringList(), QStringList(), true));
    }

    void requestCarriesAllStrangersInTheirOrder()
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

private:
    void setRecordVersion(const QString &jid, int version)
    {
        FriendData record;
        record.m_strJid = jid;
        record.m_vcardInfo.m_iSmallVersion = version;
        m_host->setRecord(jid, record);
    }

    std::unique_ptr<FakeHost> m_host;
    CommonData m_context;
    std::optional<GivenContext> m_given;
    LoginData m_login;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_StrangerCards, Guiless)
#include "tst_StrangerCards.moc"
