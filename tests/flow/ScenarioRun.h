#pragma once

#include "fakes/EngineFixture.h"
#include "fakes/QtMessages.h"
#include "flow/CallTrace.h"
#include "plugin/BaseEvent.h"
#include "plugin/EventPayload.h"

#include <QModelIndex>
#include <QTemporaryDir>

#include <functional>

/// One call engine with a real call process of its own on a real socket, which plays a ready scenario. Socket and trace
/// stand in a temporary directory that is this run's alone, so that nothing of another run is met. Build one in each
/// test function. GUI thread.
class ScenarioRun
{
public:
    /// Starts the engine, which starts the call process with the scenario `strName`; its delays are much shortened.
    explicit ScenarioRun(const QString &strName);

    /// Plays only the first `iStatements` of the scenario. Whatever is waited for, the waiting ends with the last one.
    ScenarioRun(const QString &strName, int iStatements);

    /// Ends the call process in any case.
    ~ScenarioRun();
    ScenarioRun(const ScenarioRun &) = delete;
    ScenarioRun &operator=(const ScenarioRun &) = delete;

    /// Where the ready scenarios stand.
    static QString folder();

    /// The names of all ready scenarios, sorted.
    static QStringList names();

    /// How many statements of the scenario `strName` can be played and leave its process alive; a block counts as one,
    /// one that only prepares the rest as none.
    static int statements(const QString &strName);

    /// Gives a host command with its payload fields through the mailbox; returns the event's data afterwards.
    template <class... Fields>
    QByteArray command(EMsgId id, const Fields &...fields)
    {
        return deliver(id, packPayload(fields...));
    }

    /// Lets the event loop run until `condition` holds; false when it does not come to that.
    bool waitFor(const std::function<bool()> &condition) const;

    /// Whether the call process has gone through its scenario.
    bool isPlayed() const { return trace.texts('=').contains("scenario played"); }

    /// Tries to connect until the call process is there, without waiting for the back-off.
    bool connectChannel();

    /// Presses a button of the call window; false when the window has none of this name or does not show it.
    bool press(const char *button);

    /// Clicks into the rectangle that stands in the role `rectRole` of the member's row in the call window; false when
    /// there is no such row or it has none.
    bool clickMember(const QString &strUid, int rectRole);

    /// Double-clicks on the member's row; false when there is none.
    bool doubleClickMember(const QString &strUid);

    /// Whether nothing waits in the channel to be read; nothing does in one that is gone.
    bool hasReadAll() const;

    /// Kills the call process once the engine has read all that it wrote. False when either does not happen, or when
    /// the engine does not see the loss.
    bool killCallProcess();

    /// Starts another call process with the scenario `strName`, as an operator would. From here on `trace` is its own.
    bool startAnother(const QString &strName);

    /// Waits until the scenario has been gone through or its process has died of it, gives the host's exit command, and
    /// returns the exit code of the call process; -1 when it did not end.
    int finish();

    /// What the call process found wrong with what the plug-in sent.
    QList<QByteArray> complaints() const { return trace.texts('!'); }

private:
    QByteArray deliver(EMsgId id, const QByteArray &payload);
    QModelIndex memberIndex(const QString &strUid) const;
    bool isOver() const;
    bool reap();

    QTemporaryDir m_folder;
    bool m_bCut;

public:
    CallTrace trace;
    QtMessages messages;
    EngineFixture engine;
    /// The member list of the call window, as EngineFixture shows it, when the last call ended.
    QStringList membersAtEnd;

private:
    qint64 m_iReaped = 0;
    int m_iExitCode = -1;
};
