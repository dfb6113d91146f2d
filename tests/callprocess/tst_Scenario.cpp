#include "callprocess/Scenario.h"

#include <QtTest>

using Wire::Code;

namespace {

Scenario good(const QByteArray &text)
{
    QString error;
    const std::optional<Scenario> scenario = Scenario::parse(QStringLiteral("x.scn"), text, &error);
    if (!scenario) {
        qWarning("%s", qPrintable(error));
        return {};
    }
    return *scenario;
}

} // namespace

class tst_Scenario : public QObject
{
    Q_OBJECT

private slots:
    void languageHasEighteenStatements()
    {
        QSet<QString> words;
        QSet<int> kinds;
        for (const StatementRow &row : cStatements) {
            words.insert(QString::fromLatin1(row.word));
            kinds.insert(static_cast<int>(row.kind));
        }
        QCOMPARE(words.size(), 18);
        QCOMPARE(kinds.size(), 18);
    }

    void everyStatementIsRead()
    {
        const Scenario scenario = good("expect CallUser param1=30010001 param2=\"true\"\n"
                                       "await UnReg\n"
                                       "ignore SetMicEnable SetMicVolume\n"
                                       "expect-nothing 1.5s\n"
                                       "timeout 250ms\n"
                                       "send 18\n"
                                       "raw \"a\\n\" b\n"
                                       "split 10 20ms 0 30010001\n"
                                       "join {\n send 18\n send 8\n}\n"
                                       "wait 2s\n"
                                       "repeat 3 {\n send 7\n}\n"
                                       "await-client\nawait-gone\ndrop\nstop-listen\nrestart-listen\ndie\nend\n");
        const QVector<Statement> &list = scenario.statements;
        QCOMPARE(list.size(), 18);
        for (int i = 0; i < list.size(); ++i) {
            QCOMPARE(static_cast<int>(list.at(i).kind), static_cast<int>(cStatements.at(static_cast<size_t>(i)).kind));
        }
        QCOMPARE(list.at(0).expectation(), QStringLiteral("CallUser param1=30010001 param2=\"true\""));
        QCOMPARE(list.at(1).commands, QStringList{QStringLiteral("UnReg")});
        QCOMPARE(list.at(2).commands.size(), 2);
        QCOMPARE(list.at(3).milliseconds, 1500);
        QCOMPARE(list.at(4).milliseconds, 250);
        QCOMPARE(list.at(5).bytes, notificationLine(Code::CallConnected, {}));
        QCOMPARE(list.at(6).bytes, QByteArray("a\nb"));
        QCOMPARE(list.at(7).count, 10);
        QCOMPARE(list.at(7).milliseconds, 20);
        QCOMPARE(list.at(7).bytes, notificationLine(Code::IncomingCall, QStringLiteral("30010001")));
        QCOMPARE(list.at(9).milliseconds, 2000);
        QCOMPARE(list.at(9).line, 13);
        QCOMPARE(list.at(10).count, 3);
        QCOMPARE(list.at(10).body.size(), 1);
    }

    void commentsAndBlankLinesAreSkipped()
    {
        const Scenario scenario =
            good("# a comment\n\n   \t\r\nsend 999 a#b # behind\n  # indented\nsend 999 \"# text\"");
        QCOMPARE(scenario.statements.size(), 2);
        QCOMPARE(scenario.statements.at(0).bytes, notificationLine(Code::SdkLog, QStringLiteral("a#b")));
        QCOMPARE(scenario.statements.at(0).line, 4);
        QCOMPARE(scenario.statements.at(1).bytes, notificationLine(Code::SdkLog, QStringLiteral("# text")));
    }

    void quotesAndEscapes()
    {
        const Scenario scenario =
            good("raw \"\\n\\r\\t\\0\\\\\\\"\\xfF x\"\nraw 'a \\n \"b\"' \"\"\nraw {\"a\":\"b\"}\n");
        QCOMPARE(scenario.statements.size(), 3);
        QCOMPARE(scenario.statements.at(0).bytes, QByteArray("\n\r\t\0\\\"\xFF x", 9));
        QCOMPARE(scenario.statements.at(1).bytes, QByteArray("a \\n \"b\""));
        QCOMPARE(scenario.statements.at(2).bytes, QByteArray("{\"a\":\"b\"}"));
    }

    void contentMayHoldNul()
    {
        const Scenario scenario = good("send 999 \"呼\\0叫\"\n");
        QCOMPARE(scenario.statements.size(), 1);
        QCOMPARE(scenario.statements.at(0).bytes,
                 notificationLine(Code::SdkLog, QStringLiteral("呼") + QChar(0) + QStringLiteral("叫")));
    }

    void joinGathersItsLines()
    {
        const Scenario scenario = good("join {\n send 18\n raw x\n send 8 y\n}\n");
        QCOMPARE(scenario.statements.size(), 1);
        QCOMPARE(scenario.statements.at(0).bytes, notificationLine(Code::CallConnected, {}) + "x" +
                                                      notificationLine(Code::PeerHangup, QStringLiteral("y")));
    }

