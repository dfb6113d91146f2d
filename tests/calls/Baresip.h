#pragma once

// A telephone of another make: it speaks a tone, answers by itself, and writes what it hears to a file. Main thread.

#include "calls/ChildProgram.h"
#include "calls/TestExchange.h"

#include <QString>

#include <memory>

class Baresip
{
public:
    /// Has the account of this id. `encrypted`: takes encrypted sound alone, otherwise plain sound alone.
    Baresip(const TestExchange &exchange, QString id, bool encrypted);
    ~Baresip();

    /// Starts it and waits until it has registered. Whether it has.
    bool start();
    /// Calls a user. Whether the telephone took the command.
    bool call(const QString &userId) const;
    /// Waits for a text in what it says.
    bool waitSaid(const QString &text) const;

    static constexpr int cSpokenHz = 880;

private:
    QByteArray said() const;

    const TestExchange &m_exchange;
    QString m_id;
    bool m_encrypted;
    QString m_folder;
    int m_controlPort = 0;
    std::unique_ptr<ChildProgram> m_child;
};
