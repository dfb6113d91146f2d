#include "callprocess/ScenarioPlayer.h"

#include "callprocess/Options.h"
#include "endpoint/Channel.h"
#include "endpoint/Trace.h"

#include <cstdlib>
#include <utility>

ScenarioPlayer::ScenarioPlayer(Scenario scenario, Channel &channel, Trace &trace, double speed, QObject *parent)
    : QObject(parent), m_scenario(std::move(scenario)), m_channel(channel), m_trace(trace), m_speed(speed)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &ScenarioPlayer::timeIsUp);
    connect(&m_channel, &Channel::clientArrived, this, [this] { resume(Waiting::Client); });
    connect(&m_channel, &Channel::clientGone, this, [this] { resume(Waiting::NoClient); });
    connect(&m_channel, &Channel::allWritten, this, [this] { resume(Waiting::Writing); });
}

void ScenarioPlayer::start()
{
    m_frames.append({&m_scenario.statements, 0, 1});
    step();
}

void ScenarioPlayer::handleLine(const QByteArray &line)
{
    QString fault;
    const std::optional<Command> command = parseCommand(line, &fault);
    if (!command) {
        m_trace.complaint(fault);
        return;
    }
    fault = shapeFault(*command);
    if (!fault.isEmpty()) {
        m_trace.complaint(fault);
    }
    if (!m_played) {
        m_arrivals.enqueue({*command, line});
        serveArrivals();
    }
}

void ScenarioPlayer::handleQuit()
{
    if (m_played) {
        finish(0, QStringLiteral("quit"));
        return;
    }
    m_quit = true;
    m_restOfLine.clear();
    m_arrivals.enqueue({Command{QString::fromLatin1(Wire::cQuitLine), {}}, Wire::cQuitLine});
    // Nothing can be sent any more, so the rest is gone through without its delays.
    if (m_waiting == Waiting::Line) {
        serveArrivals();
    } else if (m_waiting == Waiting::Quiet) {
        timeIsUp();
    } else {
        resume(m_waiting);
    }
}

void ScenarioPlayer::step()
{
    while (m_waiting == Waiting::Nothing && moveOn()) {
        run(*m_statement);
    }
}

/// Sets the next statement; false when there is none or it cannot be run yet.
bool ScenarioPlayer::moveOn()
{
    if (!m_channel.isAllWritten() && !m_quit) {
        m_waiting = Waiting::Writing;
        return false;
    }
    while (!m_frames.isEmpty()) {
        Frame &frame = m_frames.last();
        if (frame.next < frame.statements->size()) {
            m_statement = &frame.statements->at(frame.next++);
            return true;
        }
        if (--frame.rounds > 0) {
            frame.next = 0;
        } else {
            m_frames.removeLast();
        }
    }
    m_played = true;
    m_waiting = Waiting::Over;
    m_trace.event(QStringLiteral("scenario played"));
    if (m_quit) {
        finish(0, QStringLiteral("quit"));
    }
    return false;
}

void ScenarioPlayer::run(const Statement &statement)
{
    switch (statement.kind) {
    case StatementKind::Expect:
    case StatementKind::Await:
        runExpect();
        break;
    case StatementKind::Ignore:
        m_ignored += QSet<QString>(statement.commands.begin(), statement.commands.end());
        break;
    case StatementKind::ExpectNothing:
        runDelay(Waiting::Quiet, statement.milliseconds);
        serveArrivals();
        break;
    case StatementKind::Timeout:
        m_timeoutMs = statement.milliseconds;
        break;
    case StatementKind::Send:
    case StatementKind::Raw:
    case StatementKind::Join:
        runWrite(statement, statement.bytes);
        break;
    case StatementKind::Split:
        runSplit(statement);
        break;
    case StatementKind::Wait:
        runDelay(Waiting::Time, statement.milliseconds);
        break;
    case StatementKind::Repeat:
        m_frames.append({&statement.body, 0, statement.count});
        break;
    case StatementKind::AwaitClient:
    case StatementKind::AwaitGone:
        runAwait(statement.kind == StatementKind::AwaitClient);
        break;
    case StatementKind::Drop:
        m_channel.drop();
        break;
    case StatementKind::StopListen:
        m_channel.stopListening();
        break;
    case StatementKind::RestartListen:
        runListen();
        break;
    case StatementKind::Die:
        runDie();
        break;
    case StatementKind::End:
        finish(0, QStringLiteral("scenario ended"));
        break;
    }
}

