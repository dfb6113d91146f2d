#include "plugin/BaseEvent.h"

#include <new>

BaseEvent::BaseEvent(EMsgId command, const QString &sender, const QString &receiver, bool queued,
                     const QByteArray &payload)
    : QEvent(QEvent::User), msgId(command), data(payload), senderId(sender), receiverId(receiver), bAsync(queued)
{
}

BaseEvent::~BaseEvent()
{
    for (void *block : qAsConst(extraList)) {
        ::operator delete(block);
    }
}
