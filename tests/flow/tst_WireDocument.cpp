// docs/wire-protocol.md beside what the plug-in says and understands: every command and every notification has an
// example, each command's is what the plug-in writes, and each notification's has its effect in the engine.

#include "callcheck/PluginCommand.h"
#include "callprocess/Wire.h"
#include "engine/SdkCommand.h"
#include "engine/SdkNotification.h"
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
QString written(SdkCommand::Name name, const Json::Value &example)
{
    std::vector<Json::Value> p;
    for (int number = 1; example.isMember("param" + std::to_string(number)); ++number)
        p.push_back(example["param" + std::to_string(number)]);
    switch (p.size()) {
    case 0:
        return SdkCommand::lineOf(name, {});
    case 1:
        return SdkCommand::lineOf(name, {p[0]});
    case 2:
        return SdkCommand::lineOf(name, {p[0], p[1]});
    case 4:
        return SdkCommand::lineOf(name, {p[0], p[1], p[2], p[3]});
    case 6:
        return SdkCommand::lineOf(name, {p[0], p[1], p[2], p[3], p[4], p[5]});
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
    fixture.notify(0, QStringLiteral("30010007"));
}

void requested(EngineFixture &fixture)
{
    signIn(fixture);
    fixture.manager->callConference({"30010001", "30010003", "30010005"}, true, QStringLiteral("title"));
}

void conference(EngineFixture &fixture)
{
    requested(fixture);
    fixture.notify(20, QStringLiteral(R"({"result":{"confId":"700001"}})"));
}

void joined(EngineFixture &fixture)
{
    conference(fixture);
    fixture.notify(
        12,
        QStringLiteral(R"({"content":{"from":"30010001","conventioneer":["30010000","30010001"],"confId":"700001"}})"));
}

/// What a notification changes, told as the engine's state behind it.
struct Row
{
    SdkNotification::Code code;
    void (*before)(EngineFixture &fixture);
    const char *after;
};

// clang-format off
const Row kRows[] = {
    {SdkNotification::IncomingCall,       signIn,     "incoming 30010007, receive, ring"},
    {SdkNotification::IncomingCallAlt,    signIn,     "incoming 30010007, receive, ring"},
    {SdkNotification::IncomingConf,       signIn,     "incoming 30010008, receive, ring; in 700001"},
    {SdkNotification::RejectRequest,      ringing,    "idle; 26"},
    {SdkNotification::PeerCanceled,       ringing,    "idle; 21"},
    {SdkNotification::UserRejected,       call,       "idle; 26"},
    {SdkNotification::CallEnded,          call,       "idle; 21"},
    {SdkNotification::PeerHangup,         call,       "idle; 24"},
    {SdkNotification::PeerHangupAlt,      call,       "idle; 24"},
    {SdkNotification::PeerRejected,       call,       "idle; 26"},
    {SdkNotification::ConfUpdate,         conference, "30010001 1, 30010003 0, 30010005 0"},
    {SdkNotification::ConfMemberLeft,     joined,     "30010001 4, 30010003 0, 30010005 0"},
    {SdkNotification::SdkFlag,            signIn,     "idle; flag"},
    {SdkNotification::CallConnected,      call,       "connected 30010002"},
    {SdkNotification::CallFailed,         call,       "idle; 22"},
    {SdkNotification::ConfCreated,        requested,  "in 700001"},
    {SdkNotification::ConfAddResult,      conference, "30010001 0, 30010003 0, 30010005 2"},
    {SdkNotification::PeerBusy,           call,       "idle; 25"},
    {SdkNotification::CallFailedAlt,      call,       "idle; 22"},
    {SdkNotification::CallFailedAlt2,     call,       "idle; 22"},
    {SdkNotification::ConfMemberRejected, conference, "30010001 0, 30010003 5, 30010005 0"},
    {SdkNotification::SdkLog,             signIn,     "logged registered 30010000"},
};
// clang-format on

/// The engine's state in words that hold every effect a notification can have.
QString picture(const EngineFixture &fixture, const QtMessages &messages)
{
    QStringList words{fixture.state()};
    if (!fixture.manager->m_callData.confId.isEmpty())
        words << "in " + fixture.manager->m_callData.confId;
    words << fixture.members().join(QStringLiteral(", "));
    for (const ReceivedEvent &event : fixture.host.received(MSG_CALL_FINISHED)) {
        PayloadReader reader(event.payload);
        reader.take<bool>();
        reader.take<QString>();
        words << QString::number(reader.take<int>());
    }
    if (fixture.manager->m_bSdkFlag)
        words << QStringLiteral("flag");
    for (const QString &line : messages.debugLines.filter(QStringLiteral("voipsdk:")))
        words << "logged " + line.mid(static_cast<int>(qstrlen("voipsdk:")));
    words.removeAll(QString());
    return words.join(QStringLiteral("; "));
}

} // namespace

