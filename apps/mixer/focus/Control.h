#pragma once

// Who may what in a conference: what a word of a member's means, or why it means nothing. Functions; main thread.

#include "mixer/focus/Roster.h"

#include "conference/Talk.h"

#include <QString>
#include <QStringList>

namespace Focus {

/// What becomes of a word.
struct Verdict
{
    QStringList users; ///< whom it is for
    QString refusal;   ///< why it is for nobody; empty where it is allowed
};

/// Judges what `sender`, who is in the conference by a leg of his own, says there: Add, Kick, Mute or Unmute. Whom an
/// Add is for need not belong to the conference yet.
Verdict judged(const Talk::Message &message, const Roster &roster, const QString &sender);

} // namespace Focus
