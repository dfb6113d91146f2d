#include "WireWords.h"

#include "ShownText.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <climits>
#include <cmath>
#include <optional>

namespace {

constexpr const char *context = "WireWords";
constexpr int mostParameters = 6;

// The values are param1, param2...
struct CommandRow
{
    const char *name;
    SentenceForm form;
};

constexpr const char *on = QT_TRANSLATE_NOOP("WireWords", "on");
constexpr const char *off = QT_TRANSLATE_NOOP("WireWords", "off");

// The spellings are the wire's own, "SetSpeakerEnble" and "SetCamreraEnable" included.
constexpr CommandRow commands[] = {
    {"RegeditUser", {QT_TRANSLATE_NOOP("WireWords", "the plug-in registers %1 (%2) at the call process")}},
    {"UnReg", {QT_TRANSLATE_NOOP("WireWords", "the plug-in takes the registration of %1 back")}},
    {"CallUser",
     {QT_TRANSLATE_NOOP("WireWords", "the plug-in asks the call process to call %1 %2"),
      {2, QT_TRANSLATE_NOOP("WireWords", "with picture"), QT_TRANSLATE_NOOP("WireWords", "with sound only")}}},
    {"RequestConference",
     {QT_TRANSLATE_NOOP("WireWords", "the plug-in asks the call process for a conference of %1 with %2")}},
    {"Add2Conference", {QT_TRANSLATE_NOOP("WireWords", "the plug-in asks to add %1 to the conference of %6")}},
    {"AcceptCall", {QT_TRANSLATE_NOOP("WireWords", "the plug-in takes the call")}},
    {"AcceptConf", {QT_TRANSLATE_NOOP("WireWords", "the plug-in joins the conference")}},
    {"RejectCall", {QT_TRANSLATE_NOOP("WireWords", "the plug-in rejects the call")}},
    {"RejectConf", {QT_TRANSLATE_NOOP("WireWords", "the plug-in rejects the conference")}},
    {"HangUpCall", {QT_TRANSLATE_NOOP("WireWords", "the plug-in hangs up")}},
    {"HangupConf", {QT_TRANSLATE_NOOP("WireWords", "the plug-in leaves the conference")}},
    {"ControlConf", {QT_TRANSLATE_NOOP("WireWords", "the plug-in moderates the conference: %1, %2")}},
    {"SetMicEnable", {QT_TRANSLATE_NOOP("WireWords", "the plug-in turns the microphone %1"), {1, on, off}}},
    {"SetSpeakerEnble", {QT_TRANSLATE_NOOP("WireWords", "the plug-in turns the speaker %1"), {1, on, off}}},
    {"SetCamreraEnable", {QT_TRANSLATE_NOOP("WireWords", "the plug-in turns the camera %1"), {1, on, off}}},
    {"SetMicVolume", {QT_TRANSLATE_NOOP("WireWords", "the plug-in sets the microphone to volume %1")}},
    {"SetSpeakerVolume", {QT_TRANSLATE_NOOP("WireWords", "the plug-in sets the speaker to volume %1")}},
};

constexpr SentenceForm quitForm = {QT_TRANSLATE_NOOP("WireWords", "the plug-in tells the call process to quit")};

// What the content of a notification is, and with that the values of its sentence.
enum Content
{
    Nothing,
    Text,       // the text
    Conference, // who sent it, who is connected, the conference's id
    Creation,   // the conference's id
    Addition,   // who could not be added
};

struct NotificationRow
{
    int code;
    Content content;
    SentenceForm form;
};

constexpr NotificationRow notifications[] = {
    {0, Text, {QT_TRANSLATE_NOOP("WireWords", "call process: %1 is calling")}},
    {1, Text, {QT_TRANSLATE_NOOP("WireWords", "call process: %1 is calling")}},
    {2, Conference, {QT_TRANSLATE_NOOP("WireWords", "call process: %1 invites to a conference, connected: %2")}},
    {3, Nothing, {QT_TRANSLATE_NOOP("WireWords", "call process: the call is to be rejected")}},
    {4, Nothing, {QT_TRANSLATE_NOOP("WireWords", "call process: the caller has given up")}},
    {5, Text, {QT_TRANSLATE_NOOP("WireWords", "call process: %1 has rejected")}},
    {6, Text, {QT_TRANSLATE_NOOP("WireWords", "call process: a notification that leads to nothing, content %1")}},
    {7, Nothing, {QT_TRANSLATE_NOOP("WireWords", "call process: the call has ended")}},
    {8, Nothing, {QT_TRANSLATE_NOOP("WireWords", "call process: the far end has hung up")}},
    {9, Nothing, {QT_TRANSLATE_NOOP("WireWords", "call process: the far end has hung up")}},
    {10, Nothing, {QT_TRANSLATE_NOOP("WireWords", "call process: the far end has rejected")}},
    {11, Text, {QT_TRANSLATE_NOOP("WireWords", "call process: a notification that leads to nothing, content %1")}},
    {12, Conference, {QT_TRANSLATE_NOOP("WireWords", "call process: connected in the conference are %2")}},
    {13, Conference, {QT_TRANSLATE_NOOP("WireWords", "call process: %1 has left the conference, connected are %2")}},
    {14, Text, {QT_TRANSLATE_NOOP("WireWords", "call process: a notification that leads to nothing, content %1")}},
    {15, Text, {QT_TRANSLATE_NOOP("WireWords", "call process: a notification that leads to nothing, content %1")}},
    {16, Text, {QT_TRANSLATE_NOOP("WireWords", "call process: a notification that leads to nothing, content %1")}},
    {17, Text, {QT_TRANSLATE_NOOP("WireWords", "call process: its flag is %1")}},
    {18, Nothing, {QT_TRANSLATE_NOOP("WireWords", "call process: the far end has answered")}},
    {19, Nothing, {QT_TRANSLATE_NOOP("WireWords", "call process: the call has failed")}},
    {20, Creation, {QT_TRANSLATE_NOOP("WireWords", "call process: the conference is made, its id is %1")}},
    {21, Addition, {QT_TRANSLATE_NOOP("WireWords", "call process: people were added, not reached: %1")}},
    {22, Nothing, {QT_TRANSLATE_NOOP("WireWords", "call process: the far end is busy")}},
    {23, Nothing, {QT_TRANSLATE_NOOP("WireWords", "call process: the call has failed")}},
    {24, Nothing, {QT_TRANSLATE_NOOP("WireWords", "call process: the call has failed")}},
    {25, Text, {QT_TRANSLATE_NOOP("WireWords", "call process: %1 has rejected the conference")}},
    {999, Text, {QT_TRANSLATE_NOOP("WireWords", "call process logs: %1")}},
};

constexpr SentenceForm noConferenceForm = {
    QT_TRANSLATE_NOOP("WireWords", "call process: the conference could not be made")};
constexpr SentenceForm noteForm = {QT_TRANSLATE_NOOP("WireWords", "call process notes: %1")};
constexpr SentenceForm complaintForm = {QT_TRANSLATE_NOOP("WireWords", "call process complains: %1")};
constexpr SentenceForm cutForm = {QT_TRANSLATE_NOOP("WireWords", "a line of %1 bytes, too long to be decoded: %2")};
constexpr SentenceForm brokenForm = {QT_TRANSLATE_NOOP("WireWords", "no line of the protocol: %1")};
constexpr SentenceForm unknownCommandForm = {
    QT_TRANSLATE_NOOP("WireWords", "the plug-in sends an unknown command: %1")};
constexpr SentenceForm unknownNotificationForm = {
    QT_TRANSLATE_NOOP("WireWords", "call process: an unknown notification, content %1")};
constexpr SentenceForm brokenContentForm = {
    QT_TRANSLATE_NOOP("WireWords", "call process: a document that cannot be read: %1")};

const CommandRow *commandOf(const QString &strName)
{
    for (const CommandRow &row : commands) {
        if (strName == QLatin1String(row.name)) {
            return &row;
        }
    }
    return nullptr;
}

const NotificationRow *notificationOf(int iCode)
{
    for (const NotificationRow &row : notifications) {
        if (row.code == iCode) {
            return &row;
        }
    }
    return nullptr;
}

/// A line as it was understood.
struct Draft
{
    const SentenceForm *form;
    QVariantList values;
    bool bad = false;
    std::optional<int> code = std::nullopt;
};

Draft badDraft(const SentenceForm &form, const QString &strText)
{
    return {&form, {strText}, true};
}

bool parse(const QString &strText, QJsonObject *object)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(strText.toUtf8(), &error);
    *object = document.object();
    return error.error == QJsonParseError::NoError && document.isObject();
}

