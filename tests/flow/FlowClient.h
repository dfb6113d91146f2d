#pragma once

#include "fakes/FakeHost.h"
#include "flow/CallTrace.h"
#include "model/CommonData.h"
#include "model/LoginData.h"

#include <QPluginLoader>
#include <QStringList>

class PluginInterface;
class QWidget;

/// A client that knows the plug-in from outside only: it loads the built module, speaks to it by events, reads what
/// went over the wire from the call process's trace, and finds the windows on the screen. GUI thread; one in a process,
/// since the module's singletons live to the process's end.
class FlowClient
{
public:
    /// Signs that user in. The robots' delays are divided by `speed`.
    explicit FlowClient(const QByteArray &speed, const QString &strUid = QStringLiteral("30010000"),
                        const QString &strRegValue = QStringLiteral("registration"));

    /// Loads the module and hands it the context and the event handle.
    bool load();

    /// Gives a command with its payload fields; returns the event's data afterwards.
    template <class... Fields>
    QByteArray command(EMsgId id, const Fields &...fields)
    {
        return deliver(id, packPayload(fields...));
    }

    /// A query's answer.
    bool ask(EMsgId id);

    /// Reports the login and waits until the call process has registered the user. False when that does not happen.
    bool goOnline();

    /// Names of the commands that the call process has got, oldest first.
    QStringList commandsOnWire() const;

    /// How often the command is on the wire.
    int countOnWire(const QString &name) const;

    /// Codes of the notifications that the call process has sent, oldest first.
    QList<int> codesOnWire() const;

    /// Process id of the youngest call process; 0 when none was started.
    qint64 callProcessId() const;
    bool callProcessLives() const;

    /// Ends it without a chance to say anything; true once it is gone.
    bool killCallProcess();

    /// Starts another one, as an operator would.
    bool startCallProcess();

    /// The call window, shown or hidden; null before the first command.
    QWidget *callWindow() const;

    /// Text of a label of the call window.
    QString callWindowText(const char *label) const;

    /// What takes the clicks on a button of the call window.
    QWidget *callWindowButton(const char *name) const;

    /// Closes the next message box with its default button and keeps its text in `messageText`.
    void expectMessage();
    QString messageText;

    FakeHost host;

    /// What the client shares with the plug-in; a test may fill in more.
    CommonData &context() { return m_data; }

private:
    QByteArray deliver(EMsgId id, const QByteArray &payload);

    CallTrace m_trace;
    LoginData m_login;
    CommonData m_data;
    QPluginLoader m_loader;
    PluginInterface *m_pPlugin = nullptr;
};

/// The fields of a call record.
struct CallRecord
{
    explicit CallRecord(const ReceivedEvent &event);

    bool bIsVideo;
    QString strUserId;
    int iResult;
    bool bIsCaller;
    bool bIsConnected;
    qint64 iSeconds;
};
