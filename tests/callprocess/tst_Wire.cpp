#include "callprocess/Options.h"
#include "callprocess/RobotTable.h"
#include "callprocess/Trace.h"
#include "callprocess/Wire.h"

#include <QtTest>

using Wire::Code;

class tst_Wire : public QObject
{
    Q_OBJECT

private slots:
    void catalogueHasTwentySevenNotifications()
    {
        for (int code = 0; code <= 25; ++code) {
            QCOMPARE(static_cast<int>(Wire::cNotifications.at(static_cast<size_t>(code)).code), code);
            QVERIFY(Wire::findNotification(code) != nullptr);
        }
        QVERIFY(Wire::findNotification(999) != nullptr);
        QVERIFY(Wire::findNotification(26) == nullptr && Wire::findNotification(-1) == nullptr);
        QCOMPARE(Wire::cNotifications.size(), 27U);
    }

    void robotIdsArePlainUserIds()
    {
        QSet<QString> ids;
        for (const Robot &robot : cRobots) {
            const QString id = QString::fromLatin1(robot.id);
            QVERIFY(id.contains(QRegularExpression(QStringLiteral("^300100(0[1-9]|10)$"))));
            QCOMPARE(findRobot(id), &robot);
            ids.insert(id);
        }
        QCOMPARE(ids.size(), 10);
        QVERIFY(findRobot(QStringLiteral("30010011")) == nullptr);
    }

