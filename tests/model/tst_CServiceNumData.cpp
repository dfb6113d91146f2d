#include "fakes/BuiltInAvatar.h"
#include "fakes/GivenContext.h"
#include "model/CSUtils.h"
#include "model/CServiceNumData.h"
#include "model/CommonData.h"
#include "model/SystemSetData.h"

#include <QFile>
#include <QTest>

#include <json/reader.h>
#include <json/value.h>

#include <optional>

namespace {

const QString cServiceHead = QStringLiteral("Resources/images/FriendDetail/ic_portrait_server_90.png");
const QString cChannelHead = QStringLiteral("Resources/images/CommonCtrls/kvim_customer.png");

Json::Value json(const char *text)
{
    Json::Value root;
    Json::CharReaderBuilder builder;
    std::string errors;
    const std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
    reader->parse(text, text + strlen(text), &root, &errors);
    return root;
}

const char *const cWholeService = R"({
  "iServiceCode":"c1","name":"\u516c\u544a","description":"d","icon":"bell","subType":3,"isBindApp":true,"isSub":true,
  "isInteractive":true,"subject":"s","contactWay":"w","fold":true,"status":5,"version":"17",
  "menuList":[{"name":"top","leaf":false,"type":1,"value":"v","pcLink":"p","moLink":"m",
               "child":[{"name":"one","leaf":true,"type":2},{"name":"two","leaf":true}]},
              {"name":"end","leaf":true}],
  "channel":{"id":"ch","name":"desk","welcome":"hi","photoName":"face","version":9007199254740993,
             "agentCloseSession":true,"agentOpenSession":true,
             "workgroupList":[{"id":"g1","name":"first"},{"id":"g2","name":"second"}]}})";

} // namespace

