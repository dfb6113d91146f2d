#include "common/CServerSettings.h"
#include "model/LoginData.h"
#include "model/SharedContext.h"
#include "model/Somewhere.h"
#include "model/SystemSetData.h"

#include <QSqlDatabase>
#include <QTest>
#include <QTranslator>

class tst_SharedContext : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { SharedContext::setCommonData(nullptr); }

    void theContextIsTheOneHandedOver()
    {
        QVERIFY(!SharedContext::getCommonData());
        CommonData context;
        SharedContext::setCommonData(&context);
        QCOMPARE(SharedContext::getCommonData(), &context);
        QCOMPARE(SharedContext::m_pCommonData, &context);
    }

    void withoutAContextEverythingReadsAsUnset()
    {
        QVERIFY(!SharedContext::getNetWorkManager());
        QVERIFY(!SharedContext::getCustomLogger());
        QVERIFY(!SharedContext::getLogThread());
        QVERIFY(!SharedContext::getMonitorLogger());
        QVERIFY(!SharedContext::getServerSettings());
        QVERIFY(!SharedContext::getPassportLoginServer());
        QVERIFY(!SharedContext::getLoginData());
        QVERIFY(!SharedContext::getSystemSetData());
        QVERIFY(!SharedContext::getSessionManager());
        QVERIFY(!SharedContext::getSqlDatabase());
        QVERIFY(SharedContext::getTranslatorList().isEmpty());
        QVERIFY(!SharedContext::getAgentSqlDatabase());
        QVERIFY(SharedContext::getFriendDataMap().isEmpty());
        QVERIFY(SharedContext::getFriendDataMapByJids({"a"}).isEmpty());
        QVERIFY(SharedContext::getHeadJidList().isEmpty());
        QVERIFY(SharedContext::getPresenceDataMap({"a"}).isEmpty());
        QVERIFY(SharedContext::getMucDataMap().isEmpty());
        QVERIFY(SharedContext::getMucDataMapByRoomJids({"a"}).isEmpty());
        QVERIFY(SharedContext::getServiceNumDataMap().isEmpty());
        QVERIFY(SharedContext::getServiceNumDataByCodes({"a"}).isEmpty());
        QVERIFY(!SharedContext::getSupportVoIPFlag());
        QCOMPARE(SharedContext::getFileTransferMaxSize(), qint64(0));
        QVERIFY(!SharedContext::getCanModifyPassword());
        QCOMPARE(SharedContext::getMucRoomMaxSize(), qint64(0));
    }

    void withoutAContextNothingIsStored()
    {
        SharedContext::setFriendDataMap({{"a", FriendData("a")}});
        SharedContext::addHeadJidList("a");
        SharedContext::setPresenceDataMap({{"a", PresenceData()}});
        SharedContext::clearPresenceDataMap();
        SharedContext::setMucDataMap({{"a", MucData("a")}});
        SharedContext::setServiceNumDataMap({{"a", CServiceNumData()}});
        SharedContext::setSupportVoIPFlag(true);
        SharedContext::setFileTransferMaxSize(1);
        SharedContext::setCanModifyPassword(true);
        SharedContext::setMucRoomMaxSize(1);

        // Neither kept for a context to come nor answered while there is none.
        CommonData context;
        for (CommonData *pContext : {static_cast<CommonData *>(nullptr), &context}) {
            SharedContext::setCommonData(pContext);
            QVERIFY(SharedContext::getFriendDataMap().isEmpty());
            QVERIFY(SharedContext::getHeadJidList().isEmpty());
            QVERIFY(SharedContext::getMucDataMap().isEmpty());
            QVERIFY(SharedContext::getServiceNumDataMap().isEmpty());
            QVERIFY(!SharedContext::getSupportVoIPFlag());
            QCOMPARE(SharedContext::getFileTransferMaxSize(), qint64(0));
            QVERIFY(!SharedContext::getCanModifyPassword());
            QCOMPARE(SharedContext::getMucRoomMaxSize(), qint64(0));
        }
    }

    void objectsAreThoseOfTheContext()
    {
        CommonData context;
        LoginData login;
        SystemSetData settings;
        context.setNetWorkManager(somewhere<QNetworkAccessManager>(1));
        context.setCustomLogger(somewhere<CustomLogger>(2));
        context.setCustomLogThread(somewhere<CLogThread>(3));
        context.setMonitorLogger(somewhere<CMonitorLogger>(4));
        context.setServerSettings(somewhere<CServerSettings>(5));
        context.setPassportLoginServer(somewhere<CPassportLoginServer>(6));
        context.setLoginData(&login);
        context.setSystemSetData(&settings);
        context.setSessionManager(somewhere<SessionManager>(7));
        context.setSqlDatabase(somewhere<QSqlDatabase>(8));
        context.setAgentSqlDatabase(somewhere<QSqlDatabase>(9));
        context.setTranslatorList({somewhere<QTranslator>(10)});
        SharedContext::setCommonData(&context);

        QCOMPARE(SharedContext::getNetWorkManager(), somewhere<QNetworkAccessManager>(1));
        QCOMPARE(SharedContext::getCustomLogger(), somewhere<CustomLogger>(2));
        QCOMPARE(SharedContext::getLogThread(), somewhere<CLogThread>(3));
        QCOMPARE(SharedContext::getMonitorLogger(), somewhere<CMonitorLogger>(4));
        QCOMPARE(SharedContext::getServerSettings(), somewhere<CServerSettings>(5));
        QCOMPARE(SharedContext::getPassportLoginServer(), somewhere<CPassportLoginServer>(6));
        QCOMPARE(SharedContext::getLoginData(), &login);
        QCOMPARE(SharedContext::getSystemSetData(), &settings);
        QCOMPARE(SharedContext::getSessionManager(), somewhere<SessionManager>(7));
        QCOMPARE(SharedContext::getSqlDatabase(), somewhere<QSqlDatabase>(8));
        QCOMPARE(SharedContext::getAgentSqlDatabase(), somewhere<QSqlDatabase>(9));
        QCOMPARE(SharedContext::getTranslatorList(), QList<QTranslator *>({somewhere<QTranslator>(10)}));
    }

    void mapsAreThoseOfTheContext()
    {
        CommonData context;
        SharedContext::setCommonData(&context);
        PresenceData presence;
        presence.m_iStateB = 5;
        SharedContext::setFriendDataMap({{"a@x", FriendData("a@x")}});
        SharedContext::addHeadJidList("a@x");
        SharedContext::setPresenceDataMap({{"a@x", presence}});
        SharedContext::setMucDataMap({{"room1", MucData("room1")}});
        SharedContext::setServiceNumDataMap({{"1", CServiceNumData()}});

        QCOMPARE(context.getFriendDataMap().keys(), QStringList("a@x"));
        QCOMPARE(SharedContext::getFriendDataMap().keys(), QStringList("a@x"));
        QCOMPARE(SharedContext::getFriendDataMapByJids({"a@x", "b@x"}).keys(), QStringList({"a@x", "b@x"}));
        QCOMPARE(SharedContext::getHeadJidList(), QList<QString>({"a@x"}));
        QCOMPARE(SharedContext::getPresenceDataMap({"a@x"}).value("a@x").m_iStateB, 5);
        QCOMPARE(SharedContext::getMucDataMap().keys(), QStringList("room1"));
        QCOMPARE(SharedContext::getMucDataMapByRoomJids({"room2"}).keys(), QStringList("room2"));
        QCOMPARE(SharedContext::getServiceNumDataMap().keys(), QStringList("1"));
        QCOMPARE(SharedContext::getServiceNumDataByCodes({}).keys(), QStringList("1"));

        SharedContext::clearPresenceDataMap();
        QCOMPARE(SharedContext::getPresenceDataMap({"a@x"}).value("a@x").m_iStateB, 0);
    }

    void serverLimitsAreThoseOfTheContext()
    {
        CServerSettings settings;
        CommonData context;
        context.setServerSettings(&settings);
        SharedContext::setCommonData(&context);
        SharedContext::setSupportVoIPFlag(true);
        SharedContext::setFileTransferMaxSize(7);
        SharedContext::setCanModifyPassword(true);
        SharedContext::setMucRoomMaxSize(8);
        QVERIFY(settings.getSupportVoIPFlag());
        QVERIFY(!SharedContext::getSupportVoIPFlag());
        QCOMPARE(SharedContext::getFileTransferMaxSize(), qint64(7));
        QVERIFY(SharedContext::getCanModifyPassword());
        QCOMPARE(SharedContext::getMucRoomMaxSize(), qint64(8));
    }

    void aRoomMayHold1500WhileNoLimitIsKnown_data()
    {
        QTest::addColumn<qint64>("announced");
        QTest::addColumn<qint64>("limit");
        QTest::newRow("below zero") << qint64(-1) << qint64(1500);
        QTest::newRow("zero") << qint64(0) << qint64(1500);
        QTest::newRow("one") << qint64(1) << qint64(1);
        QTest::newRow("more") << qint64(2000) << qint64(2000);
    }

    void aRoomMayHold1500WhileNoLimitIsKnown()
    {
        QFETCH(qint64, announced);
        QCOMPARE(SharedContext::getMucRoomMaxMemberSize(), qint64(1500));
        CServerSettings settings;
        CommonData context;
        context.setServerSettings(&settings);
        SharedContext::setCommonData(&context);
        SharedContext::setMucRoomMaxSize(announced);
        QTEST(SharedContext::getMucRoomMaxMemberSize(), "limit");
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_SharedContext, Appless)
#include "tst_SharedContext.moc"
