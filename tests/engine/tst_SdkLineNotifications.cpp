// One line from the call process: what of it counts, and that nothing in it can throw.

#include "engine/SdkLine.h"

#include <QTest>

class tst_SdkLineNotifications : public QObject
{
    Q_OBJECT

private slots:
    void lineIsReadQuietly_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("content");

        QTest::newRow("code and text") << R"({"resultCode":5,"content":"anna"})" << 5 << "anna";
        QTest::newRow("with its line feed") << "{\"resultCode\":5,\"content\":\"anna\"}\n" << 5 << "anna";
        QTest::newRow("blanks") << "  { \"content\" : \"a b\" , \"resultCode\" : 7 }  " << 7 << "a b";
        QTest::newRow("comments") << R"(/* c */{"resultCode":7/*d*/} // e)" << 7 << "";
        QTest::newRow("null is code 0") << "null" << 0 << "";
        QTest::newRow("an empty object is code 0") << "{}" << 0 << "";
        QTest::newRow("a missing code is 0") << R"({"content":"anna"})" << 0 << "anna";
        QTest::newRow("a null code is 0") << R"({"resultCode":null,"content":"anna"})" << 0 << "anna";
        QTest::newRow("true is 1") << R"({"resultCode":true,"content":"anna"})" << 1 << "anna";
        QTest::newRow("false is 0") << R"({"resultCode":false})" << 0 << "";
        QTest::newRow("8.9 is 8") << R"({"resultCode":8.9})" << 8 << "";
        QTest::newRow("1e1 is 10") << R"({"resultCode":1e1})" << 10 << "";
        QTest::newRow("negative code, whose payload nobody needs") << R"({"resultCode":-1,"content":"x"})" << -1 << "";
        QTest::newRow("-0.5 is 0") << R"({"resultCode":-0.5})" << 0 << "";
        QTest::newRow("greatest code") << R"({"resultCode":2147483647})" << 2147483647 << "";
        QTest::newRow("a number as payload") << R"({"resultCode":5,"content":12})" << 5 << "12";
        QTest::newRow("a bool as payload") << R"({"resultCode":17,"content":true})" << 17 << "true";
        QTest::newRow("null as payload") << R"({"resultCode":20,"content":null})" << 20 << "";
        QTest::newRow("the last of two equal keys wins")
            << R"({"resultCode":5,"content":"a","resultCode":7,"content":"b"})" << 7 << "b";
        QTest::newRow("what stands behind the document is ignored")
            << R"({"resultCode":5,"content":"a"} and more)" << 5 << "a";
        QTest::newRow("a second document is ignored") << R"({"resultCode":5}{"resultCode":7})" << 5 << "";
        QTest::newRow("other keys are ignored")
            << R"({"resultCode":5,"other":[{"resultCode":9}],"content":"a"})" << 5 << "a";
        QTest::newRow("text outside ASCII")
            << QStringLiteral("{\"resultCode\":5,\"content\":\"呼叫\"}") << 5 << QStringLiteral("呼叫");
        QTest::newRow("escaped text") << "{\"resultCode\":5,\"content\":\"\\u547c\\n\\\"x\\\"\"}" << 5
                                      << QStringLiteral("呼\n\"x\"");
        QTest::newRow("document in the payload")
            << "{\"resultCode\":12,\"content\":\"{\\\"content\\\":{}}\"}" << 12 << R"({"content":{}})";
    }

    void lineIsReadQuietly()
    {
        QFETCH(QString, line);
        QFETCH(int, code);
        QFETCH(QString, content);
        const SdkLine::Notification read = SdkLine::read(line);
        QCOMPARE(read.code, code);
        QCOMPARE(read.content, content);
    }

    void lineWithoutEffectGivesMinusOne_data()
    {
        QTest::addColumn<QString>("line");

        QTest::newRow("empty") << "";
        QTest::newRow("line feed") << "\n";
        QTest::newRow("no JSON") << "quit\n";
        QTest::newRow("half a document") << "{\"resultCode\":4,\"content\":\"an";
        QTest::newRow("the other half") << "na\"}";
        QTest::newRow("half read members") << R"({"resultCode":4,"content":})";
        QTest::newRow("number") << "5";
        QTest::newRow("text") << R"("x")";
        QTest::newRow("array") << "[1]";
        QTest::newRow("empty array") << "[]";
        QTest::newRow("true") << "true";
        QTest::newRow("code as text") << R"({"resultCode":"5"})";
        QTest::newRow("code as object") << R"({"resultCode":{}})";
        QTest::newRow("code as array") << R"({"resultCode":[5]})";
        QTest::newRow("code beyond 32 bits") << R"({"resultCode":2147483648})";
        QTest::newRow("code beyond 64 bits") << R"({"resultCode":18446744073709551616})";
        QTest::newRow("code below 32 bits") << R"({"resultCode":-2147483649})";
        QTest::newRow("code of 1e300") << R"({"resultCode":1e300})";
        QTest::newRow("code of 1e999") << R"({"resultCode":1e999})";
        QTest::newRow("object as payload") << R"({"resultCode":5,"content":{"a":1}})";
        QTest::newRow("array as payload") << R"({"resultCode":5,"content":["a"]})";
        QTest::newRow("arrays nested 2000 deep") << QString(2000, '[') + QString(2000, ']');
        QTest::newRow("payload nested 2000 deep")
            << "{\"resultCode\":5,\"content\":" + QString(2000, '[') + QString(2000, ']') + "}";
        QTest::newRow("100000 open brackets") << QString(100000, '[');
    }

    void lineWithoutEffectGivesMinusOne()
    {
        QFETCH(QString, line);
        QCOMPARE(SdkLine::read(line).code, -1);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_SdkLineNotifications, Guiless)
#include "tst_SdkLineNotifications.moc"
