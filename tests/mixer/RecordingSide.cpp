#include "mixer/RecordingSide.h"

#include <QtTest>

#include <utility>

using Focus::LegId;

LegId RecordingSide::ring(const QString &conferenceId, const QString &userId, const QByteArray &header)
{
    if (unreachable.contains(userId)) {
        return Focus::cNoLeg;
    }
    const Talk::Heard heard = Talk::read(header, Talk::Road::InviteDown);
    const LegId leg = nextLeg();
    if (!heard.message || !heard.remark.isEmpty() || heard.message->id != conferenceId) {
        QTest::qFail("an invitation is a word of its conference", __FILE__, __LINE__);
    } else {
        invitations[userId] = *heard.message;
    }
    log.append(QStringLiteral("ring %1 %2").arg(leg).arg(userId));
    rung[userId] = leg;
    open.insert(leg);
    return leg;
}

void RecordingSide::answer(LegId leg)
{
    log.append(QStringLiteral("answer %1").arg(leg));
    open.insert(leg);
}

void RecordingSide::refuse(LegId leg, int status, const QString &why)
{
    log.append(QStringLiteral("refuse %1 %2").arg(leg).arg(status));
    reasons.append(why);
}

void RecordingSide::end(LegId leg)
{
    log.append(QStringLiteral("end %1").arg(leg));
    if (!open.remove(leg)) {
        QTest::qFail("what is ended is a leg that is there", __FILE__, __LINE__);
    }
    up.remove(leg);
    if (hall != nullptr) {
        hall->takeEnd(leg);
    }
}

void RecordingSide::setSilent(LegId leg, bool isSilent)
{
    log.append(QStringLiteral("%1 %2").arg(isSilent ? "silence" : "hear").arg(leg));
    if (!up.contains(leg)) {
        QTest::qFail("who is silenced is heard", __FILE__, __LINE__);
    }
    silent[leg] = isSilent;
}

void RecordingSide::send(LegId leg, const QByteArray &body)
{
    const Talk::Heard heard = Talk::read(body, Talk::Road::InfoDown);
    if (!up.contains(leg) || !heard.message || !heard.remark.isEmpty()) {
        QTest::qFail("what is sent is a word for a leg that is up", __FILE__, __LINE__);
        return;
    }
    log.append(QStringLiteral("send %1 %2").arg(leg).arg(Talk::rowOf(heard.message->saying).name));
    bodies[leg].append(*heard.message);
}

QStringList RecordingSide::takeLog()
{
    return std::exchange(log, {});
}
