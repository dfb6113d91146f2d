#include "conference/Attendance.h"

#include "conference/Documents.h"
#include "conference/UserId.h"

#include <QUuid>

#include <algorithm>
#include <utility>

namespace {

constexpr int cMostHeld = 100; // lines of those who are busy or refuse

ConferenceLine remark(QString text)
{
    std::replace_if(text.begin(), text.end(), isControl, QLatin1Char(' '));
    return {Wire::Code::SdkLog, text};
}

/// How it stands, about one of the members.
ConferenceLine lineOf(Wire::Code code, const Talk::Message &message, const QString &from)
{
    return {code, conferenceDocument(message.id, from, message.connected, message.createTime)};
}

ConferenceLines linesOf(const Talk::Message &outcome)
{
    ConferenceLines lines;
    for (const QString &id : outcome.busy) {
        lines.append({Wire::Code::UserRejected, id});
    }
    for (const QString &id : outcome.refused) {
        lines.append({Wire::Code::ConfMemberRejected, id});
    }
    if (!outcome.failed.isEmpty()) {
        lines.append({Wire::Code::ConfAddResult, additionDocument(outcome.failed)});
    }
    return lines;
}

} // namespace

Talk::Message Attendance::request(const QString &ownId, const QStringList &members, bool flag, const QString &text)
{
    leave();
    m_phase = Phase::Asked;
    m_last.saying = Talk::Word::Create;
    m_last.id = QUuid::createUuid().toString(QUuid::WithoutBraces);
    m_last.creator = ownId;
    m_last.members = members;
    m_last.flag = flag;
    m_last.text = text;
    return m_last;
}

ConferenceLines Attendance::takeInvitation(const QByteArray &header)
{
    const Talk::Heard heard = Talk::read(header, Talk::Road::InviteDown);
    if (isThere() || !heard.message) {
        return {};
    }
    m_phase = Phase::Invited;
    m_last = *heard.message;
    return {lineOf(Wire::Code::IncomingConf, m_last, m_last.creator)};
}

ConferenceLines Attendance::takeAnswer()
{
    if (m_phase != Phase::Asked) {
        return {};
    }
    m_phase = Phase::Answered;
    return {{Wire::Code::ConfCreated, creationDocument(m_last.id)}};
}

ConferenceLines Attendance::takeRefusal(const QString &why)
{
    if (m_phase != Phase::Asked) {
        return takeEnd();
    }
    leave();
    return {remark(QStringLiteral("no conference: %1").arg(why)), {Wire::Code::ConfCreated, QString()}};
}

ConferenceLines Attendance::takeMedia()
{
    if (m_phase == Phase::None || m_phase == Phase::Running) {
        return {};
    }
    ConferenceLines lines = takeAnswer();
    m_phase = Phase::Running;
    lines.append({Wire::Code::CallConnected, QString()});
    if (!m_cameMeanwhile.isEmpty()) {
        lines.append(lineOf(Wire::Code::ConfUpdate, m_last, m_cameMeanwhile));
    }
    return lines + linesOf(std::exchange(m_held, {}));
}

ConferenceLines Attendance::takeBody(const QByteArray &body)
{
    if (m_phase == Phase::None) {
        return {};
    }
    const Talk::Heard heard = Talk::read(body, Talk::Road::InfoDown);
    ConferenceLines lines;
    if (!heard.remark.isEmpty()) {
        lines.append(remark(QStringLiteral("of the conference: %1").arg(heard.remark)));
    }
    return heard.message ? lines + take(*heard.message) : lines;
}

ConferenceLines Attendance::take(const Talk::Message &message)
{
    switch (message.saying) {
    case Talk::Word::Members:
        return takeMembers(message);
    case Talk::Word::Outcome:
        return takeOutcome(message);
    case Talk::Word::Denied:
        return {remark(QStringLiteral("the conference refuses %1: %2").arg(message.word, message.why))};
    default: // no other word but Over comes down in a body
        return {remark(QStringLiteral("the conference ends here: %1").arg(message.why))};
    }
}

ConferenceLines Attendance::takeMembers(const Talk::Message &message)
{
    if (message.id != m_last.id) {
        return {remark(QStringLiteral("of another conference: %1").arg(message.id))};
    }
    m_last = message;
    if (m_phase != Phase::Running) {
        // Nobody has been told of anybody, so nobody has left.
        m_cameMeanwhile = message.joined.isEmpty() ? m_cameMeanwhile : message.joined.last();
        return {};
    }
    ConferenceLines lines;
    for (const QString &id : message.left) {
        lines.append(lineOf(Wire::Code::ConfMemberLeft, message, id));
    }
    if (!message.joined.isEmpty()) {
        lines.append(lineOf(Wire::Code::ConfUpdate, message, message.joined.last()));
    }
    return lines;
}

ConferenceLines Attendance::takeOutcome(const Talk::Message &message)
{
    if (m_phase == Phase::Running) {
        return linesOf(message);
    }
    m_held.busy += message.busy.mid(0, cMostHeld - m_held.busy.size() - m_held.refused.size());
    m_held.refused += message.refused.mid(0, cMostHeld - m_held.busy.size() - m_held.refused.size());
    m_held.failed += message.failed;
    m_held.failed.removeDuplicates();
    m_held.failed = m_held.failed.mid(0, Talk::cMostUsers);
    return {};
}

ConferenceLines Attendance::takeEnd()
{
    const Phase phase = m_phase;
    leave();
    switch (phase) {
    case Phase::None:
        return {};
    case Phase::Asked:
        return {{Wire::Code::ConfCreated, QString()}};
    case Phase::Invited:
        return {{Wire::Code::PeerCanceled, QString()}};
    default:
        return {{Wire::Code::CallEnded, QString()}};
    }
}

Talk::Message Attendance::resumption() const
{
    Talk::Message message = m_last;
    if (message.saying != Talk::Word::Create) {
        message.saying = Talk::Word::Resume;
        message = Talk::shortened(message);
    }
    return message;
}
