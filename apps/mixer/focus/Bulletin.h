#pragma once

// What the members of a conference are to be told: gathered, and then told once, however often it has changed. Owned by
// the conference; main thread.

#include "mixer/focus/Roster.h"

#include "conference/Talk.h"

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

#include <vector>

namespace Focus {

/// A body and who gets it.
struct Letter
{
    LegId leg;
    QByteArray body;
};

class Bulletin
{
public:
    /// Somebody was in the conference and does not belong to it any more.
    void noteRemoved(const QString &id) { m_removed.append(id); }

    /// Somebody whom `asker` wanted called could not even be tried.
    void noteFailure(const QString &asker, const QString &id) { m_failures[asker].append(id); }

    /// A word of this user's was refused.
    void noteDenial(const QString &userId, const QString &word, const QString &why);

    /// What is to be told by now, which then counts as told: to each who is in the conference how it stands, then to
    /// those who have called somebody what came of it, then to whoever was refused something why. What was refused
    /// comes in `notes` too, a line for a user. `head` has id, creation time and creator.
    std::vector<Letter> take(const Roster &roster, Talk::Message head, QStringList *notes);

private:
    struct Denial
    {
        QString word;
        QString why;
        int more; // behind the first
    };

    QStringList m_removed;
    QMap<QString, QStringList> m_failures; // by who has called
    QMap<QString, Denial> m_denials;       // by user
};

} // namespace Focus
