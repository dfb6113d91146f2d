#include "conference/Talk.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

using Talk::Road;
using Talk::Word;

namespace {

QStringList fieldsOf(const Talk::WordRow &row)
{
    return QString::fromLatin1(row.fields).split(' ');
}

Talk::Message filled(Word word)
{
    Talk::Message message;
    message.saying = word;
    message.id = QStringLiteral("7-a");
    message.creator = QStringLiteral("anna");
    message.createTime = 1700000000000;
    message.members = QStringList{"anna", "bert", "李雷"};
    message.connected = QStringList{"anna"};
    message.muted = QStringList{"bert"};
    message.flag = true;
    message.text = QStringLiteral("a \"title\"\r\n\u007f\u00e9中\U0001F600");
    message.users = QStringList{"carl"};
    message.user = QStringLiteral("non_moderator");
    message.joined = QStringList{"anna"};
    message.left = QStringList{"dora"};
    message.busy = QStringList{"emil"};
    message.refused = QStringList{"fred"};
    message.failed = QStringList{"gerd", "hans"};
    message.word = QStringLiteral("kick");
    message.why = QStringLiteral("for this reason");
    return message;
}

QByteArray jsonOf(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

QJsonObject objectOf(Word word)
{
    return QJsonDocument::fromJson(Talk::written(filled(word))).object();
}

void eachWordIsARow()
{
    QTest::addColumn<int>("number");
    for (const Talk::WordRow &row : Talk::cWords) {
        QTest::newRow(row.name) << static_cast<int>(row.word);
    }
}

} // namespace

class tst_Talk : public QObject
{
    Q_OBJECT

private slots:
    void thereAreElevenWordsOfSeventeenFields()
    {
        QCOMPARE(Talk::cWords.size(), 11U);
        QCOMPARE(Talk::cFields.size(), 17U);
        QSet<QString> used;
        QSet<QPair<QString, int>> names;
        for (const Talk::WordRow &row : Talk::cWords) {
            const QStringList fields = fieldsOf(row);
            used += QSet<QString>(fields.begin(), fields.end());
            names.insert({QString::fromLatin1(row.name), static_cast<int>(row.road)});
        }
        QCOMPARE(names.size(), 11);
        QSet<QString> known;
        for (const Talk::FieldRow &row : Talk::cFields) {
            known.insert(QString::fromLatin1(row.name));
        }
        QCOMPARE(used, known);
    }

    void upAndDownAreSaidByWhoIsThere()
    {
        for (const Talk::WordRow &row : Talk::cWords) {
            const bool down = row.road == Road::InviteDown || row.road == Road::InfoDown;
            QCOMPARE(row.who == Talk::Who::Mixer, down);
        }
    }

    void whatIsWrittenIsRead_data() { eachWordIsARow(); }

    void whatIsWrittenIsRead()
    {
        QFETCH(const int, number);
        const Talk::WordRow &row = Talk::rowOf(static_cast<Word>(number));
        const QByteArray line = Talk::written(filled(row.word));
        const Talk::Heard heard = Talk::read(line, row.road);
        QVERIFY2(heard.message, qPrintable(heard.remark));
        QCOMPARE(heard.remark, QString());
        QCOMPARE(heard.message->saying, row.word);
        QCOMPARE(Talk::written(*heard.message), line);
        QStringList keys = fieldsOf(row) + QStringList("say");
        keys.sort();
        QCOMPARE(QJsonDocument::fromJson(line).object().keys(), keys);
    }

    void fieldsKeepTheirValues()
    {
        const Talk::Heard created = Talk::read(Talk::written(filled(Word::Create)), Road::InviteUp);
        QVERIFY(created.message);
        QCOMPARE(created.message->id, QStringLiteral("7-a"));
        QCOMPARE(created.message->members, (QStringList{"anna", "bert", "李雷"}));
        QCOMPARE(created.message->flag, true);
        QCOMPARE(created.message->text, QStringLiteral("a \"title\"\r\n\u007f\u00e9中\U0001F600"));
        const Talk::Heard members = Talk::read(Talk::written(filled(Word::Members)), Road::InfoDown);
        QVERIFY(members.message);
        QCOMPARE(members.message->createTime, Q_INT64_C(1700000000000));
        QCOMPARE(members.message->left, QStringList("dora"));
        // What the word has no field for.
        QCOMPARE(members.message->text, QString());
    }

    void aWordIsOneLineOfAscii_data() { eachWordIsARow(); }

    void aWordIsOneLineOfAscii()
    {
        QFETCH(const int, number);
        const QByteArray line = Talk::written(filled(static_cast<Word>(number)));
        QVERIFY(!line.isEmpty());
        QVERIFY(std::all_of(line.begin(), line.end(), [](char c) { return c >= 0x20 && c < 0x7f; }));
    }

    void aWordCountsOnItsOwnRoadAlone_data() { eachWordIsARow(); }

