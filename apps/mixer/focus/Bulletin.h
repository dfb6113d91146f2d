#pragma once

// What the members of a conference are to be told: gathered as it happens, and then told once. Owned by the conference;
// main thread.

#include "mixer/focus/Roster.h"

#include "conference/Talk.h"

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

#include <vector>

namespace Focus {

/// A body and who gets it. It is empty where there is more to tell than fits.
struct Letter
{
    LegId leg;
    QByteArray body;
};

class Bulletin
{
public:
    /// How it stands is not as it was told.
    void noteChange() { m_changed = true; }

    /// Somebody is in the conference now.
    void noteJoined(const QString &id) { m_joined.append(id); }

    /// Somebody who was in the conference is not any more.
    void noteLeft(const QString &id) { m_left.append(id); }

    /// Somebody whom `asker` wanted called does not come: Busy, Refused, and in any other state he has failed.
    void noteOutcome(const QString &asker, Member::State state, const QString &id);

    /// A word of this user's was refused.
    void noteDenial(const QString &userId, const QString &word, const QString &why);

    /// What is to be told by now, which then counts as told: where it has changed, to each who is in the conference how
    /// it stands, then to those who have called somebody what came of it, then to whoever was refused something why.
    /// What was refused comes in `notes` too, a line for a user. `head` has id, creation time and creator.
    std::vector<Letter> take(const Roster &roster, const Talk::Message &head, QStringList *notes);

private:
    struct Denial
    {
        QString word;
        QString why;
        int more; // behind the first
    };

    QList<QByteArray> takeMembers(const Roster &roster, Talk::Message head);

    bool m_changed = false;
    QStringList m_joined;
    QStringList m_left;
    QMap<QString, Talk::Message> m_outcomes; // by who has called
    QMap<QString, Denial> m_denials;         // by user
};

} // namespace Focus
