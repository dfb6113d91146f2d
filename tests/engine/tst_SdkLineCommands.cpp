// The lines that go to the call process: names, parameters, framing.

#include "engine/JsonText.h"
#include "engine/SdkLine.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

class tst_SdkLineCommands : public QObject
{
    Q_OBJECT

private slots:
    void lineIsCompactSortedAndEndsInALineFeed_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("expected");

        using Wire::Command;
        QTest::newRow("no parameter") << SdkLine::of<Command::AcceptCall>() << "{\"messagetype\":\"AcceptCall\"}\n";
        QTest::newRow("text and bool") << SdkLine::of<Command::CallUser>(QString("anna"), true)
                                       << "{\"messagetype\":\"CallUser\",\"param1\":\"anna\",\"param2\":true}\n";
        QTest::newRow("number") << SdkLine::of<Command::SetMicVolume>(-3LL)
                                << "{\"messagetype\":\"SetMicVolume\",\"param1\":-3}\n";
        QTest::newRow("six parameters")
            << SdkLine::of<Command::Add2Conference>(QStringList{"b", "a"}, QString("me"), QString("me"), false,
                                                    QString(), QStringList())
            << "{\"messagetype\":\"Add2Conference\",\"param1\":[\"b\",\"a\"],\"param2\":\"me\",\"param3\":\"me\","
               "\"param4\":false,\"param5\":\"\",\"param6\":null}\n";
        QTest::newRow("line feed inside a text is escaped")
            << SdkLine::of<Command::UnReg>(QString("a\nb")) << "{\"messagetype\":\"UnReg\",\"param1\":\"a\\nb\"}\n";
    }

    void lineIsCompactSortedAndEndsInALineFeed()
    {
        QFETCH(QString, line);
        QFETCH(QString, expected);
        QCOMPARE(line, expected);
    }

    void textOutsideAsciiComesBackAsItWas_data()
    {
        QTest::addColumn<QString>("text");

        QTest::newRow("Chinese") << QStringLiteral("呼叫中");
        QTest::newRow("beyond the basic plane") << QString::fromUtf8("\xF0\x9F\x93\x9E!");
        QTest::newRow("quotes and backslash") << "say \"a\\b\"";
        QTest::newRow("empty") << "";
    }

    void textOutsideAsciiComesBackAsItWas()
    {
        QFETCH(QString, text);
        const QString line = SdkLine::of<Wire::Command::UnReg>(text);
        const QJsonObject object = QJsonDocument::fromJson(line.toUtf8()).object();
        QCOMPARE(object.value("param1").toString(), text);
    }

    void emptyListIsNullAndAFilledOneAnArray()
    {
        QVERIFY(JsonText::arrayOrNull({}).isNull());
        const Json::Value one = JsonText::arrayOrNull({"anna"});
        QVERIFY(one.isArray());
        QCOMPARE(one.size(), 1U);
        QCOMPARE(QString::fromStdString(one[0].asString()), QString("anna"));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_SdkLineCommands, Guiless)
#include "tst_SdkLineCommands.moc"
