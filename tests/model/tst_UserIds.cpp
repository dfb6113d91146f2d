#include "model/SignedInContext.h"
#include "model/UserIds.h"

#include <QTest>

#include <optional>

class tst_UserIds : public QObject
{
    Q_OBJECT

private slots:
    void theIdentityIsThatOfTheLoginRecord()
    {
        SignedInContext context("12345678", "example.org");
        context.m_login.m_strCompanyCode = "77";
        context.m_login.m_strCompanyName = "Kelvar";
        context.m_login.m_strChannelId = "KFCNL1";
        context.m_login.m_bIsAgentUser = true;
        QCOMPARE(UserIds::getLoginUID(), QString("12345678"));
        QCOMPARE(UserIds::getLoginDomain(), QString("example.org"));
        QCOMPARE(UserIds::getLoginMyJID(), QString("12345678@example.org"));
        QCOMPARE(UserIds::getLoginCompanyCode(), QString("77"));
        QCOMPARE(UserIds::getLoginCompanyName(), QString("Kelvar"));
        QCOMPARE(UserIds::getMychannelID(), QString("KFCNL1"));
        QVERIFY(UserIds::getIsAgentUser());

        UserIds::setMychannelID("KFCNL2");
        QCOMPARE(context.m_login.m_strChannelId, QString("KFCNL2"));
        QCOMPARE(UserIds::getMychannelID(), QString("KFCNL2"));
    }

    void withoutALoginRecordTheIdentityIsEmpty_data()
    {
        QTest::addColumn<bool>("context");
        QTest::newRow("no context") << false;
        QTest::newRow("a context without a login record") << true;
    }

    void withoutALoginRecordTheIdentityIsEmpty()
    {
        QFETCH(bool, context);
        CommonData emptyContext;
        std::optional<GivenContext> given;
        if (context) {
            given.emplace(emptyContext);
        }
        UserIds::setMychannelID("KFCNL1");
        QCOMPARE(UserIds::getLoginUID(), QString());
        QCOMPARE(UserIds::getLoginDomain(), QString());
        QCOMPARE(UserIds::getLoginMyJID(), QString("@"));
        QCOMPARE(UserIds::getMychannelID(), QString());
        QCOMPARE(UserIds::getLoginCompanyCode(), QString());
        QCOMPARE(UserIds::getLoginCompanyName(), QString());
        QVERIFY(!UserIds::getIsAgentUser());
        QCOMPARE(UserIds::getJidByUid("a"), QString("a@"));
        QCOMPARE(UserIds::getSessionIdByChatJid("a"), QString("_a"));
    }

