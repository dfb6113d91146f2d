#include "traffic/ShownText.h"
#include "traffic/WireWords.h"

#include "wire/Commands.h"
#include "wire/Notifications.h"

#include <QTest>

class tst_WireWords : public QObject
{
    Q_OBJECT

private slots:
    void everyCommandHasASentenceOfItsOwn()
    {
        QSet<QString> sentences;
        for (const Wire::CommandRow &row : Wire::cCommands) {
            const WireWords::Said said =
                say(WireLine::FromPlugin, QStringLiteral(R"({"messagetype":"%1"})").arg(row.name));
            QVERIFY2(!said.bad, row.name);
            QVERIFY2(said.sentence.text().startsWith(QLatin1String("the plug-in ")), row.name);
            sentences.insert(said.sentence.text());
        }
        QCOMPARE(sentences.size(), int(Wire::cCommands.size()));
        QVERIFY(say(WireLine::FromPlugin, R"({"messagetype":"SetSpeakerEnable"})").bad);
    }

    void everyNotificationHasASentence()
    {
        const QString document = QStringLiteral(R"({\"content\":{},\"result\":{}})");
        for (const Wire::NotificationRow &row : Wire::cNotifications) {
            const int code = int(row.code);
            const QString line = QStringLiteral(R"({"content":"%1","resultCode":%2})").arg(document).arg(code);
            const WireWords::Said said = say(WireLine::ToPlugin, line);
            QVERIFY2(!said.bad && said.sentence.text().startsWith(QLatin1String("call process")),
                     qPrintable(said.sentence.text()));
            QCOMPARE(said.sentence.text().contains(QLatin1String("leads to nothing")),
                     row.content == Wire::Content::Open);
            QVERIFY2(said.sentence.text().endsWith(QStringLiteral(" (%1)").arg(code)), qPrintable(line));
        }
        QVERIFY(say(WireLine::ToPlugin, R"({"content":"","resultCode":26})").bad);
    }

