#include "calls/Mouth.h"

#include <pulse/simple.h>

#include <array>
#include <cmath>
#include <memory>

namespace {

constexpr int cRate = 48000;
constexpr int cPieces = 50; // a second
constexpr double cAmplitude = 6000;
constexpr double cTurn = 6.283185307179586;

struct Free
{
    void operator()(pa_simple *stream) const { pa_simple_free(stream); }
};

} // namespace

Mouth::Mouth(const QString &sink) : m_thread([this, name = sink.toUtf8()] { speak(name); }) {}

Mouth::~Mouth()
{
    m_ends = true;
    m_thread.join();
}

void Mouth::speak(const QByteArray &sink) const
{
    const pa_sample_spec format{PA_SAMPLE_S16LE, cRate, 1};
    std::array<int16_t, cRate / cPieces> tone{};
    for (std::size_t i = 0; i < tone.size(); ++i) {
        tone[i] = static_cast<int16_t>(cAmplitude * std::sin(cTurn * cHertz * double(i) / cRate));
    }
    const std::array<int16_t, cRate / cPieces> silence{};
    constexpr auto bytes = static_cast<uint32_t>(sizeof tone);
    pa_buffer_attr buffer{};
    buffer.maxlength = buffer.minreq = buffer.prebuf = buffer.fragsize = uint32_t(-1);
    buffer.tlength = 5 * bytes;
    const std::unique_ptr<pa_simple, Free> stream(pa_simple_new(nullptr, "mouth", PA_STREAM_PLAYBACK, sink.constData(),
                                                                "mouth", &format, nullptr, &buffer, nullptr));
    for (int piece = 0; stream && !m_ends; piece = (piece + 1) % cPieces) {
        const bool silent = m_pauses && piece >= cPieces / 2;
        if (pa_simple_write(stream.get(), silent ? silence.data() : tone.data(), bytes, nullptr) < 0) {
            return;
        }
    }
}
