#pragma once

// The call process's half of the wire's vocabulary: the notifications with their codes and what their content is. Rows
// of wire/Notifications.def; docs/wire-protocol.md tells them in words. Constants alone, without Qt; any thread.

#include <array>

namespace Wire {

/// The codes that have a name. The type is fixed, so it holds any other number of the wire as well.
enum class Code : int
{
#define WIRE_NOTIFICATION(number, name, content) name = (number),
#define WIRE_OPEN_CODE(number)
#include "wire/Notifications.def"
#undef WIRE_OPEN_CODE
#undef WIRE_NOTIFICATION
};

/// What the content of a notification is.
enum class Content
{
    None,       ///< nothing that is read
    Text,       ///< a plain text
    Conference, ///< a document: who caused it, who is connected, the conference's id, when it was created
    Creation,   ///< a document: the id of the conference that was asked for
    Addition,   ///< a document: who could not be added
    Open,       ///< not settled
};

/// The keys of a notification.
inline constexpr const char *cKeyResultCode = "resultCode";
inline constexpr const char *cKeyContent =
    "content"; ///< of a text; in a Conference that is this text, the inner object

// The keys of the documents in such a text.
inline constexpr const char *cKeyFrom = "from";                   ///< Conference: who caused it
inline constexpr const char *cKeyConventioneer = "conventioneer"; ///< Conference: who is connected
inline constexpr const char *cKeyConfId = "confId";               ///< Conference, Creation
inline constexpr const char *cKeyCreateTime = "createTime";       ///< Conference
inline constexpr const char *cKeyResult = "result";               ///< Creation, Addition: the inner object
inline constexpr const char *cKeyFailedNums = "failedNums";       ///< Addition

/// One notification.
struct NotificationRow
{
    Code code;
    const char *name; ///< empty for an open code
    Content content;
};

/// Every notification that a call process sends, in the order of their numbers.
inline constexpr std::array cNotifications{
#define WIRE_NOTIFICATION(number, name, content) NotificationRow{Code::name, #name, Content::content},
#define WIRE_OPEN_CODE(number) NotificationRow{static_cast<Code>(number), "", Content::Open},
#include "wire/Notifications.def"
#undef WIRE_OPEN_CODE
#undef WIRE_NOTIFICATION
};

/// The row of a number, null for one that no notification has.
constexpr const NotificationRow *findNotification(int code)
{
    for (const NotificationRow &row : cNotifications) {
        if (static_cast<int>(row.code) == code) {
            return &row;
        }
    }
    return nullptr;
}

/// Whether `rows`, which have a member `code`, tell of every notification but the open ones, in the order of the table.
template <class Rows>
constexpr bool tellOfEveryNotification(const Rows &rows)
{
    auto expected = cNotifications.begin();
    for (const auto &row : rows) {
        while (expected != cNotifications.end() && expected->content == Content::Open) {
            ++expected;
        }
        if (expected == cNotifications.end() || row.code != expected->code) {
            return false;
        }
        ++expected;
    }
    while (expected != cNotifications.end() && expected->content == Content::Open) {
        ++expected;
    }
    return expected == cNotifications.end();
}

} // namespace Wire