    void commandsAreSaid_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("words");
        QTest::newRow("register")
            << R"({"messagetype":"RegeditUser","param1":"30010000","param2":"Li","param3":"s","param4":false})"
            << "the plug-in registers 30010000 (Li) at the call process";
        QTest::newRow("unregister") << R"({"messagetype":"UnReg","param1":"30010000"})"
                                    << "the plug-in takes the registration of 30010000 back";
        QTest::newRow("voice") << R"({"messagetype":"CallUser","param1":"30010001","param2":false})"
                               << "the plug-in asks the call process to call 30010001 with sound only";
        QTest::newRow("video") << R"({"messagetype":"CallUser","param1":"30010001","param2":true})"
                               << "the plug-in asks the call process to call 30010001 with picture";
        QTest::newRow("conference")
            << R"({"messagetype":"RequestConference","param1":"30010000","param2":["30010001","30010002"],"param3":true,"param4":""})"
            << "the plug-in asks the call process for a conference of 30010000 with 30010001, 30010002";
        QTest::newRow("conference with nobody")
            << R"({"messagetype":"RequestConference","param1":"30010000","param2":null,"param3":true,"param4":""})"
            << "the plug-in asks the call process for a conference of 30010000 with nobody";
        QTest::newRow("add")
            << R"({"messagetype":"Add2Conference","param1":["3"],"param2":"1","param3":"1","param4":false,"param5":"","param6":["1","2"]})"
            << "the plug-in asks to add 3 to the conference of 1, 2";
        QTest::newRow("moderate") << R"({"messagetype":"ControlConf","param1":"mute","param2":"30010001"})"
                                  << "the plug-in moderates the conference: mute, 30010001";
        QTest::newRow("speaker") << R"({"messagetype":"SetSpeakerEnble","param1":false})"
                                 << "the plug-in turns the speaker off";
        QTest::newRow("camera") << R"({"messagetype":"SetCamreraEnable","param1":true})"
                                << "the plug-in turns the camera on";
        QTest::newRow("volume") << R"({"messagetype":"SetMicVolume","param1":55})"
                                << "the plug-in sets the microphone to volume 55";
        QTest::newRow("without its parameters") << R"({"messagetype":"CallUser"})"
                                                << "the plug-in asks the call process to call — —";
        QTest::newRow("quit") << "quit"
                              << "the plug-in tells the call process to quit";
    }

    void commandsAreSaid()
    {
        QFETCH(QString, line);
        const WireWords::Said said = say(WireLine::FromPlugin, line);
        QTEST(said.sentence.text(), "words");
        QVERIFY(!said.bad);
    }

    void notificationsAreSaid_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("words");
        QTest::newRow("answered") << R"({"content":"","resultCode":18})"
                                  << "call process: the far end has answered (18)";
        QTest::newRow("rings") << R"({"content":"30010007","resultCode":0})"
                               << "call process: 30010007 is calling (0)";
        QTest::newRow("without content") << R"({"resultCode":22})"
                                         << "call process: the far end is busy (22)";
        QTest::newRow("invitation")
            << "{\"content\":\"{\\\"content\\\":{\\\"from\\\":\\\"30010008\\\",\\\"conventioneer\\\":[\\\"1\\\","
               "\\\"2\\\"],\\\"confId\\\":\\\"c\\\"}}\",\"resultCode\":2}"
            << "call process: 30010008 invites to a conference, connected: 1, 2 (2)";
        QTest::newRow("left")
            << "{\"content\":\"{\\\"content\\\":{\\\"from\\\":\\\"3\\\",\\\"conventioneer\\\":[]}}\",\"resultCode\":13}"
            << "call process: 3 has left the conference, connected are nobody (13)";
        QTest::newRow("conference made")
            << "{\"content\":\"{\\\"result\\\":{\\\"confId\\\":\\\"c7\\\"}}\",\"resultCode\":20}"
            << "call process: the conference is made, its id is c7 (20)";
        QTest::newRow("no conference") << R"({"content":"","resultCode":20})"
                                       << "call process: the conference could not be made (20)";
        QTest::newRow("added")
            << "{\"content\":\"{\\\"status\\\":0,\\\"result\\\":{\\\"failedNums\\\":[\\\"5\\\"]}}\",\"resultCode\":21}"
            << "call process: people were added, not reached: 5 (21)";
        QTest::newRow("log") << R"({"content":"<b>line</b>","resultCode":999})"
                             << "call process logs: <b>line</b> (999)";
        QTest::newRow("without action") << R"({"content":"x","resultCode":14})"
                                        << "call process: a notification that leads to nothing, content x (14)";
    }

    void notificationsAreSaid()
    {
        QFETCH(QString, line);
        const WireWords::Said said = say(WireLine::ToPlugin, line);
        QTEST(said.sentence.text(), "words");
        QVERIFY(!said.bad);
    }

    void eventsAndComplaintsAreSaidAsTheyAre()
    {
        WireLine line;
        line.text = QStringLiteral("connected");
        QCOMPARE(WireWords::say(line, SecretMask()).sentence.text(), QStringLiteral("call process notes: connected"));
        QVERIFY(!WireWords::say(line, SecretMask()).bad);
        line.complaint = true;
        QCOMPARE(WireWords::say(line, SecretMask()).sentence.text(),
                 QStringLiteral("call process complains: connected"));
        QVERIFY(WireWords::say(line, SecretMask()).bad);
    }

    void linesThatBreakTheProtocolAreSaidToDoSo_data()
    {
        QTest::addColumn<bool>("fromPlugin");
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("words");
        const QString broken = QStringLiteral("no line of the protocol: ");
        QTest::newRow("broken command") << true << "{\"messagetype\":\"CallU" << broken + "{\"messagetype\":\"CallU";
        QTest::newRow("number for a command") << true << R"({"messagetype":7})" << broken + R"({"messagetype":7})";
        QTest::newRow("unknown command") << true << R"({"messagetype":"Dance"})"
                                         << "the plug-in sends an unknown command: Dance";
        QTest::newRow("markup") << true << "<h1>x</h1>" << broken + "<h1>x</h1>";
        QTest::newRow("nothing") << false << "" << broken + "—";
        QTest::newRow("binary") << false << R"(␀\xFF\xFE)" << broken + R"(␀\xFF\xFE)";
        QTest::newRow("piece of a line") << false << "{\"content\":\"…" << broken + "{\"content\":\"…";
        QTest::newRow("list") << false << "[18]" << broken + "[18]";
        QTest::newRow("text for a code") << false << R"({"resultCode":"18"})" << broken + R"({"resultCode":"18"})";
        QTest::newRow("half a code") << false << R"({"resultCode":8.5})" << broken + R"({"resultCode":8.5})";
        QTest::newRow("huge code") << false << R"({"resultCode":1e300})" << broken + R"({"resultCode":1e300})";
        QTest::newRow("object for a text")
            << false << R"({"content":{},"resultCode":18})" << broken + R"({"content":{},"resultCode":18})";
        QTest::newRow("unknown code") << false << R"({"content":"x","resultCode":77})"
                                      << "call process: an unknown notification, content x (77)";
        QTest::newRow("negative code") << false << R"({"content":"x","resultCode":-3})"
                                       << "call process: an unknown notification, content x (-3)";
        QTest::newRow("no document") << false << R"({"content":"x","resultCode":12})"
                                     << "call process: a document that cannot be read: x (12)";
        QTest::newRow("too deep") << false << QString(5000, QLatin1Char('['))
                                  << broken + QString(160, QLatin1Char('[')) + "… (5000 in all)";
    }

    void linesThatBreakTheProtocolAreSaidToDoSo()
    {
        QFETCH(bool, fromPlugin);
        QFETCH(QString, line);
        const WireWords::Said said = say(fromPlugin ? WireLine::FromPlugin : WireLine::ToPlugin, line);
        QTEST(said.sentence.text(), "words");
        QVERIFY(said.bad);
    }

    void lineThatWasCutIsNotDecoded()
    {
        WireLine line;
        line.direction = WireLine::ToPlugin;
        line.text = QString(65000, QLatin1Char('x'));
        line.isCut = true;
        line.length = 1048576;
        const WireWords::Said said = WireWords::say(line, SecretMask());
        QCOMPARE(said.sentence.text(), QStringLiteral("a line of 1048576 bytes, too long to be decoded: ") +
                                           QString(160, QLatin1Char('x')) + QStringLiteral("… (65000 in all)"));
        QVERIFY(said.bad);
    }

    void valuesTakeNoPlaceOfOthers()
    {
        QCOMPARE(
            say(WireLine::FromPlugin, R"({"messagetype":"ControlConf","param1":"%2%1","param2":"%9"})").sentence.text(),
            QStringLiteral("the plug-in moderates the conference: %2%1, %9"));
    }

    void longListsAreShortened()
    {
        QStringList ids;
        for (int i = 0; i < 25; ++i) {
            ids << QStringLiteral("\"%1\"").arg(i);
        }
        const QString words = say(WireLine::FromPlugin,
                                  QStringLiteral(R"({"messagetype":"RequestConference","param1":"a","param2":[%1]})")
                                      .arg(ids.join(QLatin1Char(','))))
                                  .sentence.text();
        QVERIFY2(words.endsWith(QStringLiteral(" 18, 19, … +5")), qPrintable(words));
    }

    void secretsInValuesAreMasked()
    {
        SecretMask mask;
        mask.learn(QStringLiteral("s3cr3t"));
        WireLine line;
        line.direction = WireLine::ToPlugin;
        line.text = QStringLiteral(R"({"content":"registered with s3cr3t; cookie=abc","resultCode":999})");
        QCOMPARE(WireWords::say(line, mask).sentence.text(),
                 QStringLiteral("call process logs: registered with ••••••; cookie=•••••• (999)"));
    }

    void secretIsMaskedBeforeTheTextIsShortened()
    {
        SecretMask mask;
        mask.learn(QStringLiteral("s3cr3t"));
        WireLine line;
        line.direction = WireLine::ToPlugin;
        line.text = QString(157, QLatin1Char('x')) + QStringLiteral("s3cr3t");
        const QString words = WireWords::say(line, mask).sentence.text();
        QVERIFY2(!words.contains(QStringLiteral("s3c")), qPrintable(words));
    }

    void severalLinesInOneWriteAreCut()
    {
        const QString one = QStringLiteral(R"({"resultCode":18})");
        QCOMPARE(WireWords::split(one), QStringList{one});
        QCOMPARE(WireWords::split(one + QStringLiteral("␊") + one + QStringLiteral("␊{\"re…")),
                 (QStringList{one, one, QStringLiteral("{\"re…")}));
    }

    void lineFeedWithinALineCutsNothing()
    {
        const QString line = QStringLiteral(R"({"content":"a␊b","resultCode":999})");
        QCOMPARE(WireWords::split(line), QStringList{line});
    }

    void registrationValueIsTold()
    {
        QCOMPARE(WireWords::secretOf(R"({"messagetype":"RegeditUser","param3":"s3cr3t"})"), QStringLiteral("s3cr3t"));
        QCOMPARE(WireWords::secretOf(R"({"messagetype":"Add2Conference","param3":"30010000"})"), QString());
        QCOMPARE(WireWords::secretOf("RegeditUser"), QString());
    }

private:
    static WireWords::Said say(WireLine::Direction direction, const QString &strText)
    {
        WireLine line;
        line.direction = direction;
        line.text = strText;
        return WireWords::say(line, SecretMask());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_WireWords, Guiless)
#include "tst_WireWords.moc"
