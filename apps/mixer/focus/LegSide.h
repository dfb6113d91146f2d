#pragma once

// What the focus wants of the calls that members and mixer have with each other, its legs. Whoever carries them out
// owns the calls and tells the hall what becomes of them (mixer/focus/Hall.h). Main thread.

#include <QByteArray>
#include <QString>

namespace Focus {

/// A leg, by a number that no other one has or gets.
using LegId = int;

/// What is no leg.
inline constexpr LegId cNoLeg = 0;

class LegSide
{
public:
    LegSide() = default;
    LegSide(const LegSide &) = delete;
    LegSide &operator=(const LegSide &) = delete;
    virtual ~LegSide() = default;

    /// Calls a user for a conference, with this in the invitation's header. The new leg, cNoLeg where there can be
    /// none; what becomes of it is told later, never from within.
    virtual LegId ring(const QString &conferenceId, const QString &userId, const QByteArray &header) = 0;

    /// Takes an arrived leg into the conference that it was for.
    virtual void answer(LegId leg) = 0;

    /// Declines an arrived leg, with a status of SIP and a reason for an operator.
    virtual void refuse(LegId leg, int status, const QString &why) = 0;

    /// Ends a leg, one that still rings too. Nothing need be told of it any more.
    virtual void end(LegId leg) = 0;

    /// Whether a leg that is up is heard by nobody; it hears on.
    virtual void setSilent(LegId leg, bool silent) = 0;

    /// Hands a body on to a leg that is up, behind those before.
    virtual void send(LegId leg, const QByteArray &body) = 0;

    /// Something that an operator should know, on one line.
    virtual void note(const QString &text) = 0;
};

} // namespace Focus
