#include "EventWords.h"

#include "CallRecord.h"

#include "plugin/EventPayload.h"

#include <QStringList>

namespace {

// Fields are "type:name" in stream order. Types: b bool, i 32-bit number, q 64-bit number, s text, l list of texts,
// p address, r reason of a call's end.
struct EventRow
{
    EMsgId msgId;
    const char *words;
    const char *fields;
    const char *answer;
};

constexpr EventRow rows[] = {
    {MSG_UPDATE_USER_INFO, "a user's card", "s:user p:card", ""},
    {MSG_CLIENT_CONNECT_STATUS, "login state", "b:connected", ""},
    {MSG_GET_FRIEND_INFO, "who is", "s:jid", "p:record"},
    {MSG_GET_STRANGER_SMALL_VCARD, "fetch cards", "l:users l:versions b:flag", ""},
    {MSG_SHOW_SIGN_LIST, "show signature card", "s:text i:x i:y i:height b:b1 b:b2", ""},
    {MSG_IS_EXIST_FRIEND, "is a contact", "s:jid", "b:known"},
    {MSG_CLOSE_AV_MSGBOX, "take the prompt away", "s:jid", ""},
    {MSG_CALL_SINGLE_USER, "call a user", "b:video s:user", ""},
    {MSG_CALL_FINISHED, "call finished", "b:video s:user r:result b:caller b:connected q:seconds", ""},
    {MSG_IS_EXIST_CALL, "is there a call", "", "b:call"},
    {MSG_IS_VIDEO_CALL, "is it a video call", "", "b:video"},
    {MSG_CLOSE_SIGN_LIST, "hide signature card", "", ""},
    {MSG_RECEVIE_VOIP_CALL, "incoming call", "s:user b:conference b:video", ""},
    {MSG_RESPONSE_VOIP_REQUEST, "answer to the prompt", "b:accept", ""},
    {MSG_CALL_CONFERENCE, "start a conference", "l:members s:text b:flag", ""},
    {MSG_CREATE_VOICE_CONFERENCE, "pick members of a conference", "l:users", ""},
    {MSG_ADD_CONFERENCE_MEMBER, "pick further members", "l:present", "l:users"},
    {MSG_SHOW_VOICE_CONF, "show the conference centre", "", ""},
    {MSG_EXIT_VOIP, "quit", "", ""},
};

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

const EventRow *rowOf(EMsgId msgId)
{
    for (const EventRow &row : rows) {
        if (row.msgId == msgId) {
            return &row;
        }
    }
    return nullptr;
}

} // namespace

QString EventWords::describe(EMsgId msgId, const QByteArray &payload)
{
    const EventRow *row = rowOf(msgId);
    if (row == nullptr) {
        return QString::number(msgId);
    }
    const QString head = QStringLiteral("%1 %2").arg(int(msgId)).arg(QString::fromLatin1(row->words));
    const QString fields = fieldsText(row->fields, payload);
    return fields.isEmpty() ? head : head + QStringLiteral(": ") + fields;
}

QString EventWords::answer(EMsgId msgId, const QByteArray &payload)
{
    const EventRow *row = rowOf(msgId);
    return row == nullptr ? QString() : fieldsText(row->answer, payload);
}

QVariantList EventWords::values(EMsgId msgId, const QByteArray &payload, const QByteArray &reply)
{
    QVariantList values;
    if (const EventRow *row = rowOf(msgId)) {
        appendValues(row->fields, payload, &values);
        appendValues(row->answer, reply, &values);
    }
    return values;
}

bool EventWords::isQuestion(EMsgId msgId)
{
    const EventRow *row = rowOf(msgId);
    return row != nullptr && *row->answer != '\0';
}

int EventWords::count()
{
    return int(std::size(rows));
}
