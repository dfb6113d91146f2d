#include "callprocess/PacedOutlet.h"

#include "callprocess/Options.h"

#include <QTimer>

PacedOutlet::PacedOutlet(Channel &channel, Trace &trace, double speed) : Outlet(channel, trace), m_speed(speed) {}

void PacedOutlet::after(QObject *context, int delayMs, const std::function<void()> &action) const
{
    QTimer::singleShot(scaledDelay(delayMs, m_speed), context, action);
}
