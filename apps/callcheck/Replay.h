#pragma once

// Plays the plug-in's part of a scenario against a call process: says what the scenario expects the plug-in to say, and
// expects what it lets the call process say and do. The plug-in's pauses are left out; the call process's are its
// limits. Main thread; blocks.

#include "callcheck/LineMatch.h"
#include "callcheck/PluginCommand.h"
#include "callcheck/PluginSide.h"
#include "callprocess/Scenario.h"

class Subject;
class Trace;

class Replay
{
public:
    /// `subject` has been started or attached to, and outlives this object, as `trace` does. `patienceMs` is what an
    /// answer may come later than the scenario has it.
    Replay(const Scenario &scenario, Subject &subject, Trace &trace, int patienceMs, PluginUser user);

    /// Plays it to its end and lets the call process quit, unless the scenario ends that too. True when all was as the
    /// scenario has it; else `fault()` says what was not.
    bool run();

    /// What was wrong, with the scenario's name and line.
    const QString &fault() const { return m_fault; }

    /// Whether `fault()` is that the call process was never reached.
    bool wasUnreachable() const { return m_unreachable; }

    /// How many commands were said and how many notifications came.
    int commandCount() const { return m_commandCount; }
    int notificationCount() const { return m_notificationCount; }

private:
    bool reach();
    bool play(const QVector<Statement> &statements);
    bool playOne(const Statement &statement);
    bool say(const Statement &statement);
    bool expectBytes(const QByteArray &bytes);
    bool expectLine(const QByteArray &recorded);
    bool expectQuit();
    bool expectDeath();
    bool expectEnd();
    bool expectNoMore();
    bool checkReads();
    bool connectAnew();
    bool fail(const QString &text);
    int limit() const { return m_patienceMs + m_recordedWaitMs; }

    const Scenario &m_scenario;
    Subject &m_subject;
    PluginSide m_plugin;
    LineMatch m_match;
    PluginUser m_user;
    const int m_patienceMs;
    const bool m_mayBreakLines;
    int m_line = 0;           // of the statement that is played
    int m_recordedWaitMs = 0; // since the last thing said by either side
    QByteArray m_unfinished;  // bytes that the scenario lets the call process write, without their line's end yet
    bool m_over = false;      // the scenario has had the call process end
    bool m_unreachable = false;
    int m_commandCount = 0;
    int m_notificationCount = 0;
    QString m_fault;
};
