#pragma once

// What a screen reader says of the rows of both conference lists, and what keys and menus call the things that can be
// done with a row, in the user's language. What is painted stays in the lists' own words. Pure functions; GUI thread.

#include <QString>

class QModelIndex;

namespace RowWords {

/// A row of the member list: who, what came of the call, and whether the member is muted or created the conference.
QString ofMember(const QModelIndex &index);

/// A row of the history: who, how long or that nobody came, when, and who called.
QString ofConference(const QString &strCreator, bool bConnected, const QString &strCallTime,
                     const QString &strCreatTime, bool bCreatedByMe);

/// Who called a conference together: the user or another.
QString direction(bool bCreatedByMe);

/// "Mute", or "Unmute" for one who is muted.
QString muteOrUnmute(bool bMuted);

/// Taking a member out of the conference.
QString removal();

/// Calling a member again.
QString callAgain();

} // namespace RowWords
