#include "traffic/EventWords.h"

#include "traffic/CallRecord.h"

#include "plugin/EventPayload.h"
#include "plugin/HostEvents.h"

#include <QCoreApplication>
#include <QStringList>

namespace {

constexpr const char *cContext = "EventWords";

// What an event is called where its fields are listed, and its sentence. The sentence's values are the fields of the
// payload in stream order, then those of the answer.
struct EventRow
{
    EMsgId msgId;
    const char *words;
    SentenceForm form;
};

constexpr const char *cYes = QT_TRANSLATE_NOOP("EventWords", "yes");
constexpr const char *cNo = QT_TRANSLATE_NOOP("EventWords", "no");
constexpr const char *cWithPicture = QT_TRANSLATE_NOOP("EventWords", "with picture");
constexpr const char *cSoundOnly = QT_TRANSLATE_NOOP("EventWords", "with sound only");

constexpr EventRow cRows[] = {
    {MSG_UPDATE_USER_INFO,
     "a user's card",
     {QT_TRANSLATE_NOOP("EventWords", "the client gives the plug-in the card of %1")}},
    {MSG_CLIENT_CONNECT_STATUS,
     "login state",
     {QT_TRANSLATE_NOOP("EventWords", "the client tells the plug-in that the user is %1"),
      {1, QT_TRANSLATE_NOOP("EventWords", "signed in"), QT_TRANSLATE_NOOP("EventWords", "signed out")}}},
    {MSG_GET_FRIEND_INFO,
     "who is",
     {QT_TRANSLATE_NOOP("EventWords", "the plug-in asks who %1 is: %2"),
      {2, QT_TRANSLATE_NOOP("EventWords", "here is the record"),
       QT_TRANSLATE_NOOP("EventWords", "there is no record")}}},
    {MSG_GET_STRANGER_SMALL_VCARD,
     "fetch cards",
     {QT_TRANSLATE_NOOP("EventWords", "the plug-in asks for the cards of %1")}},
    {MSG_SHOW_SIGN_LIST,
     "show signature card",
     {QT_TRANSLATE_NOOP("EventWords", "the plug-in asks to show the signature card of %1 at %2, %3")}},
    {MSG_IS_EXIST_FRIEND,
     "is a contact",
     {QT_TRANSLATE_NOOP("EventWords", "the plug-in asks whether %1 is a contact: %2"), {2, cYes, cNo}}},
    {MSG_CLOSE_AV_MSGBOX,
     "take the prompt away",
     {QT_TRANSLATE_NOOP("EventWords", "the plug-in asks to take away the prompt of the call with %1")}},
    {MSG_CALL_SINGLE_USER,
     "call a user",
     {QT_TRANSLATE_NOOP("EventWords", "the client asks the plug-in to call %2 %1"), {1, cWithPicture, cSoundOnly}}},
    {MSG_CALL_FINISHED,
     "call finished",
     {QT_TRANSLATE_NOOP("EventWords", "the plug-in reports the end of the call with %2: %3; %4, %5, %6 s"),
      {4, QT_TRANSLATE_NOOP("EventWords", "called by this side"),
       QT_TRANSLATE_NOOP("EventWords", "called by the other side")},
      {5, QT_TRANSLATE_NOOP("EventWords", "connected"), QT_TRANSLATE_NOOP("EventWords", "never connected")}}},
    {MSG_IS_EXIST_CALL,
     "is there a call",
     {QT_TRANSLATE_NOOP("EventWords", "the client asks whether there is a call: %1"), {1, cYes, cNo}}},
    {MSG_IS_VIDEO_CALL,
     "is it a video call",
     {QT_TRANSLATE_NOOP("EventWords", "the client asks whether the call has a picture: %1"), {1, cYes, cNo}}},
    {MSG_CLOSE_SIGN_LIST,
     "hide signature card",
     {QT_TRANSLATE_NOOP("EventWords", "the plug-in asks to hide the signature card")}},
    {MSG_RECEVIE_VOIP_CALL,
     "incoming call",
     {QT_TRANSLATE_NOOP("EventWords", "the plug-in reports that %1 %2, %3"),
      {2, QT_TRANSLATE_NOOP("EventWords", "invites to a conference"), QT_TRANSLATE_NOOP("EventWords", "calls")},
      {3, cWithPicture, cSoundOnly}}},
    {MSG_RESPONSE_VOIP_REQUEST,
     "answer to the prompt",
     {QT_TRANSLATE_NOOP("EventWords", "the client tells the plug-in that the user %1 the call"),
      {1, QT_TRANSLATE_NOOP("EventWords", "takes"), QT_TRANSLATE_NOOP("EventWords", "rejects")}}},
    {MSG_CALL_CONFERENCE,
     "start a conference",
     {QT_TRANSLATE_NOOP("EventWords", "the client asks the plug-in to start a conference with %1")}},
    {MSG_CREATE_VOICE_CONFERENCE,
     "pick members of a conference",
     {QT_TRANSLATE_NOOP("EventWords", "the plug-in asks to pick people for a conference, to begin with %1")}},
    {MSG_ADD_CONFERENCE_MEMBER,
     "pick further members",
     {QT_TRANSLATE_NOOP("EventWords", "the plug-in asks whom to add to the conference of %1: %2")}},
    {MSG_SHOW_VOICE_CONF,
     "show the conference centre",
     {QT_TRANSLATE_NOOP("EventWords", "the client asks for the conference centre")}},
    {MSG_EXIT_VOIP, "quit", {QT_TRANSLATE_NOOP("EventWords", "the client tells the plug-in that it quits")}},
};

constexpr bool standInOrder()
{
    std::size_t place = 0;
    for (const EventRow &row : cRows) {
        if (place == cHostEvents.size() || row.msgId != cHostEvents.at(place++).msgId) {
            return false;
        }
    }
    return place == cHostEvents.size();
}
static_assert(standInOrder(), "an event without its words");

constexpr SentenceForm cUnknownForm = {
    QT_TRANSLATE_NOOP("EventWords", "a command that is not in the contract, with %1 bytes of payload")};

QVariant fieldValue(char type, PayloadReader &in)
{
    switch (type) {
    case 'b':
        return in.take<bool>();
    case 'i':
        return in.take<qint32>();
    case 'q':
        return in.take<qint64>();
    case 'r':
        return in.take<qint32>();
    case 'p':
        return in.take<qint64>() != 0;
    case 'l':
        return in.takeTexts();
    default:
        return in.take<QString>();
    }
}

QString fieldText(char type, const QVariant &value)
{
    switch (type) {
    case 'b':
        return value.toBool() ? QStringLiteral("yes") : QStringLiteral("no");
    case 'r':
        return QStringLiteral("%1 %2").arg(value.toInt()).arg(outcomeWord(value.toInt()));
    case 'p':
        return value.toBool() ? QStringLiteral("(address)") : QStringLiteral("(none)");
    case 'l':
        return QLatin1Char('[') + value.toStringList().join(QStringLiteral(", ")) + QLatin1Char(']');
    default:
        return value.toString();
    }
}

/// The shapes "type:name" of a row's fields.
QStringList shapesOf(const char *fields)
{
    return QString::fromLatin1(fields).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

QString fieldsText(const char *fields, const QByteArray &payload)
{
    PayloadReader in(payload);
    QStringList parts;
    const QStringList shapes = shapesOf(fields);
    for (const QString &shape : shapes) {
        const char type = shape.at(0).toLatin1();
        parts << shape.mid(2) + QLatin1Char('=') + fieldText(type, fieldValue(type, in));
    }
    return parts.join(QStringLiteral(", "));
}

void appendValues(const char *fields, const QByteArray &payload, QVariantList *values)
{
    PayloadReader in(payload);
    const QStringList shapes = shapesOf(fields);
    for (const QString &shape : shapes) {
        const char type = shape.at(0).toLatin1();
        const QVariant value = fieldValue(type, in);
        values->append(type == 'r' ? QVariant(outcomeWord(value.toInt())) : value);
    }
}

/// What the command carries and the words for it; both null for an unknown one.
struct KnownEvent
{
    const HostEvent *event;
    const EventRow *row;
};

KnownEvent find(EMsgId msgId)
{
    const HostEvent *event = findHostEvent(msgId);
    return {event, event == nullptr ? nullptr : &cRows[event - cHostEvents.data()]};
}

QVariantList valuesOf(const HostEvent &event, const QByteArray &payload, const QByteArray &reply)
{
    QVariantList values;
    appendValues(event.fields, payload, &values);
    appendValues(event.answer, reply, &values);
    return values;
}

} // namespace

QString EventWords::describe(EMsgId msgId, const QByteArray &payload)
{
    const auto [event, row] = find(msgId);
    if (event == nullptr) {
        return QString::number(msgId);
    }
    const QString head = QStringLiteral("%1 %2").arg(int(msgId)).arg(QString::fromLatin1(row->words));
    const QString fields = fieldsText(event->fields, payload);
    return fields.isEmpty() ? head : head + QStringLiteral(": ") + fields;
}

QString EventWords::answer(EMsgId msgId, const QByteArray &payload)
{
    const HostEvent *event = findHostEvent(msgId);
    return event == nullptr ? QString() : fieldsText(event->answer, payload);
}

Sentence EventWords::say(EMsgId msgId, const QByteArray &payload, const QByteArray &reply)
{
    const auto [event, row] = find(msgId);
    Sentence sentence = event == nullptr ? Sentence(cContext, cUnknownForm, {payload.size()})
                                         : Sentence(cContext, row->form, valuesOf(*event, payload, reply));
    sentence.setNumber(msgId);
    return sentence;
}

bool EventWords::isQuestion(EMsgId msgId)
{
    const HostEvent *event = findHostEvent(msgId);
    return event != nullptr && *event->answer != '\0';
}

bool EventWords::isKnown(EMsgId msgId)
{
    return isHostEvent(msgId);
}
