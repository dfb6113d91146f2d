#include "callcheck/Replay.h"

#include "callcheck/Subject.h"
#include "wire/Commands.h"

#include <algorithm>
#include <utility>

namespace {

constexpr unsigned cForOthers = 077;

/// Whether the scenario itself writes a line in pieces.
bool breaksLines(const QVector<Statement> &statements)
{
    return std::any_of(statements.begin(), statements.end(), [](const Statement &statement) {
        return statement.kind == StatementKind::Split ||
               (statement.kind == StatementKind::Raw && !statement.bytes.endsWith('\n')) || breaksLines(statement.body);
    });
}

} // namespace

Replay::Replay(const Scenario &scenario, Subject &subject, Trace &trace, int patienceMs, PluginUser user)
    : m_scenario(scenario), m_subject(subject), m_plugin(trace), m_user(std::move(user)), m_patienceMs(patienceMs),
      m_mayBreakLines(breaksLines(scenario.statements))
{
}

bool Replay::run()
{
    return reach() && play(m_scenario.statements) && (m_over || expectQuit()) && expectNoMore();
}

bool Replay::reach()
{
    m_unreachable = true;
    if (!m_subject.waitListening(m_patienceMs)) {
        const bool ended = m_subject.isChild() && m_subject.process().state() == QProcess::NotRunning;
        return fail(ended ? QStringLiteral("the call process ended with %1 before it listened").arg(m_subject.ending())
                          : QStringLiteral("the call process does not listen at %1").arg(m_subject.socketPath()));
    }
    if (!m_plugin.connectTo(m_subject.socketPath(), m_patienceMs)) {
        return fail(QStringLiteral("the call process cannot be connected to"));
    }
    m_unreachable = false;
    if ((m_subject.socketMode() & cForOthers) != 0) {
        return fail(QStringLiteral("the socket file is open to other users: its mode is %1")
                        .arg(m_subject.socketMode(), 4, 8, QLatin1Char('0')));
    }
    return true;
}

bool Replay::play(const QVector<Statement> &statements)
{
    return std::all_of(statements.begin(), statements.end(), [this](const Statement &statement) {
        m_line = statement.line;
        return m_over || playOne(statement);
    });
}

bool Replay::playOne(const Statement &statement)
{
    switch (statement.kind) {
    case StatementKind::Expect:
    case StatementKind::Await:
        return say(statement);
    case StatementKind::Send:
    case StatementKind::Raw:
    case StatementKind::Split:
    case StatementKind::Join:
        return expectBytes(statement.bytes);
    case StatementKind::Wait:
        m_recordedWaitMs += statement.milliseconds;
        return true;
    case StatementKind::Repeat:
        for (int round = 0; round < statement.count; ++round) {
            if (!play(statement.body)) {
                return false;
            }
        }
        return true;
    case StatementKind::AwaitClient:
        return m_plugin.isConnected() || connectAnew();
    case StatementKind::AwaitGone:
        m_plugin.disconnect();
        return true;
    case StatementKind::Drop:
        return m_plugin.waitClosed(limit()) || fail(QStringLiteral("the connection is not closed"));
    case StatementKind::StopListen:
        return m_subject.waitSilent(limit()) || fail(QStringLiteral("the call process still listens"));
    case StatementKind::RestartListen:
        return m_subject.waitListening(limit()) || fail(QStringLiteral("the call process does not listen again"));
    case StatementKind::Die:
        return expectDeath();
    case StatementKind::End:
        return expectEnd();
    case StatementKind::Ignore:
    case StatementKind::ExpectNothing:
    case StatementKind::Timeout:
        break; // what the plug-in may leave undone is left undone
    }
    return true;
}

bool Replay::say(const Statement &statement)
{
    const QString name = statement.commands.constFirst();
    if (name == QLatin1String(Wire::cQuitLine)) {
        return expectQuit();
    }
    if (name == QLatin1String(Wire::nameOf(Wire::Command::RegeditUser))) {
        for (const ExpectedParameter &parameter : statement.parameters) {
            m_user.id = parameter.key == QLatin1String("param1") ? parameter.text : m_user.id;
        }
    }
    m_recordedWaitMs = 0;
    ++m_commandCount;
    return m_plugin.write(pluginLine(statement, m_user)) ||
           fail(QStringLiteral("%1 cannot be said: the call process has closed the connection").arg(name));
}

