#pragma once

// A registrar and proxy on a free loopback port, with a certificate of its own, in the test's folder. Main thread.

#include "calls/ChildProgram.h"

#include <QString>

#include <memory>

class TestExchange
{
public:
    TestExchange();
    ~TestExchange();

    /// Starts it at its port, at the first time at another one where somebody has taken that, and waits until it takes
    /// connections. Whether it does.
    bool start();

    /// Kills it with all its processes. Whether nobody takes connections then.
    bool kill();

    int port() const { return m_port; }
    static QString domain() { return QStringLiteral("voice.test"); }
    static QString secretOf(const QString &userId) { return QStringLiteral("secret-") + userId; }

    /// The name at which it is reached, which its certificate has.
    static QString host() { return QStringLiteral("localhost"); }
    QString caFile() const { return m_folder + QStringLiteral("/certificate.pem"); }

private:
    bool begin();
    bool makeCertificate() const;
    bool takesConnections() const;

    QString m_folder;
    int m_port = 0;
    std::unique_ptr<ChildProgram> m_child;
};
