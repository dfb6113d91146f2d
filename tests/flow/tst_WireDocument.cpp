// docs/wire-protocol.md beside what the plug-in says and understands: every command and every notification has an
// example, each command's is what the plug-in writes, and each notification's has its effect in the engine.

#include "callcheck/PluginCommand.h"
#include "callprocess/RobotTable.h"
#include "endpoint/Wire.h"
#include "engine/SdkLine.h"
#include "fakes/EngineFixture.h"
#include "fakes/QtMessages.h"

#include <QFile>
#include <QJsonArray>
#include <QRegularExpression>
#include <QTest>

#include <json/reader.h>

#include <algorithm>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

namespace {

QString document()
{
    QFile file(QStringLiteral(VOIP_DOCUMENT));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The example lines that begin so.
QStringList examples(const QString &strBegin)
{
    return document().split('\n').filter(QRegularExpression('^' + QRegularExpression::escape(strBegin)));
}

Json::Value parsed(const QString &strLine)
{
    Json::Value root;
    Json::CharReaderBuilder builder;
    const std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
    const std::string text = strLine.toStdString();
    std::string errors;
    return reader->parse(text.data(), text.data() + text.size(), &root, &errors) ? root : Json::Value();
}

/// What the plug-in writes for a command with these parameters.
QString written(Wire::Command name, const Json::Value &example)
{
    std::vector<Json::Value> p;
    for (int number = 1; example.isMember("param" + std::to_string(number)); ++number) {
        p.push_back(example["param" + std::to_string(number)]);
    }
    switch (p.size()) {
    case 0:
        return SdkLine::lineOf(name, {});
    case 1:
        return SdkLine::lineOf(name, {p[0]});
    case 2:
        return SdkLine::lineOf(name, {p[0], p[1]});
    case 4:
        return SdkLine::lineOf(name, {p[0], p[1], p[2], p[3]});
    case 6:
        return SdkLine::lineOf(name, {p[0], p[1], p[2], p[3], p[4], p[5]});
    default:
        return QStringLiteral("no command has so many");
    }
}

void signIn(EngineFixture &fixture)
{
    fixture.manager->m_strUserId = QStringLiteral("30010000");
}

void call(EngineFixture &fixture)
{
    signIn(fixture);
    fixture.manager->callSingleUser(QStringLiteral("30010002"), false);
}

void ringing(EngineFixture &fixture)
{
    signIn(fixture);
    fixture.notify(Code::IncomingCall, QStringLiteral("30010007"));
}

void requested(EngineFixture &fixture)
{
    signIn(fixture);
    fixture.manager->callConference({"30010001", "30010003", "30010005"}, true, QStringLiteral("title"));
}

void conference(EngineFixture &fixture)
{
    requested(fixture);
    fixture.notify(Code::ConfCreated, QStringLiteral(R"({"result":{"confId":"700001"}})"));
}

void joined(EngineFixture &fixture)
{
    conference(fixture);
    fixture.notify(
        12,
        QStringLiteral(R"({"content":{"from":"30010001","conventioneer":["30010000","30010001"],"confId":"700001"}})"));
}

/// The rows of the document's table under this head, cell by cell.
QList<QStringList> tableUnder(const QString &strHead)
{
    QList<QStringList> rows;
    const QString text = document();
    const int start = text.indexOf(strHead);
    const QStringList lines = text.mid(start, text.indexOf(QStringLiteral("\n\n"), start) - start).split('\n').mid(2);
    for (const QString &line : lines) {
        QStringList cells;
        for (const QString &cell : line.mid(1, line.size() - 2).split('|')) {
            cells.append(cell.trimmed());
        }
        rows.append(cells);
    }
    return rows;
}

/// The letter of a parameter that the document describes so; nothing for an empty cell.
QString letterOf(const QString &strCell)
{
    static const std::pair<QRegularExpression, const char *> beginnings[] = {
        {QRegularExpression("^$"), ""},
        {QRegularExpression("^(bool|false)\\b"), "b"},
        {QRegularExpression("^array\\b"), "a"},
        {QRegularExpression("^integer\\b"), "i"}};
    for (const auto &[beginning, letter] : beginnings) {
        if (strCell.contains(beginning)) {
            return letter;
        }
    }
    return QStringLiteral("s");
}

/// What the document calls the content of a notification.
Wire::Content contentOf(const QString &strCell)
{
    static const std::pair<const char *, Wire::Content> beginnings[] = {
        {"conference document", Wire::Content::Conference},
        {"creation document", Wire::Content::Creation},
        {"add document", Wire::Content::Addition},
        {"open", Wire::Content::Open}};
    for (const auto &[beginning, content] : beginnings) {
        if (strCell.startsWith(QLatin1String(beginning))) {
            return content;
        }
    }
    return strCell.isEmpty() ? Wire::Content::None : Wire::Content::Text;
}

/// What a notification changes, told as the engine's state behind it.
struct Row
{
    Wire::Code code;
    void (*before)(EngineFixture &fixture);
    const char *after;
};

// clang-format off
const Row cRows[] = {
    {Wire::Code::IncomingCall,       signIn,     "incoming 30010007, receive, ring"},
    {Wire::Code::IncomingCallAlt,    signIn,     "incoming 30010007, receive, ring"},
    {Wire::Code::IncomingConf,       signIn,     "incoming 30010008, receive, ring; in 700001"},
    {Wire::Code::RejectRequest,      ringing,    "idle; 26"},
    {Wire::Code::PeerCanceled,       ringing,    "idle; 21"},
    {Wire::Code::UserRejected,       call,       "idle; 26"},
    {Wire::Code::CallEnded,          call,       "idle; 21"},
    {Wire::Code::PeerHangup,         call,       "idle; 24"},
    {Wire::Code::PeerHangupAlt,      call,       "idle; 24"},
    {Wire::Code::PeerRejected,       call,       "idle; 26"},
    {Wire::Code::ConfUpdate,         conference, "30010001 1, 30010003 0, 30010005 0"},
    {Wire::Code::ConfMemberLeft,     joined,     "30010001 4, 30010003 0, 30010005 0"},
    {Wire::Code::SdkFlag,            signIn,     "idle; flag"},
    {Wire::Code::CallConnected,      call,       "connected 30010002"},
    {Wire::Code::CallFailed,         call,       "idle; 22"},
    {Wire::Code::ConfCreated,        requested,  "in 700001"},
    {Wire::Code::ConfAddResult,      conference, "30010001 0, 30010003 0, 30010005 2"},
    {Wire::Code::PeerBusy,           call,       "idle; 25"},
    {Wire::Code::CallFailedAlt,      call,       "idle; 22"},
    {Wire::Code::CallFailedAlt2,     call,       "idle; 22"},
    {Wire::Code::ConfMemberRejected, conference, "30010001 0, 30010003 5, 30010005 0"},
    {Wire::Code::SdkLog,             signIn,     "logged registered 30010000"},
};
// clang-format on

/// The engine's state in words that hold every effect a notification can have.
QString picture(const EngineFixture &fixture, const QtMessages &messages)
{
    QStringList words{fixture.state()};
    if (!fixture.manager->m_callData.confId.isEmpty()) {
        words << "in " + fixture.manager->m_callData.confId;
    }
    words << fixture.members().join(QStringLiteral(", "));
    for (const ReceivedEvent &event : fixture.host.received(MSG_CALL_FINISHED)) {
        PayloadReader reader(event.payload);
        reader.take<bool>();
        reader.take<QString>();
        words << QString::number(reader.take<int>());
    }
    if (fixture.manager->m_bSdkFlag) {
        words << QStringLiteral("flag");
    }
    for (const QString &line : messages.debugLines.filter(QStringLiteral("voipsdk:"))) {
        words << "logged " + line.mid(static_cast<int>(qstrlen("voipsdk:")));
    }
    words.removeAll(QString());
    return words.join(QStringLiteral("; "));
}

} // namespace

Q_DECLARE_METATYPE(Row)

class tst_WireDocument : public QObject
{
    Q_OBJECT

private slots:
    void everyCommandHasItsExample_data()
    {
        QTest::addColumn<int>("number");
        for (const Wire::CommandRow &row : Wire::cCommands) {
            QTest::newRow(row.name) << static_cast<int>(row.command);
        }
    }

