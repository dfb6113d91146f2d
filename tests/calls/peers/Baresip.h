#pragma once

// A telephone of another make: it speaks a tone, answers by itself, and writes what it hears to a file, unless it is
// told otherwise before its start. Main thread; everything is bounded by cPatienceMs.

#include "calls/peers/ChildProgram.h"
#include "calls/peers/TestExchange.h"

#include <QString>
#include <QTcpSocket>

#include <memory>

class Baresip
{
public:
    /// Has the account of this id. `encrypted`: takes encrypted sound alone, otherwise plain sound alone.
    Baresip(const TestExchange &exchange, QString id, bool encrypted);
    ~Baresip();

    /// Speaks and hears by these devices of the sound server instead.
    void useDevices(const QString &microphone, const QString &speaker);

    /// Answers when it is told to, and not by itself.
    void waitToAnswer() { m_answers = false; }

    /// Starts it and waits until it has registered. Whether it has.
    bool start();

    /// Starts it without its account. Whether it takes commands.
    bool startSignedOff();

    /// Signs in with the account. Whether the telephone took the command.
    bool signIn();

    /// Calls a user. Whether the telephone took the command.
    bool call(const QString &userId);
    bool accept() { return command("accept", {}); }
    bool hangUp() { return command("hangup", {}); }

    /// Waits for a report of this kind, such as CALL_ESTABLISHED; those before it are forgotten. Whether it comes.
    bool reports(const QByteArray &kind);

    /// Waits for a text in what it says.
    bool waitSaid(const QString &text) const;

    /// Of the running telephone.
    qint64 processId() const { return m_child->processId(); }

    static constexpr int cSpokenHz = 880;

private:
    QString account() const;
    bool begin(const QString &account);
    bool isControlled();
    bool command(const char *name, const QString &parameters);
    QByteArray said() const;

    const TestExchange &m_exchange;
    QString m_id;
    bool m_encrypted;
    QString m_folder;
    int m_controlPort = 0;
    QByteArray m_source;
    QByteArray m_player;
    bool m_answers = true;
    std::unique_ptr<ChildProgram> m_child;
    QTcpSocket m_control;
    QByteArray m_input; // of the control connection
};
