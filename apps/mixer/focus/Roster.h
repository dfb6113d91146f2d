#pragma once

// Who belongs to a conference, and how it stands with each of them. Owned by the conference; main thread.

#include "mixer/focus/LegSide.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

namespace Focus {

struct Member
{
    enum class State
    {
        Invited,   ///< it rings there, or is about to
        Arriving,  ///< called by himself and was answered; nothing is heard yet
        Connected, ///< in the conference
        Awaited,   ///< was in it before its mixer was lost, and should call again
        Left,
        Busy,
        Refused,
        Failed, ///< could not be reached
    };

    QString id;
    State state = State::Invited;
    bool muted = false;
    bool isIn = false; ///< the others take him for one who is in it: nobody has been told that he had left
    LegId leg = cNoLeg;
    QStringList askers; ///< who has called him and waits for the outcome

    /// Whether he takes part, or is about to.
    bool isPresent() const { return state < State::Left; }
};

class Roster
{
public:
    /// With the creator alone.
    explicit Roster(const QString &creator);

    /// Who made the conference, which he stays after he has left.
    const QString &creator() const { return m_creator; }

    /// Everybody, in the order in which they came to belong to it. What it leads to stays where it is until forgotten.
    const std::vector<std::unique_ptr<Member>> &members() const { return m_members; }

    /// Null for somebody who does not belong to the conference.
    Member *find(const QString &id) const;

    /// The member of this id, a new one where there was none.
    Member &take(const QString &id);

    /// As if he had never belonged to it. No effect on the creator.
    void forget(const QString &id);

    /// Forgets who is not present, the first one first, until there are at most `most` members.
    void forgetAbsent(int most);

    /// How many take part, or are about to.
    int presentCount() const;

    /// Whether somebody is in it, or is about to come by himself.
    bool isInUse() const;

    QStringList ids() const;
    QStringList connected() const;
    QStringList muted() const;

private:
    QString m_creator;
    std::vector<std::unique_ptr<Member>> m_members;
    QHash<QString, Member *> m_byId;
};

} // namespace Focus
