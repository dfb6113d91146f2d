#include "mixer/focus/Bulletin.h"

#include <algorithm>
#include <array>
#include <utility>

namespace Focus {

namespace {

using List = QStringList Talk::Message::*;

// What is new in a word, in the order in which it counts.
constexpr std::array<List, 5> cNews{&Talk::Message::left, &Talk::Message::joined, &Talk::Message::busy,
                                    &Talk::Message::refused, &Talk::Message::failed};

int newsIn(const Talk::Message &message)
{
    int count = 0;
    for (const List list : cNews) {
        count += (message.*list).size();
    }
    return count;
}

/// Leaves `count` of the news in the message, and gives the same with the others back.
Talk::Message cut(Talk::Message *message, int count)
{
    Talk::Message others = *message;
    for (const List list : cNews) {
        const int here = std::min(count, (message->*list).size());
        others.*list = (message->*list).mid(here);
        (message->*list) = (message->*list).mid(0, here);
        count -= here;
    }
    return others;
}

/// The words that say this together, since one bears only so many news.
QList<QByteArray> bodiesOf(Talk::Message message)
{
    const QByteArray body = Talk::written(message);
    const int count = newsIn(message);
    if (!body.isEmpty() || count < 2) {
        return {body};
    }
    const Talk::Message others = cut(&message, count / 2);
    return bodiesOf(message) + bodiesOf(others);
}

void tell(const Roster &roster, const QString &userId, const QList<QByteArray> &bodies, std::vector<Letter> *letters)
{
    const Member *member = roster.find(userId);
    if (member == nullptr || member->state != Member::State::Connected) {
        return;
    }
    for (const QByteArray &body : bodies) {
        letters->push_back({member->leg, body});
    }
}

} // namespace

void Bulletin::noteOutcome(const QString &asker, Member::State state, const QString &id)
{
    const List list = state == Member::State::Busy      ? &Talk::Message::busy
                      : state == Member::State::Refused ? &Talk::Message::refused
                                                        : &Talk::Message::failed;
    (m_outcomes[asker].*list).append(id);
}

void Bulletin::noteDenial(const QString &userId, const QString &word, const QString &why)
{
    const auto known = m_denials.find(userId);
    if (known == m_denials.end()) {
        m_denials.insert(userId, {word, why, 0});
    } else {
        ++known->more;
    }
}

QList<QByteArray> Bulletin::takeMembers(const Roster &roster, Talk::Message head)
{
    head.saying = Talk::Word::Members;
    head.members = roster.ids();
    head.connected = roster.connected();
    head.muted = roster.muted();
    head = Talk::shortened(head);
    head.left = std::exchange(m_left, {});
    head.left.removeDuplicates();
    const QStringList joined = std::exchange(m_joined, {});
    for (const QString &id : joined) {
        const Member *member = roster.find(id);
        if (member != nullptr && member->state == Member::State::Connected) {
            head.joined.append(id);
        }
    }
    head.joined.removeDuplicates();
    return bodiesOf(head);
}

std::vector<Letter> Bulletin::take(const Roster &roster, const Talk::Message &head, QStringList *notes)
{
    std::vector<Letter> letters;
    if (std::exchange(m_changed, false)) {
        const QList<QByteArray> bodies = takeMembers(roster, head);
        const QStringList connected = roster.connected();
        for (const QString &id : connected) {
            tell(roster, id, bodies, &letters);
        }
    }
    QMap<QString, Talk::Message> outcomes = std::exchange(m_outcomes, {});
    for (auto outcome = outcomes.begin(); outcome != outcomes.end(); ++outcome) {
        outcome->saying = Talk::Word::Outcome;
        for (const List list : cNews) {
            ((*outcome).*list).removeDuplicates();
        }
        tell(roster, outcome.key(), bodiesOf(*outcome), &letters);
    }
    const QMap<QString, Denial> denials = std::exchange(m_denials, {});
    for (auto denial = denials.begin(); denial != denials.end(); ++denial) {
        Talk::Message message;
        message.saying = Talk::Word::Denied;
        message.word = denial->word;
        message.why = denial->more == 0
                          ? denial->why
                          : QStringLiteral("%1, and %2 more").arg(denial->why, QString::number(denial->more));
        notes->append(QStringLiteral("%1, %2: %3").arg(denial.key(), denial->word, message.why));
        tell(roster, denial.key(), {Talk::written(message)}, &letters);
    }
    return letters;
}

} // namespace Focus
