#include "callcheck/PluginCommand.h"
#include "callcheck/ScenarioWriter.h"
#include "callprocess/Scenario.h"
#include "callprocess/ScenarioWords.h"
#include "endpoint/Wire.h"

#include <QJsonArray>
#include <QtTest>

using Wire::Code;

namespace {

/// What is written after the opening.
struct Recording
{
    QByteArray text;
    ScenarioWriter writer{[this](const QByteArray &piece) { text += piece; }};

    /// The text must be a scenario.
    std::optional<Scenario> scenario() const
    {
        QString error;
        std::optional<Scenario> read = Scenario::parse("recorded", text, &error);
        if (!read) {
            qWarning("%s", qPrintable(error));
        }
        return read;
    }
};

} // namespace

class tst_ScenarioWriter : public QObject
{
    Q_OBJECT

private slots:
    void openingIsAScenarioThatWaitsForItsClient()
    {
        Recording recording;
        recording.writer.begin();
        recording.writer.pluginDid(7000, "await-client");
        const std::optional<Scenario> scenario = recording.scenario();
        QVERIFY(scenario);
        QVERIFY(scenario->statements.constFirst().kind == StatementKind::Ignore);
        QVERIFY(scenario->statements.constLast().kind == StatementKind::AwaitClient);
        QCOMPARE(scenario->statements.size(), 3);
    }

