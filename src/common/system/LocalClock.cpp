#include "common/system/LocalClock.h"

#include <QDateTime>

QTime LocalClock::now()
{
    constexpr int second = 1000;
    // A zone changes its offset, to summer time and back, at full seconds only.
    thread_local qint64 knownSecond = -1;
    thread_local QTime knownTime;
    const qint64 msecs = QDateTime::currentMSecsSinceEpoch();
    if (msecs / second != knownSecond) {
        knownSecond = msecs / second;
        knownTime = QDateTime::fromMSecsSinceEpoch(knownSecond * second).time();
    }
    return knownTime.addMSecs(static_cast<int>(msecs % second));
}
