#pragma once

// Listens to what a sink of the sound server gets, and says when a tone began there. A thread of its own records.

#include <QByteArray>
#include <QString>

#include <atomic>
#include <chrono>
#include <limits>
#include <mutex>
#include <thread>
#include <vector>

class Ear
{
public:
    /// Stands at this sink for good: a null device that nobody listens to is two seconds ahead of its time.
    explicit Ear(const QString &sink);
    ~Ear();
    Ear(const Ear &) = delete;
    Ear &operator=(const Ear &) = delete;

    /// Keeps what it hears from now on, and nothing of what was before; or keeps nothing any more.
    void listen(bool listens);

    /// When the tone began in what is kept, each time after a fifth of a second or more without it: seconds of the
    /// steady clock.
    std::vector<double> begins(int hertz) const;

    /// The present in these seconds.
    static double now()
    {
        return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
    }

private:
    void record(const QByteArray &source);

    mutable std::mutex m_mutex;
    bool m_listens = false;
    QByteArray m_samples;
    // Of the first sample. A piece may reach the thread late, and never too early.
    double m_start = std::numeric_limits<double>::infinity();
    std::atomic<bool> m_ends{false};
    std::thread m_thread;
};