QStringList textsOf(const QJsonValue &value)
{
    QStringList texts;
    const QJsonArray array = value.toArray();
    for (const QJsonValue &item : array) {
        if (item.isString()) {
            texts << item.toString();
        }
    }
    return texts;
}

QVariant parameterOf(const QJsonValue &value)
{
    if (value.isArray() || value.isNull()) {
        return textsOf(value);
    }
    return value.toVariant();
}

Draft readCommand(const QString &strText)
{
    QJsonObject object;
    if (strText == QLatin1String("quit")) {
        return {&quitForm, {}};
    }
    if (!parse(strText, &object) || !object.value(QStringLiteral("messagetype")).isString()) {
        return badDraft(brokenForm, strText);
    }
    const QString name = object.value(QStringLiteral("messagetype")).toString();
    const CommandRow *row = commandOf(name);
    if (row == nullptr) {
        return badDraft(unknownCommandForm, name);
    }
    QVariantList values;
    for (int number = 1; number <= mostParameters; ++number) {
        values << parameterOf(object.value(QStringLiteral("param%1").arg(number)));
    }
    return {&row->form, values};
}

/// The values in the document that stands as text in the content; false when it is none.
bool readDocument(Content content, const QString &strContent, QVariantList *values)
{
    QJsonObject object;
    const QString inner = content == Conference ? QStringLiteral("content") : QStringLiteral("result");
    if (!parse(strContent, &object) || !object.value(inner).isObject()) {
        return false;
    }
    const QJsonObject part = object.value(inner).toObject();
    const QVariant id = part.value(QStringLiteral("confId")).toVariant();
    if (content == Conference) {
        *values = {part.value(QStringLiteral("from")).toVariant(), textsOf(part.value(QStringLiteral("conventioneer"))),
                   id};
    } else if (content == Creation) {
        *values = {id};
    } else {
        *values = {textsOf(part.value(QStringLiteral("failedNums")))};
    }
    return true;
}

