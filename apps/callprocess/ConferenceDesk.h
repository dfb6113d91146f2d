#pragma once

// The conferences of the exchange: at most one at a time, requested by the plug-in or by a robot that invites it. It
// knows who is connected and tells the plug-in of each change. Owned by the exchange; main thread.

#include "callprocess/PacedOutlet.h"
#include "callprocess/RobotTable.h"

#include <QObject>
#include <QStringList>

#include <map>
#include <memory>

class ConferenceDesk : public QObject
{
    Q_OBJECT

public:
    /// `outlet` outlives the desk.
    explicit ConferenceDesk(PacedOutlet &outlet, QObject *parent = nullptr);
    ~ConferenceDesk() override;

    /// Whether a conference is being created, the plug-in is invited to one or is in one.
    bool hasConference() const { return m_phase != Phase::None; }

    /// The plug-in's user `ownId` asks for a conference with `members`; one that was still there ends without a word.
    /// When none of the members can be reached there is no conference, unless nobody was to be called.
    void request(const QString &ownId, const QStringList &members);

    /// A robot invites `ownId` to a conference of its own.
    void invite(const Robot &robot, const QString &ownId);

    /// The plug-in accepts the invitation, otherwise no effect.
    void accept();

    /// The plug-in adds `users`; those who are in already are passed over. Answered by the list of failed ones.
    void add(const QStringList &users);

    /// The plug-in removes, mutes or unmutes a connected member, or every one but the creator ("non_moderator"). The
    /// trace says who obeyed; only a removal is told to the plug-in.
    void control(const QString &operation, const QString &userId);

    /// The plug-in rejects or hangs up: the conference is over for it.
    void end();

private:
    enum class Phase
    {
        None,
        Creating,
        Invited,
        Joined,
    };

    void open(Phase phase, const QString &ownId, const QString &creator);
    void afterInConference(int delayMs, const std::function<void()> &action);
    void join(const Robot *creator);
    bool canReach(const QString &id) const;

    /// Calls each of the users; gives the ids that cannot be reached.
    QStringList callMembers(const QStringList &users);
    void callMember(const Robot &robot);
    void memberReplies(const Robot &robot);
    void memberJoins(const Robot &robot);
    void memberLeaves(const QString &id);
    QStringList controlled(const QString &userId) const;
    void tellOfAnotherConference();
    void tellAddResult(const QStringList &failed);
    QString document(const QString &from) const;

    PacedOutlet &m_outlet;
    Phase m_phase = Phase::None;
    QString m_ownId;
    QString m_creator;
    QString m_confId;
    qint64 m_createTime = 0; // milliseconds since 1970, 0: not told
    QStringList m_connected;
    QStringList m_muted;
    std::unique_ptr<QObject> m_timers; // context of the conference's own timers: they go with it
    std::map<QString, std::unique_ptr<QObject>> m_memberTimers; // the same for each member that was called
};
