// The boundary to the JSON library: nothing thrown, nothing half read.

#include "engine/JsonText.h"

#include <QStringList>
#include <QTest>

class tst_JsonText : public QObject
{
    Q_OBJECT

private slots:
    void failedParseLeavesNullBehind_data()
    {
        QTest::addColumn<QString>("text");

        QTest::newRow("empty") << "";
        QTest::newRow("broken behind a member") << R"({"result":{"confId":"c"},)";
        QTest::newRow("missing end") << R"({"result":{"confId":"c"})";
        QTest::newRow("nested too deep") << "{\"result\":1,\"deep\":" + QString(2000, '[') + QString(2000, ']') + "}";
        QTest::newRow("number out of every range") << R"({"result":1,"number":1e999})";
    }

    void failedParseLeavesNullBehind()
    {
        QFETCH(QString, text);
        Json::Value root("what stood there before");
        QVERIFY(!JsonText::parse(text, root));
        QVERIFY(root.isNull());
    }

    void memberOfAnythingButAnObjectIsNull_data()
    {
        QTest::addColumn<QString>("text");

        QTest::newRow("null") << "null";
        QTest::newRow("number") << "5";
        QTest::newRow("text") << R"("key")";
        QTest::newRow("array") << R"(["key"])";
        QTest::newRow("object without it") << R"({"other":1})";
    }

    void memberOfAnythingButAnObjectIsNull()
    {
        QFETCH(QString, text);
        Json::Value root;
        QVERIFY(JsonText::parse(text, root));
        const Json::Value &member = JsonText::member(root, "key");
        QVERIFY(member.isNull());
        QCOMPARE(JsonText::text(member), QString());
        QCOMPARE(JsonText::texts(member), QStringList());
        QCOMPARE(JsonText::integer(member), Q_INT64_C(0));
    }

    void lastOfTwoEqualKeysWins()
    {
        Json::Value root;
        QVERIFY(JsonText::parse(R"({"key":"a","key":"b"} behind)", root));
        QCOMPARE(JsonText::text(JsonText::member(root, "key")), QString("b"));
    }

    void writtenKeysAreSortedAndTheLineEndsInALineFeed()
    {
        Json::Value root(Json::objectValue);
        root["param2"] = true;
        root["messagetype"] = "x";
        root["param1"] = Json::Value();
        QCOMPARE(JsonText::write(root), QString("{\"messagetype\":\"x\",\"param1\":null,\"param2\":true}\n"));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_JsonText, Guiless)
#include "tst_JsonText.moc"
