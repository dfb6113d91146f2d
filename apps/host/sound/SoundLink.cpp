#include "sound/SoundLink.h"

#include <utility>

void SoundLink::Free::operator()(pa_context *context) const
{
    pa_context_set_state_callback(context, nullptr, nullptr);
    pa_context_disconnect(context);
    pa_context_unref(context);
}

void SoundLink::Free::operator()(pa_stream *stream) const
{
    pa_stream_set_state_callback(stream, nullptr, nullptr);
    pa_stream_set_read_callback(stream, nullptr, nullptr);
    pa_stream_unref(stream);
}

SoundLink::SoundLink(QObject *owner, Ears ears)
    : m_pOwner(owner), m_ears(std::move(ears)), m_pLoop(pa_threaded_mainloop_new())
{
    if (m_pLoop != nullptr) {
        m_pContext.reset(pa_context_new(pa_threaded_mainloop_get_api(m_pLoop.get()), "KelvarIM"));
    }
    if (m_pContext == nullptr) {
        m_ears.failed();
        return;
    }
    pa_context_set_state_callback(m_pContext.get(), &SoundLink::contextChanged, this);
    // A failure is heard by the state.
    pa_context_connect(m_pContext.get(), nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr);
    pa_threaded_mainloop_start(m_pLoop.get());
}

SoundLink::~SoundLink()
{
    if (m_pLoop != nullptr) {
        pa_threaded_mainloop_stop(m_pLoop.get());
    }
}

void SoundLink::tell(std::function<void()> what) const
{
    QMetaObject::invokeMethod(
        m_pOwner,
        [there = std::weak_ptr<bool>(m_pThere), what = std::move(what)] {
            if (!there.expired()) {
                what();
            }
        },
        Qt::QueuedConnection);
}

pa_stream *SoundLink::makeStream(const char *pName, unsigned int rate)
{
    const pa_sample_spec samples{PA_SAMPLE_FLOAT32NE, rate, 1};
    m_pStream.reset(pa_stream_new(m_pContext.get(), pName, &samples, nullptr));
    return m_pStream.get();
}

void SoundLink::contextChanged(pa_context *context, void *self)
{
    const Ears &ears = static_cast<const SoundLink *>(self)->m_ears;
    const pa_context_state_t state = pa_context_get_state(context);
    if (state == PA_CONTEXT_READY) {
        ears.ready();
    } else if (!PA_CONTEXT_IS_GOOD(state)) {
        ears.failed();
    }
}
