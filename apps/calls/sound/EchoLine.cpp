#include "calls/sound/EchoLine.h"

#include <algorithm>

namespace {

constexpr int cTickMs = 10;
constexpr int cMsPerSecond = 1000;

} // namespace

void EchoLine::setRate(int rate)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_rate = rate;
}

void EchoLine::setChannels(int channels)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_channels = channels;
}

int EchoLine::rate() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_rate;
}

int EchoLine::channels() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_channels;
}

void EchoLine::clear()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_samples.assign(second(), 0);
}

void EchoLine::put(const int16_t *samples, std::size_t count)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_samples.insert(m_samples.end(), samples, samples + count);
    // The echo must not come later and later.
    if (m_samples.size() > 2 * second()) {
        m_samples.erase(m_samples.begin(), m_samples.end() - std::ptrdiff_t(second()));
    }
}

std::size_t EchoLine::samplesOfATick() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return second() * cTickMs / cMsPerSecond / cEchoSeconds;
}

void EchoLine::take(int16_t *samples, std::size_t wanted)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto end = m_samples.begin() + std::ptrdiff_t(std::min(wanted, m_samples.size()));
    std::fill(std::copy(m_samples.begin(), end, samples), samples + wanted, int16_t(0));
    m_samples.erase(m_samples.begin(), end);
}
