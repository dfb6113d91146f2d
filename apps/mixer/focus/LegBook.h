#pragma once

// All legs of a mixer: whose they are, and how many there may be. Owned by the hall; main thread.

#include "mixer/focus/LegSide.h"

#include <QHash>
#include <QString>

namespace Focus {

/// What a leg is for.
struct LegPlace
{
    QString conferenceId;
    QString userId;
};

class LegBook
{
public:
    /// `most` legs at once.
    explicit LegBook(int most) : m_most(most) {}

    /// How many more there may be, never below 0.
    int room() const;

    int count() const { return m_places.size(); }

    void enter(LegId leg, const LegPlace &place) { m_places.insert(leg, place); }
    void erase(LegId leg) { m_places.remove(leg); }

    /// An empty place for a leg that is not in the book.
    LegPlace find(LegId leg) const { return m_places.value(leg); }

private:
    QHash<LegId, LegPlace> m_places;
    int m_most;
};

} // namespace Focus