    void aWordCountsOnItsOwnRoadAlone()
    {
        QFETCH(const int, number);
        const Talk::WordRow &row = Talk::rowOf(static_cast<Word>(number));
        for (const Road road : {Road::InviteUp, Road::InviteDown, Road::InfoUp, Road::InfoDown}) {
            const Talk::Heard heard = Talk::read(Talk::written(filled(row.word)), road);
            QCOMPARE(heard.message.has_value(), road == row.road);
            QCOMPARE(heard.remark.isEmpty(), road == row.road);
        }
    }

    void aFieldThatLacksMakesItNoWord_data() { eachWordIsARow(); }

    void aFieldThatLacksMakesItNoWord()
    {
        QFETCH(const int, number);
        const Talk::WordRow &row = Talk::rowOf(static_cast<Word>(number));
        for (const QString &field : fieldsOf(row)) {
            QJsonObject object = objectOf(row.word);
            object.remove(field);
            const Talk::Heard heard = Talk::read(jsonOf(object), row.road);
            QVERIFY2(!heard.message, qPrintable(field));
            QCOMPARE(heard.remark, QStringLiteral("%1 without a proper %2").arg(row.name, field));
        }
    }

    void valuesThatCannotBe_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QJsonValue>("value");
        const auto row = [](const char *name, const char *field, const QJsonValue &value) {
            QTest::newRow(name) << QString::fromLatin1(field) << value;
        };
        row("no id", "id", "");
        row("an id of other letters", "id", "a@b");
        row("an id of foreign letters", "id", "中");
        row("a long id", "id", QString(65, QLatin1Char('a')));
        row("a number as id", "id", 7);
        row("nobody as creator", "creator", "");
        row("a creator with control characters", "creator", "a\nb");
        row("a text as time", "createTime", "1");
        row("a time before", "createTime", -1);
        row("a time between", "createTime", 0.5);
        row("a time beyond", "createTime", 1e300);
        row("a text as members", "members", "anna");
        row("numbers as members", "members", QJsonArray{1, 2});
        row("nobody among the members", "members", QJsonArray{"anna", ""});
        row("an object as members", "members", QJsonObject());
        QStringList many;
        for (int i = 0; i <= Talk::cMostUsers; ++i) {
            many << QString::number(i);
        }
        row("too many members", "members", QJsonArray::fromStringList(many));
        row("null as members", "connected", QJsonValue());
    }

    void valuesThatCannotBe()
    {
        QFETCH(const QString, field);
        QFETCH(const QJsonValue, value);
        QJsonObject object = objectOf(Word::Resume);
        QVERIFY(Talk::read(jsonOf(object), Road::InviteUp).message);
        object.insert(field, value);
        const Talk::Heard heard = Talk::read(jsonOf(object), Road::InviteUp);
        QVERIFY(!heard.message);
        QCOMPARE(heard.remark, "resume without a proper " + field);
    }

    void textsAndFlagsAreWhatTheyAre()
    {
        QJsonObject object = objectOf(Word::Create);
        object.insert("flag", "true");
        QVERIFY(!Talk::read(jsonOf(object), Road::InviteUp).message);
        object.insert("flag", false);
        QVERIFY(Talk::read(jsonOf(object), Road::InviteUp).message);
        object.insert("text", QString(Talk::cLongestText + 1, QLatin1Char('x')));
        QVERIFY(!Talk::read(jsonOf(object), Road::InviteUp).message);
        object.insert("text", 5);
        QVERIFY(!Talk::read(jsonOf(object), Road::InviteUp).message);
    }

    void aLongTextIsWrittenUpToTheLimit()
    {
        Talk::Message message = filled(Word::Create);
        message.text = QString(2 * Talk::cLongestText, QLatin1Char('x'));
        const Talk::Heard heard = Talk::read(Talk::written(message), Road::InviteUp);
        QVERIFY(heard.message);
        QCOMPARE(heard.message->text, QString(Talk::cLongestText, QLatin1Char('x')));
    }

    void whoStandsTwiceCountsOnce()
    {
        Talk::Message message = filled(Word::Add);
        message.users = QStringList{"anna", "bert", "anna"};
        const Talk::Heard heard = Talk::read(Talk::written(message), Road::InfoUp);
        QVERIFY(heard.message);
        QCOMPARE(heard.message->users, (QStringList{"anna", "bert"}));
    }

    void fieldsOfOthersArePassedOver()
    {
        QJsonObject object = objectOf(Word::Kick);
        object.insert("colour", "red");
        const Talk::Heard heard = Talk::read(jsonOf(object), Road::InfoUp);
        QVERIFY(heard.message);
        QCOMPARE(heard.message->user, QStringLiteral("non_moderator"));
        QCOMPARE(heard.remark, QStringLiteral("kick has no \"colour\""));
    }

