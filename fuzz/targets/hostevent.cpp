#include "EngineBench.h"
#include "FuzzTargets.h"

#include "plugin/BaseEvent.h"
#include "plugin/EventPayload.h"
#include "plugin/HostEvents.h"
#include "plugin/PluginIds.h"
#include "plugin/VoipManageMessageProcess.h"
#include "wire/Notifications.h"

#include <QDataStream>

#include <iterator>

namespace {

// An input is a row of events: the event's place in the list of all, one byte of choices, two of the payload's length
// (low byte first), the payload. A length beyond the input's end ends it.
constexpr int cHeadBytes = 4;
constexpr int cMostEvents = 8;

/// What the two places behind the list send: numbers of no event of this plug-in.
constexpr int cForeignNumbers[] = {0, -1};
constexpr int cEvents = int(cHostEvents.size());
constexpr int cPlaces = cEvents + int(std::size(cForeignNumbers));

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

bool isAnswered(const HostEvent *event, EventWay way)
{
    return event && event->way == way && *event->answer;
}

void sendToPlugin(int command, uchar choices, const QByteArray &payload)
{
    static VcardInfo s_card;
    s_card.m_strNickName = QStringLiteral("Anna");
    const QByteArray data =
        command == MSG_UPDATE_USER_INFO ? withAddress(payload, choices & WithCard ? &s_card : nullptr) : payload;
    BaseEvent event(static_cast<EMsgId>(command), sessionPluginId(), receiverOf(choices), false, data);
    VoipManageMessageProcess::instance()->customEvent(&event);
    if (isAnswered(findHostEvent(command), EventWay::Command) && !(choices & ForAnother)) {
        requirePromise(event.data.size() == 1, "a query is answered");
    }
}

void deliver(EngineBench &bench, int place, uchar choices, const QByteArray &payload)
{
    const int command = place < cEvents ? cHostEvents[place].msgId : cForeignNumbers[place - cEvents];
    // The payload of a question to the host is what it will answer, raw. All else is sent to the plug-in, also the
    // requests without an answer, which it does not serve.
    if (isAnswered(findHostEvent(command), EventWay::Request)) {
        bench.host.rawAnswers[command] = answerOf(command, payload);
        return;
    }
    if (choices & CallComesIn) {
        bench.manager->callbackMessage(int(Wire::Code::IncomingCall), QStringLiteral("anna"));
    }
    if (isAllowed(command, bench)) {
        sendToPlugin(command, choices, payload);
    }
}

void deliverAll(const QByteArray &input, EngineBench &bench)
{
    int position = 0;
    for (int count = 0; count < cMostEvents && input.size() - position >= cHeadBytes; ++count) {
        const auto byte = [&](int offset) { return uchar(input.at(position + offset)); };
        const int place = byte(0) % cPlaces;
        const uchar choices = byte(1);
        const int length = byte(2) + 256 * byte(3);
        deliver(bench, place, choices, input.mid(position + cHeadBytes, length));
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
