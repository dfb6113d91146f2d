#include "callcheck/LineMatch.h"
#include "callprocess/Wire.h"

#include <QtTest>

namespace {

QByteArray line(int code, const QString &content = QString())
{
    return notificationLine(code, content).trimmed();
}

QString conference(const char *id, const char *members = R"("a","b")", const char *time = R"(,"createTime":5)")
{
    return QString(R"({"content":{"from":"a","conventioneer":[%1],"confId":"%2"%3}})").arg(members, id, time);
}

} // namespace

class tst_LineMatch : public QObject
{
    Q_OBJECT

private slots:
    void linesMatch_data()
    {
        QTest::addColumn<QByteArray>("recorded");
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<bool>("same");
        QTest::newRow("equal") << line(18) << line(18) << true;
        QTest::newRow("another code") << line(18) << line(22) << false;
        QTest::newRow("another content") << line(0, "a") << line(0, "b") << false;
        QTest::newRow("other writing") << line(0, "a") << QByteArray(R"({ "resultCode" : 0, "content" : "a" })")
                                       << true;
        QTest::newRow("surplus key") << line(18) << QByteArray(R"({"content":"","resultCode":18,"x":1})") << false;
        QTest::newRow("no notification") << QByteArray("garbage") << QByteArray("garbage") << true;
        QTest::newRow("other garbage") << QByteArray("garbage") << QByteArray("Garbage") << false;
        QTest::newRow("another conference id") << line(12, conference("1")) << line(12, conference("2")) << true;
        QTest::newRow("no conference id") << line(12, conference("1")) << line(12, conference("")) << false;
        QTest::newRow("another time") << line(12, conference("1"))
                                      << line(12, conference("1", R"("a","b")", R"(,"createTime":9)")) << true;
        QTest::newRow("no time") << line(12, conference("1")) << line(12, conference("1", R"("a","b")", "")) << false;
        QTest::newRow("time in words") << line(12, conference("1"))
                                       << line(12, conference("1", R"("a","b")", R"(,"createTime":"5")")) << false;
        QTest::newRow("members in another order")
            << line(12, conference("1")) << line(12, conference("1", R"("b","a")")) << true;
        QTest::newRow("other members") << line(12, conference("1")) << line(12, conference("1", R"("a")")) << false;
        QTest::newRow("a document and none") << line(20, R"({"result":{"confId":"1"}})") << line(20) << false;
    }

    void linesMatch()
    {
        QFETCH(QByteArray, recorded);
        QFETCH(QByteArray, line);
        LineMatch match;
        QTEST(match.matches(recorded, line), "same");
    }

    void oneRecordedConferenceIsOneConference()
    {
        LineMatch match;
        QVERIFY(match.matches(line(20, R"({"result":{"confId":"1"}})"), line(20, R"({"result":{"confId":"x"}})")));
        QVERIFY(match.matches(line(12, conference("1")), line(12, conference("x"))));
        QVERIFY2(!match.matches(line(12, conference("1")), line(12, conference("y"))), "the same one became another");
        QVERIFY2(!match.matches(line(12, conference("2")), line(12, conference("x"))), "another one became the same");
        QVERIFY(match.matches(line(12, conference("2")), line(12, conference("y"))));
    }

    void logLinesAreKnown()
    {
        QVERIFY(LineMatch::isLog(line(999, "text")));
        QVERIFY(!LineMatch::isLog(line(18)));
        QVERIFY(!LineMatch::isLog("garbage"));
    }

    void messagesNameTheNotification()
    {
        QCOMPARE(LineMatch::shown(line(0, "a")), QString("0 (IncomingCall) a"));
        QCOMPARE(LineMatch::shown(line(6)), QString("6"));
        QCOMPARE(LineMatch::shown("no\tjson"), QString("\"no\u2409json\""));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_LineMatch, Guiless)
#include "tst_LineMatch.moc"
