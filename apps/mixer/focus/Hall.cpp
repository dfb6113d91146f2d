#include "mixer/focus/Hall.h"

#include "conference/UserId.h"

namespace Focus {

Hall::Hall(LegSide &side, const Limits &limits, QObject *parent)
    : QObject(parent), m_side(side), m_limits(limits), m_book(limits.legs)
{
}

Hall::~Hall() = default;

void Hall::takeArrival(LegId leg, const QString &conferenceId, const QString &userId, const QByteArray &header)
{
    const Talk::Heard heard = Talk::read(header, Talk::Road::InviteUp);
    if (!heard.remark.isEmpty()) {
        m_side.note(QStringLiteral("of an arrival: %1").arg(heard.remark));
    }
    if (!heard.message) {
        m_side.refuse(leg, cStatusMalformed, heard.remark);
    } else if (heard.message->id != conferenceId || !isUserId(userId)) {
        m_side.refuse(leg, cStatusMalformed, QStringLiteral("header and address do not fit"));
    } else if (const auto known = m_conferences.find(conferenceId); known != m_conferences.end()) {
        known->second->admit(leg, userId, *heard.message);
    } else {
        open(leg, userId, *heard.message);
    }
}

void Hall::open(LegId leg, const QString &userId, const Talk::Message &message)
{
    int status = 0;
    Talk::Message opening = message;
    if (opening.saying == Talk::Word::Create) {
        opening.members.removeAll(userId);
    }
    const QString refusal = refusalOf(opening, userId, &status);
    if (!refusal.isEmpty()) {
        m_side.note(QStringLiteral("no conference %1 for %2: %3").arg(opening.id, userId, refusal));
        m_side.refuse(leg, status, refusal);
        return;
    }
    auto conference = std::make_unique<Conference>(opening, userId, m_side, m_book, m_limits, this);
    Conference *opened = conference.get();
    const QString id = opening.id;
    connect(opened, &Conference::over, this, [this, id] { close(id); });
    m_conferences[id] = std::move(conference);
    opened->admit(leg, userId, opening);
}

/// Why a conference cannot be opened so, empty where it can.
QString Hall::refusalOf(const Talk::Message &message, const QString &userId, int *status) const
{
    const bool isNew = message.saying == Talk::Word::Create;
    *status = cStatusForbidden;
    if (!isNew && message.creator != userId && !message.members.contains(userId)) {
        return QStringLiteral("%1 does not belong to the conference").arg(userId);
    }
    const int members = message.members.size() + (isNew ? 1 : 0);
    if (members > m_limits.members) {
        return QStringLiteral("a conference has %1 members at most").arg(m_limits.members);
    }
    *status = cStatusFull;
    if (conferenceCount() >= m_limits.conferences) {
        return QStringLiteral("the mixer has %1 conferences, as many as it may").arg(m_limits.conferences);
    }
    if (m_book.room() < (isNew ? members : 1)) {
        return QStringLiteral("the mixer has only %1 legs left").arg(m_book.room());
    }
    return {};
}

void Hall::takeUp(LegId leg)
{
    withConferenceOf(leg, [](Conference &conference, const QString &userId) { conference.takeUp(userId); });
}

void Hall::takeRefusal(LegId leg, int status)
{
    withConferenceOf(leg,
                     [=](Conference &conference, const QString &userId) { conference.takeRefusal(userId, status); });
}

void Hall::takeEnd(LegId leg)
{
    withConferenceOf(leg, [](Conference &conference, const QString &userId) { conference.takeEnd(userId); });
}

void Hall::takeBody(LegId leg, const QByteArray &body)
{
    withConferenceOf(leg, [&](Conference &conference, const QString &userId) { conference.takeBody(userId, body); });
}

/// It still runs when it says that it is over.
void Hall::close(const QString &id)
{
    const auto found = m_conferences.find(id);
    found->second.release()->deleteLater();
    m_conferences.erase(found);
}

template <class Action>
void Hall::withConferenceOf(LegId leg, const Action &action)
{
    const LegPlace place = m_book.find(leg);
    const auto found = m_conferences.find(place.conferenceId);
    if (found != m_conferences.end()) {
        action(*found->second, place.userId);
    }
}

} // namespace Focus
