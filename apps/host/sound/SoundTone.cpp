#include "sound/SoundTone.h"

#include <cmath>
#include <vector>

namespace {

constexpr unsigned int cRate = 44100;
constexpr int cMsPerSecond = 1000;
// Concert pitch, not loud.
constexpr float cFrequency = 440;
constexpr float cLoudness = 0.25F;
// Without it the tone would begin and end with a click.
constexpr float cFadeSeconds = 0.05F;
constexpr float cTurn = 6.2831853F;

std::vector<float> makeTone()
{
    std::vector<float> tone(std::size_t(cRate) * SoundTone::cLengthMs / cMsPerSecond);
    const float fade = cFadeSeconds * float(cRate);
    for (std::size_t i = 0; i < tone.size(); ++i) {
        const float toEdge = float(std::min(i, tone.size() - i)) / fade;
        tone[i] = cLoudness * std::min(1.0F, toEdge) * std::sin(cTurn * cFrequency * float(i) / float(cRate));
    }
    return tone;
}

} // namespace

/// One tone on its way, on the connection's thread.
class SoundTone::Mouth
{
public:
    Mouth(SoundTone &tone, const QString &strDevice)
        : m_tone(tone), m_device(strDevice.isEmpty() ? QByteArray("@DEFAULT_SINK@") : strDevice.toUtf8()),
          m_link(&tone, {[this] { open(); }, [this] { tell(false); }})
    {
    }

private:
    void open()
    {
        pa_stream *stream = m_link.makeStream("test tone", cRate);
        if (stream == nullptr) {
            tell(false);
            return;
        }
        pa_stream_set_state_callback(
            stream, [](pa_stream *changed, void *self) { static_cast<Mouth *>(self)->goOn(changed); }, this);
        if (pa_stream_connect_playback(stream, m_device.constData(), nullptr, PA_STREAM_DONT_MOVE, nullptr, nullptr) <
            0) {
            tell(false);
        }
    }

    void goOn(pa_stream *stream)
    {
        const pa_stream_state_t state = pa_stream_get_state(stream);
        if (!PA_STREAM_IS_GOOD(state)) {
            tell(false);
        }
        if (state != PA_STREAM_READY) {
            return;
        }
        const std::vector<float> tone = makeTone();
        // All at once: the server buffers some seconds.
        pa_operation *drain = nullptr;
        if (pa_stream_write(stream, tone.data(), tone.size() * sizeof(float), nullptr, 0, PA_SEEK_RELATIVE) >= 0) {
            drain = pa_stream_drain(
                stream, [](pa_stream *, int iPlayed, void *self) { static_cast<Mouth *>(self)->tell(iPlayed != 0); },
                this);
        }
        if (drain == nullptr) {
            tell(false);
        } else {
            pa_operation_unref(drain);
        }
    }

    void tell(bool bPlayed)
    {
        m_link.tell([tone = &m_tone, bPlayed] { tone->end(bPlayed); });
    }

    SoundTone &m_tone;
    const QByteArray m_device;
    SoundLink m_link;
};

SoundTone::SoundTone(QObject *parent) : QObject(parent)
{
    m_limit.setSingleShot(true);
    m_limit.setInterval(cLimitMs);
    connect(&m_limit, &QTimer::timeout, this, [this] { end(false); });
}

SoundTone::~SoundTone() = default;

void SoundTone::play(const QString &strDevice)
{
    m_pMouth.reset();
    m_limit.start();
    m_pMouth = std::make_unique<Mouth>(*this, strDevice);
}

void SoundTone::stop()
{
    m_limit.stop();
    m_pMouth.reset();
}

void SoundTone::end(bool bPlayed)
{
    stop();
    emit ended(bPlayed);
}