    void joinTakesNothingButSendAndRaw_data()
    {
        QTest::addColumn<QByteArray>("statement");
        const QList<QByteArray> statements{"expect CallUser",
                                           "await UnReg",
                                           "ignore SetMicEnable",
                                           "expect-nothing 1s",
                                           "timeout 1s",
                                           "split 10 20ms 0",
                                           "join {\nsend 18\n}",
                                           "wait 1s",
                                           "repeat 2 {\nsend 18\n}",
                                           "await-client",
                                           "await-gone",
                                           "drop",
                                           "stop-listen",
                                           "restart-listen",
                                           "die",
                                           "end"};
        QCOMPARE(statements.size() + 2, static_cast<int>(cStatements.size()));
        for (const QByteArray &statement : statements) {
            QTest::newRow(statement.split(' ').constFirst().constData()) << statement;
        }
    }

    void joinTakesNothingButSendAndRaw()
    {
        QFETCH(QByteArray, statement);
        QCOMPARE(good(statement + '\n').statements.size(), 1);
        QString reason;
        QVERIFY(
            !Scenario::parse(QStringLiteral("x.scn"), "join {\nsend 18\n" + statement + "\n}\n", &reason).has_value());
        QCOMPARE(reason, QStringLiteral("x.scn:3: only \"send\" and \"raw\" can be joined"));
    }

    void blocksNest()
    {
        const Scenario scenario = good("repeat 2 {\n repeat 3 {\n  send 18\n }\n wait 1ms\n}\nend\n");
        QCOMPARE(scenario.statements.size(), 2);
        QCOMPARE(scenario.statements.at(0).body.size(), 2);
        QCOMPARE(scenario.statements.at(0).body.at(0).count, 3);
        QCOMPARE(scenario.statements.at(0).body.at(0).body.size(), 1);
    }

    void expectationMatching_data()
    {
        QTest::addColumn<QByteArray>("expectation");
        QTest::addColumn<bool>("matches");
        QTest::newRow("name only") << QByteArray("Add2Conference") << true;
        QTest::newRow("other name") << QByteArray("CallUser") << false;
        QTest::newRow("text, bare") << QByteArray("Add2Conference param2=100") << true;
        QTest::newRow("text, quoted") << QByteArray("Add2Conference param2=\"100\"") << true;
        QTest::newRow("other text") << QByteArray("Add2Conference param2=101") << false;
        QTest::newRow("array") << QByteArray("Add2Conference param1=[\"1\",\"2\"]") << true;
        QTest::newRow("array in other order") << QByteArray("Add2Conference param1=[\"2\",\"1\"]") << false;
        QTest::newRow("bool") << QByteArray("Add2Conference param4=false") << true;
        QTest::newRow("other bool") << QByteArray("Add2Conference param4=true") << false;
        QTest::newRow("bool, quoted") << QByteArray("Add2Conference param4=\"false\"") << false;
        QTest::newRow("null") << QByteArray("Add2Conference param6=null") << true;
        QTest::newRow("empty text") << QByteArray("Add2Conference param5=\"\"") << true;
        QTest::newRow("empty text, bare") << QByteArray("Add2Conference param5=") << true;
        QTest::newRow("null is not empty") << QByteArray("Add2Conference param6=\"\"") << false;
        QTest::newRow("one of two wrong") << QByteArray("Add2Conference param2=100 param3=7") << false;
        QTest::newRow("no JSON") << QByteArray("Add2Conference param4=fal,se") << false;
    }

    void expectationMatching()
    {
        QFETCH(QByteArray, expectation);
        QFETCH(bool, matches);
        const Scenario scenario = good("expect " + expectation);
        QCOMPARE(scenario.statements.size(), 1);
        QString reason;
        const std::optional<Command> command =
            parseCommand(R"({"messagetype":"Add2Conference","param1":["1","2"],"param2":"100","param3":"100",)"
                         R"("param4":false,"param5":"","param6":null})",
                         &reason);
        QVERIFY(command.has_value());
        QCOMPARE(scenario.statements.constFirst().matches(*command), matches);
    }

