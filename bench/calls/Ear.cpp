#include "calls/Ear.h"

#include "host/tour/ToneLevel.h"

#include <pulse/simple.h>

#include <algorithm>
#include <memory>

namespace {

constexpr int cRate = 48000;
constexpr int cPieceSamples = cRate / 100;
constexpr int cStepSamples = cRate / 1000;
constexpr int cWindowSamples = 5 * cStepSamples;
constexpr int cSilenceSamples = cRate / 5;
constexpr double cLoud = 1500;
constexpr int cSampleBytes = 2;

struct Free
{
    void operator()(pa_simple *stream) const { pa_simple_free(stream); }
};

} // namespace

Ear::Ear(const QString &sink) : m_thread([this, name = sink.toUtf8() + ".monitor"] { record(name); }) {}

Ear::~Ear()
{
    m_ends = true;
    m_thread.join();
}

void Ear::listen(bool listens)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_listens = listens;
    m_samples.clear();
    m_start = std::numeric_limits<double>::infinity();
}

void Ear::record(const QByteArray &source)
{
    const pa_sample_spec format{PA_SAMPLE_S16LE, cRate, 1};
    pa_buffer_attr buffer{};
    buffer.maxlength = buffer.minreq = buffer.prebuf = buffer.tlength = uint32_t(-1);
    buffer.fragsize = 2 * cPieceSamples * cSampleBytes;
    const std::unique_ptr<pa_simple, Free> stream(
        pa_simple_new(nullptr, "ear", PA_STREAM_RECORD, source.constData(), "ear", &format, nullptr, &buffer, nullptr));
    QByteArray piece(cPieceSamples * cSampleBytes, 0);
    while (stream && !m_ends && pa_simple_read(stream.get(), piece.data(), std::size_t(piece.size()), nullptr) == 0) {
        const double arrived = now();
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (!m_listens) {
            continue;
        }
        m_samples += piece;
        m_start = std::min(m_start, arrived - double(m_samples.size()) / cSampleBytes / cRate);
    }
}

std::vector<double> Ear::begins(int hertz) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    std::vector<double> begins;
    int silence = 0;
    for (int at = 0; (at + cWindowSamples) * cSampleBytes <= m_samples.size(); at += cStepSamples) {
        const QByteArray window = m_samples.mid(at * cSampleBytes, cWindowSamples * cSampleBytes);
        const bool loud = toneLevel(window, hertz, cRate) > cLoud;
        if (loud && silence >= cSilenceSamples) {
            begins.push_back(m_start + double(at) / cRate);
        }
        silence = loud ? 0 : silence + cStepSamples;
    }
    return begins;
}
