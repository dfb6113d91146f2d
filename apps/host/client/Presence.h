#pragma once

#include <QColor>
#include <QString>

/// How a person can be reached, as the demo's windows show it by a dot and a word. GUI thread.
enum class Presence
{
    Offline,
    Online,
    Away,
    Busy
};

/// The word for it, in the client's language.
QString presenceWord(Presence presence);

/// The colour of the dot.
QColor presenceColour(Presence presence);

/// The number under which the client keeps it in the shared context: 0 for offline, others from 1 on.
int presenceState(Presence presence);
