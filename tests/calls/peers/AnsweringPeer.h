#pragma once

// Whoever is called as "peer-486" at a test's exchange: sipp, which answers each call with the status in its name, and
// as "peer-200" takes it with sound that is not encrypted. Main thread.

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
    static QByteArray answer(int status);

    int m_port;
    ChildProgram m_sipp;
};
