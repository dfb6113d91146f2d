#include "callprocess/ConferenceDesk.h"

#include "conference/Documents.h"
#include "robots/RobotIds.h"

#include <QDateTime>

#include <algorithm>
#include <array>

namespace {

constexpr int cCreatedAfterMs = 200;
constexpr int cConnectAfterMs = 300;
constexpr int cAnotherAfterMs = 1000;
constexpr const char *cAnotherConference = "another";

/// A word of control and how the trace tells that it was obeyed.
struct ControlRow
{
    const char *operation;
    const char *done;
};

constexpr std::array<ControlRow, 3> cControls{
    {{Wire::cKick, "kicked"}, {Wire::cMute, "muted"}, {Wire::cUnmute, "unmuted"}}};

} // namespace

ConferenceDesk::ConferenceDesk(PacedOutlet &outlet, QObject *parent) : QObject(parent), m_outlet(outlet) {}

ConferenceDesk::~ConferenceDesk() = default;

void ConferenceDesk::request(const QString &ownId, const QStringList &members)
{
    open(Phase::Creating, ownId, ownId);
    afterInConference(cCreatedAfterMs, [this, members] {
        const auto reachable = [this](const QString &id) { return canReach(id); };
        if (!members.isEmpty() && std::none_of(members.begin(), members.end(), reachable)) {
            m_outlet.note(QStringLiteral("no conference: nobody can be reached"));
            end();
            m_outlet.notify(Wire::Code::ConfCreated);
            return;
        }
        m_outlet.notify(Wire::Code::ConfCreated, creationDocument(m_confId));
        afterInConference(cConnectAfterMs, [this, members] {
            join(nullptr);
            const QStringList failed = callMembers(members);
            if (!failed.isEmpty()) {
                tellAddResult(failed);
            }
        });
    });
}

void ConferenceDesk::invite(const Robot &robot, const QString &ownId)
{
    const QString creator = QString::fromLatin1(robot.id);
    open(Phase::Invited, ownId, creator);
    if (robot.then == Return::InvitesUntimed) {
        m_createTime = 0;
    }
    m_connected.append(creator);
    m_outlet.notify(Wire::Code::IncomingConf, document(creator));
    afterInConference(cRobotPatienceMs, [this] {
        end();
        m_outlet.notify(Wire::Code::PeerCanceled);
    });
}

void ConferenceDesk::accept()
{
    if (m_phase != Phase::Invited) {
        m_outlet.note(QStringLiteral("no conference to accept"));
        return;
    }
    m_timers = std::make_unique<QObject>();
    afterInConference(cConnectAfterMs, [this] {
        join(findRobot(m_creator));
        callMembers({QString::fromLatin1(Robots::answers)});
        if (findRobot(m_creator)->then == Return::InvitesUntimed) {
            afterInConference(cAnotherAfterMs, [this] { tellOfAnotherConference(); });
        }
    });
}

void ConferenceDesk::add(const QStringList &users)
{
    if (!hasConference()) {
        m_outlet.note(QStringLiteral("no conference to add to"));
        return;
    }
    tellAddResult(callMembers(users));
}

void ConferenceDesk::control(const QString &operation, const QString &userId)
{
    const auto *row = std::find_if(cControls.begin(), cControls.end(), [&](const ControlRow &entry) {
        return operation == QLatin1String(entry.operation);
    });
    const QStringList obeying = controlled(userId);
    if (row == cControls.end() || obeying.isEmpty()) {
        m_outlet.note(QStringLiteral("nobody to %1: %2").arg(operation, userId));
        return;
    }
    m_outlet.note(QStringLiteral("%1 %2").arg(QLatin1String(row->done), obeying.join(QLatin1Char(' '))));
    for (const QString &id : obeying) {
        m_muted.removeAll(id);
        if (operation == QLatin1String(Wire::cMute)) {
            m_muted.append(id);
        } else if (operation == QLatin1String(Wire::cKick)) {
            memberLeaves(id);
        }
    }
    m_outlet.note(QStringLiteral("muted now: [%1]").arg(m_muted.join(QLatin1Char(' '))));
}

/// The connected members whom a word of control for this id is meant for.
QStringList ConferenceDesk::controlled(const QString &userId) const
{
    const bool everybody = userId == QLatin1String(Wire::cEverybody);
    QStringList ids;
    for (const QString &id : m_connected) {
        if (id != m_ownId && (everybody ? id != m_creator : id == userId)) {
            ids.append(id);
        }
    }
    return ids;
}

