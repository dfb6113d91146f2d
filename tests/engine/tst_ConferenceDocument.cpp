// The documents that travel as text inside a notification: read field by field, wrong types as absent.

#include "engine/ConferenceDocument.h"

#include <QTest>

#include <limits>

namespace {

constexpr qint64 cMost = std::numeric_limits<qint64>::max();
constexpr qint64 cLeast = std::numeric_limits<qint64>::min();

} // namespace

class tst_ConferenceDocument : public QObject
{
    Q_OBJECT

private slots:
    void fullDocumentIsRead()
    {
        const ConferenceDocument document = ConferenceDocument::read(
            R"({"content":{"from":"anna","conventioneer":["anna","me","bert"],"confId":"c1","createTime":1600000000123}})");
        QCOMPARE(document.from, QString("anna"));
        QCOMPARE(document.conventioneer, QStringList({"anna", "me", "bert"}));
        QCOMPARE(document.confId, QString("c1"));
        QCOMPARE(document.createTime, Q_INT64_C(1600000000123));
    }

    void wrongTypesReadAsAbsent_data()
    {
        QTest::addColumn<QString>("body");
        QTest::addColumn<QString>("from");
        QTest::addColumn<QStringList>("conventioneer");
        QTest::addColumn<QString>("confId");
        QTest::addColumn<qint64>("createTime");

        const QStringList none;
        QTest::newRow("all numbers") << R"("from":1,"conventioneer":2,"confId":3,"createTime":4)"
                                     << "" << none << "" << Q_INT64_C(4);
        QTest::newRow("all texts") << R"("from":"a","conventioneer":"b","confId":"c","createTime":"5")"
                                   << "a" << none << "c" << Q_INT64_C(0);
        QTest::newRow("all objects") << R"("from":{},"conventioneer":{"0":"a"},"confId":{},"createTime":{})"
                                     << "" << none << "" << Q_INT64_C(0);
        QTest::newRow("all arrays") << R"("from":["a"],"conventioneer":["b"],"confId":["c"],"createTime":[1])"
                                    << "" << QStringList{"b"} << "" << Q_INT64_C(0);
        QTest::newRow("all null") << R"("from":null,"conventioneer":null,"confId":null,"createTime":null)"
                                  << "" << none << "" << Q_INT64_C(0);
        QTest::newRow("all bools") << R"("from":true,"conventioneer":true,"confId":true,"createTime":true)"
                                   << "" << none << "" << Q_INT64_C(0);
        QTest::newRow("mixed members") << R"("conventioneer":["a",1,null,{"b":1},["c"],true,"d"],"confId":"c")"
                                       << "" << QStringList{"a", "d"} << "c" << Q_INT64_C(0);
        QTest::newRow("one wrong field leaves the others") << R"("from":7,"conventioneer":["a"],"confId":"c")"
                                                           << "" << QStringList{"a"} << "c" << Q_INT64_C(0);
    }

    void wrongTypesReadAsAbsent()
    {
        QFETCH(QString, body);
        const ConferenceDocument document = ConferenceDocument::read("{\"content\":{" + body + "}}");
        QTEST(document.from, "from");
        QTEST(document.conventioneer, "conventioneer");
        QTEST(document.confId, "confId");
        QTEST(document.createTime, "createTime");
    }

    void documentWithoutABodyIsEmpty_data()
    {
        QTest::addColumn<QString>("content");

        QTest::newRow("empty") << "";
        QTest::newRow("no JSON") << "anna";
        QTest::newRow("null") << "null";
        QTest::newRow("number") << "5";
        QTest::newRow("array") << R"([{"content":{"confId":"c"}}])";
        QTest::newRow("no body") << R"({"confId":"c","from":"a"})";
        QTest::newRow("empty body") << R"({"content":{}})";
        QTest::newRow("body is a text") << "{\"content\":\"{\\\"confId\\\":\\\"c\\\"}\"}";
        QTest::newRow("body is an array") << R"({"content":[{"confId":"c"}]})";
        QTest::newRow("body is a number") << R"({"content":5})";
        QTest::newRow("broken behind the fields") << R"({"content":{"confId":"c","from":"a"})";
        QTest::newRow("nested 2000 deep")
            << "{\"content\":{\"confId\":\"c\",\"from\":" + QString(2000, '[') + QString(2000, ']') + "}}";
    }

