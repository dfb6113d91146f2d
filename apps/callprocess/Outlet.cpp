#include "callprocess/Outlet.h"

#include "callprocess/Channel.h"
#include "callprocess/Options.h"
#include "callprocess/Trace.h"

#include <QTimer>

Outlet::Outlet(Channel &channel, Trace &trace, double speed) : m_channel(channel), m_trace(trace), m_speed(speed) {}

void Outlet::notify(Wire::Code code, const QString &content)
{
    m_channel.write(notificationLine(code, content));
}

void Outlet::note(const QString &text)
{
    m_trace.event(text);
}

void Outlet::after(QObject *context, int delayMs, const std::function<void()> &action) const
{
    QTimer::singleShot(scaledDelay(delayMs, m_speed), context, action);
}
