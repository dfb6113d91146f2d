#include "mixer/focus/Conference.h"

#include "mixer/focus/Control.h"

#include <QDateTime>
#include <QSet>

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

namespace Focus {

namespace {

using State = Member::State;

constexpr int cLongestLifetime = std::numeric_limits<int>::max() / 1000; // in seconds, as a timer bears it

struct RefusalRow
{
    int status; // of SIP
    State state;
};

// Any other status is a failure.
constexpr std::array cRefusals{RefusalRow{486, State::Busy}, RefusalRow{600, State::Busy},
                               RefusalRow{603, State::Refused}};

State stateBehind(int status)
{
    for (const RefusalRow &row : cRefusals) {
        if (row.status == status) {
            return row.state;
        }
    }
    return State::Failed;
}

} // namespace

Conference::Conference(const Talk::Message &opening, const QString &opener, LegSide &side, LegBook &book,
                       const Limits &limits, QObject *parent)
    : QObject(parent), m_id(opening.id),
      m_createTime(opening.createTime > 0 ? opening.createTime : QDateTime::currentMSecsSinceEpoch()), m_side(side),
      m_book(book), m_limits(limits), m_roster(opening.saying == Talk::Word::Create ? opener : opening.creator)
{
    m_gatherTimer.setObjectName(QStringLiteral("gather"));
    m_awaitTimer.setObjectName(QStringLiteral("await"));
    m_lifeTimer.setObjectName(QStringLiteral("life"));
    for (QTimer *timer : {&m_gatherTimer, &m_awaitTimer, &m_lifeTimer}) {
        timer->setParent(this);
        timer->setSingleShot(true);
    }
    m_gatherTimer.setTimerType(Qt::PreciseTimer);
    m_gatherTimer.setInterval(cGatherMs);
    m_awaitTimer.setInterval(cAwaitMs);
    connect(&m_gatherTimer, &QTimer::timeout, this, &Conference::tell);
    connect(&m_awaitTimer, &QTimer::timeout, this, &Conference::stopAwaiting);
    connect(&m_lifeTimer, &QTimer::timeout, this,
            [this] { finish(QStringLiteral("it has lasted as long as a conference may")); });
    m_lifeTimer.start(std::min(m_limits.lifetime, cLongestLifetime) * 1000);
    open(opening, opener);
}

Conference::~Conference() = default;

void Conference::open(const Talk::Message &opening, const QString &opener)
{
    if (opening.saying == Talk::Word::Create) {
        for (const QString &id : opening.members) {
            m_roster.take(id).askers = QStringList{opener};
        }
        m_roster.find(opener)->state = State::Left;
        m_roster.find(opener)->askers.clear();
        m_side.note(QStringLiteral("conference %1 of %2 begins").arg(m_id, opener));
    } else {
        m_roster.find(opening.creator)->state = State::Left;
        m_awaitTimer.start();
        m_creatorSpeaks = true;
        adopt(opening);
        m_side.note(QStringLiteral("conference %1 of %2 goes on here, by %3").arg(m_id, opening.creator, opener));
    }
}

/// What somebody has last heard of a conference whose mixer was lost counts, until its creator says otherwise. What is
/// beyond the limits does not.
void Conference::adopt(const Talk::Message &message)
{
    if (message.createTime > 0) {
        m_createTime = message.createTime;
    }
    const QStringList before = m_roster.ids();
    for (const QString &id : before) {
        if (id != m_roster.creator() && !message.members.contains(id)) {
            remove(id, "the creator knows nothing of him");
        }
    }
    const QSet<QString> connected(message.connected.begin(), message.connected.end());
    int belonging = static_cast<int>(m_roster.members().size());
    int present = m_roster.presentCount();
    for (const QString &id : message.members) {
        if (m_roster.find(id) == nullptr) {
            if (belonging >= m_limits.belonging()) {
                continue;
            }
            m_roster.take(id).state = State::Left;
            ++belonging;
        }
        Member &member = *m_roster.find(id);
        if (member.state == State::Left && connected.contains(id) && present < m_limits.members) {
            member.state = State::Awaited;
            member.isIn = true;
            ++present;
        }
    }
    const QStringList all = m_roster.ids();
    for (const QString &id : all) {
        setMuted(id, message.muted.contains(id));
    }
    m_bulletin.noteChange();
}

void Conference::admit(LegId leg, const QString &userId, const Talk::Message &message)
{
    Member *member = m_roster.find(userId);
    if (member == nullptr) {
        m_side.refuse(leg, cStatusForbidden, QStringLiteral("%1 does not belong to the conference").arg(userId));
        return;
    }
    if (userId == m_roster.creator() && message.saying == Talk::Word::Resume && std::exchange(m_creatorSpeaks, false)) {
        adopt(message);
    }
    if (!member->isPresent() && m_roster.presentCount() >= m_limits.members) {
        m_side.refuse(leg, cStatusForbidden, fullness());
        return;
    }
    if (m_book.room() == 0 && member->leg == cNoLeg) {
        m_side.refuse(leg, cStatusFull, QStringLiteral("the mixer has no leg left"));
        return;
    }
    const LegId earlier = std::exchange(member->leg, leg);
    member->state = State::Arriving;
    m_book.erase(earlier);
    m_book.enter(leg, {m_id, userId});
    if (earlier != cNoLeg) {
        m_side.end(earlier);
    }
    m_side.answer(leg);
}

void Conference::takeUp(const QString &userId)
{
    Member &member = *m_roster.find(userId);
    if (member.state == State::Connected) {
        return;
    }
    settle(member, State::Connected);
    if (member.muted) {
        m_side.setSilent(member.leg, true);
    }
    if (userId == m_roster.creator()) {
        callInvited();
    }
}

/// The members whom the creator wants called, once he is there himself.
void Conference::callInvited()
{
    const QByteArray header = invitation();
    const QStringList ids = m_roster.ids();
    for (const QString &id : ids) {
        Member *member = m_roster.find(id);
        if (member != nullptr && member->state == State::Invited && member->leg == cNoLeg) {
            ring(*member, header);
        }
    }
}

QByteArray Conference::invitation() const
{
    Talk::Message message = head(Talk::Word::Invite);
    message.connected = m_roster.connected();
    return Talk::written(message);
}

void Conference::ring(Member &member, const QByteArray &header)
{
    member.state = State::Invited;
    m_bulletin.noteChange();
    if (header.isEmpty()) {
        for (const QString &asker : qAsConst(member.askers)) {
            deny(asker, QStringLiteral("add"), QStringLiteral("more are in it than an invitation can tell"));
        }
    }
    member.leg = m_book.room() > 0 && !header.isEmpty() ? m_side.ring(m_id, member.id, header) : cNoLeg;
    if (member.leg == cNoLeg) {
        settle(member, State::Failed);
    } else {
        m_book.enter(member.leg, {m_id, member.id});
    }
}

void Conference::takeRefusal(const QString &userId, int status)
{
    Member &member = *m_roster.find(userId);
    m_book.erase(std::exchange(member.leg, cNoLeg));
    settle(member, member.state == State::Invited ? stateBehind(status) : State::Left);
    endIfEmpty();
}

void Conference::takeEnd(const QString &userId)
{
    Member &member = *m_roster.find(userId);
    m_book.erase(std::exchange(member.leg, cNoLeg));
    settle(member, member.state == State::Invited ? State::Failed : State::Left);
    endIfEmpty();
}

void Conference::takeBody(const QString &userId, const QByteArray &body)
{
    const Talk::Heard heard = Talk::read(body, Talk::Road::InfoUp);
    const QString word = heard.message ? QString::fromLatin1(Talk::rowOf(heard.message->saying).name) : QString();
    if (m_roster.find(userId)->state != State::Connected) {
        deny(userId, word, QStringLiteral("the conference has not been joined"));
        return;
    }
    if (!heard.remark.isEmpty()) {
        deny(userId, word, heard.remark);
    }
    if (!heard.message) {
        return;
    }
    const Verdict verdict = judged(*heard.message, m_roster, userId);
    if (verdict.refusal.isEmpty()) {
        apply(*heard.message, userId, verdict.users);
    } else {
        deny(userId, word, verdict.refusal);
    }
}

void Conference::apply(const Talk::Message &message, const QString &sender, const QStringList &users)
{
    if (message.saying == Talk::Word::Add) {
        add(users, sender);
        return;
    }
    for (const QString &id : users) {
        if (message.saying == Talk::Word::Kick) {
            remove(id, "the creator has removed him");
        } else {
            setMuted(id, message.saying == Talk::Word::Mute);
        }
    }
}

void Conference::add(const QStringList &users, const QString &sender)
{
    const QByteArray header = invitation();
    for (const QString &id : users) {
        const Member *known = m_roster.find(id);
        const bool rings = known != nullptr && known->state == State::Invited;
        if (known != nullptr && known->isPresent() && !rings) {
            continue;
        }
        const QString refusal = rings ? QString() : refusalOfOneMore();
        if (!refusal.isEmpty()) {
            m_bulletin.noteOutcome(sender, State::Failed, id);
            deny(sender, QStringLiteral("add"), refusal);
            continue;
        }
        if (known == nullptr) {
            m_roster.forgetAbsent(m_limits.belonging() - 1);
        }
        Member &member = m_roster.take(id);
        if (!member.askers.contains(sender)) {
            member.askers.append(sender);
        }
        if (!rings) {
            ring(member, header);
            gather();
        }
    }
}

/// Why nobody else can be called, empty where somebody can.
QString Conference::refusalOfOneMore() const
{
    if (m_roster.presentCount() >= m_limits.members) {
        return fullness();
    }
    return m_book.room() == 0 ? QStringLiteral("the mixer has no leg left") : QString();
}

QString Conference::fullness() const
{
    return QStringLiteral("the conference has %1 members, as many as it may").arg(m_limits.members);
}

/// By the creator's will, which everybody who waits for him is told but the creator.
void Conference::remove(const QString &userId, const char *why)
{
    Member *member = m_roster.find(userId);
    dropLeg(*member, QLatin1String(why));
    member->askers.removeAll(m_roster.creator());
    settle(*member, State::Left);
    m_roster.forget(userId);
}

void Conference::setMuted(const QString &userId, bool muted)
{
    Member &member = *m_roster.find(userId);
    if (std::exchange(member.muted, muted) == muted) {
        return;
    }
    if (member.state == State::Connected) {
        m_side.setSilent(member.leg, muted);
    }
    m_bulletin.noteChange();
    gather();
}

void Conference::settle(Member &member, State state)
{
    const bool comes = state == State::Connected;
    member.state = state;
    const bool wasIn = std::exchange(member.isIn, comes);
    if (comes) {
        m_bulletin.noteJoined(member.id);
    } else if (wasIn) {
        m_bulletin.noteLeft(member.id);
    }
    const QStringList askers = std::exchange(member.askers, {});
    for (const QString &asker : askers) {
        if (!comes) {
            m_bulletin.noteOutcome(asker, state, member.id);
        }
    }
    m_bulletin.noteChange();
    gather();
}

/// Ends the member's leg, if he has one; who is in the conference is told why.
void Conference::dropLeg(Member &member, const QString &why)
{
    const LegId leg = std::exchange(member.leg, cNoLeg);
    if (leg == cNoLeg) {
        return;
    }
    m_book.erase(leg);
    if (member.state == State::Connected) {
        Talk::Message message;
        message.saying = Talk::Word::Over;
        message.why = why;
        m_side.send(leg, Talk::written(message));
    }
    m_side.end(leg);
}

void Conference::deny(const QString &userId, const QString &word, const QString &why)
{
    m_bulletin.noteDenial(userId, word, why);
    gather();
}

void Conference::gather()
{
    if (!m_gatherTimer.isActive() && !m_over) {
        m_gatherTimer.start();
    }
}

void Conference::tell()
{
    QStringList notes;
    const std::vector<Letter> letters = m_bulletin.take(m_roster, head(Talk::Word::Members), &notes);
    for (const QString &text : qAsConst(notes)) {
        m_side.note(QStringLiteral("conference %1 refuses %2").arg(m_id, text));
    }
    bool fits = true;
    for (const Letter &letter : letters) {
        if (letter.body.isEmpty()) {
            fits = false;
        } else {
            m_side.send(letter.leg, letter.body);
        }
    }
    if (!fits) {
        m_side.note(QStringLiteral("conference %1 has more to tell than fits").arg(m_id));
    }
}

void Conference::stopAwaiting()
{
    m_creatorSpeaks = false;
    for (const std::unique_ptr<Member> &member : m_roster.members()) {
        if (member->state == State::Awaited) {
            settle(*member, State::Left);
        }
    }
    endIfEmpty();
}

void Conference::endIfEmpty()
{
    if (!m_roster.isInUse()) {
        finish(QStringLiteral("nobody is in it any more"));
    }
}

void Conference::finish(const QString &why)
{
    if (std::exchange(m_over, true)) {
        return;
    }
    for (QTimer *timer : {&m_gatherTimer, &m_awaitTimer, &m_lifeTimer}) {
        timer->stop();
    }
    for (const std::unique_ptr<Member> &member : m_roster.members()) {
        dropLeg(*member, why);
    }
    m_side.note(QStringLiteral("conference %1 is over: %2").arg(m_id, why));
    emit over();
}

Talk::Message Conference::head(Talk::Word word) const
{
    Talk::Message message;
    message.saying = word;
    message.id = m_id;
    message.creator = m_roster.creator();
    message.createTime = m_createTime;
    return message;
}

} // namespace Focus
