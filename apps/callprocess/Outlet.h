#pragma once

// What the desks of the exchange have in common: the way out to the plug-in, the trace, and delays that the speed
// factor divides. Owned by the exchange; main thread.

#include "callprocess/Wire.h"

#include <functional>

class Channel;
class QObject;
class Trace;

class Outlet
{
public:
    /// `channel` and `trace` outlive the outlet; `speed` is greater than 0.
    Outlet(Channel &channel, Trace &trace, double speed);

    /// Sends one notification, as one line of its own. Without a client it is lost.
    void notify(Wire::Code code, const QString &content = {});
    /// Writes an event to the trace.
    void note(const QString &text);
    /// Calls `action` after the delay divided by the speed, unless `context` is gone by then.
    void after(QObject *context, int delayMs, const std::function<void()> &action) const;

private:
    Channel &m_channel;
    Trace &m_trace;
    double m_speed;
};