    void everyCommandHasItsExample()
    {
        QFETCH(int, number);
        const auto name = static_cast<Wire::Command>(number);
        const QString wireName = QString::fromLatin1(Wire::nameOf(name));
        const QStringList lines = examples(QStringLiteral("{\"messagetype\":\"%1\"").arg(wireName));
        QCOMPARE(lines.size(), 1);
        const Json::Value example = parsed(lines.constFirst());
        QVERIFY2(example.isObject(), "the example is no JSON");
        QCOMPARE(lines.constFirst() + '\n', written(name, example));

        QString reason;
        const std::optional<Command> command = parseCommand(lines.constFirst().toUtf8(), &reason);
        QVERIFY2(command, qPrintable(reason));
        QCOMPARE(shapeFault(*command), QString());

        // The checker's replay says it in the very same bytes.
        QJsonArray parameters;
        for (int parameter = 1; !command->parameter(parameter).isUndefined(); ++parameter) {
            parameters.append(command->parameter(parameter));
        }
        QCOMPARE(commandLine(wireName, parameters), lines.constFirst().toUtf8() + '\n');
    }

    void documentHasNoOtherCommands()
    {
        QCOMPARE(examples(QStringLiteral("{\"messagetype\":")).size(), static_cast<int>(Wire::cCommands.size()));
    }