    void documentWithoutABodyIsEmpty()
    {
        QFETCH(QString, content);
        const ConferenceDocument document = ConferenceDocument::read(content);
        QCOMPARE(document.from, QString());
        QCOMPARE(document.conventioneer, QStringList());
        QCOMPARE(document.confId, QString());
        QCOMPARE(document.createTime, Q_INT64_C(0));
    }

    void createTimeIsCutToSixtyFourBits_data()
    {
        QTest::addColumn<QString>("number");
        QTest::addColumn<qint64>("createTime");

        QTest::newRow("zero") << "0" << Q_INT64_C(0);
        QTest::newRow("whole") << "1600000000123" << Q_INT64_C(1600000000123);
        QTest::newRow("with an exponent") << "1.6e12" << Q_INT64_C(1600000000000);
        QTest::newRow("fraction is cut off") << "1600000000123.9" << Q_INT64_C(1600000000123);
        QTest::newRow("read as a double") << "9007199254740993" << Q_INT64_C(9007199254740992);
        QTest::newRow("negative") << "-5" << Q_INT64_C(-5);
        QTest::newRow("negative fraction is cut towards zero") << "-5.9" << Q_INT64_C(-5);
        QTest::newRow("just above 64 bits") << "9223372036854775808" << cMost;
        QTest::newRow("far above 64 bits") << "1e300" << cMost;
        QTest::newRow("far below 64 bits") << "-1e300" << cLeast;
        QTest::newRow("beyond every integer type") << "99999999999999999999999" << cMost;
    }

    void createTimeIsCutToSixtyFourBits()
    {
        QFETCH(QString, number);
        const ConferenceDocument document =
            ConferenceDocument::read("{\"content\":{\"confId\":\"c\",\"createTime\":" + number + "}}");
        QCOMPARE(document.confId, QString("c"));
        QTEST(document.createTime, "createTime");
    }

    void createdIdIsReadFromTheResult_data()
    {
        QTest::addColumn<QString>("content");
        QTest::addColumn<QString>("id");

        QTest::newRow("id") << R"({"result":{"confId":"c1"}})"
                            << "c1";
        QTest::newRow("no JSON") << "c1"
                                 << "";
        QTest::newRow("broken behind the id") << R"({"result":{"confId":"c1"})"
                                              << "";
        QTest::newRow("id outside the result") << R"({"confId":"c1"})"
                                               << "";
        QTest::newRow("id is a number") << R"({"result":{"confId":7}})"
                                        << "";
        QTest::newRow("result is a text") << R"({"result":"c1"})"
                                          << "";
        QTest::newRow("root is an array") << R"(["c1"])"
                                          << "";
        QTest::newRow("root is a number") << "7"
                                          << "";
    }

    void createdIdIsReadFromTheResult()
    {
        QFETCH(QString, content);
        QTEST(createdConferenceId(content), "id");
    }

    void failedNumbersAreReadFromTheResult_data()
    {
        QTest::addColumn<QString>("content");
        QTest::addColumn<QStringList>("failed");

        const QStringList none;
        QTest::newRow("two") << R"({"status":1,"result":{"failedNums":["a","b"]}})" << QStringList{"a", "b"};
        QTest::newRow("status of a wrong type is not read")
            << R"({"status":[],"result":{"failedNums":["a"]}})" << QStringList{"a"};
        QTest::newRow("empty list") << R"({"status":0,"result":{"failedNums":[]}})" << none;
        QTest::newRow("empty result") << R"({"status":0,"result":{}})" << none;
        QTest::newRow("no result") << R"({"status":0})" << none;
        QTest::newRow("list is a text") << R"({"result":{"failedNums":"a"}})" << none;
        QTest::newRow("texts among other types") << R"({"result":{"failedNums":[1,"a",null]}})" << QStringList{"a"};
        QTest::newRow("root is an array") << R"([{"failedNums":["a"]}])" << none;
        QTest::newRow("no JSON") << "x" << none;
    }

    void failedNumbersAreReadFromTheResult()
    {
        QFETCH(QString, content);
        QTEST(failedNumbers(content), "failed");
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ConferenceDocument, Guiless)
#include "tst_ConferenceDocument.moc"
