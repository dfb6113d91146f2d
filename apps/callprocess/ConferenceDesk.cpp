#include "callprocess/ConferenceDesk.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace {

constexpr int CREATED_AFTER_MS = 200;
constexpr int CONNECT_AFTER_MS = 300;
constexpr const char *INVITED_WITH = "30010001";

QString compact(const QJsonObject &object)
{
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

} // namespace

ConferenceDesk::ConferenceDesk(Outlet &outlet, QObject *parent) : QObject(parent), m_outlet(outlet) {}

ConferenceDesk::~ConferenceDesk() = default;

void ConferenceDesk::request(const QString &ownId, const QStringList &members)
{
    open(Phase::Creating, ownId, ownId);
    afterInConference(CREATED_AFTER_MS, [this, members] {
        m_outlet.notify(Code::ConfCreated,
                        compact({{QStringLiteral("result"), QJsonObject{{QStringLiteral("confId"), m_confId}}}}));
        afterInConference(CONNECT_AFTER_MS, [this, members] {
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
    m_connected.append(creator);
    m_outlet.notify(Code::IncomingConf, document(creator));
    afterInConference(ROBOT_PATIENCE_MS, [this] {
        end();
        m_outlet.notify(Code::PeerCanceled);
    });
}

void ConferenceDesk::accept()
{
    if (m_phase != Phase::Invited) {
        m_outlet.note(QStringLiteral("no conference to accept"));
        return;
    }
    m_timers = std::make_unique<QObject>();
    afterInConference(CONNECT_AFTER_MS, [this] {
        join(findRobot(m_creator));
        callMembers({QString::fromLatin1(INVITED_WITH)});
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
    if (operation == QLatin1String("kick") && userId != m_ownId && m_connected.contains(userId)) {
        memberLeaves(userId);
    }
}

void ConferenceDesk::end()
{
    m_phase = Phase::None;
    m_ownId.clear();
    m_creator.clear();
    m_confId.clear();
    m_createTime = 0;
    m_connected.clear();
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
    m_outlet.notify(Code::CallConnected);
    m_outlet.notify(Code::ConfUpdate, document(m_ownId));
    if (creator != nullptr && creator->hangsUpAfterMs > 0) {
        afterInConference(creator->hangsUpAfterMs, [this] {
            end();
            m_outlet.notify(Code::CallEnded);
        });
    }
}

QStringList ConferenceDesk::callMembers(const QStringList &users)
{
    QStringList failed;
    for (const QString &id : users) {
        const Robot *robot = findRobot(id);
        if (id == m_ownId || m_connected.contains(id)) {
            continue;
        }
        if (robot == nullptr || robot->reply == Reply::Fails) {
            failed.append(id);
        } else {
            callMember(*robot);
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
        m_outlet.notify(Code::ConfMemberRejected, id);
    } else if (robot.reply == Reply::Rejects) {
        m_outlet.notify(Code::UserRejected, id);
    } else {
        m_connected.append(id);
        m_outlet.notify(Code::ConfUpdate, document(id));
        if (robot.hangsUpAfterMs > 0) {
            m_outlet.after(m_memberTimers[id].get(), robot.hangsUpAfterMs, [this, id] { memberLeaves(id); });
        }
    }
}

void ConferenceDesk::memberLeaves(const QString &id)
{
    m_connected.removeAll(id);
    m_memberTimers.erase(id);
    m_outlet.notify(Code::ConfMemberLeft, document(id));
}

void ConferenceDesk::tellAddResult(const QStringList &failed)
{
    const QJsonObject result{{QStringLiteral("failedNums"), QJsonArray::fromStringList(failed)}};
    m_outlet.notify(Code::ConfAddResult, compact({{QStringLiteral("status"), 0}, {QStringLiteral("result"), result}}));
}

QString ConferenceDesk::document(const QString &from) const
{
    const QJsonObject body{{QStringLiteral("from"), from},
                           {QStringLiteral("conventioneer"), QJsonArray::fromStringList(m_connected)},
                           {QStringLiteral("confId"), m_confId},
                           {QStringLiteral("createTime"), static_cast<double>(m_createTime)}};
    return compact({{QStringLiteral("content"), body}});
}
