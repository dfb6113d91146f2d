#pragma once

// A running call process with a client at its socket, for tests: the child is the real executable, the socket the real
// one under the test's temporary directory. Main thread; everything is bounded by `cWaitMs`.

#include "fakes/Patience.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>
#include <QLocalSocket>
#include <QProcess>
#include <QStringList>

#include <memory>

class CallProcess
{
public:
    static constexpr int cWaitMs = cPatienceMs;

    CallProcess();

    /// Kills the child when it still runs.
    ~CallProcess();

    /// Where clients connect, if the child's options have it listen at another name than VoipSDK.
    void setSocketName(const QString &name) { m_socketName = name; }
    const QString &socketName() const { return m_socketName; }

    /// What is started instead of the program that these tests are about.
    void setProgram(const QString &program) { m_program = program; }

    /// Starts the child with a trace and these options besides. It need not be listening yet.
    void start(const QStringList &options = {});

    /// The same with a scenario of this text.
    void startScenario(const QByteArray &text, const QStringList &options = {});

    /// Connects a new client, trying again until the child listens. An earlier client object is thrown away.
    bool connectClient();

    /// Both, with the delays a hundred times shorter and a user registered; the answers to that are taken.
    bool startRegistered(const QStringList &options = {QStringLiteral("--speed"), QStringLiteral("100")});

    QProcess &process() { return m_process; }
    QLocalSocket &client() { return *m_client; }

    void write(const QByteArray &bytes);

    /// One command as a line; `parameters` become param1, param2, ...
    static QByteArray line(const QString &name, const QJsonArray &parameters = {});

    /// The parameters of CallUser for a call by voice to 30010001.
    static QJsonArray callParameters() { return {QStringLiteral("30010001"), false}; }

    /// Writes one command.
    void command(const QString &name, const QJsonArray &parameters = {});

    /// The next read as it comes, empty when none does.
    QByteArray nextRead();

    /// The next line as "code content", empty when none comes.
    QString nextNotification();

    /// Whether the next one has come already.
    bool isNotified();

    /// Whether the child closes the connection.
    bool waitDisconnected();

    /// The child's exit code, -1 when it does not end.
    int exitCode();

    /// The trace so far, without the times.
    QStringList trace() const;

    /// Waits for the trace to have a line that contains `text`.
    bool waitTrace(const QString &text) const;

    static QString socketPath();

private:
    QProcess m_process;
    std::unique_ptr<QLocalSocket> m_client;
    QByteArray m_input;
    QString m_program;
    QString m_socketName = QStringLiteral("VoipSDK");
    QString m_tracePath;
};
