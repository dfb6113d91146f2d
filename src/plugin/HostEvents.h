#pragma once

// The events between the host and this plug-in as rows: which way each goes and what it carries. Constants alone; any
// thread.

#include "plugin/EMsgId.h"

#include <algorithm>
#include <array>
#include <string_view>

/// Which way an event goes.
enum class EventWay
{
    Command, ///< from the host to the plug-in
    Request, ///< from the plug-in to one of the host's others
};

/// One event.
struct HostEvent
{
    EMsgId msgId;
    EventWay way;
    const char *fields; ///< the payload's fields, "type:name" in stream order, parted by blanks
    const char *answer; ///< those of the payload that replaces it; empty where nothing is answered
};

/// Every event, in the order of their numbers.
inline constexpr std::array cHostEvents{
#define HOST_EVENT(name, number, way, fields, answer) HostEvent{name, EventWay::way, fields, answer},
#include "plugin/HostEvents.def"
#undef HOST_EVENT
};

/// The row of a number, null for one that is not of this plug-in.
constexpr const HostEvent *findHostEvent(int iMsgId)
{
    for (const HostEvent &event : cHostEvents) {
        if (event.msgId == iMsgId) {
            return &event;
        }
    }
    return nullptr;
}

/// Whether this plug-in has an event of that number. Without a pointer, which builds that check them compare at run
/// time only.
constexpr bool isHostEvent(int iMsgId)
{
    for (const HostEvent &event : cHostEvents) {
        if (event.msgId == iMsgId) {
            return true;
        }
    }
    return false;
}

/// Whether each field of a payload is "type:name" and has one of the table's types.
constexpr bool areFieldsKnown(std::string_view fields)
{
    while (!fields.empty()) {
        const std::string_view field = fields.substr(0, fields.find(' '));
        if (field.size() < 3 || field[1] != ':' ||
            std::string_view("biqslpr").find(field[0]) == std::string_view::npos) {
            return false;
        }
        fields.remove_prefix(std::min(field.size() + 1, fields.size()));
    }
    return true;
}

/// Whether those of every event are.
constexpr bool areFieldsKnown()
{
    for (const HostEvent &event : cHostEvents) {
        if (!areFieldsKnown(event.fields) || !areFieldsKnown(event.answer)) {
            return false;
        }
    }
    return true;
}
static_assert(areFieldsKnown(), "a field of an event is a letter of b, i, q, s, l, p and r, a colon and a name");

/// Whether `rows`, which have a member `msgId`, tell of each event that goes this way once, and of no other.
template <class Rows>
constexpr bool tellOfEveryEvent(const Rows &rows, EventWay way)
{
    for (const HostEvent &event : cHostEvents) {
        int found = 0;
        for (const auto &row : rows) {
            found += row.msgId == event.msgId ? 1 : 0;
        }
        if (found != (event.way == way ? 1 : 0)) {
            return false;
        }
    }
    for (const auto &row : rows) {
        if (!isHostEvent(row.msgId)) {
            return false;
        }
    }
    return true;
}