void ScenarioPlayer::runExpect()
{
    m_waiting = Waiting::Line;
    if (m_timeoutMs > 0) {
        m_timer.start(m_timeoutMs);
    }
    serveArrivals();
}

void ScenarioPlayer::runAwait(bool client)
{
    const bool over = m_channel.hasClient() == client || m_quit;
    m_waiting = over ? Waiting::Nothing : client ? Waiting::Client : Waiting::NoClient;
}

void ScenarioPlayer::runDelay(Waiting waiting, int milliseconds)
{
    m_waiting = waiting;
    m_timer.start(m_quit ? 0 : scaledDelay(milliseconds, m_speed));
}

void ScenarioPlayer::runSplit(const Statement &statement)
{
    runWrite(statement, statement.bytes.left(statement.count));
    if (m_waiting == Waiting::Nothing && !m_quit) {
        m_restOfLine = statement.bytes.mid(statement.count);
        runDelay(Waiting::Time, statement.milliseconds);
    }
}

void ScenarioPlayer::runWrite(const Statement &statement, const QByteArray &bytes)
{
    if (!m_quit && !m_channel.write(bytes)) {
        fail(QStringLiteral("line %1 has nobody to send to").arg(statement.line));
    }
}

void ScenarioPlayer::runListen()
{
    QString error;
    if (m_channel.listen(&error) != Channel::Listen::Listening) {
        fail(QStringLiteral("cannot listen again: %1").arg(error));
    }
}

void ScenarioPlayer::runDie()
{
    m_trace.event(QStringLiteral("died"));
    std::_Exit(cExitDied);
}

void ScenarioPlayer::serveArrivals()
{
    while (!m_arrivals.isEmpty() && (m_waiting == Waiting::Line || m_waiting == Waiting::Quiet)) {
        const Arrival arrival = m_arrivals.dequeue();
        const bool isQuit = arrival.line == Wire::cQuitLine;
        if (m_waiting == Waiting::Quiet) {
            if (isQuit) {
                m_arrivals.prepend(arrival);
                return;
            }
            if (!isPassedOver(arrival.command)) {
                fail(QStringLiteral("expected nothing, got %1").arg(Trace::printable(arrival.line)));
            }
        } else if (m_statement->matches(arrival.command)) {
            m_timer.stop();
            if (isQuit) {
                finish(0, QStringLiteral("quit"));
            } else {
                resume(Waiting::Line);
            }
        } else if (isQuit || (m_statement->kind == StatementKind::Expect && !isPassedOver(arrival.command))) {
            fail(QStringLiteral("expected %1, got %2").arg(m_statement->expectation(), Trace::printable(arrival.line)));
        }
    }
}

bool ScenarioPlayer::isPassedOver(const Command &command) const
{
    return m_ignored.contains(command.name);
}

void ScenarioPlayer::timeIsUp()
{
    if (m_waiting == Waiting::Line) {
        fail(QStringLiteral("expected %1, got nothing for %2 ms").arg(m_statement->expectation()).arg(m_timeoutMs));
    } else if (m_restOfLine.isEmpty()) {
        resume(m_waiting);
    } else {
        m_waiting = Waiting::Nothing;
        runWrite(*m_statement, std::exchange(m_restOfLine, {}));
        step();
    }
}

/// Goes on with the next statement if this is what the present one waits for.
void ScenarioPlayer::resume(Waiting waiting)
{
    if (m_waiting == waiting && m_waiting != Waiting::Over && m_waiting != Waiting::Nothing) {
        m_timer.stop();
        m_waiting = Waiting::Nothing;
        step();
    }
}

void ScenarioPlayer::fail(const QString &text)
{
    m_timer.stop();
    m_waiting = Waiting::Over;
    m_trace.complaint(QStringLiteral("%1:%2: %3").arg(m_scenario.name).arg(m_statement->line).arg(text));
    emit finished(cExitFailed);
}

void ScenarioPlayer::finish(int exitCode, const QString &text)
{
    m_timer.stop();
    m_waiting = Waiting::Over;
    m_trace.event(text);
    emit finished(exitCode);
}
