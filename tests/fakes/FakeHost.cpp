#include "fakes/FakeHost.h"

void FakeHost::customEvent(QEvent *event)
{
    auto &command = *static_cast<BaseEvent *>(event);
    if (!bRecords) {
        answer(command);
        return;
    }
    ReceivedEvent received;
    received.msgId = command.msgId;
    received.senderId = command.senderId;
    received.receiverId = command.receiverId;
    received.bAsync = command.bAsync;
    received.bFlag = command.bFlag;
    received.payload = command.data;
    received.extraCount = command.extraList.size();
    received.type = command.type();
    received.event = &command;
    events.append(received);
    answer(command);
    if (whileHandled) {
        whileHandled(command);
    }
}

void FakeHost::answer(BaseEvent &event)
{
    const auto raw = rawAnswers.constFind(event.msgId);
    if (raw != rawAnswers.constEnd()) {
        event.data = *raw;
        return;
    }
    if (!bAnswers) {
        return;
    }
    switch (event.msgId) {
    case MSG_GET_FRIEND_INFO: {
        const auto record = m_records.find(PayloadReader(event.data).take<QString>());
        const FriendData &found = record == m_records.end() ? m_unknown : record->second;
        event.data = packPayload(static_cast<qint64>(reinterpret_cast<quintptr>(&found)));
        break;
    }
    case MSG_IS_EXIST_FRIEND:
        event.data = packPayload(friendJids.contains(PayloadReader(event.data).take<QString>()));
        break;
    case MSG_ADD_CONFERENCE_MEMBER:
        event.data = packPayload(membersToAdd);
        break;
    default:
        break;
    }
}

QList<ReceivedEvent> FakeHost::received(int msgId) const
{
    QList<ReceivedEvent> matching;
    for (const ReceivedEvent &event : events) {
        if (event.msgId == msgId) {
            matching.append(event);
        }
    }
    return matching;
}

QList<int> FakeHost::commands() const
{
    QList<int> numbers;
    for (const ReceivedEvent &event : events) {
        numbers.append(event.msgId);
    }
    return numbers;
}
