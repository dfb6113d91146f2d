#pragma once

// What the rows of the member list, the history list and the detail page keep in their item data, and the status codes
// of a conference member with their texts and colours, which the call engine and the lists share. Constants and pure
// functions; any thread.

#include <QColor>
#include <QString>
#include <QTime>
#include <QVector>

#include <array>

/// Numbers of the item data; model/MemberRoles.def tells what each holds.
enum MemberRole : int
{
#define MEMBER_ROLE(name, number, shown) name = Qt::UserRole + (number),
#include "model/MemberRoles.def"
#undef MEMBER_ROLE
};

/// Whether data of these roles changes a row's picture. Any role that is not one of the table's counts as shown, and so
/// does an empty list, which means "anything".
bool areRolesShown(const QVector<int> &roles);

/// Status codes of a member; model/MemberStatuses.def tells what each reads.
enum ConferenceStatus : int
{
#define CONFERENCE_STATUS(name, number, text, color) name = (number),
#include "model/MemberStatuses.def"
#undef CONFERENCE_STATUS
};

/// The colour of a connected member's status and of the mute button under the cursor.
constexpr QColor cMute_Button_Hover_Color(0, 185, 31);

/// A status code outside the table, as that of a conference that nobody joined.
constexpr int cNotReached = -1;

/// One status code, its text in UTF-8, and its text colour: not valid where it is the painter's own.
struct ConferenceStatusRow
{
    int iStatus;
    const char *pText;
    QColor color;
};

/// All status codes that have a text of their own.
inline constexpr std::array cConferenceStatusTable{
#define CONFERENCE_STATUS(name, number, text, color) ConferenceStatusRow{name, text, color},
#include "model/MemberStatuses.def"
#undef CONFERENCE_STATUS
};

/// The watchdog looks at the rows in this interval, in milliseconds.
constexpr int cInviteCheckInterval = 120000;

/// A member who has not answered for this long was not reached, in milliseconds.
constexpr int cInviteLimit = 120001;

/// The text of a status code; any code outside the table gives "未接通".
QString conferenceStatusText(int iStatus);

/// The same in the user's language, for a screen reader.
QString conferenceStatusWords(int iStatus);

/// The text colour of a status code; not valid where the painter's own is to stay.
QColor conferenceStatusColor(int iStatus);

/// Whether an invitation at `inviteTime` is past the limit at `now`. Both are times of the day: an invitation before
/// midnight does not run out after it.
bool isInviteOver(const QTime &inviteTime, const QTime &now);

/// Whether the one who placed the conference can take a member of this status out of it.
bool canRemove(int iStatus);

/// Whether the one who placed the conference can mute a member of this status.
bool canMute(int iStatus);

/// Whether a member of this status can be called again.
bool canReInvite(int iStatus);
