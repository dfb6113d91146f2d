#include "soak/UndeletedEvents.h"

#include "plugin/BaseEvent.h"
#include "soak/Footprint.h"

#include <algorithm>

UndeletedEvents::~UndeletedEvents()
{
    take();
}

bool UndeletedEvents::eventFilter(QObject *, QEvent *event)
{
    if (event->type() == QEvent::User) {
        auto *command = static_cast<BaseEvent *>(event);
        const auto *const kind = std::find(cKinds.begin(), cKinds.end(), command->msgId);
        if (kind != cKinds.end()) {
            ++m_taken.at(std::size_t(kind - cKinds.begin()));
            m_events.push_back(command);
        }
    }
    return false;
}

void UndeletedEvents::take()
{
    const qint64 before = Footprint::heapInUse();
    for (BaseEvent *event : m_events) {
        delete event;
    }
    m_bytes += before - Footprint::heapInUse();
    m_events = {};
}

qint64 UndeletedEvents::taken(EMsgId kind) const
{
    const auto *const place = std::find(cKinds.begin(), cKinds.end(), kind);
    return m_taken.at(std::size_t(place - cKinds.begin()));
}
