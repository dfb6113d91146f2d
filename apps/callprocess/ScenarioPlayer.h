#pragma once

// Plays one scenario over the channel: goes from statement to statement and stops where one has to wait for time, for
// a line, for a client or for the plug-in to take what was written. Owned by main; main thread.

#include "callprocess/Scenario.h"

#include <QObject>
#include <QQueue>
#include <QSet>
#include <QTimer>
#include <QVector>

class Channel;
class Trace;

class ScenarioPlayer : public QObject
{
    Q_OBJECT

public:
    /// What the process ends with when an expectation was not met.
    static constexpr int cExitFailed = 3;
    /// What the process ends with, at once and with nothing tidied up, on "die".
    static constexpr int cExitDied = 9;

    /// `channel` and `trace` outlive the player; `speed`, greater than 0, divides all delays.
    ScenarioPlayer(Scenario scenario, Channel &channel, Trace &trace, double speed, QObject *parent = nullptr);

    /// Begins; to be called once, when the channel listens.
    void start();

    /// Takes one line without its line feed. A malformed one is traced and has no other effect.
    void handleLine(const QByteArray &line);

    /// The line "quit" has come. What is still expected must have come before it; then the process ends.
    void handleQuit();

signals:
    /// The process shall end with this code.
    void finished(int exitCode);

private:
    enum class Waiting
    {
        Nothing,
        Time,
        Line,
        Quiet,
        Client,
        NoClient,
        Writing,
        Over,
    };

    struct Frame
    {
        const QVector<Statement> *statements;
        int next;
        int rounds;
    };

    struct Arrival
    {
        Command command;
        QByteArray line;
    };

    void step();
    bool moveOn();
    void run(const Statement &statement);
    void runExpect();
    void runAwait(bool client);
    void runDelay(Waiting waiting, int milliseconds);
    void runSplit(const Statement &statement);
    void runWrite(const Statement &statement, const QByteArray &bytes);
    void runListen();
    void runDie();
    void serveArrivals();
    bool isPassedOver(const Command &command) const;
    void timeIsUp();
    void resume(Waiting waiting);
    void fail(const QString &text);
    void finish(int exitCode, const QString &text);

    const Scenario m_scenario;
    Channel &m_channel;
    Trace &m_trace;
    double m_speed;
    QVector<Frame> m_frames;
    const Statement *m_statement = nullptr;
    Waiting m_waiting = Waiting::Nothing;
    QQueue<Arrival> m_arrivals;
    QSet<QString> m_ignored;
    QTimer m_timer;
    QByteArray m_restOfLine; // the second half of a split line while its pause runs
    int m_timeoutMs = 10000;
    bool m_played = false; // the scenario has come to its end and the process only serves on
    bool m_quit = false;
};
