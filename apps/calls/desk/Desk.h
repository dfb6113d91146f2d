#pragma once

// Between the wire and the telephone: what the plug-in commands the user agent does, and what happens there the plug-in
// is told. Conferences are declined. Owned by main; main thread.

#include "calls/agent/UserAgent.h"
#include "calls/desk/CallPhase.h"
#include "calls/desk/Remarks.h"

#include "endpoint/Outlet.h"

#include <QObject>
#include <QTimer>

class Desk : public QObject
{
    Q_OBJECT

public:
    /// All of them outlive the desk.
    Desk(Channel &channel, Trace &trace, UserAgent &agent, const ExchangeAccess &access, QObject *parent = nullptr);

    /// Serves one line without its line feed. A malformed one is traced and has no other effect.
    void handleLine(const QByteArray &line);

    /// `access` names the exchange of one's own, for the first time or anew: whoever is signed in registers there.
    void takeExchange();

    /// That exchange has gone or cannot be started, for this reason.
    void loseExchange(const QString &why);

    /// The agent has started: whoever is signed in registers.
    void takeAgent();

    /// The agent cannot be started, for this reason: whoever signs in, or is, is told so.
    void lackAgent(const QString &why);

private:
    void registerUser(const Command &command);
    void unregisterUser(const Command &command);
    void callUser(const Command &command);
    void requestConference(const Command &command);
    void addToConference(const Command &command);
    void acceptCall(const Command &command);
    void acceptConference(const Command &command);
    void endCall(const Command &command);
    void setMicrophoneEnabled(const Command &command);
    void setSpeakerEnabled(const Command &command);
    void setMicrophoneVolume(const Command &command);
    void setSpeakerVolume(const Command &command);

    void signIn();
    void takeRegistration();
    void takeRegistrationLoss(const QString &why);
    void takeArrival(const QString &userId);
    void takeMedia();
    void takeEnd(const CallEnd &end);
    void failCall(const CallEnd &end);
    void takeClient();

    Channel &m_channel;
    Trace &m_trace;
    UserAgent &m_agent;
    const ExchangeAccess &m_access;
    Outlet m_outlet;
    Remarks m_remarks;
    CallPhase m_phase = CallPhase::None;
    QString m_userId;   // empty while nobody is signed in
    QString m_nickName; // what he has signed in with
    QString m_registrationValue;
    QString m_agentFault;       // why the agent has not started; empty: it has
    QString m_exchangeFault;    // why one's own exchange is not there; empty: it is, or is about to come first
    bool m_answerDue = false;   // to the last RegeditUser
    bool m_saidTrue = false;    // the last word about the registration
    qint64 m_clientProcess = 0; // who knows of the call
    QTimer m_awayTimer;         // runs while no client is there
};
