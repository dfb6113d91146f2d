#include "client/DayWatch.h"

#include <QDateTime>

#include <utility>

namespace {

// No longer at once: a timer neither counts while the computer sleeps nor follows a clock that is set.
constexpr qint64 cLongestMs = 60000;

} // namespace

DayWatch::DayWatch(QObject *parent) : QObject(parent), m_day(QDate::currentDate())
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &DayWatch::look);
    look();
}

void DayWatch::look()
{
    const QDateTime now = QDateTime::currentDateTime();
    const QDate before = std::exchange(m_day, now.date());
    m_timer.start(int(qMin(cLongestMs, now.msecsTo(now.date().addDays(1).startOfDay()) + 1)));
    if (before != m_day) {
        emit dayChanged();
    }
}
