// Documents of a conference as no call process should write them: the engine takes what can be read, holds no more than
// the document held, and goes on.

#include "engine/RecordedEngine.h"
#include "store/DBConfInfo.h"

#include <QTest>

class tst_ConferenceInput : public QObject
{
    Q_OBJECT

private slots:
    void updateTakesWhatCanBeRead_data()
    {
        QTest::addColumn<QString>("content");
        QTest::addColumn<QStringList>("added");
        QTest::addColumn<QStringList>("connected");

        const auto add = [](const char *name, const QString &body, const QStringList &added,
                            const QStringList &connected) {
            QTest::newRow(name) << R"({"content":{"confId":"c1",)" + body + "}}" << added << connected;
        };
        add("no members", R"("from":"x")", {}, {});
        add("empty list", R"("conventioneer":[])", {}, {});
        add("null", R"("conventioneer":null)", {}, {});
        add("a number", R"("conventioneer":7)", {}, {});
        add("a text", R"("conventioneer":"x")", {}, {});
        add("an object", R"("conventioneer":{"0":"x"})", {}, {});
        add("entries of all types", R"("conventioneer":["x",1,null,true,["y"],{"z":1},"w"])", {"x", "w"}, {"x", "w"});
        add("repeated", R"("conventioneer":["x","y","x","anna","x"])", {"x", "y"}, {"x", "y", "x", "anna", "x"});
        add("an empty id", R"("conventioneer":["","x"])", {"", "x"}, {"", "x"});
        add("a comma", R"("conventioneer":["x,y"])", {"x,y"}, {"x,y"});
        add("quotes", "\"conventioneer\":[\"\\\"x\\\"\",\"y'z\"]", {"\"x\"", "y'z"}, {"\"x\"", "y'z"});
        add("a line feed", "\"conventioneer\":[\"x\\ny\\r\"]", {"x\ny\r"}, {"x\ny\r"});
        const QString withNul = QString("x") + QChar(0) + "y";
        add("NUL", "\"conventioneer\":[\"x\\u0000y\"]", {withNul}, {withNul});
        add("beyond the first plane", "\"conventioneer\":[\"\\ud83d\\ude00\"]", {QString::fromUtf8("\xF0\x9F\x98\x80")},
            {QString::fromUtf8("\xF0\x9F\x98\x80")});
        add("a jid", R"("conventioneer":["x@kelvar.im"])", {"x@kelvar.im"}, {"x@kelvar.im"});
        add("the member twice, the last one counts", R"("conventioneer":["x"],"conventioneer":["y"])", {"y"}, {"y"});
        add("the time is a text", R"("createTime":"soon","conventioneer":["x"])", {"x"}, {"x"});
        add("the time is beyond all bounds", R"("createTime":1e300,"conventioneer":["x"])", {"x"}, {"x"});
        add("the sender is a list", R"("from":["x"],"conventioneer":["x"])", {"x"}, {"x"});
    }

    void updateTakesWhatCanBeRead()
    {
        QFETCH(QString, content);
        QFETCH(QStringList, added);
        RecordedEngine f;
        f.createConference();
        for (const Code code : {Code::ConfUpdate, Code::ConfMemberLeft, Code::ConfUpdate}) {
            line(f, code, content);
            QCOMPARE(f.manager->m_callData.memberList, QStringList({"anna", "bert", "me"}) + added);
            QTEST(f.manager->m_callData.connectedList, "connected");
        }
        line(f, Code::CallEnded, QString());
        QCOMPARE(f.count(), 1);
        QCOMPARE(f.state(), QString("idle"));
    }

    void noDocumentEndsOrBreaksAConference_data()
    {
        QTest::addColumn<QString>("content");

        QTest::newRow("nothing") << "";
        QTest::newRow("a blank") << " ";
        QTest::newRow("no JSON") << "hello";
        QTest::newRow("cut off") << R"({"content":{"confId":"c1","conventioneer":["x")";
        QTest::newRow("a list") << "[1,2]";
        QTest::newRow("a number") << "1";
        QTest::newRow("empty object") << "{}";
        QTest::newRow("body missing") << R"({"confId":"c1","conventioneer":["x"]})";
        QTest::newRow("body null") << R"({"content":null})";
        QTest::newRow("body a text") << "{\"content\":\"{\\\"confId\\\":\\\"c1\\\"}\"}";
        QTest::newRow("body a list") << R"({"content":[{"confId":"c1"}]})";
        QTest::newRow("id missing") << R"({"content":{"conventioneer":["x"],"from":"x"}})";
        QTest::newRow("id empty") << R"({"content":{"confId":"","conventioneer":["x"],"from":"x"}})";
        QTest::newRow("id null") << R"({"content":{"confId":null,"conventioneer":["x"],"from":"x"}})";
        QTest::newRow("id a number") << R"({"content":{"confId":1,"conventioneer":["x"],"from":"x"}})";
        QTest::newRow("id a list") << R"({"content":{"confId":["c1"],"conventioneer":["x"],"from":"x"}})";
        QTest::newRow("another id") << R"({"content":{"confId":"c2","conventioneer":["x"],"from":"x"}})";
        QTest::newRow("id with a blank") << R"({"content":{"confId":"c1 ","conventioneer":["x"],"from":"x"}})";
        QTest::newRow("very deep") << R"({"content":{"confId":"c1","conventioneer":)" + QString(20000, '[');
        QTest::newRow("NUL") << QString("{") + QChar(0) + "}";
    }

