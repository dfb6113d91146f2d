#pragma once

// What the desks of a call process have in common: the way out to the plug-in, and the trace. Owned by whoever owns the
// desks; main thread.

#include "endpoint/Wire.h"

class Channel;
class Trace;

class Outlet
{
public:
    /// `channel` and `trace` outlive the outlet.
    Outlet(Channel &channel, Trace &trace);

    /// Sends one notification, as one line of its own. Without a client it is lost.
    void notify(Wire::Code code, const QString &content = {});

    /// Writes an event to the trace.
    void note(const QString &text);

private:
    Channel &m_channel;
    Trace &m_trace;
};
