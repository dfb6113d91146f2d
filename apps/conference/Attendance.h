#pragma once

// A conference as one member's call process has it: what is said to the mixer, and what becomes of the mixer's words on
// the wire, in which order. It carries nothing out itself. Owned by whoever has the legs; any thread.

#include "conference/Talk.h"
#include "wire/Notifications.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

/// A notification for the plug-in.
struct ConferenceLine
{
    Wire::Code code;
    QString content;
};

using ConferenceLines = QList<ConferenceLine>;

class Attendance
{
public:
    /// Whether there is a conference: asked for, invited to, or in it.
    bool isThere() const { return m_phase != Phase::None; }

    /// Empty where there is no conference.
    const QString &id() const { return m_last.id; }

    /// `ownId` asks for a conference with these, whose id is a new one: what is to be said for it. One that was there
    /// is left.
    Talk::Message request(const QString &ownId, const QStringList &members, bool flag, const QString &text);

    /// An invitation came with this in its header. Without a line it is none, or there is a conference already, which
    /// stays as it is.
    ConferenceLines takeInvitation(const QByteArray &header);

    /// What was asked for is answered.
    ConferenceLines takeAnswer();

    /// What was asked for is declined, for this reason.
    ConferenceLines takeRefusal(const QString &why);

    /// The sound of the leg runs.
    ConferenceLines takeMedia();

    /// A body came on the leg, any bytes.
    ConferenceLines takeBody(const QByteArray &body);

    /// The leg was ended from there, or an invitation taken back.
    ConferenceLines takeEnd();

    /// What is to be said where the mixer was lost and the conference is called again. It goes on as if nothing had
    /// been: neither answer nor sound are told twice. It always fits its header: where many are remembered, those who
    /// are away are left out first. What was asked for is asked for again where nothing was heard of it yet.
    Talk::Message resumption() const;

    /// The user has left, or declined.
    void leave() { *this = Attendance(); }

private:
    enum class Phase
    {
        None,
        Asked,
        Invited,
        Answered,
        Running, // the sound has been told
    };

    ConferenceLines take(const Talk::Message &message);
    ConferenceLines takeMembers(const Talk::Message &message);
    ConferenceLines takeOutcome(const Talk::Message &message);

    Phase m_phase = Phase::None;
    Talk::Message m_last; // how it stood last; before, what was asked for or invited to
    // Until the sound has been told:
    QString m_cameMeanwhile; // the last one
    Talk::Message m_held;    // the outcomes of all
};