Q_DECLARE_METATYPE(Row)

class tst_WireDocument : public QObject
{
    Q_OBJECT

private slots:
    void everyCommandHasItsExample_data();
    void everyCommandHasItsExample();
    void documentHasNoOtherCommands();
    void everyNotificationHasItsExample_data();
    void everyNotificationHasItsExample();
    void documentHasNoOtherNotifications();
    void tablesNameEveryCommandAndNotification();
    void sequencesNameWhatThereIs();
};

void tst_WireDocument::everyCommandHasItsExample_data()
{
    QTest::addColumn<int>("number");
    for (int number = 0; number < SdkCommand::CommandCount; ++number)
        QTest::newRow(SdkCommand::wireName(static_cast<SdkCommand::Name>(number))) << number;
}

void tst_WireDocument::everyCommandHasItsExample()
{
    QFETCH(int, number);
    const auto name = static_cast<SdkCommand::Name>(number);
    const QString wireName = QString::fromLatin1(SdkCommand::wireName(name));
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
    for (int parameter = 1; !command->parameter(parameter).isUndefined(); ++parameter)
        parameters.append(command->parameter(parameter));
    QCOMPARE(commandLine(wireName, parameters), lines.constFirst().toUtf8() + '\n');
}

void tst_WireDocument::documentHasNoOtherCommands()
{
    QCOMPARE(examples(QStringLiteral("{\"messagetype\":")).size(), static_cast<int>(SdkCommand::CommandCount));
}

void tst_WireDocument::everyNotificationHasItsExample_data()
{
    QTest::addColumn<Row>("row");
    for (const Row &row : kRows)
        QTest::newRow(QByteArray::number(row.code).constData()) << row;
}

void tst_WireDocument::everyNotificationHasItsExample()
{
    QFETCH(Row, row);
    const QStringList lines = examples(QStringLiteral("{\"content\":\""))
                                  .filter(QRegularExpression(QStringLiteral(",\"resultCode\":%1}$").arg(row.code)));
    QCOMPARE(lines.size(), 1);
    QVERIFY2(parsed(lines.constFirst()).isObject(), "the example is no JSON");
    QCOMPARE(SdkNotification::read(lines.constFirst()).code, static_cast<int>(row.code));

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

void tst_WireDocument::documentHasNoOtherNotifications()
{
    QCOMPARE(examples(QStringLiteral("{\"content\":\"")).size(), static_cast<int>(std::size(kRows)));
    int named = 0;
    for (const NotificationRow &row : NOTIFICATIONS)
        named += *row.name != '\0' ? 1 : 0;
    QCOMPARE(named, static_cast<int>(std::size(kRows)));
}

void tst_WireDocument::tablesNameEveryCommandAndNotification()
{
    const QStringList rows = document().split('\n').filter(QRegularExpression(QStringLiteral("^\\| ")));
    for (const CommandRow &command : COMMANDS) {
        const QRegularExpression cell(QStringLiteral("^\\| [^|]*\\b%1\\b[^|]*\\|").arg(QLatin1String(command.name)));
        QVERIFY2(rows.filter(cell).size() == 2, command.name);
    }
    for (const NotificationRow &notification : NOTIFICATIONS) {
        const QString name = QString::fromLatin1(notification.name);
        const QRegularExpression cells(QStringLiteral("^\\| (\\d+, )*%1(, \\d+)* \\|%2")
                                           .arg(static_cast<int>(notification.code))
                                           .arg(name.isEmpty() ? " \\| open \\|" : "[^|]*\\b" + name + "\\b"));
        QVERIFY2(rows.filter(cells).size() == 1, QByteArray::number(static_cast<int>(notification.code)));
    }
}

void tst_WireDocument::sequencesNameWhatThereIs()
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
            QVERIFY2(findCommand(name) || name == QLatin1String(QUIT_LINE), qPrintable(line));
        } else {
            ++notifications;
            QVERIFY2(notification.hasMatch(), qPrintable(line));
            const int code = notification.captured(1).toInt();
            const bool known = std::any_of(NOTIFICATIONS.begin(), NOTIFICATIONS.end(), [&](const NotificationRow &row) {
                return static_cast<int>(row.code) == code && notification.captured(2) == QLatin1String(row.name);
            });
            QVERIFY2(known, qPrintable(line));
        }
        QCOMPARE(line.indexOf('|', 4), 63);
    }
    QVERIFY(commands >= 9 && notifications >= 12);
}

#include "support/TestProgram.h"
VOIP_TEST(tst_WireDocument, Widgets)
#include "tst_WireDocument.moc"