    void aJidIsMadeOfAnId_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("jid");
        QTest::newRow("user") << "12345678"
                              << "12345678@example.org";
        QTest::newRow("room") << "room7"
                              << "room7@c.example.org";
        QTest::newRow("room of the other prefix") << "of12"
                                                  << "of12@c.example.org";
        QTest::newRow("a uid that starts like a room") << "office1"
                                                       << "office1@c.example.org";
        QTest::newRow("a jid stays") << "x@y"
                                     << "x@y";
        QTest::newRow("a room jid stays") << "room7@c.other.org"
                                          << "room7@c.other.org";
        QTest::newRow("other case is a user") << "Room1"
                                              << "Room1@example.org";
        QTest::newRow("empty") << ""
                               << "@example.org";
    }

    void aJidIsMadeOfAnId()
    {
        const SignedInContext context("10000001", "example.org");
        QFETCH(QString, id);
        QTEST(UserIds::getJidByUid(id), "jid");
    }

    void theUidIsLeftOfTheFirstAt()
    {
        QCOMPARE(UserIds::getUidByJid("a@b"), QString("a"));
        QCOMPARE(UserIds::getUidByJid("a@b@c"), QString("a"));
        QCOMPARE(UserIds::getUidByJid("a"), QString("a"));
        QCOMPARE(UserIds::getUidByJid("@b"), QString(""));
        QCOMPARE(UserIds::getUidByJid(""), QString(""));
    }

    void theSessionIdHasTheSmallerIdFirst_data()
    {
        QTest::addColumn<QString>("me");
        QTest::addColumn<QString>("jid");
        QTest::addColumn<QString>("session");
        QTest::newRow("own id smaller") << "10000001"
                                        << "12345678@example.org"
                                        << "10000001_12345678";
        QTest::newRow("own id greater") << "12345678"
                                        << "10000001@example.org"
                                        << "10000001_12345678";
        QTest::newRow("not compared as numbers") << "9"
                                                 << "10@example.org"
                                                 << "10_9";
        QTest::newRow("digits before upper case") << "12345678"
                                                  << "KFCNL00012"
                                                  << "12345678_KFCNL00012";
        QTest::newRow("upper case before lower case") << "abc"
                                                      << "Zed"
                                                      << "Zed_abc";
        QTest::newRow("oneself") << "10000001"
                                 << "10000001@example.org"
                                 << "10000001_10000001";
        QTest::newRow("room") << "10000001"
                              << "room7@c.example.org"
                              << "room7";
        QTest::newRow("room of the other prefix") << "10000001"
                                                  << "of7"
                                                  << "of7";
    }

    void theSessionIdHasTheSmallerIdFirst()
    {
        QFETCH(QString, me);
        QFETCH(QString, jid);
        const SignedInContext context(me, "example.org");
        QTEST(UserIds::getSessionIdByChatJid(jid), "session");
    }

    void bothPartiesOfAChatGetTheSameSessionId()
    {
        const QStringList listId = {"1", "10", "9", "abc", "ABC", "KFCNL1", "12345678"};
        for (const QString &strFirst : listId) {
            for (const QString &strSecond : listId) {
                QString strOfFirst;
                QString strOfSecond;
                {
                    const SignedInContext context(strFirst, "example.org");
                    strOfFirst = UserIds::getSessionIdByChatJid(UserIds::getJidByUid(strSecond));
                }
                {
                    const SignedInContext context(strSecond, "example.org");
                    strOfSecond = UserIds::getSessionIdByChatJid(UserIds::getJidByUid(strFirst));
                }
                QCOMPARE(strOfFirst, strOfSecond);
            }
        }
    }

    void theChatJidIsThatOfTheOtherParty_data()
    {
        QTest::addColumn<QString>("session");
        QTest::addColumn<QString>("jid");
        QTest::newRow("the other comes second") << "me_you"
                                                << "you@example.org";
        QTest::newRow("the other comes first") << "alf_me"
                                               << "alf@example.org";
        QTest::newRow("oneself") << "me_me"
                                 << "me@example.org";
        QTest::newRow("of two others the first") << "alf_you"
                                                 << "alf@example.org";
        QTest::newRow("room") << "room7"
                              << "room7@c.example.org";
        QTest::newRow("room with the joint") << "room_7_8"
                                             << "room_7_8@c.example.org";
        QTest::newRow("three parts") << "a_b_c"
                                     << "";
        QTest::newRow("one part") << "you"
                                  << "";
        QTest::newRow("a uid with the joint in it") << "me_yo_u"
                                                    << "";
        QTest::newRow("empty") << ""
                               << "";
        QTest::newRow("an empty part counts") << "_me"
                                              << "@example.org";
    }

    void theChatJidIsThatOfTheOtherParty()
    {
        const SignedInContext context("me", "example.org");
        QFETCH(QString, session);
        QTEST(UserIds::getChatJidBySessionId(session), "jid");
    }

    void roomsAreToldByTheirPrefix_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<bool>("room");
        QTest::newRow("room") << "room1470000000" << true;
        QTest::newRow("of") << "of1" << true;
        QTest::newRow("room jid") << "room1@c.example.org" << true;
        QTest::newRow("the case is kept") << "Room1" << false;
        QTest::newRow("not at the beginning") << "vroom7" << false;
        QTest::newRow("user") << "12345678" << false;
        QTest::newRow("empty") << "" << false;
    }

    void roomsAreToldByTheirPrefix()
    {
        QFETCH(QString, id);
        QTEST(UserIds::isMucJid(id), "room");
        QTEST(UserIds::isMucSession(id), "room");
    }

    void channelsAreToldByTheirPrefix()
    {
        QVERIFY(UserIds::isChannelId("KFCNL00012"));
        QVERIFY(UserIds::isAgentId("KFCNL00012"));
        QVERIFY(!UserIds::isChannelId("kfcnl1"));
        QVERIFY(!UserIds::isAgentId("kfcnl1"));
        QVERIFY(!UserIds::isChannelId(""));
        QVERIFY(!UserIds::isAgentId(""));
        QVERIFY(!UserIds::isAgentId(QString()));
        QVERIFY(!UserIds::isChannelId("1KFCNL"));
    }

    void channelSessionsAreTakenApart_data()
    {
        QTest::addColumn<QString>("session");
        QTest::addColumn<bool>("agent");
        QTest::addColumn<bool>("system");
        QTest::addColumn<QString>("channel");
        QTest::addColumn<QString>("user");
        QTest::newRow("my channel session") << "KFCNL1_me" << true << false << "KFCNL1"
                                            << "me";
        QTest::newRow("another's, the channel second") << "12_KFCNL1" << true << true << "KFCNL1"
                                                       << "12";
        QTest::newRow("another's") << "KFCNL1_you" << true << true << "KFCNL1"
                                   << "you";
        QTest::newRow("two channels") << "KFCNL1_KFCNL2" << true << true << "KFCNL1"
                                      << "KFCNL2";
        QTest::newRow("two users") << "a_b" << false << false << ""
                                   << "";
        QTest::newRow("one part") << "KFCNL1" << false << false << ""
                                  << "";
        QTest::newRow("three parts") << "KFCNL1_a_b" << false << false << ""
                                     << "";
        QTest::newRow("room with a channel") << "room1_KFCNL1" << false << false << "KFCNL1"
                                             << "room1";
        QTest::newRow("empty user") << "KFCNL1_" << true << true << "KFCNL1"
                                    << "";
        QTest::newRow("empty") << "" << false << false << ""
                               << "";
    }

    void channelSessionsAreTakenApart()
    {
        const SignedInContext context("me", "example.org");
        QFETCH(QString, session);
        QTEST(UserIds::isAgentSession(session), "agent");
        QTEST(UserIds::isAgentSystemSession(session), "system");
        QTEST(UserIds::getChannelIdBySessionId(session), "channel");
        QTEST(UserIds::getCSUserIdBySessionId(session), "user");
    }

    void ownChannelSessionWithTheChannelSecondIsNotASystemSession()
    {
        const SignedInContext context("12", "example.org");
        QVERIFY(UserIds::isAgentSession("12_KFCNL1"));
        QVERIFY(!UserIds::isAgentSystemSession("12_KFCNL1"));
    }

    void sessionOfTwoChannelsIsTheSystemsUnlessTheSecondIsMine()
    {
        {
            const SignedInContext context("KFCNL1", "example.org");
            QVERIFY(UserIds::isAgentSystemSession("KFCNL1_KFCNL2"));
        }
        const SignedInContext context("KFCNL2", "example.org");
        QVERIFY(!UserIds::isAgentSystemSession("KFCNL1_KFCNL2"));
    }

    void noChannelIsANullTextAndNoUserAnEmptyOne()
    {
        QVERIFY(UserIds::getChannelIdBySessionId("a_b").isNull());
        QVERIFY(UserIds::getChannelIdBySessionId("KFCNL1").isNull());
        QVERIFY(UserIds::getCSUserIdBySessionId("a_b").isEmpty());
        QVERIFY(!UserIds::getCSUserIdBySessionId("a_b").isNull());
        QVERIFY(!UserIds::getChatJidBySessionId("a_b_c").isNull());
    }

    void theChannelSessionIdHasTheSmallerIdFirst()
    {
        const SignedInContext context("12345678", "example.org");
        QCOMPARE(UserIds::getSessionIdByChannelId("KFCNL1"), QString("12345678_KFCNL1"));
        QCOMPARE(UserIds::getSessionIdByUserAndChannel("abc", "KFCNL1"), QString("KFCNL1_abc"));
        QCOMPARE(UserIds::getSessionIdByUserAndChannel("A", "KFCNL1"), QString("A_KFCNL1"));
    }

    void videoRoomsAreToldInAnyCase()
    {
        QVERIFY(UserIds::isVideoChat("vroom7"));
        QVERIFY(UserIds::isVideoChat("VROOM1"));
        QVERIFY(UserIds::isVideoChat("vRooM"));
        QVERIFY(!UserIds::isVideoChat("room7"));
        QVERIFY(!UserIds::isVideoChat("xvroom7"));
        QVERIFY(!UserIds::isVideoChat(""));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_UserIds, Appless)
#include "tst_UserIds.moc"
