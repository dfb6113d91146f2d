#include "mixer/focus/Hall.h"

#include "conference/UserId.h"

#include <utility>

namespace Focus {

namespace {

// Anybody may call, as often as he likes: of what is wrong there so many notes are made in so long.
constexpr int cMostArrivalNotes = 10;
constexpr int cNotesMs = 60000;

} // namespace

Hall::Hall(LegSide &side, const Limits &limits, QObject *parent)
    : QObject(parent), m_side(side), m_limits(limits), m_book(limits.legs)
{
    m_noteTimer.setObjectName(QStringLiteral("notes"));
    m_noteTimer.setParent(this);
    m_noteTimer.setSingleShot(true);
    m_noteTimer.setInterval(cNotesMs);
    connect(&m_noteTimer, &QTimer::timeout, this, &Hall::closeNotes);
}

Hall::~Hall() = default;

void Hall::takeArrival(LegId leg, const QString &conferenceId, const QString &userId, const QByteArray &header)
{
    const Talk::Heard heard = Talk::read(header, Talk::Road::InviteUp);
    if (!heard.remark.isEmpty()) {
        noteArrival(QStringLiteral("of an arrival: %1").arg(heard.remark));
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
        noteArrival(QStringLiteral("no conference %1 for %2: %3").arg(opening.id, userId, refusal));
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
    const int members = message.members.size() + (isNew || !message.members.contains(message.creator) ? 1 : 0);
    const int present = isNew ? members : message.connected.size() + (message.connected.contains(userId) ? 0 : 1);
    if (present > m_limits.members) {
        return QStringLiteral("a conference has %1 members at most").arg(m_limits.members);
    }
    if (members > m_limits.belonging()) {
        return QStringLiteral("a conference remembers %1 members at most").arg(m_limits.belonging());
    }
    *status = cStatusFull;
    if (conferenceCount() >= m_limits.conferences) {
        return QStringLiteral("the mixer has %1 conferences, as many as it may").arg(m_limits.conferences);
    }
    if (m_book.room() < (isNew ? present : 1)) {
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

void Hall::noteArrival(const QString &text)
{
    if (!m_noteTimer.isActive()) {
        m_noteTimer.start();
    }
    if (++m_arrivalNotes <= cMostArrivalNotes) {
        m_side.note(text);
    }
}

void Hall::closeNotes()
{
    const int more = std::exchange(m_arrivalNotes, 0) - cMostArrivalNotes;
    if (more > 0) {
        m_side.note(QStringLiteral("of arrivals, %1 more notes in a minute").arg(more));
    }
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