    void everyNotificationHasItsExample_data()
    {
        QTest::addColumn<Row>("row");
        for (const Row &row : cRows) {
            QTest::newRow(QByteArray::number(static_cast<int>(row.code)).constData()) << row;
        }
    }

    void everyNotificationHasItsExample()
    {
        QFETCH(Row, row);
        const QStringList lines =
            examples(QStringLiteral("{\"content\":\""))
                .filter(QRegularExpression(QStringLiteral(",\"resultCode\":%1}$").arg(static_cast<int>(row.code))));
        QCOMPARE(lines.size(), 1);
        QVERIFY2(parsed(lines.constFirst()).isObject(), "the example is no JSON");
        QCOMPARE(SdkLine::read(lines.constFirst()).code, static_cast<int>(row.code));

        EngineFixture fixture;
        row.before(fixture);
        EngineFixture::deliverPosted();
        const QtMessages messages;
        const QString before = picture(fixture, messages);
        fixture.manager->recevieVoipMessage(lines.constFirst() + '\n');
        EngineFixture::deliverPosted();
        const QString after = picture(fixture, messages);
        QVERIFY2(before != after, qPrintable("nothing has changed: " + before));
        QVERIFY2(after.contains(QLatin1String(row.after)), qPrintable("before: " + before + "\nafter: " + after));
    }

    void documentHasNoOtherNotifications()
    {
        QCOMPARE(examples(QStringLiteral("{\"content\":\"")).size(), static_cast<int>(std::size(cRows)));
        int named = 0;
        for (const Wire::NotificationRow &row : Wire::cNotifications) {
            named += *row.name != '\0' ? 1 : 0;
        }
        QCOMPARE(named, static_cast<int>(std::size(cRows)));
    }

