#pragma once

// A registrar and proxy on a free port, of the loopback by default, with a certificate of its own, in the test's
// folder. Main thread.

#include "calls/peers/ChildProgram.h"
#include "calls/peers/TestNetwork.h"

#include <QString>

#include <memory>

class TestExchange
{
public:
    explicit TestExchange(const TestMachine &machine = {});
    ~TestExchange();

    /// Has calls to "peer-..." go to who listens at this UDP port, from the next start on.
    void setPeer(int port) { m_peerPort = port; }

    /// Starts it at its port, at the first time at another one where somebody has taken that, and waits until it takes
    /// connections. Whether it does.
    bool start();

    /// Kills it with all its processes. Whether nobody takes connections then.
    bool kill();

    int port() const { return m_port; }
    static QString domain() { return QStringLiteral("voice.test"); }
    static QString secretOf(const QString &userId) { return QStringLiteral("secret-") + userId; }

    /// The name at which it is reached, which its certificate has.
    QString host() const { return m_machine.name; }
    QString caFile() const { return m_folder + QStringLiteral("/certificate.pem"); }

private:
    bool begin();
    QStringList options(const QString &tlsFile) const;
    bool makeCertificate() const;
    bool takesConnections() const;

    TestMachine m_machine;
    QString m_folder;
    int m_port = 0;
    int m_peerPort = 0; // 0: there is none
    std::unique_ptr<ChildProgram> m_child;
};