    void faultsNameFileAndLine_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("error");
        const auto row = [](const char *name, const char *text, const char *error) {
            QTest::newRow(name) << QByteArray(text) << QString::fromUtf8(error);
        };
        row("unknown statement", "send 18\n\nshout\n", "x.scn:3: unknown statement \"shout\"");
        row("quoted statement", "\"send\" 18\n", "x.scn:1: unknown statement \"send\"");
        row("nothing to send", "send\n", "x.scn:1: \"send\" needs more");
        row("too many words", "send 18 a b\n", "x.scn:1: \"send\" takes less");
        row("unknown code", "send 26\n",
            "x.scn:1: no notification has the code \"26\" (use \"raw\" for what no call process sends)");
        row("code no number", "send CallUser\n",
            "x.scn:1: no notification has the code \"CallUser\" (use \"raw\" for what no call process sends)");
        row("content no UTF-8", "send 0 \"\\xFF\"\n", "x.scn:1: the content is no UTF-8 (use \"raw\" for such bytes)");
        row("unknown command", "expect HangupCall\n", "x.scn:1: unknown command \"HangupCall\"");
        row("unknown parameter", "expect CallUser param3=1\n", "x.scn:1: CallUser has no parameter \"param3=1\"");
        row("no parameter", "expect CallUser 30010001\n", "x.scn:1: CallUser has no parameter \"30010001\"");
        row("parameter of quit", "expect quit param1=1\n", "x.scn:1: quit has no parameter \"param1=1\"");
        row("parameter without a name", "expect CallUser =1\n", "x.scn:1: CallUser has no parameter \"=1\"");
        row("unknown command ignored", "ignore UnReg HangupCall\n", "x.scn:1: unknown command \"HangupCall\"");
        row("quit ignored", "ignore quit\n", "x.scn:1: \"quit\" cannot be ignored");
        row("duration without a unit", "wait 5\n", "x.scn:1: bad duration \"5\": a number and ms or s");
        row("negative duration", "wait -5ms\n", "x.scn:1: bad duration \"-5ms\": a number and ms or s");
        row("duration without a number", "wait ms\n", "x.scn:1: bad duration \"ms\": a number and ms or s");
        row("duration beyond all timers", "wait 3000000s\n",
            "x.scn:1: bad duration \"3000000s\": a number and ms or s");
        row("endless duration", "wait infs\n", "x.scn:1: bad duration \"infs\": a number and ms or s");
        row("split behind the end", "split 40 1ms 18\n", "x.scn:1: the line has only 31 bytes");
        row("split at the end", "split 31 1ms 18\n", "x.scn:1: the line has only 31 bytes");
        row("split at 0", "split 0 1ms 18\n", "x.scn:1: \"0\" is no whole number above 0");
        row("repeat 0", "repeat 0 {\nsend 18\n}\n", "x.scn:1: \"0\" is no whole number above 0");
        row("repeat without a block", "repeat 2\n", "x.scn:1: \"repeat\" needs a block: \"{\" at the end of its line");
        row("block where none is", "wait 1s {\n", "x.scn:1: \"wait\" has no block");
        row("block not closed", "end\njoin {\nsend 18\n", "x.scn:2: the block of \"join\" is not closed");
        row("block empty", "end\nrepeat 2 {\n}\n", "x.scn:2: the block of \"repeat\" is empty");
        row("block not closed by a quoted brace", "repeat 2 {\nsend 18\n\"}\"\n", "x.scn:3: unknown statement \"}\"");
        row("block not opened by a quoted brace", "repeat 2 '{'\n",
            "x.scn:1: \"repeat\" needs a block: \"{\" at the end of its line");
        row("closed too often", "end\n}\n", "x.scn:2: unknown statement \"}\"");
        row("open quote", "raw \"abc\n", "x.scn:1: a quote is not closed");
        row("behind a quote", "raw \"abc\"d\n", "x.scn:1: text right behind a closing quote");
        row("unknown escape", "raw \"\\q\"\n", "x.scn:1: unknown escape in a quoted text");
        row("half an escape", "raw \"\\xF\"\n", "x.scn:1: \\x needs two hexadecimal digits");
        row("escape with a minus", "raw \"\\x-1\"\n", "x.scn:1: \\x needs two hexadecimal digits");
        row("escape with a plus", "raw \"\\x+1\"\n", "x.scn:1: \\x needs two hexadecimal digits");
        row("escape with a blank", "raw \"\\x 1\"\n", "x.scn:1: \\x needs two hexadecimal digits");
        row("escape at the end of the line", "raw \"\\x4\n", "x.scn:1: \\x needs two hexadecimal digits");
        row("backslash at the end of the line", "raw \"\\\n", "x.scn:1: unknown escape in a quoted text");
        QTest::newRow("too deep") << QByteArray("repeat 2 {\n").repeated(30)
                                  << QStringLiteral("x.scn:21: blocks are nested too deep");
    }

    void faultsNameFileAndLine()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, error);
        QString reason;
        QVERIFY(!Scenario::parse(QStringLiteral("x.scn"), text, &reason).has_value());
        QCOMPARE(reason, error);
    }

    void missingFileIsAFault()
    {
        QString error;
        QVERIFY(!Scenario::load(QStringLiteral("nowhere.scn"), &error).has_value());
        QVERIFY(error.startsWith(QStringLiteral("cannot read the scenario nowhere.scn: ")));
    }

    void readyScenariosAreGood_data()
    {
        QTest::addColumn<QString>("path");
        const QFileInfoList files = QDir(QStringLiteral(VOIPSDK_SCENARIOS)).entryInfoList({QStringLiteral("*.scn")});
        for (const QFileInfo &file : files) {
            QTest::newRow(qPrintable(file.baseName())) << file.filePath();
        }
    }

    void readyScenariosAreGood()
    {
        QFETCH(QString, path);
        QString error;
        const std::optional<Scenario> scenario = Scenario::load(path, &error);
        QVERIFY2(scenario.has_value(), qPrintable(error));
        QVERIFY(!scenario->statements.isEmpty());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_Scenario, Appless)
#include "tst_Scenario.moc"