    void whatIsNoWord_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("remark");
        const auto row = [](const char *name, const QByteArray &bytes, const char *remark) {
            QTest::newRow(name) << bytes << QString::fromLatin1(remark);
        };
        row("nothing", "", "no JSON object, at byte 0");
        row("text", "hello", "no JSON object, at byte 1");
        row("array", "[]", "no JSON object, at byte 0");
        const char *unplain = "more than lists in an object, or a key twice";
        row("list twice", "{\"say\":\"add\",\"users\":[\"a\"],\"users\" \t\r\n:[\"b\"]}", unplain);
        row("list behind many blanks",
            "{\"say\":\"add\",\"users\":[\"a\"],\"users\"" + QByteArray(1000, ' ') + ":[\"b\"]}", unplain);
        row("key by numbers", "{\"say\":\"add\",\"users\":[\"a\"],\"\\u0075sers\":[\"b\"]}", unplain);
        row("list in a list", "{\"say\":\"add\",\"users\":[[\"a\"]]}", unplain);
        row("string without an end", "{\"say\":\"add\",\"users", "no JSON object, at byte 20");
        row("string that ends in an escape", "{\"say\":\"add\\", "no JSON object, at byte 12");
        row("empty object", "{}", "no word here: that name");
        row("another word", R"({"say":"dance"})", "no word here: \"dance\"");
        row("a word of control characters", R"({"say":"a\nb"})", "no word here: that name");
        row("a long word", "{\"say\":\"" + QByteArray(50000, 'x') + "\"}",
            "no word here: \"xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx\"");
        row("a quoted word", "{\"say\":\"\\\"a\\\"\"}", "no word here: \"'a'\"");
        row("a number", R"({"say":5})", "no word here: that name");
        row("too long", QByteArray(60001, ' '), "60001 bytes are too many");
    }

    void whatIsNoWord()
    {
        QFETCH(const QByteArray, bytes);
        QFETCH(const QString, remark);
        const Talk::Heard heard = Talk::read(bytes, Road::InfoUp);
        QVERIFY(!heard.message);
        QCOMPARE(heard.remark, remark);
    }

    void anyDepthIsNoWord()
    {
        QVERIFY(!Talk::read(QByteArray(60000, '['), Road::InfoUp).message);
        QVERIFY(!Talk::read("{\"say\":\"add\",\"users\":" + QByteArray(30000, '[') + QByteArray(29000, ']') + "}",
                            Road::InfoUp)
                     .message);
    }

    void aHeaderIsShorterThanABody()
    {
        const QByteArray create = Talk::written(filled(Word::Create));
        const QByteArray blanks(Talk::cLongestHeader - create.size(), ' ');
        QVERIFY(Talk::read(create + blanks, Road::InviteUp).message);
        QVERIFY(!Talk::read(create + blanks + ' ', Road::InviteUp).message);
        const QByteArray add = Talk::written(filled(Word::Add));
        QVERIFY(Talk::read(add + blanks + blanks, Road::InfoUp).message);
    }

    void whatIsTooLongIsNotWritten()
    {
        Talk::Message message = filled(Word::Create);
        for (int i = 0; i < Talk::cMostUsers; ++i) {
            message.members << QString(100, QLatin1Char('x')) + QString::number(i);
        }
        QCOMPARE(Talk::written(message), QByteArray());
        message.saying = Word::Add;
        message.users = message.members.mid(message.members.size() - Talk::cMostUsers);
        QVERIFY(Talk::written(message).size() > Talk::cLongestHeader);
        message.users << "one more";
        QCOMPARE(Talk::written(message), QByteArray());
    }

    void howItStandsIsShortenedFromThoseWhoAreAway_data()
    {
        QTest::addColumn<int>("length");
        QTest::addColumn<int>("belong");
        QTest::addColumn<int>("connected");
        QTest::addColumn<int>("muted");
        // The creator, 100 who are in it, and 400 who are not, the last 100 of them muted.
        QTest::newRow("all fit") << 80 << 500 << 99 << 100;
        QTest::newRow("without who is away") << 128 << 200 << 99 << 100;
        QTest::newRow("without who is away and muted") << 220 << 100 << 99 << 0;
        QTest::newRow("the first half") << 560 << 50 << 50 << 0;
    }

    void howItStandsIsShortenedFromThoseWhoAreAway()
    {
        QFETCH(const int, length);
        QFETCH(const int, belong);
        QFETCH(const int, connected);
        QFETCH(const int, muted);
        Talk::Message message;
        message.saying = Word::Members;
        for (int i = 0; i < Talk::cMostUsers; ++i) {
            message.members << QString::number(i).rightJustified(length - 3, '0');
        }
        message.creator = message.members.first();
        message.connected = message.members.mid(1, 99);
        message.muted = message.members.mid(400);
        const Talk::Message shorter = Talk::shortened(message);
        QVERIFY(!Talk::written(shorter).isEmpty());
        QCOMPARE(shorter.members.size(), belong);
        QCOMPARE(shorter.members.first(), message.creator);
        QCOMPARE(shorter.connected, QStringList(message.connected.mid(0, connected)));
        QCOMPARE(shorter.muted.size(), muted);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_Talk, Appless)
#include "tst_Talk.moc"
