// The lines that go to the call process: names, parameters, framing.

#include "engine/JsonText.h"
#include "engine/SdkCommand.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

class tst_SdkCommand : public QObject
{
    Q_OBJECT

private slots:
    void thereAreSeventeenCommandsWithTheseNames();
    void lineIsCompactSortedAndEndsInALineFeed_data();
    void lineIsCompactSortedAndEndsInALineFeed();
    void textOutsideAsciiComesBackAsItWas_data();
    void textOutsideAsciiComesBackAsItWas();
    void emptyListIsNullAndAFilledOneAnArray();
};

void tst_SdkCommand::thereAreSeventeenCommandsWithTheseNames()
{
    const QStringList names{"RegeditUser",  "UnReg",           "CallUser",     "RequestConference", "Add2Conference",
                            "AcceptCall",   "AcceptConf",      "RejectCall",   "RejectConf",        "HangUpCall",
                            "HangupConf",   "ControlConf",     "SetMicEnable", "SetSpeakerEnble",   "SetCamreraEnable",
                            "SetMicVolume", "SetSpeakerVolume"};
    QCOMPARE(static_cast<int>(SdkCommand::CommandCount), 17);
    QStringList written;
    for (int name = 0; name < SdkCommand::CommandCount; ++name)
        written.append(SdkCommand::wireName(static_cast<SdkCommand::Name>(name)));
    QCOMPARE(written, names);
}

void tst_SdkCommand::lineIsCompactSortedAndEndsInALineFeed_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("expected");

    using SdkCommand::json;
    QTest::newRow("no parameter") << SdkCommand::line(SdkCommand::AcceptCall) << "{\"messagetype\":\"AcceptCall\"}\n";
    QTest::newRow("text and bool") << SdkCommand::line(SdkCommand::CallUser, json("anna"), true)
                                   << "{\"messagetype\":\"CallUser\",\"param1\":\"anna\",\"param2\":true}\n";
    QTest::newRow("number") << SdkCommand::line(SdkCommand::SetMicVolume, Json::Int64(-3))
                            << "{\"messagetype\":\"SetMicVolume\",\"param1\":-3}\n";
    QTest::newRow("six parameters")
        << SdkCommand::line(SdkCommand::Add2Conference, JsonText::arrayOrNull({"b", "a"}), json("me"), json("me"),
                            false, "", JsonText::arrayOrNull({}))
        << "{\"messagetype\":\"Add2Conference\",\"param1\":[\"b\",\"a\"],\"param2\":\"me\",\"param3\":\"me\","
           "\"param4\":false,\"param5\":\"\",\"param6\":null}\n";
    QTest::newRow("line feed inside a text is escaped")
        << SdkCommand::line(SdkCommand::UnReg, json("a\nb")) << "{\"messagetype\":\"UnReg\",\"param1\":\"a\\nb\"}\n";
}

void tst_SdkCommand::lineIsCompactSortedAndEndsInALineFeed()
{
    QFETCH(QString, line);
    QFETCH(QString, expected);
    QCOMPARE(line, expected);
}

void tst_SdkCommand::textOutsideAsciiComesBackAsItWas_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("Chinese") << QStringLiteral("呼叫中");
    QTest::newRow("beyond the basic plane") << QString::fromUtf8("\xF0\x9F\x93\x9E!");
    QTest::newRow("quotes and backslash") << "say \"a\\b\"";
    QTest::newRow("empty") << "";
}

void tst_SdkCommand::textOutsideAsciiComesBackAsItWas()
{
    QFETCH(QString, text);
    const QString line = SdkCommand::line(SdkCommand::UnReg, SdkCommand::json(text));
    const QJsonObject object = QJsonDocument::fromJson(line.toUtf8()).object();
    QCOMPARE(object.value("param1").toString(), text);
}

void tst_SdkCommand::emptyListIsNullAndAFilledOneAnArray()
{
    QVERIFY(JsonText::arrayOrNull({}).isNull());
    const Json::Value one = JsonText::arrayOrNull({"anna"});
    QVERIFY(one.isArray());
    QCOMPARE(one.size(), 1U);
    QCOMPARE(QString::fromStdString(one[0].asString()), QString("anna"));
}

#include "support/TestProgram.h"
VOIP_TEST(tst_SdkCommand, Guiless)
#include "tst_SdkCommand.moc"
