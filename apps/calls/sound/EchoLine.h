#pragma once

// What is on its way from the echo's loudspeaker to its microphone. Both are served by threads of the library's, and
// the format is set by others; any thread.

#include <cstddef>
#include <cstdint>
#include <deque>
#include <mutex>

/// How much later the microphone hears what is played.
inline constexpr int cEchoSeconds = 1;

class EchoLine
{
public:
    void setRate(int rate);
    void setChannels(int channels);
    int rate() const;
    int channels() const;

    /// A new call: the microphone hears nothing of the one before.
    void clear();

    /// Adds what was played. Where the microphone is not heard in time, the oldest goes.
    void put(const int16_t *samples, std::size_t count);

    /// How many samples the microphone hears at once, in the present format.
    std::size_t samplesOfATick() const;

    /// Takes exactly so many samples, whatever the format has become meanwhile; what was not played is silence.
    void take(int16_t *samples, std::size_t wanted);

private:
    std::size_t second() const { return std::size_t(m_rate) * std::size_t(m_channels) * cEchoSeconds; }

    mutable std::mutex m_mutex;
    std::deque<int16_t> m_samples;
    int m_rate = 16000;
    int m_channels = 1;
};