    void noDocumentEndsOrBreaksAConference()
    {
        QFETCH(QString, content);
        EngineFixture f;
        f.createConference();
        f.notify(Code::CallConnected);
        const QString before = f.callText();
        const QStringList members = f.members();
        for (const Code code : {Code::ConfUpdate, Code::ConfMemberLeft, Code::ConfAddResult}) {
            line(f, code, content);
            QCOMPARE(f.callText(), before);
            QCOMPARE(f.members(), members);
        }
        // An invitation has its first step: this side counts as the creator no more.
        line(f, Code::IncomingConf, content);
        QCOMPARE(f.callText(), QString(before).replace("1|0|1|1|", "1|0|0|1|"));
        QCOMPARE(f.members(), members);
        QCOMPARE(f.takeJournal(), QStringList());
    }

    void addResultTakesWhatCanBeRead_data()
    {
        QTest::addColumn<QString>("content");
        QTest::addColumn<QStringList>("members");

        const QStringList none{"anna 0", "bert 0"};
        QTest::newRow("null") << R"({"result":{"failedNums":null}})" << none;
        QTest::newRow("a text") << R"({"result":{"failedNums":"anna"}})" << none;
        QTest::newRow("an object") << R"({"result":{"failedNums":{"anna":1}}})" << none;
        QTest::newRow("result a list") << R"({"result":["anna"]})" << none;
        QTest::newRow("status a text") << R"({"status":"no","result":{"failedNums":["anna"]}})"
                                       << QStringList{"anna 2", "bert 0"};
        QTest::newRow("entries of all types")
            << R"({"result":{"failedNums":[1,null,["anna"],"bert","bert","",{"x":1}]}})"
            << QStringList{"anna 0", "bert 2"};
    }

    void addResultTakesWhatCanBeRead()
    {
        QFETCH(QString, content);
        EngineFixture f;
        f.createConference();
        line(f, Code::ConfAddResult, content);
        QTEST(f.members(), "members");
    }

    void invitationTakesWhatCanBeRead_data()
    {
        QTest::addColumn<QString>("fields");
        QTest::addColumn<QString>("record");

        QTest::newRow("no sender") << R"("confId":"c1")"
                                   << "";
        QTest::newRow("sender a number") << R"("confId":"c1","from":5)"
                                         << "";
        QTest::newRow("sender with odd characters") << "\"confId\":\"c1\",\"from\":\"a,'\\\"\\nb\""
                                                    << "'c1' 'a,''\"\nb' '' '0' '' 0";
        QTest::newRow("time negative") << R"("confId":"c1","from":"a","createTime":-1)"
                                       << "'c1' 'a' '' '0' '' 0";
        QTest::newRow("time zero") << R"("confId":"c1","from":"a","createTime":0)"
                                   << "'c1' 'a' '' '0' '' 0";
        QTest::newRow("time a list") << R"("confId":"c1","from":"a","createTime":[1])"
                                     << "'c1' 'a' '' '0' '' 0";
    }

    void invitationTakesWhatCanBeRead()
    {
        QFETCH(QString, fields);
        QFETCH(QString, record);
        RecordedEngine f;
        line(f, Code::IncomingConf, R"({"content":{)" + fields + "}}");
        f.manager->responseVoipRequest(false);
        // Without a sender there is nobody and nothing that could end.
        QCOMPARE(f.records(), record.isEmpty() ? QStringList() : QStringList{record});
    }

    void tenThousandMembers()
    {
        QStringList ids;
        for (int i = 0; i < 10000; ++i) {
            ids << "m" + QString::number(i);
        }
        const QString content = "{\"content\":{\"confId\":\"c1\",\"conventioneer\":[\"" + ids.join(R"(",")") + "\"]}}";
        RecordedEngine f;
        f.createConference();
        line(f, Code::ConfUpdate, content);
        line(f, Code::ConfUpdate, content);
        line(f, Code::ConfMemberLeft, content);
        const QStringList all = QStringList{"anna", "bert", "me"} + ids;
        QCOMPARE(f.manager->m_callData.memberList, all);
        QCOMPARE(f.manager->m_callData.connectedList, ids);
        QCOMPARE(f.members().size(), 10002);
        f.manager->addConferenceMember(ids);
        QCOMPARE(f.manager->m_callData.memberList, all);
        line(f, Code::CallEnded, QString());
        QCOMPARE(DBConfInfo::getAllConfInfo().constFirst().m_listMember, all);
        QCOMPARE(f.members(), QStringList());
    }

private:
    /// One line of the wire.
    static void line(EngineFixture &f, Code code, const QString &content)
    {
        f.manager->recevieVoipMessage(QString::fromUtf8(FakeCallProcess::line(code, content)));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ConferenceInput, Widgets)
#include "tst_ConferenceInput.moc"