bool Replay::expectBytes(const QByteArray &bytes)
{
    m_unfinished += bytes;
    for (int end = m_unfinished.indexOf('\n'); end >= 0; end = m_unfinished.indexOf('\n')) {
        const QByteArray recorded = m_unfinished.left(end);
        m_unfinished.remove(0, end + 1);
        if (!LineMatch::isLog(recorded) && !expectLine(recorded)) {
            return false;
        }
    }
    return true;
}

bool Replay::expectLine(const QByteArray &recorded)
{
    std::optional<QByteArray> line = m_plugin.nextLine(limit());
    while (line && LineMatch::isLog(*line)) {
        line = m_plugin.nextLine(limit());
    }
    const QString expected = QStringLiteral("expected %1, got ").arg(LineMatch::shown(recorded));
    if (!line) {
        return fail(expected + (m_plugin.isConnected() ? QStringLiteral("nothing for %1 ms").arg(limit())
                                                       : QStringLiteral("the end of the connection")));
    }
    m_recordedWaitMs = 0;
    ++m_notificationCount;
    return checkReads() && (m_match.matches(recorded, *line) || fail(expected + LineMatch::shown(*line)));
}

bool Replay::checkReads()
{
    return m_mayBreakLines || !m_plugin.hasBrokenRead() ||
           fail(QStringLiteral("a line came in more than one read, so the plug-in would lose it"));
}

bool Replay::expectQuit()
{
    m_over = true;
    if (!m_plugin.isConnected() && !connectAnew()) {
        return false;
    }
    m_plugin.write(QByteArray(Wire::cQuitLine) + '\n');
    if (!m_subject.waitEnded(limit())) {
        return fail(QStringLiteral("the call process has not ended %1 ms after quit").arg(limit()));
    }
    const bool good = !m_subject.isChild() || m_subject.ending() == QLatin1String("code 0");
    return good ||
           fail(QStringLiteral("expected code 0 after quit, the call process ended with %1").arg(m_subject.ending()));
}

bool Replay::expectDeath()
{
    m_over = true;
    if (!m_subject.waitEnded(limit())) {
        return fail(QStringLiteral("expected the call process to die, it lives"));
    }
    const bool good = !m_subject.isChild() || m_subject.ending() != QLatin1String("code 0");
    return good || fail(QStringLiteral("expected the call process to die, it ended with code 0"));
}

bool Replay::expectEnd()
{
    m_over = true;
    if (!m_subject.waitEnded(limit())) {
        return fail(QStringLiteral("expected the call process to end by itself, it lives"));
    }
    const bool good = !m_subject.isChild() || m_subject.ending() == QLatin1String("code 0");
    return good || fail(QStringLiteral("expected the call process to end with code 0, it ended with %1")
                            .arg(m_subject.ending()));
}

/// Nothing may have been said beyond what the scenario has.
bool Replay::expectNoMore()
{
    m_plugin.waitClosed(m_patienceMs);
    for (std::optional<QByteArray> line = m_plugin.nextLine(0); line; line = m_plugin.nextLine(0)) {
        if (!LineMatch::isLog(*line)) {
            return fail(QStringLiteral("expected nothing more, got %1").arg(LineMatch::shown(*line)));
        }
    }
    // Of a line that the scenario leaves unfinished, as much may have come as it has.
    if (!m_unfinished.startsWith(m_plugin.rest())) {
        return fail(QStringLiteral("expected nothing more, got %1").arg(LineMatch::shown(m_plugin.rest())));
    }
    return checkReads();
}

bool Replay::connectAnew()
{
    return m_plugin.connectTo(m_subject.socketPath(), limit()) ||
           fail(QStringLiteral("the call process cannot be connected to again"));
}

bool Replay::fail(const QString &text)
{
    m_fault = QStringLiteral("%1:%2: %3").arg(m_scenario.name).arg(m_line).arg(text);
    return false;
}
