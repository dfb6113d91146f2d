#include "traffic/WireWords.h"

#include "traffic/ShownText.h"

#include "wire/Commands.h"
#include "wire/Notifications.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <climits>
#include <cmath>
#include <optional>

namespace {

constexpr const char *cContext = "WireWords";

// The values are param1, param2...
struct CommandForm
{
    Wire::Command command;
    SentenceForm form;
};

constexpr const char *cOn = QT_TRANSLATE_NOOP("WireWords", "on");
constexpr const char *cOff = QT_TRANSLATE_NOOP("WireWords", "off");

constexpr CommandForm cCommands[] = {
    {Wire::Command::RegeditUser, {QT_TRANSLATE_NOOP("WireWords", "the plug-in registers %1 (%2) at the call process")}},
    {Wire::Command::UnReg, {QT_TRANSLATE_NOOP("WireWords", "the plug-in takes the registration of %1 back")}},
    {Wire::Command::CallUser,
     {QT_TRANSLATE_NOOP("WireWords", "the plug-in asks the call process to call %1 %2"),
      {2, QT_TRANSLATE_NOOP("WireWords", "with picture"), QT_TRANSLATE_NOOP("WireWords", "with sound only")}}},
    {Wire::Command::RequestConference,
     {QT_TRANSLATE_NOOP("WireWords", "the plug-in asks the call process for a conference of %1 with %2")}},
    {Wire::Command::Add2Conference,
     {QT_TRANSLATE_NOOP("WireWords", "the plug-in asks to add %1 to the conference of %6")}},
    {Wire::Command::AcceptCall, {QT_TRANSLATE_NOOP("WireWords", "the plug-in takes the call")}},
    {Wire::Command::AcceptConf, {QT_TRANSLATE_NOOP("WireWords", "the plug-in joins the conference")}},
    {Wire::Command::RejectCall, {QT_TRANSLATE_NOOP("WireWords", "the plug-in rejects the call")}},
    {Wire::Command::RejectConf, {QT_TRANSLATE_NOOP("WireWords", "the plug-in rejects the conference")}},
    {Wire::Command::HangUpCall, {QT_TRANSLATE_NOOP("WireWords", "the plug-in hangs up")}},
    {Wire::Command::HangupConf, {QT_TRANSLATE_NOOP("WireWords", "the plug-in leaves the conference")}},
    {Wire::Command::ControlConf, {QT_TRANSLATE_NOOP("WireWords", "the plug-in moderates the conference: %1, %2")}},
    {Wire::Command::SetMicEnable,
     {QT_TRANSLATE_NOOP("WireWords", "the plug-in turns the microphone %1"), {1, cOn, cOff}}},
    {Wire::Command::SetSpeakerEnble,
     {QT_TRANSLATE_NOOP("WireWords", "the plug-in turns the speaker %1"), {1, cOn, cOff}}},
    {Wire::Command::SetCamreraEnable,
     {QT_TRANSLATE_NOOP("WireWords", "the plug-in turns the camera %1"), {1, cOn, cOff}}},
    {Wire::Command::SetMicVolume, {QT_TRANSLATE_NOOP("WireWords", "the plug-in sets the microphone to volume %1")}},
    {Wire::Command::SetSpeakerVolume, {QT_TRANSLATE_NOOP("WireWords", "the plug-in sets the speaker to volume %1")}},
};
static_assert(Wire::tellOfEveryCommand(cCommands), "a command without its sentence");

constexpr SentenceForm cQuitForm = {QT_TRANSLATE_NOOP("WireWords", "the plug-in tells the call process to quit")};

// The values are those that the content of the notification holds.
struct NotificationForm
{
    Wire::Code code;
    SentenceForm form;
};

constexpr NotificationForm cNotifications[] = {
    {Wire::Code::IncomingCall, {QT_TRANSLATE_NOOP("WireWords", "call process: %1 is calling")}},
    {Wire::Code::IncomingCallAlt, {QT_TRANSLATE_NOOP("WireWords", "call process: %1 is calling")}},
    {Wire::Code::IncomingConf,
     {QT_TRANSLATE_NOOP("WireWords", "call process: %1 invites to a conference, connected: %2")}},
    {Wire::Code::RejectRequest, {QT_TRANSLATE_NOOP("WireWords", "call process: the call is to be rejected")}},
    {Wire::Code::PeerCanceled, {QT_TRANSLATE_NOOP("WireWords", "call process: the caller has given up")}},
    {Wire::Code::UserRejected, {QT_TRANSLATE_NOOP("WireWords", "call process: %1 has rejected")}},
    {Wire::Code::CallEnded, {QT_TRANSLATE_NOOP("WireWords", "call process: the call has ended")}},
    {Wire::Code::PeerHangup, {QT_TRANSLATE_NOOP("WireWords", "call process: the far end has hung up")}},
    {Wire::Code::PeerHangupAlt, {QT_TRANSLATE_NOOP("WireWords", "call process: the far end has hung up")}},
    {Wire::Code::PeerRejected, {QT_TRANSLATE_NOOP("WireWords", "call process: the far end has rejected")}},
    {Wire::Code::ConfUpdate, {QT_TRANSLATE_NOOP("WireWords", "call process: connected in the conference are %2")}},
    {Wire::Code::ConfMemberLeft,
     {QT_TRANSLATE_NOOP("WireWords", "call process: %1 has left the conference, connected are %2")}},
    {Wire::Code::SdkFlag, {QT_TRANSLATE_NOOP("WireWords", "call process: its flag is %1")}},
    {Wire::Code::CallConnected, {QT_TRANSLATE_NOOP("WireWords", "call process: the far end has answered")}},
    {Wire::Code::CallFailed, {QT_TRANSLATE_NOOP("WireWords", "call process: the call has failed")}},
    {Wire::Code::ConfCreated, {QT_TRANSLATE_NOOP("WireWords", "call process: the conference is made, its id is %1")}},
    {Wire::Code::ConfAddResult, {QT_TRANSLATE_NOOP("WireWords", "call process: people were added, not reached: %1")}},
    {Wire::Code::PeerBusy, {QT_TRANSLATE_NOOP("WireWords", "call process: the far end is busy")}},
    {Wire::Code::CallFailedAlt, {QT_TRANSLATE_NOOP("WireWords", "call process: the call has failed")}},
    {Wire::Code::CallFailedAlt2, {QT_TRANSLATE_NOOP("WireWords", "call process: the call has failed")}},
    {Wire::Code::ConfMemberRejected, {QT_TRANSLATE_NOOP("WireWords", "call process: %1 has rejected the conference")}},
    {Wire::Code::SdkLog, {QT_TRANSLATE_NOOP("WireWords", "call process logs: %1")}},
};
static_assert(Wire::tellOfEveryNotification(cNotifications), "a notification without its sentence");

constexpr SentenceForm cOpenForm = {
    QT_TRANSLATE_NOOP("WireWords", "call process: a notification that leads to nothing, content %1")};
constexpr SentenceForm cNoConferenceForm = {
    QT_TRANSLATE_NOOP("WireWords", "call process: the conference could not be made")};
constexpr SentenceForm cNoteForm = {QT_TRANSLATE_NOOP("WireWords", "call process notes: %1")};
constexpr SentenceForm cComplaintForm = {QT_TRANSLATE_NOOP("WireWords", "call process complains: %1")};
constexpr SentenceForm cCutForm = {QT_TRANSLATE_NOOP("WireWords", "a line of %1 bytes, too long to be decoded: %2")};
constexpr SentenceForm cBrokenForm = {QT_TRANSLATE_NOOP("WireWords", "no line of the protocol: %1")};
constexpr SentenceForm cUnknownCommandForm = {
    QT_TRANSLATE_NOOP("WireWords", "the plug-in sends an unknown command: %1")};
constexpr SentenceForm cUnknownNotificationForm = {
    QT_TRANSLATE_NOOP("WireWords", "call process: an unknown notification, content %1")};
constexpr SentenceForm cBrokenContentForm = {
    QT_TRANSLATE_NOOP("WireWords", "call process: a document that cannot be read: %1")};

const SentenceForm &formOf(Wire::Command command)
{
    return cCommands[static_cast<int>(command)].form;
}

const SentenceForm &formOf(const Wire::NotificationRow &row)
{
    for (const NotificationForm &notification : cNotifications) {
        if (notification.code == row.code) {
            return notification.form;
        }
    }
    return cOpenForm;
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
    if (strText == QLatin1String(Wire::cQuitLine)) {
        return {&cQuitForm, {}};
    }
    if (!parse(strText, &object) || !object.value(QLatin1String(Wire::cKeyMessageType)).isString()) {
        return badDraft(cBrokenForm, strText);
    }
    const QString name = object.value(QLatin1String(Wire::cKeyMessageType)).toString();
    const Wire::CommandRow *row = Wire::findCommand(name.toStdString());
    if (row == nullptr) {
        return badDraft(cUnknownCommandForm, name);
    }
    QVariantList values;
    for (int number = 1; number <= Wire::parameterCount(*row); ++number) {
        values << parameterOf(object.value(QLatin1String(Wire::cKeyParameter) + QString::number(number)));
    }
    return {&formOf(row->command), values};
}

/// The values in the document that stands as text in the content; false when it is none.
bool readDocument(Wire::Content content, const QString &strContent, QVariantList *values)
{
    QJsonObject object;
    const QLatin1String inner(content == Wire::Content::Conference ? Wire::cKeyContent : Wire::cKeyResult);
    if (!parse(strContent, &object) || !object.value(inner).isObject()) {
        return false;
    }
    const QJsonObject part = object.value(inner).toObject();
    const QVariant id = part.value(QLatin1String(Wire::cKeyConfId)).toVariant();
    if (content == Wire::Content::Conference) {
        *values = {part.value(QLatin1String(Wire::cKeyFrom)).toVariant(),
                   textsOf(part.value(QLatin1String(Wire::cKeyConventioneer))), id};
    } else if (content == Wire::Content::Creation) {
        *values = {id};
    } else {
        *values = {textsOf(part.value(QLatin1String(Wire::cKeyFailedNums)))};
    }
    return true;
}

Draft readNotification(const Wire::NotificationRow &row, const QString &strContent)
{
    const SentenceForm &form = formOf(row);
    switch (row.content) {
    case Wire::Content::None:
        return {&form, {}};
    case Wire::Content::Text:
    case Wire::Content::Open:
        return {&form, {strContent}};
    default:
        break;
    }
    if (row.content == Wire::Content::Creation && strContent.isEmpty()) {
        return {&cNoConferenceForm, {}};
    }
    QVariantList values;
    if (!readDocument(row.content, strContent, &values)) {
        return badDraft(cBrokenContentForm, strContent);
    }
    return {&form, values};
}

Draft readFromCallProcess(const QString &strText)
{
    QJsonObject object;
    if (!parse(strText, &object)) {
        return badDraft(cBrokenForm, strText);
    }
    const double number = object.value(QLatin1String(Wire::cKeyResultCode)).toDouble(NAN);
    const QJsonValue content = object.value(QLatin1String(Wire::cKeyContent));
    if (std::trunc(number) != number || std::abs(number) > INT_MAX || !(content.isString() || content.isUndefined())) {
        return badDraft(cBrokenForm, strText);
    }
    const Wire::NotificationRow *row = Wire::findNotification(int(number));
    Draft draft = row == nullptr ? badDraft(cUnknownNotificationForm, content.toString())
                                 : readNotification(*row, content.toString());
    draft.code = int(number);
    return draft;
}

Draft readLine(const WireLine &line)
{
    if (line.complaint) {
        return badDraft(cComplaintForm, line.text);
    }
    if (line.direction == WireLine::Event) {
        return {&cNoteForm, {line.text}};
    }
    if (line.isCut) {
        return {&cCutForm, {line.length, line.text}, true};
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
    Said said{Sentence(cContext, *draft.form, draft.values), draft.bad};
    if (draft.code) {
        said.sentence.setNumber(*draft.code);
    }
    return said;
}

QStringList WireWords::split(const QString &strText)
{
    QJsonObject object;
    if (!strText.contains(cLineFeedPicture) || parse(strText, &object)) {
        return {strText};
    }
    return strText.split(cLineFeedPicture);
}

QString WireWords::secretOf(const QString &strText)
{
    QJsonObject object;
    if (!strText.contains(QLatin1String(Wire::nameOf(Wire::Command::RegeditUser))) || !parse(strText, &object)) {
        return QString();
    }
    return object.value(QLatin1String(Wire::cKeyRegistrationValue)).toString();
}
