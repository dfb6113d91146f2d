#pragma once

// The exchange full of robots: what the call process is when no scenario tells it otherwise. It takes each command of
// the plug-in to the desk that serves it and lets robots call the plug-in when its line is free. Calls live here, not
// in the connection: they outlast a client that comes back. Owned by main; main thread.

#include "callprocess/CallDesk.h"
#include "callprocess/ConferenceDesk.h"
#include "callprocess/PacedOutlet.h"

#include <QObject>

class Exchange : public QObject
{
    Q_OBJECT

public:
    /// `channel` and `trace` outlive the exchange; `speed`, greater than 0, divides all delays.
    Exchange(Channel &channel, Trace &trace, double speed, QObject *parent = nullptr);

    /// Serves one line without its line feed. A malformed one is traced and has no other effect.
    void handleLine(const QByteArray &line);

private:
    void registerUser(const Command &command);
    void unregisterUser(const Command &command);
    void callUser(const Command &command);
    void requestConference(const Command &command);
    void addToConference(const Command &command);
    void acceptCall(const Command &command);
    void acceptConference(const Command &command);
    void endCall(const Command &command);
    void endConference(const Command &command);
    void controlConference(const Command &command);

    void letRobotReturn(const Robot &robot);
    void endAll();

    Trace &m_trace;
    PacedOutlet m_outlet;
    CallDesk m_calls;
    ConferenceDesk m_conferences;
    QString m_userId; // empty while nobody is registered
};
