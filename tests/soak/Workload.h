#pragma once

class SoakClient;

/// What the user of a soak does: every kind of call and of conference in turn. Throws SoakFailure when a call does not
/// go as its kind goes.
class Workload
{
public:
    explicit Workload(SoakClient &client) : m_client(client) {}

    /// Runs the next kind of single call to its end; returns how many calls that took, one or two.
    int nextCall();

    /// Runs the next kind of conference to its end.
    void nextConference();

    /// One hour by the thread's own clock: a call of ten minutes, one that nobody answers, a conference with a member
    /// who never comes, some minutes without a call process, and for the rest nothing.
    void hour();

private:
    void longCall();
    void unansweredCall();
    void conferenceWithAbsentMember();
    void timeWithoutCallProcess();

    SoakClient &m_client;
    int m_call = 0;
    int m_conference = 0;
};