    void commandsAreExpected_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<QByteArray>("statement");
        QTest::newRow("private values are left out") << commandLine("RegeditUser", {"u", "Nick", "secret", false})
                                                     << QByteArray("expect RegeditUser param1=u param4=false\n");
        QTest::newRow("id and flag") << commandLine("CallUser", {"30010001", true})
                                     << QByteArray("expect CallUser param1=30010001 param2=true\n");
        QTest::newRow("list")
            << commandLine("RequestConference", {"u", QJsonArray{"a", "b"}, true, "a talk"})
            << QByteArray("expect RequestConference param1=u param2=[\"a\",\"b\"] param3=true param4='a talk'\n");
        QTest::newRow("null and empty")
            << commandLine("Add2Conference", {QJsonValue(), "u", "u", false, "", QJsonValue()})
            << QByteArray("expect Add2Conference param1=null param2=u param3=u param4=false param5='' param6=null\n");
        QTest::newRow("blank in a list") << commandLine("RequestConference", {"u", QJsonArray{"a b"}, true, ""})
                                         << QByteArray("expect RequestConference param1=u param3=true param4=''\n");
        QTest::newRow("number") << commandLine("SetMicVolume", {7}) << QByteArray("expect SetMicVolume param1=7\n");
        QTest::newRow("quit") << QByteArray("quit\n") << QByteArray("expect quit\n");
        QTest::newRow("unknown") << commandLine("Dance", {})
                                 << QByteArray("# not understood: \"{\\\"messagetype\\\":\\\"Dance\\\"}\"\n");
    }

    void commandsAreExpected()
    {
        QFETCH(QByteArray, line);
        QFETCH(QByteArray, statement);
        Recording recording;
        recording.writer.said(0, line.trimmed());
        QCOMPARE(recording.text, statement);
        const std::optional<Scenario> scenario = recording.scenario();
        QVERIFY(scenario);
        QString reason;
        const std::optional<Command> command = parseCommand(line, &reason);
        if (command && findCommand(command->name) != nullptr) {
            QVERIFY2(scenario->statements.constFirst().matches(*command), "what was recorded does not match itself");
        }
    }

    void notificationsAreSent_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QByteArray>("statement");
        QTest::newRow("no content") << notificationLine(Code::CallConnected, "") << QByteArray("send 18\n");
        QTest::newRow("id") << notificationLine(Code::IncomingCall, "30010001") << QByteArray("send 0 30010001\n");
        QTest::newRow("blank") << notificationLine(Code::SdkLog, "a line") << QByteArray("send 999 'a line'\n");
        QTest::newRow("document") << notificationLine(Code::ConfCreated, R"({"result":{"confId":"7"}})")
                                  << QByteArray("send 20 {\"result\":{\"confId\":\"7\"}}\n");
        QTest::newRow("other writing") << QByteArray("{\"resultCode\": 18, \"content\": \"\"}\n")
                                       << QByteArray("send 18\n");
        QTest::newRow("unknown code") << notificationLine(77, "")
                                      << QByteArray("raw \"{\\\"content\\\":\\\"\\\",\\\"resultCode\\\":77}\\n\"\n");
        QTest::newRow("no content at all")
            << QByteArray("{\"resultCode\":18}\n") << QByteArray("raw \"{\\\"resultCode\\\":18}\\n\"\n");
        QTest::newRow("garbage") << QByteArray("\xFF\x00g\n", 4) << QByteArray("raw \"\\xFF\\x00g\\n\"\n");
        QTest::newRow("empty line") << QByteArray("\n") << QByteArray("raw \"\\n\"\n");
    }

    void notificationsAreSent()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QByteArray, statement);
        Recording recording;
        recording.writer.written(0, bytes);
        QCOMPARE(recording.text, statement);
        const std::optional<Scenario> scenario = recording.scenario();
        QVERIFY(scenario);
        if (statement.startsWith("raw")) {
            QCOMPARE(scenario->statements.constFirst().bytes, bytes);
        }
    }

    void oneReadIsOneStatement()
    {
        Recording recording;
        const QByteArray read =
            notificationLine(Code::CallConnected, "") + "garbage\n" + notificationLine(Code::PeerHangup, "");
        recording.writer.written(0, read);
        QCOMPARE(recording.text, QByteArray("join {\n    send 18\n    raw \"garbage\\n\"\n    send 8\n}\n"));
        QCOMPARE(recording.scenario()->statements.constFirst().bytes, read);
    }

    void brokenLineIsASplit()
    {
        Recording recording;
        const QByteArray line = notificationLine(Code::PeerBusy, "");
        recording.writer.written(1000, line.left(10));
        recording.writer.written(1205, line.mid(10));
        recording.writer.written(1205, notificationLine(Code::CallConnected, ""));
        QCOMPARE(recording.text, QByteArray("wait 1s\nsplit 10 205ms 22\nsend 18\n"));
        QCOMPARE(recording.scenario()->statements.at(1).bytes, line);
    }

    void otherBrokenReadsGoAsTheyWere()
    {
        Recording recording;
        recording.writer.written(0, "{ \"resultCode\"");
        recording.writer.written(300, ": 18, \"content\": \"\" }\n");
        recording.writer.written(300, "the rest");
        recording.writer.end(QString());
        QCOMPARE(recording.text, QByteArray("raw \"{ \\\"resultCode\\\"\"\nwait 300ms\n"
                                            "raw \": 18, \\\"content\\\": \\\"\\\" }\\n\"\nraw \"the rest\"\n"));
        QVERIFY(recording.scenario());
    }

    void pausesOfTheCallProcessAreRounded()
    {
        Recording recording;
        for (const qint64 now : {49, 99, 560, 2060}) {
            recording.writer.written(now, notificationLine(Code::CallConnected, ""));
        }
        recording.writer.happened(2560, "drop");
        QCOMPARE(
            recording.text,
            QByteArray("send 18\nwait 100ms\nsend 18\nwait 500ms\nsend 18\nwait 1.5s\nsend 18\nwait 500ms\ndrop\n"));
    }

    void pausesOfThePluginAreLeftOut()
    {
        Recording recording;
        recording.writer.said(5000, commandLine("AcceptCall", {}).trimmed());
        recording.writer.written(5200, notificationLine(Code::CallConnected, ""));
        QCOMPARE(recording.text, QByteArray("expect AcceptCall\nwait 200ms\nsend 18\n"));
    }

    void nothingIsRecordedAfterQuitButTheEnd()
    {
        Recording recording;
        recording.writer.said(0, "quit");
        recording.writer.written(500, notificationLine(Code::CallConnected, ""));
        recording.writer.happened(600, "await-gone");
        recording.writer.end("It ended.");
        QCOMPARE(recording.text, QByteArray("expect quit\n# It ended.\n"));
    }

    void wordsAreReadBack_data()
    {
        QTest::addColumn<QByteArray>("text");
        const QByteArray texts[] = {"",     "plain", "two words", "\"quoted\"", "'",   "' \"", "{",
                                    "}",    "#",     "a#",        "a=\"b\"",    "=",   "\n",   QByteArray("\0", 1),
                                    "\xFF", "\\",    "a\\n b'",   "名字",       "a\tb"};
        for (const QByteArray &text : texts) {
            QTest::newRow(text.toHex().constData()) << text;
        }
    }

    void wordsAreReadBack()
    {
        QFETCH(QByteArray, text);
        QString error;
        const QVector<ScenarioWord> words = scenarioWords("raw " + wordFor(text), &error);
        QCOMPARE(error, QString());
        QCOMPARE(words.size(), 2);
        QCOMPARE(words.at(1).text, text);
        const QVector<ScenarioWord> named = scenarioWords("param1=" + wordFor(text), &error);
        QCOMPARE(named.size(), 1);
        QCOMPARE(named.at(0).text, "param1=" + text);
        QVERIFY2(!words.at(1).isBare("{") && !words.at(1).isBare("}"), "it would open or close a block");
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ScenarioWriter, Guiless)
#include "tst_ScenarioWriter.moc"
