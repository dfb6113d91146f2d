#include "calls/sound/EchoCanceller.h"

#include <linphone++/linphone.hh>

#include <algorithm>
#include <linphone/core.h>
#include <mediastreamer2/msfilter.h>
#include <mediastreamer2/msqueue.h>
#include <memory>
#include <speex/speex_echo.h>
#include <speex/speex_preprocess.h>
#include <vector>

namespace {

constexpr const char *cName = "CallsEchoCanceller";
// The sound server takes half of an s away from what is played or heard at 16 kHz.
constexpr int cMostRate = 24000;
constexpr int cMsPerSecond = 1000;
// 20 ms, as long as the frames of the codecs: whatever is shorter costs more and is heard no sooner.
constexpr int cFrame = 480;
// How much later a loudspeaker may be heard, with its buffers, the microphone's and the room's echo.
constexpr int cTailMs = 250;
// What was played late, or by a faster clock, waits longer from then on; whole frames that none was short of for two
// seconds are left out.
constexpr int cWatchedFrames = 100;
// No more waits for a microphone that gives nothing.
constexpr int cMostFrames = 50;

struct Free
{
    void operator()(SpeexEchoState *state) const { speex_echo_state_destroy(state); }
    void operator()(SpeexPreprocessState *state) const { speex_preprocess_state_destroy(state); }
};

/// What is played goes on to the loudspeaker at once; a copy of it waits for the microphone.
class Canceller
{
public:
    Canceller()
    {
        ms_bufferizer_init(&m_played);
        ms_bufferizer_init(&m_heard);
    }
    ~Canceller()
    {
        ms_bufferizer_uninit(&m_played);
        ms_bufferizer_uninit(&m_heard);
    }
    Canceller(const Canceller &) = delete;
    Canceller &operator=(const Canceller &) = delete;

    void setRate(int rate) { m_rate = std::min(rate, cMostRate); }
    int rate() const { return m_rate; }

    void begin()
    {
        const int frame = cFrame * m_rate / cMostRate;
        m_echo.reset(speex_echo_state_init(frame, m_rate * cTailMs / cMsPerSecond));
        speex_echo_ctl(m_echo.get(), SPEEX_ECHO_SET_SAMPLING_RATE, &m_rate);
        m_rest.reset(speex_preprocess_state_init(frame, m_rate));
        speex_preprocess_ctl(m_rest.get(), SPEEX_PREPROCESS_SET_ECHO_STATE, m_echo.get());
        m_playedFrame.assign(std::size_t(frame), 0);
        m_heardFrame.assign(std::size_t(frame), 0);
        watchAnew();
    }

    void process(MSFilter &filter)
    {
        while (mblk_t *block = ms_queue_get(filter.inputs[0])) {
            ms_bufferizer_put(&m_played, dupmsg(block));
            ms_queue_put(filter.outputs[0], block);
        }
        const std::size_t waiting = ms_bufferizer_get_avail(&m_played) / bytes();
        if (waiting > cMostFrames) {
            ms_bufferizer_skip_bytes(&m_played, int((waiting - cMostFrames) * bytes()));
        }
        ms_bufferizer_put_from_queue(&m_heard, filter.inputs[1]);
        while (read(m_heard, m_heardFrame)) {
            if (!read(m_played, m_playedFrame)) {
                std::fill(m_playedFrame.begin(), m_playedFrame.end(), 0);
            }
            ms_queue_put(filter.outputs[1], cancel());
            watch();
        }
    }

    void end()
    {
        ms_bufferizer_flush(&m_played);
        ms_bufferizer_flush(&m_heard);
        m_rest.reset();
        m_echo.reset();
    }

private:
    using Frame = std::vector<spx_int16_t>;

    std::size_t bytes() const { return m_heardFrame.size() * sizeof(spx_int16_t); }

    bool read(MSBufferizer &from, Frame &frame) const
    {
        return ms_bufferizer_read(&from, reinterpret_cast<uint8_t *>(frame.data()), bytes()) == bytes();
    }

    mblk_t *cancel()
    {
        mblk_t *block = allocb(bytes(), 0);
        auto *const clean = reinterpret_cast<spx_int16_t *>(block->b_wptr);
        speex_echo_cancellation(m_echo.get(), m_heardFrame.data(), m_playedFrame.data(), clean);
        speex_preprocess_run(m_rest.get(), clean);
        block->b_wptr += bytes();
        return block;
    }

    void watch()
    {
        m_least = std::min(m_least, ms_bufferizer_get_avail(&m_played));
        if (++m_watched == cWatchedFrames) {
            ms_bufferizer_skip_bytes(&m_played, int(m_least / bytes() * bytes()));
            watchAnew();
        }
    }

    void watchAnew()
    {
        m_watched = 0;
        m_least = std::size_t(-1);
    }

    int m_rate = cMostRate;
    std::unique_ptr<SpeexEchoState, Free> m_echo;
    std::unique_ptr<SpeexPreprocessState, Free> m_rest; // takes out what the canceller has left, and noise
    MSBufferizer m_played{};
    MSBufferizer m_heard{};
    Frame m_playedFrame;
    Frame m_heardFrame;
    int m_watched = 0;
    std::size_t m_least = 0; // of what waited, since it is watched
};

Canceller &cancellerOf(MSFilter *filter)
{
    return *static_cast<Canceller *>(filter->data);
}

int setRate(MSFilter *filter, void *rate)
{
    cancellerOf(filter).setRate(*static_cast<int *>(rate));
    return 0;
}

int getRate(MSFilter *filter, void *rate)
{
    *static_cast<int *>(rate) = cancellerOf(filter).rate();
    return 0;
}

MSFilterDesc *theKind()
{
    static MSFilterMethod methods[] = {
        {MS_FILTER_SET_SAMPLE_RATE, setRate}, {MS_FILTER_GET_SAMPLE_RATE, getRate}, {0, nullptr}};
    static MSFilterDesc kind = [] {
        MSFilterDesc canceller{};
        canceller.id = MS_FILTER_PLUGIN_ID;
        canceller.name = cName;
        canceller.text = "cancels echo at the rate of a voice";
        canceller.category = MS_FILTER_OTHER;
        canceller.ninputs = 2;
        canceller.noutputs = 2;
        canceller.init = [](MSFilter *filter) { filter->data = new Canceller; };
        canceller.preprocess = [](MSFilter *filter) { cancellerOf(filter).begin(); };
        canceller.process = [](MSFilter *filter) { cancellerOf(filter).process(*filter); };
        canceller.postprocess = [](MSFilter *filter) { cancellerOf(filter).end(); };
        canceller.uninit = [](MSFilter *filter) { delete static_cast<Canceller *>(filter->data); };
        canceller.methods = methods;
        return canceller;
    }();
    return &kind;
}

} // namespace

void useEchoCanceller(linphone::Core &core)
{
    auto *const library = static_cast<LinphoneCore *>(linphone::Object::sharedPtrToCPtr(core.shared_from_this()));
    ms_factory_register_filter(linphone_core_get_ms_factory(library), theKind());
    core.setEchoCancellerFilterName(cName);
}