class tst_CServiceNumData : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_settings.m_strHeadImageFolder = "/data/me/designHeadImage/";
        m_context.setSystemSetData(&m_settings);
        m_given.emplace(m_context);
    }

    void cleanup() { m_given.reset(); }

    void aFreshRecordWasNeverReceived()
    {
        const CServiceNumData data;
        QCOMPARE(data.m_strVersion, QString("-1"));
        for (const QString &text : {data.m_strServiceCode, data.m_strName, data.m_strDescription, data.m_strIconName,
                                    data.m_strIconPath, data.m_strSubject, data.m_strContactWay, data.m_strMenuText}) {
            QCOMPARE(text, QString());
        }
        QVERIFY(data.m_listMenu.isEmpty());
        QCOMPARE(data.m_iSubType, 0);
        QCOMPARE(data.m_iStatus, 0);
        QVERIFY(!data.m_bBindApp && !data.m_bSubscribed && !data.m_bInteractive && !data.m_bFold);
        const CSChannelData &channel = data.m_channel;
        for (const QString &text :
             {channel.m_strChannelId, channel.m_strChannelName, channel.m_strPhotoName, channel.m_strWelcome}) {
            QCOMPARE(text, QString());
        }
        QVERIFY(channel.m_listWorkGroup.isEmpty());
        QCOMPARE(channel.m_iStatus, 0);
        QCOMPARE(channel.m_iVersion, Q_INT64_C(0));
        QVERIFY(!channel.m_bAllowClose && !channel.m_bAllowOpen);
    }

    void everyKeyFindsItsField()
    {
        CServiceNumData data;
        data.parseFromJson(json(cWholeService));
        QCOMPARE(data.m_strServiceCode, QString("c1"));
        QCOMPARE(data.m_strName, QString("公告"));
        QCOMPARE(data.m_strDescription, QString("d"));
        QCOMPARE(data.m_strIconName, QString("bell"));
        QCOMPARE(data.m_strIconPath, QString("/data/me/designHeadImage/bell.jpg"));
        QCOMPARE(data.m_iSubType, 3);
        QVERIFY(data.m_bBindApp && data.m_bSubscribed && data.m_bInteractive && data.m_bFold);
        QCOMPARE(data.m_strSubject, QString("s"));
        QCOMPARE(data.m_strContactWay, QString("w"));
        QCOMPARE(data.m_iStatus, 5);
        QCOMPARE(data.m_strVersion, QString("17"));
        QCOMPARE(data.m_listMenu.size(), 2);
        const ServiceMenu top = data.m_listMenu.first();
        QCOMPARE(top.m_strName, QString("top"));
        QCOMPARE(top.m_iType, 1);
        QCOMPARE(top.m_strValue + top.m_strPcLink + top.m_strMoLink, QString("vpm"));
        QVERIFY(!top.m_bLeaf);
        QCOMPARE(top.m_listChild.size(), 2);
        QCOMPARE(top.m_listChild.at(1).m_strName, QString("two"));
        QVERIFY(data.m_listMenu.at(1).m_bLeaf);
    }

    void aChannelCarriesItsIdIntoItsGroups()
    {
        CServiceNumData data;
        data.parseFromJson(json(cWholeService));
        const CSChannelData &channel = data.m_channel;
        QCOMPARE(channel.m_strChannelId, QString("ch"));
        QCOMPARE(channel.m_strChannelName, QString("desk"));
        QCOMPARE(channel.m_strWelcome, QString("hi"));
        QCOMPARE(channel.m_strPhotoName, QString("face"));
        QCOMPARE(channel.m_iStatus, 1);
        QCOMPARE(channel.m_iVersion, Q_INT64_C(9007199254740993));
        QVERIFY(channel.m_bAllowClose && channel.m_bAllowOpen);
        QCOMPARE(channel.m_listWorkGroup.size(), 2);
        QVERIFY((channel.m_listWorkGroup.at(1) == CSWorkGroupData{"g2", "second", "ch"}));
    }

    void anotherChannelTakesThePlaceOfTheWholeOne()
    {
        CServiceNumData data;
        data.parseFromJson(json(cWholeService));
        data.parseChannel(json(R"({"id":"other","workgroupList":[{"id":"g3","name":"third"}]})"));
        QCOMPARE(data.m_channel.m_strChannelId, QString("other"));
        QVERIFY(data.m_channel.m_strWelcome.isEmpty());
        QCOMPARE(data.m_channel.m_listWorkGroup, (QList<CSWorkGroupData>{{"g3", "third", "other"}}));
        CSChannelData blank;
        blank.m_strChannelId = "blank";
        data.setChannelData(blank);
        QCOMPARE(data.m_channel.m_strChannelId, QString("blank"));
        QVERIFY(data.m_channel.m_listWorkGroup.isEmpty());
    }

    void withoutAChannelTheDefaultStays_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("missing") << QByteArray("{}");
        QTest::newRow("null") << QByteArray(R"({"channel":null})");
    }

    void withoutAChannelTheDefaultStays()
    {
        QFETCH(QByteArray, text);
        CServiceNumData data;
        data.parseFromJson(json(text.constData()));
        QCOMPARE(data.m_channel.m_iStatus, 0);
        QVERIFY(data.m_channel.m_strChannelId.isEmpty());
    }

    void missingKeysOverwriteWithNothing()
    {
        CServiceNumData data;
        data.parseFromJson(json(cWholeService));
        data.parseFromJson(json("{}"));
        QVERIFY(data.m_strServiceCode.isEmpty() && data.m_strName.isEmpty() && data.m_strIconPath.isEmpty());
        QVERIFY(!data.m_bFold && !data.m_bSubscribed);
        QCOMPARE(data.m_iStatus, 0);
        QCOMPARE(data.m_strVersion, QString());
        QVERIFY(data.m_strVersion != "-1");
        // What was parsed before stays: menus are appended, the channel is replaced only by another.
        QCOMPARE(data.m_listMenu.size(), 2);
        QCOMPARE(data.m_channel.m_strChannelId, QString("ch"));
    }

    void aLeafIgnoresItsChildren()
    {
        ServiceMenu menu;
        menu.parseMenu(json(R"({"name":"n","leaf":true,"child":[{"name":"x","leaf":true}],"pcLink":"l"})"));
        QVERIFY(menu.m_bLeaf && menu.m_listChild.isEmpty());
        QCOMPARE(menu.m_strPcLink, QString("l"));
    }

    void aNodeWithoutLeafReadsItsChildren()
    {
        ServiceMenu menu;
        menu.parseMenu(json(R"({"child":[{"name":"x","leaf":true}]})"));
        QCOMPARE(menu.m_listChild.size(), 1);
    }

    void childrenAtHandStayBeforeTheNewOnes()
    {
        ServiceMenu menu;
        menu.parseMenu(json(R"({"child":[{"name":"x","leaf":true}]})"));
        menu.parseMenu(json(R"({"child":[{"name":"y","leaf":true}]})"));
        QCOMPARE(menu.m_listChild.size(), 2);
        QCOMPARE(menu.m_listChild.at(0).m_strName, QString("x"));
        QCOMPARE(menu.m_listChild.at(1).m_strName, QString("y"));
    }

    void aTextInPlaceOfAListHasNoItems()
    {
        CServiceNumData data;
        data.parseFromJson(json(R"({"menuList":"m","channel":{"id":"ch","workgroupList":"w"}})"));
        QVERIFY(data.m_listMenu.isEmpty());
        QCOMPARE(data.m_channel.m_strChannelId, QString("ch"));
        QVERIFY(data.m_channel.m_listWorkGroup.isEmpty());
    }

    void anEmptyMenuListLeavesTheMenuTextEmpty()
    {
        CServiceNumData data;
        data.parseFromJson(json(R"({"menuList":[]})"));
        QVERIFY(data.m_strMenuText.isEmpty());
    }

    void menusAreAppended()
    {
        CServiceNumData data;
        data.parseServiceMenu(json(R"([{"name":"a","leaf":true}])"));
        data.parseServiceMenu(json(R"([{"name":"b","leaf":true},{"name":"c","leaf":true}])"));
        QCOMPARE(data.m_listMenu.size(), 3);
        QCOMPARE(data.m_listMenu.at(2).m_strName, QString("c"));
    }

    void theMenuTextIsTheStyledFormOfTheList()
    {
        CServiceNumData data;
        data.parseFromJson(json(R"({"menuList":[{"name":"end","leaf":true}]})"));
        QCOMPARE(data.m_strMenuText, QString("[\n   {\n      \"leaf\" : true,\n      \"name\" : \"end\"\n   }\n]\n"));
    }

    void theMenuTextIsThatOfTheLastMessage()
    {
        CServiceNumData data;
        data.parseFromJson(json(R"({"menuList":[{"name":"a","leaf":true}]})"));
        data.parseFromJson(json(R"({"menuList":[{"name":"b","leaf":true}]})"));
        QCOMPARE(data.m_listMenu.size(), 2);
        QVERIFY(data.m_strMenuText.contains("\"b\"") && !data.m_strMenuText.contains("\"a\""));
        // The list still has nodes, so an empty one is kept as a text too.
        data.parseFromJson(json(R"({"menuList":[]})"));
        QCOMPARE(data.m_strMenuText.trimmed(), QString("[]"));
    }

    void numbersInPlaceOfTextsReadAsTheirDigits()
    {
        CServiceNumData data;
        data.parseFromJson(json(R"({"iServiceCode":12,"version":3,"isSub":1})"));
        QCOMPARE(data.m_strServiceCode, QString("12"));
        QCOMPARE(data.m_strVersion, QString("3"));
        QVERIFY(data.m_bSubscribed);
    }

    void anEmptyChannelIsAChannel()
    {
        CServiceNumData data;
        data.parseFromJson(json(R"({"channel":null})"));
        QCOMPARE(data.m_channel.m_iStatus, CSChannelData().m_iStatus);
        data.parseFromJson(json(R"({"channel":{}})"));
        QCOMPARE(data.m_channel.m_iStatus, 1);
    }

    void eachSwitchFillsItsOwnField_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("field");
        QTest::newRow("isSub") << QByteArray(R"({"channel":{},"isSub":true})") << 0;
        QTest::newRow("isBindApp") << QByteArray(R"({"channel":{},"isBindApp":true})") << 1;
        QTest::newRow("isInteractive") << QByteArray(R"({"channel":{},"isInteractive":true})") << 2;
        QTest::newRow("fold") << QByteArray(R"({"channel":{},"fold":true})") << 3;
        QTest::newRow("agentCloseSession") << QByteArray(R"({"channel":{"agentCloseSession":true}})") << 4;
        QTest::newRow("agentOpenSession") << QByteArray(R"({"channel":{"agentOpenSession":true}})") << 5;
    }

    void eachSwitchFillsItsOwnField()
    {
        QFETCH(QByteArray, text);
        QFETCH(int, field);
        CServiceNumData data;
        data.parseFromJson(json(text.constData()));
        QVector<bool> expected(6, false);
        expected[field] = true;
        QCOMPARE((QVector<bool>{data.m_bSubscribed, data.m_bBindApp, data.m_bInteractive, data.m_bFold,
                                data.m_channel.m_bAllowClose, data.m_channel.m_bAllowOpen}),
                 expected);
    }

    void aMenuTextMayHoldComments()
    {
        CServiceNumData data;
        data.parseServiceMenuFromString("// the menu\n[{\"name\":\"a\",\"leaf\":true}]");
        QCOMPARE(data.m_listMenu.size(), 1);
        QVERIFY(data.m_strMenuText.startsWith("// the menu"));
    }

    void brokenMenuTextChangesNothing_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("empty") << QString();
        QTest::newRow("no JSON") << "[{\"name\":";
        QTest::newRow("nested too deep") << QString(100000, '[');
        QTest::newRow("nested too deep, closed") << QString(2000, '[') + QString(2000, ']');
    }

    void brokenMenuTextChangesNothing()
    {
        QFETCH(QString, text);
        CServiceNumData data;
        data.parseServiceMenuFromString("[{\"name\":\"a\",\"leaf\":true}]");
        data.parseServiceMenuFromString(text);
        QCOMPARE(data.m_strMenuText, QString("[{\"name\":\"a\",\"leaf\":true}]"));
        QCOMPARE(data.m_listMenu.size(), 1);
    }

    void aWronglyTypedValueRaisesAndLeavesTheRecordWhole_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("name is a list") << QByteArray(R"({"iServiceCode":"new","name":[]})");
        QTest::newRow("status is a text") << QByteArray(R"({"iServiceCode":"new","status":"x"})");
        QTest::newRow("menu type is a text") << QByteArray(R"({"iServiceCode":"new","menuList":[{"type":"x"}]})");
        QTest::newRow("menu node is a number") << QByteArray(R"({"iServiceCode":"new","menuList":[7]})");
        QTest::newRow("menu is an object") << QByteArray(R"({"iServiceCode":"new","menuList":{"a":{"leaf":true}}})");
        QTest::newRow("child is an object") << QByteArray(R"({"menuList":[{"child":{"a":{"leaf":true}}}]})");
        QTest::newRow("groups are an object") << QByteArray(R"({"channel":{"workgroupList":{"a":{"id":"g"}}}})");
        QTest::newRow("channel version is a text") << QByteArray(R"({"iServiceCode":"new","channel":{"version":"x"}})");
        QTest::newRow("record is a list") << QByteArray("[]");
    }

    void aWronglyTypedValueRaisesAndLeavesTheRecordWhole()
    {
        QFETCH(QByteArray, text);
        CServiceNumData data;
        data.parseFromJson(json(cWholeService));
        QVERIFY_EXCEPTION_THROWN(data.parseFromJson(json(text.constData())), Json::LogicError);
        QCOMPARE(data.m_strServiceCode, QString("c1"));
        QCOMPARE(data.m_listMenu.size(), 2);
        QCOMPARE(data.m_channel.m_iVersion, Q_INT64_C(9007199254740993));
        const QString strMenuText = data.m_strMenuText;
        QVERIFY_EXCEPTION_THROWN(data.parseServiceMenuFromString("[{\"name\":\"x\"},7]"), Json::LogicError);
        QCOMPARE(data.m_listMenu.size(), 2);
        QCOMPARE(data.m_strMenuText, strMenuText);
    }

    void channelsCompareByVersionAlone()
    {
        CSChannelData one;
        CSChannelData other;
        one.m_iVersion = other.m_iVersion = 4;
        other.m_strChannelName = "another name";
        QVERIFY(one == other);
        QVERIFY(!(one != other));
        other.m_iVersion = 5;
        QVERIFY(one != other);
    }

    void groupsCompareByAllThree()
    {
        const CSWorkGroupData group{"i", "n", "c"};
        QVERIFY((group == CSWorkGroupData{"i", "n", "c"}));
        QVERIFY((group != CSWorkGroupData{"x", "n", "c"}));
        QVERIFY((group != CSWorkGroupData{"i", "x", "c"}));
        QVERIFY((group != CSWorkGroupData{"i", "n", "x"}));
    }

    void iconsAndChannelPictures_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("icon");
        QTest::addColumn<QString>("channel");
        QTest::newRow("empty") << QString() << QString() << cChannelHead;
        QTest::newRow("the service head") << cServiceHead << cServiceHead << "/data/me/designHeadImage/" + cServiceHead;
        QTest::newRow("the channel head") << cChannelHead << "/data/me/designHeadImage/" + cChannelHead << cChannelHead;
        QTest::newRow("built in") << "99"
                                  << "Resources/SystemAvatar/99.jpg"
                                  << "Resources/SystemAvatar/99.jpg";
        // Deliberately unlike: the channel's own picture is looked for without the added suffix.
        QTest::newRow("own") << "me"
                             << "/data/me/designHeadImage/me.jpg"
                             << "/data/me/designHeadImage/me";
        QTest::newRow("own png") << "me.png"
                                 << "/data/me/designHeadImage/me.png"
                                 << "/data/me/designHeadImage/me.png";
    }

    void iconsAndChannelPictures()
    {
        QFETCH(QString, name);
        const BuiltInAvatar avatar("99.jpg");
        CServiceNumData data;
        data.setServiceIconName(name);
        QCOMPARE(data.m_strIconName, name);
        QTEST(data.m_strIconPath, "icon");
        QTEST(CSUtils::getChannelIconPath(name), "channel");
    }

private:
    SystemSetData m_settings;
    CommonData m_context;
    std::optional<GivenContext> m_given;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CServiceNumData, Guiless)
#include "tst_CServiceNumData.moc"
