#include "common/CServerSettings.h"
#include "model/CommonData.h"
#include "model/Somewhere.h"
#include "model/SystemSetData.h"

#include <QFont>
#include <QMetaType>
#include <QSqlDatabase>
#include <QTest>
#include <QTranslator>

namespace {

MucData room(const QString &strJid, const QString &strName)
{
    MucData data(strJid);
    data.m_strRoomName = strName;
    return data;
}

CServiceNumData service(const QString &strCode, const QString &strName)
{
    CServiceNumData data;
    data.m_strServiceCode = strCode;
    data.m_strName = strName;
    return data;
}

} // namespace

class tst_CommonData : public QObject
{
    Q_OBJECT

private slots:
    void recordTypesAreKnownByNameBeforeMainRuns_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::newRow("card") << QByteArray("VcardInfo");
        QTest::newRow("friends") << QByteArray("QList<FriendData>");
        QTest::newRow("show type") << QByteArray("PresenceData::ePcShowType");
        QTest::newRow("service numbers") << QByteArray("QList<CServiceNumData>");
    }

    void recordTypesAreKnownByNameBeforeMainRuns()
    {
        QFETCH(QByteArray, name);
        const int iType = QMetaType::type(name.constData());
        QVERIFY(iType != QMetaType::UnknownType);
        QCOMPARE(QByteArray(QMetaType::typeName(iType)), name);
    }

    void aNewContextHoldsNothing()
    {
        const CommonData context;
        QVERIFY(!context.getNetWorkManager());
        QVERIFY(!context.getCustomLogger());
        QVERIFY(!context.getLogThread());
        QVERIFY(!context.getIconFont());
        QVERIFY(!context.getMonitorLogger());
        QVERIFY(!context.getServerSettings());
        QVERIFY(!context.getPassportLoginServer());
        QVERIFY(!context.getSkinData());
        QVERIFY(!context.getLoginData());
        QVERIFY(!context.getSystemSetData());
        QVERIFY(!context.getSessionManager());
        QVERIFY(!context.getSqlDatabase());
        QVERIFY(context.getTranslatorList().isEmpty());
        QVERIFY(!context.getAgentSqlDatabase());
        QVERIFY(!context.getListSysUIData());
        QVERIFY(!context.getListChatBubbles());
        QVERIFY(context.getFriendDataMap().isEmpty());
        QVERIFY(context.getHeadJidList().isEmpty());
        QVERIFY(context.getMucDataMap().isEmpty());
        QVERIFY(context.getServiceNumDataMap().isEmpty());
    }

    void eachAddressIsKeptByItself()
    {
        CommonData context;
        context.setNetWorkManager(somewhere<QNetworkAccessManager>(1));
        context.setCustomLogger(somewhere<CustomLogger>(2));
        context.setCustomLogThread(somewhere<CLogThread>(3));
        context.setIconFont(somewhere<QFont>(4));
        context.setMonitorLogger(somewhere<CMonitorLogger>(5));
        context.setServerSettings(somewhere<CServerSettings>(6));
        context.setPassportLoginServer(somewhere<CPassportLoginServer>(7));
        context.setSkinData(somewhere<SysUIData>(8));
        context.setLoginData(somewhere<LoginData>(9));
        context.setSystemSetData(somewhere<SystemSetData>(10));
        context.setSessionManager(somewhere<SessionManager>(11));
        context.setSqlDatabase(somewhere<QSqlDatabase>(12));
        context.setTranslatorList({somewhere<QTranslator>(13)});
        context.setAgentSqlDatabase(somewhere<QSqlDatabase>(14));
        context.setListSysUIData(somewhere<QList<SysUIData>>(15));
        context.setListChatBubbles(somewhere<QList<ChatBubbles>>(16));

        QCOMPARE(context.getNetWorkManager(), somewhere<QNetworkAccessManager>(1));
        QCOMPARE(context.getCustomLogger(), somewhere<CustomLogger>(2));
        QCOMPARE(context.getLogThread(), somewhere<CLogThread>(3));
        QCOMPARE(context.getIconFont(), somewhere<QFont>(4));
        QCOMPARE(context.getMonitorLogger(), somewhere<CMonitorLogger>(5));
        QCOMPARE(context.getServerSettings(), somewhere<CServerSettings>(6));
        QCOMPARE(context.getPassportLoginServer(), somewhere<CPassportLoginServer>(7));
        QCOMPARE(context.getSkinData(), somewhere<SysUIData>(8));
        QCOMPARE(context.getLoginData(), somewhere<LoginData>(9));
        QCOMPARE(context.getSystemSetData(), somewhere<SystemSetData>(10));
        QCOMPARE(context.getSessionManager(), somewhere<SessionManager>(11));
        QCOMPARE(context.getSqlDatabase(), somewhere<QSqlDatabase>(12));
        QCOMPARE(context.getTranslatorList(), QList<QTranslator *>({somewhere<QTranslator>(13)}));
        QCOMPARE(context.getAgentSqlDatabase(), somewhere<QSqlDatabase>(14));
        QCOMPARE(context.getListSysUIData(), somewhere<QList<SysUIData>>(15));
        QCOMPARE(context.getListChatBubbles(), somewhere<QList<ChatBubbles>>(16));
    }

    void anUnknownFriendIsADefaultRecordUnderItsKey()
    {
        CommonData context;
        context.setFriendDataMap({{"a@x", FriendData("a@x")}});
        const QMap<QString, FriendData> mapResult = context.getFriendDataMapByJids({"a@x", "", "b@x"});
        QCOMPARE(mapResult.keys(), QStringList({"a@x", "b@x"}));
        QCOMPARE(mapResult.value("a@x").m_strJid, QString("a@x"));
        QVERIFY(mapResult.contains("b@x"));
        QCOMPARE(mapResult.value("b@x").m_strJid, QString());
        QVERIFY(context.getFriendDataMapByJids({}).isEmpty());
    }

    void anUnknownRoomIsADefaultRecordUnderItsKey()
    {
        CommonData context;
        context.setMucDataMap({{"room1", room("room1", "One")}});
        const QMap<QString, MucData> mapResult = context.getMucDataMapByRoomJids({"room2", "", "room1"});
        QCOMPARE(mapResult.keys(), QStringList({"room1", "room2"}));
        QCOMPARE(mapResult.value("room1").m_strRoomName, QString("One"));
        QCOMPARE(mapResult.value("room2").m_strRoomJid, QString());
        QCOMPARE(mapResult.value("room2").m_strHeadImage, MucData().m_strHeadImage);
    }

    void friendsAreReplacedWhole()
    {
        CommonData context;
        context.setFriendDataMap({{"a@x", FriendData("a@x")}});
        context.setFriendDataMap({{"b@x", FriendData("b@x")}});
        QCOMPARE(context.getFriendDataMap().keys(), QStringList("b@x"));
        context.setFriendDataMap({});
        QVERIFY(context.getFriendDataMap().isEmpty());
    }

    void roomsAreMergedByKey()
    {
        CommonData context;
        context.setMucDataMap({{"room1", room("room1", "One")}, {"room2", room("room2", "Two")}});
        context.setMucDataMap({{"room2", room("room2", "Zwei")}, {"room3", room("room3", "Three")}});
        context.setMucDataMap({});
        const QMap<QString, MucData> mapRoom = context.getMucDataMap();
        QCOMPARE(mapRoom.keys(), QStringList({"room1", "room2", "room3"}));
        QCOMPARE(mapRoom.value("room1").m_strRoomName, QString("One"));
        QCOMPARE(mapRoom.value("room2").m_strRoomName, QString("Zwei"));
    }

    void serviceNumbersAreMergedByKey()
    {
        CommonData context;
        context.setServiceNumDataMap({{"1", service("1", "One")}});
        context.setServiceNumDataMap({{"1", service("1", "Eins")}, {"2", service("2", "Two")}});
        context.setServiceNumDataMap({});
        QCOMPARE(context.getServiceNumDataMap().keys(), QStringList({"1", "2"}));
        QCOMPARE(context.getServiceNumDataMap().value("1").m_strName, QString("Eins"));
    }

    void serviceNumbersByCodesIgnoreTheList()
    {
        CommonData context;
        context.setServiceNumDataMap({{"1", service("1", "One")}, {"2", service("2", "Two")}});
        QCOMPARE(context.getServiceNumDataByCodes({}).keys(), QStringList({"1", "2"}));
        QCOMPARE(context.getServiceNumDataByCodes({"2", "9"}).keys(), QStringList({"1", "2"}));
    }

    void theHeadListIsAppendedToAndCopied()
    {
        CommonData context;
        context.addHeadJidList("a@x");
        context.addHeadJidList("a@x");
        QList<QString> listCopy = context.getHeadJidList();
        listCopy.clear();
        QCOMPARE(context.getHeadJidList(), QList<QString>({"a@x", "a@x"}));
    }

    void gettersGiveCopies()
    {
        CommonData context;
        context.setFriendDataMap({{"a@x", FriendData("a@x")}});
        QMap<QString, FriendData> mapCopy = context.getFriendDataMap();
        mapCopy["a@x"].setMySetFriendName("changed");
        mapCopy.remove("a@x");
        QCOMPARE(context.getFriendDataMap().value("a@x").m_strMySetFriendName, QString());
    }

    void serverLimitsPassThrough()
    {
        CServerSettings settings;
        CommonData context;
        context.setServerSettings(&settings);
        context.setFileTransferMaxSize(Q_INT64_C(5000000000));
        context.setMucRoomMaxSize(200);
        context.setCanModifyPassword(true);
        QCOMPARE(settings.getFileTransferMaxSize(), Q_INT64_C(5000000000));
        QCOMPARE(context.getFileTransferMaxSize(), Q_INT64_C(5000000000));
        QCOMPARE(settings.getMaxMucRoomSize(), qint64(200));
        QCOMPARE(context.getMucRoomMaxSize(), qint64(200));
        QVERIFY(settings.getCanModifyPassword());
        QVERIFY(context.getCanModifyPassword());
    }

    void withoutServerSettingsLimitsAreZeroAndFlagsFalse()
    {
        CommonData context;
        context.setSupportVoIPFlag(true);
        context.setFileTransferMaxSize(1);
        context.setMucRoomMaxSize(1);
        context.setCanModifyPassword(true);
        QVERIFY(!context.getCanModifyPassword());
        QCOMPARE(context.getFileTransferMaxSize(), qint64(0));
        QCOMPARE(context.getMucRoomMaxSize(), qint64(0));
        QVERIFY(!context.getSupportVoIPFlag());
    }

    void theCallFlagOfTheContextIsAlwaysFalse()
    {
        CServerSettings settings;
        CommonData context;
        context.setServerSettings(&settings);
        context.setSupportVoIPFlag(false);
        QVERIFY(!settings.getSupportVoIPFlag());
        context.setSupportVoIPFlag(true);
        QVERIFY(settings.getSupportVoIPFlag());
        QVERIFY(!context.getSupportVoIPFlag());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CommonData, Appless)
#include "tst_CommonData.moc"
