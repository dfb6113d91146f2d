#include "callcheck/LineMatch.h"
#include "endpoint/Wire.h"

#include <QtTest>

using Wire::Code;

namespace {

QByteArray line(Code code, const QString &content = QString())
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
        QTest::newRow("equal") << line(Code::CallConnected) << line(Code::CallConnected) << true;
        QTest::newRow("another code") << line(Code::CallConnected) << line(Code::PeerBusy) << false;
        QTest::newRow("another content") << line(Code::IncomingCall, "a") << line(Code::IncomingCall, "b") << false;
        QTest::newRow("other writing") << line(Code::IncomingCall, "a")
                                       << QByteArray(R"({ "resultCode" : 0, "content" : "a" })") << true;
        QTest::newRow("surplus key") << line(Code::CallConnected)
                                     << QByteArray(R"({"content":"","resultCode":18,"x":1})") << false;
        QTest::newRow("no notification") << QByteArray("garbage") << QByteArray("garbage") << true;
        QTest::newRow("other garbage") << QByteArray("garbage") << QByteArray("Garbage") << false;
        QTest::newRow("another conference id")
            << line(Code::ConfUpdate, conference("1")) << line(Code::ConfUpdate, conference("2")) << true;
        QTest::newRow("no conference id")
            << line(Code::ConfUpdate, conference("1")) << line(Code::ConfUpdate, conference("")) << false;
        QTest::newRow("another time") << line(Code::ConfUpdate, conference("1"))
                                      << line(Code::ConfUpdate, conference("1", R"("a","b")", R"(,"createTime":9)"))
                                      << true;
        QTest::newRow("no time") << line(Code::ConfUpdate, conference("1"))
                                 << line(Code::ConfUpdate, conference("1", R"("a","b")", "")) << false;
        QTest::newRow("time in words") << line(Code::ConfUpdate, conference("1"))
                                       << line(Code::ConfUpdate, conference("1", R"("a","b")", R"(,"createTime":"5")"))
                                       << false;
        QTest::newRow("members in another order")
            << line(Code::ConfUpdate, conference("1")) << line(Code::ConfUpdate, conference("1", R"("b","a")")) << true;
        QTest::newRow("other members") << line(Code::ConfUpdate, conference("1"))
                                       << line(Code::ConfUpdate, conference("1", R"("a")")) << false;
        QTest::newRow("a document and none")
            << line(Code::ConfCreated, R"({"result":{"confId":"1"}})") << line(Code::ConfCreated) << false;
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
        QVERIFY(match.matches(line(Code::ConfCreated, R"({"result":{"confId":"1"}})"),
                              line(Code::ConfCreated, R"({"result":{"confId":"x"}})")));
        QVERIFY(match.matches(line(Code::ConfUpdate, conference("1")), line(Code::ConfUpdate, conference("x"))));
        QVERIFY2(!match.matches(line(Code::ConfUpdate, conference("1")), line(Code::ConfUpdate, conference("y"))),
                 "the same one became another");
        QVERIFY2(!match.matches(line(Code::ConfUpdate, conference("2")), line(Code::ConfUpdate, conference("x"))),
                 "another one became the same");
        QVERIFY(match.matches(line(Code::ConfUpdate, conference("2")), line(Code::ConfUpdate, conference("y"))));
    }

    void logLinesAreKnown()
    {
        QVERIFY(LineMatch::isLog(line(Code::SdkLog, "text")));
        QVERIFY(!LineMatch::isLog(line(Code::CallConnected)));
        QVERIFY(!LineMatch::isLog("garbage"));
    }

    void messagesNameTheNotification()
    {
        QCOMPARE(LineMatch::shown(line(Code::IncomingCall, "a")), QString("0 (IncomingCall) a"));
        QCOMPARE(LineMatch::shown(notificationLine(6, {}).trimmed()), QString("6"));
        QCOMPARE(LineMatch::shown("no\tjson"), QString("\"no\u2409json\""));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_LineMatch, Guiless)
#include "tst_LineMatch.moc"
