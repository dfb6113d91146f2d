#pragma once

// The side of the legs for tests: it keeps what the focus wants, and tells it what a test says. Test's thread.

#include "mixer/focus/Hall.h"
#include "mixer/focus/LegSide.h"

#include "conference/Talk.h"

#include <QMap>
#include <QSet>
#include <QStringList>

class RecordingSide : public Focus::LegSide
{
public:
    Focus::LegId ring(const QString &conferenceId, const QString &userId, const QByteArray &header) override;
    void answer(Focus::LegId leg) override;
    void refuse(Focus::LegId leg, int status, const QString &why) override;
    void end(Focus::LegId leg) override;
    void setSilent(Focus::LegId leg, bool silent) override;
    void send(Focus::LegId leg, const QByteArray &body) override;
    void note(const QString &text) override { notes.append(text); }

    /// A leg for a test's own arrival.
    Focus::LegId nextLeg() { return ++m_lastLeg; }

    /// A leg has ended without the focus.
    void forget(Focus::LegId leg)
    {
        open.remove(leg);
        up.remove(leg);
    }

    /// What was wanted since the last time, as "answer 1", "ring 2 bert", "send 1 members" ...
    QStringList takeLog();

    /// What was sent to a leg since the last time.
    QList<Talk::Message> takeBodies(Focus::LegId leg) { return bodies.take(leg); }

    /// The latest leg that rang at this user.
    Focus::LegId legOf(const QString &userId) const { return rung.value(userId, Focus::cNoLeg); }

    Focus::Hall *hall = nullptr; ///< unless null, told of each end before end() returns
    QSet<QString> unreachable;   ///< no leg can be made to these
    QStringList log;
    QStringList notes;
    QStringList reasons; ///< of what was refused
    QMap<QString, Focus::LegId> rung;
    QMap<QString, Talk::Message> invitations; ///< by user
    QMap<Focus::LegId, QList<Talk::Message>> bodies;
    QMap<Focus::LegId, bool> silent;
    QSet<Focus::LegId> open; ///< answered or ringing, and not ended
    QSet<Focus::LegId> up;   ///< those of them that are heard and hear, as a test says

private:
    Focus::LegId m_lastLeg = Focus::cNoLeg;
};