Draft readNotification(const NotificationRow &row, const QString &strContent)
{
    if (row.content == Nothing) {
        return {&row.form, {}};
    }
    if (row.content == Text) {
        return {&row.form, {strContent}};
    }
    if (row.content == Creation && strContent.isEmpty()) {
        return {&noConferenceForm, {}};
    }
    QVariantList values;
    if (!readDocument(row.content, strContent, &values)) {
        return badDraft(brokenContentForm, strContent);
    }
    return {&row.form, values};
}

Draft readFromCallProcess(const QString &strText)
{
    QJsonObject object;
    if (!parse(strText, &object)) {
        return badDraft(brokenForm, strText);
    }
    const double number = object.value(QStringLiteral("resultCode")).toDouble(NAN);
    const QJsonValue content = object.value(QStringLiteral("content"));
    if (std::trunc(number) != number || std::abs(number) > INT_MAX || !(content.isString() || content.isUndefined())) {
        return badDraft(brokenForm, strText);
    }
    const NotificationRow *row = notificationOf(int(number));
    Draft draft = row == nullptr ? badDraft(unknownNotificationForm, content.toString())
                                 : readNotification(*row, content.toString());
    draft.code = int(number);
    return draft;
}

Draft readLine(const WireLine &line)
{
    if (line.complaint) {
        return badDraft(complaintForm, line.text);
    }
    if (line.direction == WireLine::Event) {
        return {&noteForm, {line.text}};
    }
    if (line.isCut) {
        return {&cutForm, {line.length, line.text}, true};
    }
    return line.direction == WireLine::FromPlugin ? readCommand(line.text) : readFromCallProcess(line.text);
}

QVariant maskedValue(const QVariant &value, const SecretMask &mask)
{
    if (value.type() == QVariant::String) {
        return mask.masked(value.toString());
    }
    if (value.type() != QVariant::StringList) {
        return value;
    }
    QStringList texts = value.toStringList();
    for (QString &text : texts) {
        text = mask.masked(text);
    }
    return texts;
}

} // namespace

WireWords::Said WireWords::say(const WireLine &line, const SecretMask &mask)
{
    Draft draft = readLine(line);
    for (QVariant &value : draft.values) {
        value = maskedValue(value, mask);
    }
    Said said{Sentence(context, *draft.form, draft.values), draft.bad};
    if (draft.code) {
        said.sentence.setNumber(*draft.code);
    }
    return said;
}

QStringList WireWords::split(const QString &strText)
{
    QJsonObject object;
    if (!strText.contains(lineFeedPicture) || parse(strText, &object)) {
        return {strText};
    }
    return strText.split(lineFeedPicture);
}

QString WireWords::secretOf(const QString &strText)
{
    QJsonObject object;
    if (!strText.contains(QLatin1String("RegeditUser")) || !parse(strText, &object)) {
        return QString();
    }
    return object.value(QStringLiteral("param3")).toString();
}

bool WireWords::hasCommand(const QString &strName)
{
    return commandOf(strName) != nullptr;
}

bool WireWords::hasNotification(int iCode)
{
    return notificationOf(iCode) != nullptr;
}

int WireWords::commandCount()
{
    return int(std::size(commands));
}

int WireWords::notificationCount()
{
    return int(std::size(notifications));
}
