#pragma once

// Speaks a tone into a sink of the sound server, until it goes. A thread of its own writes the sound.

#include <QString>

#include <atomic>
#include <thread>

class Mouth
{
public:
    static constexpr int cHertz = 2000;

    /// Speaks to this sink from now on, without a pause.
    explicit Mouth(const QString &sink);
    ~Mouth();
    Mouth(const Mouth &) = delete;
    Mouth &operator=(const Mouth &) = delete;

    /// Half a second of sound and half a second of silence, or sound alone.
    void setPauses(bool pauses) { m_pauses = pauses; }

private:
    void speak(const QByteArray &sink) const;

    std::atomic<bool> m_pauses{false};
    std::atomic<bool> m_ends{false};
    std::thread m_thread;
};
