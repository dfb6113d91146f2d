#pragma once

// The outlet of the robots: it knows delays as well, which the speed factor divides. Owned by the exchange; main
// thread.

#include "endpoint/Outlet.h"

#include <functional>

class QObject;

class PacedOutlet : public Outlet
{
public:
    /// `channel` and `trace` outlive the outlet; `speed` is greater than 0.
    PacedOutlet(Channel &channel, Trace &trace, double speed);

    /// Calls `action` after the delay divided by the speed, unless `context` is gone by then.
    void after(QObject *context, int delayMs, const std::function<void()> &action) const;

private:
    double m_speed;
};