void ConferenceDesk::end()
{
    m_phase = Phase::None;
    m_ownId.clear();
    m_creator.clear();
    m_confId.clear();
    m_createTime = 0;
    m_connected.clear();
    m_muted.clear();
    m_timers = std::make_unique<QObject>();
    m_memberTimers.clear();
}

void ConferenceDesk::open(Phase phase, const QString &ownId, const QString &creator)
{
    end();
    m_phase = phase;
    m_ownId = ownId;
    m_creator = creator;
    // Records of conferences are kept by this id, so it must not come back in a later run.
    static qint64 lastId = 0;
    m_createTime = QDateTime::currentMSecsSinceEpoch();
    lastId = std::max(lastId + 1, m_createTime);
    m_confId = QString::number(lastId);
}

void ConferenceDesk::afterInConference(int delayMs, const std::function<void()> &action)
{
    m_outlet.after(m_timers.get(), delayMs, action);
}

void ConferenceDesk::join(const Robot *creator)
{
    m_phase = Phase::Joined;
    m_connected.append(m_ownId);
    m_outlet.notify(Wire::Code::CallConnected);
    m_outlet.notify(Wire::Code::ConfUpdate, document(m_ownId));
    if (creator != nullptr && creator->hangsUpAfterMs > 0) {
        afterInConference(creator->hangsUpAfterMs, [this] {
            end();
            m_outlet.notify(Wire::Code::CallEnded);
        });
    }
}

bool ConferenceDesk::canReach(const QString &id) const
{
    const Robot *robot = findRobot(id);
    return robot != nullptr && robot->reply != Reply::Fails;
}

QStringList ConferenceDesk::callMembers(const QStringList &users)
{
    QStringList failed;
    for (const QString &id : users) {
        if (id == m_ownId || m_connected.contains(id)) {
            continue;
        }
        if (canReach(id)) {
            callMember(*findRobot(id));
        } else {
            failed.append(id);
        }
    }
    return failed;
}

void ConferenceDesk::callMember(const Robot &robot)
{
    std::unique_ptr<QObject> &timers = m_memberTimers[QString::fromLatin1(robot.id)];
    timers = std::make_unique<QObject>();
    if (robot.reply != Reply::Silent) {
        m_outlet.after(timers.get(), robot.replyAfterMs, [this, &robot] { memberReplies(robot); });
    }
}

void ConferenceDesk::memberReplies(const Robot &robot)
{
    const QString id = QString::fromLatin1(robot.id);
    if (robot.reply == Reply::Busy) {
        m_outlet.notify(Wire::Code::UserRejected, id);
    } else if (robot.reply == Reply::Rejects) {
        m_outlet.notify(Wire::Code::ConfMemberRejected, id);
    } else {
        memberJoins(robot);
    }
}

void ConferenceDesk::memberJoins(const Robot &robot)
{
    const QString id = QString::fromLatin1(robot.id);
    m_connected.append(id);
    m_outlet.notify(Wire::Code::ConfUpdate, document(id));
    if (robot.hangsUpAfterMs == 0) {
        return;
    }
    m_outlet.after(m_memberTimers[id].get(), robot.hangsUpAfterMs, [this, &robot, id] {
        memberLeaves(id);
        if (robot.then == Return::Rejoins) {
            m_memberTimers[id] = std::make_unique<QObject>();
            m_outlet.after(m_memberTimers[id].get(), robot.thenAfterMs, [this, &robot] { memberJoins(robot); });
        }
    });
}

void ConferenceDesk::memberLeaves(const QString &id)
{
    m_connected.removeAll(id);
    m_muted.removeAll(id);
    m_memberTimers.erase(id);
    m_outlet.notify(Wire::Code::ConfMemberLeft, document(id));
}

/// A conference that the plug-in has nothing to do with: none of these lines may have an effect on the members.
void ConferenceDesk::tellOfAnotherConference()
{
    const QString another = QString::fromLatin1(cAnotherConference);
    const QString member = QString::fromLatin1(Robots::hangsUp);
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    m_outlet.notify(Wire::Code::ConfUpdate, conferenceDocument(another, member, {member}, now));
    m_outlet.notify(Wire::Code::ConfMemberLeft, conferenceDocument(another, m_creator, {}, now));
    m_outlet.notify(Wire::Code::IncomingConf, conferenceDocument(another, member, {member}, now));
}

void ConferenceDesk::tellAddResult(const QStringList &failed)
{
    m_outlet.notify(Wire::Code::ConfAddResult, additionDocument(failed));
}

QString ConferenceDesk::document(const QString &from) const
{
    return conferenceDocument(m_confId, from, m_connected, m_createTime);
}