    void commandShapes_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<QString>("fault");
        const auto row = [](const char *name, const char *line, const char *fault) {
            QTest::newRow(name) << QByteArray(line) << QString::fromLatin1(fault);
        };
        row("call", R"({"messagetype":"CallUser","param1":"1","param2":true})", "");
        row("null for an array",
            R"({"messagetype":"RequestConference","param1":"1","param2":null,"param3":true,"param4":""})", "");
        row("array", R"({"messagetype":"RequestConference","param1":"1","param2":["2"],"param3":true,"param4":""})",
            "");
        row("volume", R"({"messagetype":"SetMicVolume","param1":-3})", "");
        row("volume with a fraction", R"({"messagetype":"SetMicVolume","param1":0.5})",
            "SetMicVolume has a param1 of the wrong type");
        row("number for text", R"({"messagetype":"CallUser","param1":1,"param2":true})",
            "CallUser has a param1 of the wrong type");
        row("text for bool", R"({"messagetype":"SetMicEnable","param1":"true"})",
            "SetMicEnable has a param1 of the wrong type");
        row("numbers in the array",
            R"({"messagetype":"RequestConference","param1":"1","param2":[2],"param3":true,"param4":""})",
            "RequestConference has a param2 of the wrong type");
        row("missing", R"({"messagetype":"CallUser","param1":"1"})", "CallUser lacks param2");
        row("superfluous", R"({"messagetype":"HangUpCall","param1":"1"})", "HangUpCall has keys that it does not use");
        row("other spelling", R"({"messagetype":"HangupCall"})", "unknown command \"HangupCall\"");
    }

    void commandShapes()
    {
        QFETCH(QByteArray, line);
        QFETCH(QString, fault);
        QString reason;
        const std::optional<Command> command = parseCommand(line, &reason);
        QVERIFY2(command.has_value(), qPrintable(reason));
        QCOMPARE(shapeFault(*command), fault);
    }

    void linesThatAreNoCommands_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("text") << QByteArray("hello");
        QTest::newRow("number") << QByteArray("5");
        QTest::newRow("array") << QByteArray("[1]");
        QTest::newRow("no name") << QByteArray("{}");
        QTest::newRow("name is a number") << QByteArray(R"({"messagetype":5})");
        QTest::newRow("half") << QByteArray("{\"messagetype\":\"Call");
        QTest::newRow("binary") << QByteArray("\xFF\x00\xFE", 3);
        QTest::newRow("nested too deep") << QByteArray(5000, '[');
    }

    void linesThatAreNoCommands()
    {
        QFETCH(QByteArray, line);
        QString reason;
        QVERIFY(!parseCommand(line, &reason).has_value());
        QVERIFY(!reason.isEmpty());
    }

    void notificationIsOneCompactLine()
    {
        QCOMPARE(notificationLine(Code::PeerBusy, {}), QByteArray("{\"content\":\"\",\"resultCode\":22}\n"));
        QCOMPARE(notificationLine(Code::SdkLog, QStringLiteral("a\nb")),
                 QByteArray("{\"content\":\"a\\nb\",\"resultCode\":999}\n"));
    }

    void nonAsciiContentIsUtf8()
    {
        const QByteArray line = notificationLine(Code::SdkLog, QStringLiteral("呼叫"));
        QVERIFY(line.contains("\xE5\x91\xBC\xE5\x8F\xAB"));
    }

    void printableKeepsOneLine_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("text");
        QTest::newRow("plain") << QByteArray("{\"a\":1}") << QStringLiteral("{\"a\":1}");
        QTest::newRow("utf-8") << QByteArray("\xE5\x91\xBC") << QStringLiteral("呼");
        QTest::newRow("line feed and NUL") << QByteArray("a\nb\0c", 5) << QStringLiteral("a␊b␀c");
        QTest::newRow("no utf-8") << QByteArray("a\xFF\nb") << QStringLiteral("a\\xFF␊b");
        QTest::newRow("half a character") << QByteArray("a\xE5\x91") << QStringLiteral("a\\xE5\\x91");
        QTest::newRow("delete") << QByteArray("\x7F") << QStringLiteral("␡");
    }

    void printableKeepsOneLine()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, text);
        QCOMPARE(Trace::printable(bytes), text);
    }

    void optionWinsOverEnvironment()
    {
        qputenv("VOIPSDK_TRACE", "from-environment");
        qputenv("VOIPSDK_SPEED", "4");
        qputenv("VOIPSDK_IDLE_SECONDS", "0.5");
        Options options;
        QString error;
        QVERIFY(options.read({QStringLiteral("VoipSDK"), QStringLiteral("--speed"), QStringLiteral("8")}, &error));
        qunsetenv("VOIPSDK_TRACE");
        qunsetenv("VOIPSDK_SPEED");
        qunsetenv("VOIPSDK_IDLE_SECONDS");
        QCOMPARE(options.trace, QStringLiteral("from-environment"));
        QCOMPARE(options.speed, 8.0);
        QCOMPARE(options.idleSeconds, 0.5);
        QCOMPARE(options.scenario, QString());
        QCOMPARE(options.socketName, QStringLiteral("VoipSDK"));
    }

    void environmentAloneTells()
    {
        qputenv("VOIPSDK_SCENARIO", "a.scn");
        qputenv("VOIPSDK_SPEED", "4");
        Options options;
        QString error;
        QVERIFY(options.read({QStringLiteral("VoipSDK")}, &error));
        qunsetenv("VOIPSDK_SCENARIO");
        qunsetenv("VOIPSDK_SPEED");
        QCOMPARE(options.scenario, QStringLiteral("a.scn"));
        QCOMPARE(options.speed, 4.0);
    }

    void badOptionsAreRefused_data()
    {
        QTest::addColumn<QStringList>("arguments");
        const auto row = [](const char *name, const char *arguments) {
            QTest::newRow(name) << QString::fromLatin1(arguments).split(QLatin1Char(' '));
        };
        row("unknown", "VoipSDK --loud");
        row("surplus", "VoipSDK more");
        row("speed 0", "VoipSDK --speed 0");
        row("speed negative", "VoipSDK --speed=-1");
        row("speed no number", "VoipSDK --speed fast");
        row("speed not a number", "VoipSDK --speed nan");
        row("idle negative", "VoipSDK --idle-seconds=-1");
        row("idle infinite", "VoipSDK --idle-seconds inf");
    }

    void badOptionsAreRefused()
    {
        QFETCH(QStringList, arguments);
        Options options;
        QString error;
        QVERIFY(!options.read(arguments, &error));
        QVERIFY(!error.isEmpty());
    }

    void delaysAreDividedBySpeed()
    {
        QCOMPARE(scaledDelay(1500, 1.0), 1500);
        QCOMPARE(scaledDelay(1500, 100.0), 15);
        QCOMPARE(scaledDelay(2000000000, 0.001), std::numeric_limits<int>::max());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_Wire, Appless)
#include "tst_Wire.moc"
