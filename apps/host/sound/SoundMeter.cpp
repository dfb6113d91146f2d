#include "sound/SoundMeter.h"

#include <algorithm>
#include <cmath>

namespace {

// The server sends the peak of each of so many parts of a second.
constexpr unsigned int cPeaksPerSecond = 25;
constexpr float cDecibelsPerDecade = 20;
constexpr int cLoudest = 100;
constexpr auto cAny = std::uint32_t(-1);

} // namespace

/// One microphone that is listened to, on the connection's thread.
class SoundMeter::Ear
{
public:
    Ear(SoundMeter &meter, const QString &strDevice)
        : m_meter(meter), m_device(strDevice.isEmpty() ? QByteArray("@DEFAULT_SOURCE@") : strDevice.toUtf8()),
          m_link(&meter, {[this] { open(); }, [this] { tell(&SoundMeter::failed); }})
    {
    }

private:
    void open()
    {
        pa_stream *stream = m_link.makeStream("microphone level", cPeaksPerSecond);
        if (stream == nullptr) {
            tell(&SoundMeter::failed);
            return;
        }
        pa_stream_set_state_callback(
            stream,
            [](pa_stream *changed, void *self) {
                if (!PA_STREAM_IS_GOOD(pa_stream_get_state(changed))) {
                    static_cast<Ear *>(self)->tell(&SoundMeter::failed);
                }
            },
            this);
        pa_stream_set_read_callback(
            stream, [](pa_stream *read, std::size_t, void *self) { static_cast<Ear *>(self)->read(read); }, this);
        const pa_buffer_attr each{cAny, cAny, cAny, cAny, sizeof(float)};
        // The device that was asked for or none: another one's level would be believed to be its.
        const auto flags = pa_stream_flags_t(PA_STREAM_PEAK_DETECT | PA_STREAM_ADJUST_LATENCY | PA_STREAM_DONT_MOVE);
        if (pa_stream_connect_record(stream, m_device.constData(), &each, flags) < 0) {
            tell(&SoundMeter::failed);
        }
    }

    void read(pa_stream *stream)
    {
        const void *data = nullptr;
        std::size_t bytes = 0;
        float peak = 0;
        while (pa_stream_readable_size(stream) > 0 && pa_stream_peek(stream, &data, &bytes) >= 0 && bytes > 0) {
            // No data means silence that was not transmitted.
            const auto *samples = static_cast<const float *>(data);
            for (std::size_t i = 0; samples != nullptr && i < bytes / sizeof(float); ++i) {
                peak = std::max(peak, std::fabs(samples[i]));
            }
            pa_stream_drop(stream);
        }
        tell(&SoundMeter::levelChanged, levelOf(peak));
    }

    template <typename Signal, typename... Values>
    void tell(Signal signal, Values... values)
    {
        m_link.tell([meter = &m_meter, signal, values...] { (meter->*signal)(values...); });
    }

    SoundMeter &m_meter;
    const QByteArray m_device;
    SoundLink m_link;
};

SoundMeter::SoundMeter(QObject *parent) : QObject(parent)
{
    m_patience.setSingleShot(true);
    m_patience.setInterval(cPatienceMs);
    connect(&m_patience, &QTimer::timeout, this, &SoundMeter::failed);
    connect(this, &SoundMeter::levelChanged, &m_patience, QOverload<>::of(&QTimer::start));
}

SoundMeter::~SoundMeter() = default;

void SoundMeter::listen(const QString &strDevice)
{
    m_pEar.reset();
    m_patience.start();
    m_pEar = std::make_unique<Ear>(*this, strDevice);
}

void SoundMeter::stop()
{
    m_patience.stop();
    m_pEar.reset();
}

int SoundMeter::levelOf(float peak)
{
    // A NaN gives 0 too.
    if (!(peak > 0)) {
        return 0;
    }
    const float decibels = cDecibelsPerDecade * std::log10(std::min(peak, 1.0F));
    return std::max(0, int(std::lround(float(cLoudest) * (1 - decibels / float(cQuietest)))));
}
