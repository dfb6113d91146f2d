#include "mixer/focus/Bulletin.h"

#include <utility>

namespace Focus {

namespace {

using Outcomes = QMap<QString, Talk::Message>; // by who has called

/// Puts one member's news where they are told from.
void sort(Member &member, Talk::Message *members, Outcomes *outcomes)
{
    QStringList Talk::Message::*field = nullptr;
    switch (member.state) {
    case Member::State::Connected:
        members->joined.append(member.id);
        break;
    case Member::State::Left:
        members->left.append(member.id);
        break;
    case Member::State::Busy:
        field = &Talk::Message::busy;
        break;
    case Member::State::Refused:
        field = &Talk::Message::refused;
        break;
    case Member::State::Failed:
        field = &Talk::Message::failed;
        break;
    default: // nothing to tell before it has come to an end
        return;
    }
    const QStringList askers = std::exchange(member.askers, {});
    for (const QString &asker : askers) {
        if (field != nullptr) {
            (((*outcomes)[asker]).*field).append(member.id);
        }
    }
}

void tell(const Roster &roster, const QString &userId, const Talk::Message &message, std::vector<Letter> *letters)
{
    const Member *member = roster.find(userId);
    if (member != nullptr && member->state == Member::State::Connected) {
        letters->push_back({member->leg, Talk::written(message)});
    }
}

} // namespace

void Bulletin::noteDenial(const QString &userId, const QString &word, const QString &why)
{
    const auto known = m_denials.find(userId);
    if (known == m_denials.end()) {
        m_denials.insert(userId, {word, why, 0});
    } else {
        ++known->more;
    }
}

std::vector<Letter> Bulletin::take(const Roster &roster, Talk::Message head, QStringList *notes)
{
    std::vector<Letter> letters;
    Outcomes outcomes;
    const QMap<QString, QStringList> failures = std::exchange(m_failures, {});
    for (auto failure = failures.begin(); failure != failures.end(); ++failure) {
        outcomes[failure.key()].failed = *failure;
    }
    head.saying = Talk::Word::Members;
    for (const std::unique_ptr<Member> &member : roster.members()) {
        if (std::exchange(member->hasNews, false)) {
            sort(*member, &head, &outcomes);
        }
    }
    head.members = roster.ids();
    head.connected = roster.connected();
    head.muted = roster.muted();
    head.left += std::exchange(m_removed, {});
    const QByteArray body = Talk::written(head);
    for (const QString &id : qAsConst(head.connected)) {
        letters.push_back({roster.find(id)->leg, body});
    }
    for (auto outcome = outcomes.begin(); outcome != outcomes.end(); ++outcome) {
        outcome->saying = Talk::Word::Outcome;
        tell(roster, outcome.key(), *outcome, &letters);
    }
    const QMap<QString, Denial> denials = std::exchange(m_denials, {});
    for (auto denial = denials.begin(); denial != denials.end(); ++denial) {
        Talk::Message message;
        message.saying = Talk::Word::Denied;
        message.word = denial->word;
        message.why =
            denial->more == 0 ? denial->why : QStringLiteral("%1, and %2 more").arg(denial->why).arg(denial->more);
        notes->append(QStringLiteral("%1, %2: %3").arg(denial.key(), denial->word, message.why));
        tell(roster, denial.key(), message, &letters);
    }
    return letters;
}

} // namespace Focus
