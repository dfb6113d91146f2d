#include "endpoint/Outlet.h"

#include "endpoint/Channel.h"
#include "endpoint/Trace.h"

Outlet::Outlet(Channel &channel, Trace &trace) : m_channel(channel), m_trace(trace) {}

void Outlet::notify(Wire::Code code, const QString &content)
{
    m_channel.write(notificationLine(code, content));
}

void Outlet::note(const QString &text)
{
    m_trace.event(text);
}
