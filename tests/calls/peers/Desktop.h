#pragma once

// Somebody's desktop: a client with the built module and its call process, in a home and a temporary folder of its own,
// on the machine that it is told. Main thread.

#include "calls/peers/Person.h"
#include "calls/peers/TestNetwork.h"

#include "flow/CallTrace.h"

#include <memory>

class Desktop
{
public:
    /// Of this user, at this exchange, which outlives it. `machine`: where it stands.
    Desktop(const TestExchange &exchange, const TestMachine &machine, const QString &id);

    /// Ends the client.
    ~Desktop();

    /// Starts the client. Whether its call process has registered the user.
    bool start();

    /// Ends the client as a user does. Whether it ended well, and its call process after it.
    bool quit();

    const QString &id() const { return m_person.id(); }

    /// Has the user do that: "call USER", "accept", "hang up".
    void tell(const QString &order);

    /// Waits until the client says that, after what it was waited for before. Whether it does.
    bool says(const QString &line);

    /// What it said so far, for a failure's message.
    QByteArray said() const;

    /// The network that its call process stands in, as the system names it; empty when none runs.
    QByteArray network() const;

    /// The same of any process, by its number or as "self".
    static QByteArray networkOf(const QByteArray &process);

private:
    QString file(const char *name) const { return m_folder + QLatin1Char('/') + QLatin1String(name); }
    bool isRegistered() const;

    Person m_person; // for what calls.ini has
    const TestMachine &m_machine;
    QString m_folder;
    CallTrace m_trace;
    std::unique_ptr<ChildProgram> m_client;
    int m_heard = 0; // of what it said
};
