#pragma once

#include <QDate>
#include <QObject>
#include <QTimer>

/// Says when a new day has begun by the clock of the computer: at midnight, and within a minute after that clock was
/// set or the computer has woken. GUI thread.
class DayWatch : public QObject
{
    Q_OBJECT

public:
    explicit DayWatch(QObject *parent = nullptr);

signals:
    /// The date is another one than before.
    void dayChanged();

private:
    void look();

    QTimer m_timer;
    QDate m_day;
};
