#include "EngineBench.h"
#include "FuzzTargets.h"

#include "plugin/BaseEvent.h"
#include "plugin/EventPayload.h"
#include "plugin/PluginIds.h"
#include "plugin/VoipManageMessageProcess.h"

#include <QDataStream>

#include <iterator>

namespace {

// An input is a row of events: the command's place in this table, one byte of choices, two of the payload's length
// (low byte first), the payload. A length beyond the input's end ends it.
constexpr int cCommands[] = {
    MSG_UPDATE_USER_INFO,
    MSG_CLIENT_CONNECT_STATUS,
    MSG_CALL_SINGLE_USER,
    MSG_IS_EXIST_CALL,
    MSG_IS_VIDEO_CALL,
    MSG_RESPONSE_VOIP_REQUEST,
    MSG_CALL_CONFERENCE,
    MSG_SHOW_VOICE_CONF,
    MSG_EXIT_VOIP,
    MSG_RECEVIE_VOIP_CALL,
    0,
    -1,
    MSG_IS_EXIST_FRIEND,
    MSG_ADD_CONFERENCE_MEMBER,
    MSG_GET_FRIEND_INFO,
};
constexpr int cHeadBytes = 4;
constexpr int cMostEvents = 8;

/// From this row on the payload is what the host will answer to the plug-in's own request, raw.
constexpr int cFirstAnswer = 12;

enum Choice : uchar
{
    ForAnother = 1,
    ForNobody = 2,
    WithCard = 4,
    CallComesIn = 8,
};

/// The host writes true addresses: the one in the payload becomes that of `card`, or 0.
QByteArray withAddress(const QByteArray &payload, const VcardInfo *card)
{
    QDataStream reader(payload);
    QString userId;
    reader >> userId;
    const auto position = int(reader.device()->pos());
    const auto address = packPayload(static_cast<qint64>(reinterpret_cast<quintptr>(card)));
    if (payload.size() - position < address.size()) {
        return payload.left(position);
    }
    return payload.left(position) + address + payload.mid(position + address.size());
}

/// An answer with a record carries its address as well.
QByteArray answerOf(int command, const QByteArray &payload)
{
    static const FriendData s_record;
    if (command != MSG_GET_FRIEND_INFO || payload.size() < int(sizeof(qint64))) {
        return payload;
    }
    return packPayload(static_cast<qint64>(reinterpret_cast<quintptr>(&s_record)));
}

QString receiverOf(uchar choices)
{
    if (choices & ForAnother) {
        return sessionPluginId();
    }
    return choices & ForNobody ? QString() : voipPluginId();
}

/// Without the call window no other one comes up either, which keeps such inputs fast.
bool isAllowed(int command, const EngineBench &bench)
{
    if (bench.usesWindow()) {
        return true;
    }
    if (command == MSG_CALL_SINGLE_USER || command == MSG_CALL_CONFERENCE) {
        return !bench.manager->isExistCall() && bench.manager->m_bSocketConnected;
    }
    return command != MSG_SHOW_VOICE_CONF;
}

void deliver(EngineBench &bench, int row, uchar choices, const QByteArray &payload)
{
    static VcardInfo s_card;
    s_card.m_strNickName = QStringLiteral("Anna");
    const int command = cCommands[row];
    if (row >= cFirstAnswer) {
        bench.host.rawAnswers[command] = answerOf(command, payload);
        return;
    }
    if (choices & CallComesIn) {
        bench.manager->callbackMessage(0, QStringLiteral("anna"));
    }
    if (!isAllowed(command, bench)) {
        return;
    }
    const QByteArray data =
        command == MSG_UPDATE_USER_INFO ? withAddress(payload, choices & WithCard ? &s_card : nullptr) : payload;
    BaseEvent event(static_cast<EMsgId>(command), sessionPluginId(), receiverOf(choices), false, data);
    VoipManageMessageProcess::instance()->customEvent(&event);
    if ((command == MSG_IS_EXIST_CALL || command == MSG_IS_VIDEO_CALL) && !(choices & ForAnother)) {
        requirePromise(event.data.size() == 1, "a query is answered");
    }
}

void deliverAll(const QByteArray &input, EngineBench &bench)
{
    int position = 0;
    for (int count = 0; count < cMostEvents && input.size() - position >= cHeadBytes; ++count) {
        const auto byte = [&](int offset) { return uchar(input.at(position + offset)); };
        const int row = byte(0) % int(std::size(cCommands));
        const uchar choices = byte(1);
        const int length = byte(2) + 256 * byte(3);
        deliver(bench, row, choices, input.mid(position + cHeadBytes, length));
        position += cHeadBytes + length;
    }
    bench.reset();
}

} // namespace

void FuzzTargets::hostevent(const QByteArray &input)
{
    EngineBench::instance().begin(false);
    deliverAll(input, EngineBench::instance());
}

void FuzzTargets::hostwindow(const QByteArray &input)
{
    EngineBench::instance().begin(true);
    deliverAll(input, EngineBench::instance());
}
