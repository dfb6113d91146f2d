#pragma once

// What a row of the conference member list keeps in its item data, and the status codes that the call engine and the
// list share. Constants and pure functions; any thread.

#include <QString>
#include <QTime>

#include <array>

/// Numbers of the item data. The same number means the same in every list of the user interface.
enum ConferenceRole : int
{
    ROLE_DISPLAY_NAME = Qt::UserRole + 1,   ///< QString: the shown name
    ROLE_HEAD_PATH = Qt::UserRole + 2,      ///< QString: path of the head picture
    ROLE_CALL_BY_ME = Qt::UserRole + 13,    ///< bool: this user placed the conference, as known when the row was made
    ROLE_INVITE_TIME = Qt::UserRole + 83,   ///< QTime: when the member was last invited
    ROLE_IS_CREATOR = Qt::UserRole + 85,    ///< bool: the member created the conference
    ROLE_USER_ID = Qt::UserRole + 90,       ///< QString: the uid
    ROLE_CALL_STATUS = Qt::UserRole + 139,  ///< int: a status code of the table below
    ROLE_REMOVE_RECT = Qt::UserRole + 140,  ///< QRect: the remove button as last painted
    ROLE_REMOVE_HOVER = Qt::UserRole + 141, ///< bool: the cursor is on the remove button
    ROLE_MUTE_RECT = Qt::UserRole + 142,    ///< QRect: the mute button as last painted
    ROLE_MUTE_HOVER = Qt::UserRole + 143,   ///< bool: the cursor is on the mute button
    ROLE_MUTED = Qt::UserRole + 144         ///< bool: the member is muted
};

/// Status codes of a member. Any other number reads "未接通".
enum ConferenceStatus : int
{
    ConferenceCalling = 0,
    ConferenceConnected = 1,
    ConferenceFailed = 2,
    ConferenceBusy = 3,
    ConferenceHungUp = 4,
    ConferenceRejected = 5
};

/// One status code and its text in UTF-8.
struct ConferenceStatusRow
{
    int iStatus;
    const char *pText;
};

/// All status codes that have a text of their own.
constexpr std::array<ConferenceStatusRow, 6> cConferenceStatusTable{{
    {ConferenceCalling, "呼叫中"},
    {ConferenceConnected, "已接通"},
    {ConferenceFailed, "呼叫失败"},
    {ConferenceBusy, "对方正忙"},
    {ConferenceHungUp, "已挂断"},
    {ConferenceRejected, "已拒绝"},
}};

/// The watchdog looks at the rows in this interval, in milliseconds.
constexpr int cInviteCheckInterval = 120000;

/// A member who has not answered for this long was not reached, in milliseconds.
constexpr int cInviteLimit = 120001;

/// The text of a status code; any code outside the table gives "未接通".
QString conferenceStatusText(int iStatus);

/// Whether an invitation at `inviteTime` is past the limit at `now`. Both are times of the day: an invitation before
/// midnight does not run out after it.
bool isInviteOver(const QTime &inviteTime, const QTime &now);

/// Whether a member of this status can be called again.
bool canReInvite(int iStatus);