    void tablesNameEveryCommandAndNotification()
    {
        const QStringList rows = document().split('\n').filter(QRegularExpression(QStringLiteral("^\\| ")));
        for (const Wire::CommandRow &command : Wire::cCommands) {
            const QRegularExpression cell(
                QStringLiteral("^\\| [^|]*\\b%1\\b[^|]*\\|").arg(QLatin1String(command.name)));
            QVERIFY2(rows.filter(cell).size() == 2, command.name);
        }
        for (const Wire::NotificationRow &notification : Wire::cNotifications) {
            const QString name = QString::fromLatin1(notification.name);
            const QRegularExpression cells(QStringLiteral("^\\| (\\d+, )*%1(, \\d+)* \\|%2")
                                               .arg(static_cast<int>(notification.code))
                                               .arg(name.isEmpty() ? " \\| open \\|" : "[^|]*\\b" + name + "\\b"));
            QVERIFY2(rows.filter(cells).size() == 1, QByteArray::number(static_cast<int>(notification.code)));
        }
    }

    void tableOfCommandsHasTheirParameters()
    {
        std::size_t checked = 0;
        for (const QStringList &cells : tableUnder(QStringLiteral("| messagetype |"))) {
            QString letters;
            for (const QString &cell : cells.mid(1)) {
                letters += letterOf(cell);
            }
            for (const QString &name : cells.constFirst().split(QStringLiteral(", "))) {
                const Wire::CommandRow *row = findCommand(name);
                QVERIFY2(row, qPrintable(name));
                QCOMPARE(QString(row->parameters), letters);
                ++checked;
            }
        }
        QCOMPARE(checked, Wire::cCommands.size());
    }

    void tableOfNotificationsHasTheirContents()
    {
        std::size_t checked = 0;
        for (const QStringList &cells : tableUnder(QStringLiteral("| code | name |"))) {
            for (const QString &code : cells.constFirst().split(QStringLiteral(", "))) {
                const Wire::NotificationRow *row = Wire::findNotification(code.toInt());
                QVERIFY2(row, qPrintable(code));
                QVERIFY2(row->content == contentOf(cells.at(2)), qPrintable(code));
                ++checked;
            }
        }
        QCOMPARE(checked, Wire::cNotifications.size());
    }

    void sequencesNameWhatThereIs()
    {
        int commands = 0;
        int notifications = 0;
        const QStringList lines = document().split('\n').filter(QRegularExpression(QStringLiteral("^   \\|[-<]")));
        for (const QString &line : lines) {
            static const QRegularExpression said(QStringLiteral("^   \\|-- (\\w+) -+>\\|"));
            static const QRegularExpression heard(QStringLiteral("^   \\|<-+ (\\d+) (\\w+) ?-*\\|"));
            const QRegularExpressionMatch command = said.match(line);
            const QRegularExpressionMatch notification = heard.match(line);
            if (command.hasMatch()) {
                ++commands;
                const QString name = command.captured(1);
                QVERIFY2(findCommand(name) || name == QLatin1String(Wire::cQuitLine), qPrintable(line));
            } else {
                ++notifications;
                QVERIFY2(notification.hasMatch(), qPrintable(line));
                const int code = notification.captured(1).toInt();
                const bool known = std::any_of(Wire::cNotifications.begin(), Wire::cNotifications.end(),
                                               [&](const Wire::NotificationRow &row) {
                                                   return static_cast<int>(row.code) == code &&
                                                          notification.captured(2) == QLatin1String(row.name);
                                               });
                QVERIFY2(known, qPrintable(line));
            }
            QCOMPARE(line.indexOf('|', 4), 63);
        }
        QVERIFY(commands >= 9 && notifications >= 12);
    }

    void tableOfRobotsNamesEachOfThem()
    {
        QStringList documented;
        for (const QStringList &cells : tableUnder(QStringLiteral("| id | name | when called |"))) {
            documented << cells.at(0) + ' ' + cells.at(1);
        }
        QStringList robots;
        for (const Robot &robot : cRobots) {
            robots << QString(robot.id) + ' ' + robot.name;
        }
        QCOMPARE(documented, robots);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_WireDocument, Widgets)
#include "tst_WireDocument.moc"
