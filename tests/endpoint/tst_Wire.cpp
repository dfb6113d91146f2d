#include "endpoint/Wire.h"

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

    void commandIsReadOnlyInItsOwnShape()
    {
        QString fault;
        const std::optional<Command> command =
            readCommand(R"({"messagetype":"CallUser","param1":"1","param2":true})", &fault);
        QVERIFY(command.has_value());
        QCOMPARE(command->text(1), QStringLiteral("1"));
        QVERIFY(!readCommand(R"({"messagetype":"CallUser","param1":"1"})", &fault).has_value());
        QCOMPARE(fault, QStringLiteral("CallUser lacks param2"));
        QVERIFY(!readCommand("hello", &fault).has_value());
        QVERIFY(fault.startsWith(QStringLiteral("not JSON")));
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
};

#include "support/TestProgram.h"
VOIP_TEST(tst_Wire, Appless)
#include "tst_Wire.moc"
