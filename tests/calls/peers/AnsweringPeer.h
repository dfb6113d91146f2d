#pragma once

// Whoever is called as "peer-486" at a test's exchange: sipp, which answers each call with the status in its name. Main
// thread.

#include "calls/peers/ChildProgram.h"

#include <QList>

class AnsweringPeer
{
public:
    AnsweringPeer();

    /// Starts it for these statuses. Whether it runs; the exchange asks again until it listens.
    bool start(const QList<int> &statuses);

    /// The UDP port, free until the start.
    int port() const { return m_port; }

private:
    static QByteArray scenario(const QList<int> &statuses);

    int m_port;
    ChildProgram m_sipp;
};
