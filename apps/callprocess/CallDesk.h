#pragma once

// The single calls of the exchange: at most one at a time, placed by the plug-in or by a robot. Owned by the exchange;
// main thread.

#include "callprocess/PacedOutlet.h"
#include "callprocess/RobotTable.h"

#include <QObject>

#include <memory>

class CallDesk : public QObject
{
    Q_OBJECT

public:
    /// `outlet` outlives the desk.
    explicit CallDesk(PacedOutlet &outlet, QObject *parent = nullptr);
    ~CallDesk() override;

    /// Whether a call is being placed, rings or is connected.
    bool hasCall() const { return m_phase != Phase::None; }

    /// The plug-in calls `userId`; a call that was still there ends without a word. An id without a robot fails.
    void placeCall(const QString &userId);

    /// A robot calls the plug-in.
    void ring(const Robot &robot);

    /// The plug-in accepts the call that rings, otherwise no effect.
    void accept();

    /// The plug-in rejects or hangs up; the other side learns it and has nothing to say.
    void end();

signals:
    /// A robot that was called wants to come back to the caller after its own delay.
    void returnWanted(const Robot &robot);

private:
    enum class Phase
    {
        None,
        Calling,
        Ringing,
        Connected,
    };

    void enter(Phase phase);
    void after(int delayMs, const std::function<void()> &action);
    void reply(const Robot &robot);
    void connectCall(const Robot &robot);
    void finish(Wire::Code code);

    PacedOutlet &m_outlet;
    Phase m_phase = Phase::None;
    const Robot *m_robot = nullptr;
    std::unique_ptr<QObject> m_timers; // context of the present phase's timers: they go with it
};
