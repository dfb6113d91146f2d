#pragma once

#include "engine/CallData.h"

#include <QString>
#include <QStringList>

/// What a call engine has to do, in few words and with no socket, window or host: the call's data, which of its timers
/// run, whether the window shows, and everything that goes out. A test drives it beside the real engine and compares.
/// A plain value.
class CallModel
{
public:
    explicit CallModel(const QString &strOwnId) : m_strOwnId(strOwnId) {}

    /// Whether the channel is up; the test tells.
    bool channelUp = true;
    CallData call;
    bool inviteRuns = false;
    bool recevieRuns = false;
    bool windowShows = false;
    /// The lines to the call process and the host events of a call's course, in their order, as EngineFixture's journal
    /// shows them. The test takes them out.
    QStringList journal;
    /// The texts of the message boxes. The test takes them out.
    QStringList boxes;

    bool exists() const { return !call.peerId.isEmpty() || !call.memberList.isEmpty(); }

    // The host's commands.
    void callSingleUser(const QString &uid, bool video);
    void callConference(const QStringList &uids, bool flag, const QString &text);
    void accept();
    void reject();
    void online(const QString &nickName, const QString &value);
    void offline();
    void exit();

    // The user at the window.
    void hangUp();
    void closeWindow();
    void cancel();
    void addMembers(const QStringList &uids);
    void addChosenMembers(const QStringList &chosen);
    void inviteAgain(const QString &uid);
    void removeMember(const QString &uid);
    void control(const QString &operation, const QString &uid);

    /// A device command of the window, as the journal shows it.
    void device(const QString &command) { send(command); }

    // Time and the far end.
    void inviteTimeout();
    void recevieTimeout();
    void receiveLine(const QString &line);

private:
    bool mayCall();
    void send(const QString &command);
    void finish(int result);
    void closeShownWindow();
    void ring(const QString &uid);
    void notify(int code, const QString &content);
    void connected();
    void created(const QString &content);
    void invitation(const QString &content);
    void update(const QString &content);
    void memberLeft(const QString &content);
    bool isOurs(const QString &confId) const;
    void takeCreateTime(qint64 msecs);

    QString m_strOwnId;
    bool m_bClosing = false;
};

/// Everything the call data hold as one text; of the connect time only whether it is set.
QString shownCall(const CallData &call);

/// A value in compact JSON.
QString shownJson(const QString &text);

/// A list in compact JSON; null for an empty one.
QString shownJson(const QStringList &texts);
