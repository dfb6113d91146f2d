#pragma once

// One conference: its legs, from its first to its last. It begins with the creator's word, or with that of a member
// whose mixer was lost, and is over when nobody is in it any more. Owned by the hall; main thread.

#include "mixer/focus/Bulletin.h"
#include "mixer/focus/LegBook.h"
#include "mixer/focus/Limits.h"
#include "mixer/focus/Roster.h"

#include "conference/Talk.h"

#include <QObject>
#include <QString>
#include <QTimer>

namespace Focus {

/// For how long changes are gathered before they are told, in milliseconds: of 30 members who come within a second each
/// is told of four times, and not thirty times.
inline constexpr int cGatherMs = 250;

/// For how long those are awaited who were in a conference whose mixer was lost, in milliseconds. Longer than a call
/// process takes to notice that.
inline constexpr int cAwaitMs = 15000;

// What an arrival is refused with, statuses of SIP.
inline constexpr int cStatusMalformed = 400;
inline constexpr int cStatusForbidden = 403;
inline constexpr int cStatusFull = 503;

class Conference : public QObject
{
    Q_OBJECT

public:
    /// Opened by `opener` with a Create or a Resume, whose members are within the limits. All of them outlive it.
    Conference(const Talk::Message &opening, const QString &opener, LegSide &side, LegBook &book, const Limits &limits,
               QObject *parent = nullptr);
    ~Conference() override;

    /// A user calls by himself: answered where he belongs to the conference, and takes the place of his earlier leg.
    void admit(LegId leg, const QString &userId, const Talk::Message &message);

    /// A leg of this member's is up: he hears and is heard.
    void takeUp(const QString &userId);

    /// The member's leg was declined, with a status of SIP.
    void takeRefusal(const QString &userId, int status);

    /// The member's leg has ended, by him or by a loss.
    void takeEnd(const QString &userId);

    /// A body from the member.
    void takeBody(const QString &userId, const QByteArray &body);

signals:
    /// Nobody is in it any more, and none of its legs is left. Nothing may be asked of it from then on.
    void over();

private:
    void open(const Talk::Message &opening, const QString &opener);
    void adopt(const Talk::Message &message);
    void callInvited();
    QByteArray invitation() const;
    void ring(Member &member, const QByteArray &header);
    void apply(const Talk::Message &message, const QString &sender, const QStringList &users);
    void add(const QStringList &users, const QString &sender);
    QString refusalOfOneMore() const;
    QString fullness() const;
    void remove(const QString &userId, const char *why);
    void setMuted(const QString &userId, bool muted);
    void settle(Member &member, Member::State state);
    void dropLeg(Member &member, const QString &why);
    void deny(const QString &userId, const QString &word, const QString &why);
    void gather();
    void tell();
    void stopAwaiting();
    void endIfEmpty();
    void finish(const QString &why);
    Talk::Message head(Talk::Word word) const;

    QString m_id;
    qint64 m_createTime;
    LegSide &m_side;
    LegBook &m_book;
    const Limits &m_limits;
    Roster m_roster;
    Bulletin m_bulletin;
    QTimer m_gatherTimer;
    QTimer m_awaitTimer;
    QTimer m_lifeTimer;
    bool m_creatorSpeaks = false; // of a conference that is revived: its creator may still say how it stood
    bool m_over = false;
};

} // namespace Focus
