#pragma once

#include <QColor>
#include <QString>

/// How a person can be reached, as the demo's windows show it by a dot and a word. GUI thread.
enum class Presence
{
    Offline,
    Online,
    Away,
    Busy,
    Unknown ///< nobody tells: neither dot nor word
};

/// The word for it, in the client's language; empty where it is unknown.
QString presenceWord(Presence presence);

/// "Maria Silva, busy", for who cannot see the dot; the name alone where it is unknown.
QString withPresence(const QString &strName, Presence presence);

/// The colour of the dot; an invalid one where there is none.
QColor presenceColour(Presence presence);

/// The number under which the client keeps it in the shared context: 0 for offline, others from 1 on. Who may be there
/// is kept as online.
int presenceState(Presence presence);
