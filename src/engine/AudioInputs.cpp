#include "engine/AudioInputs.h"

#include <QAudioDeviceInfo>
#include <QDeadlineTimer>

#include <pulse/context.h>
#include <pulse/mainloop.h>

#include <memory>

namespace {

struct Free
{
    void operator()(pa_mainloop *loop) const { pa_mainloop_free(loop); }
    void operator()(pa_context *context) const
    {
        pa_context_disconnect(context);
        pa_context_unref(context);
    }
};

bool waits(const pa_context *context)
{
    const pa_context_state_t state = pa_context_get_state(context);
    return state == PA_CONTEXT_CONNECTING || state == PA_CONTEXT_AUTHORIZING || state == PA_CONTEXT_SETTING_NAME;
}

// One round of the client's own loop, which runs here and in no thread.
bool goOn(pa_mainloop *loop, const QDeadlineTimer &deadline)
{
    return pa_mainloop_prepare(loop, int(deadline.remainingTime() * 1000)) >= 0 && pa_mainloop_poll(loop) >= 0 &&
           pa_mainloop_dispatch(loop) >= 0;
}

/// Whether the sound server has taken a client and left it without an answer. One that is not there is not silent.
bool serverIsSilent()
{
    const std::unique_ptr<pa_mainloop, Free> loop(pa_mainloop_new());
    if (!loop) {
        return false;
    }
    const std::unique_ptr<pa_context, Free> client(pa_context_new(pa_mainloop_get_api(loop.get()), "microphones"));
    if (!client || pa_context_connect(client.get(), nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0) {
        return false;
    }
    const QDeadlineTimer deadline(AudioInputs::cPatienceMs);
    while (waits(client.get())) {
        if (deadline.hasExpired()) {
            return true;
        }
        if (!goOn(loop.get(), deadline)) {
            return false;
        }
    }
    return false;
}

} // namespace

bool AudioInputs::exist()
{
    static bool s_bListed = false;
    if (!s_bListed && serverIsSilent()) {
        return true;
    }
    s_bListed = true;
    return !QAudioDeviceInfo::availableDevices(QAudio::AudioInput).isEmpty();
}
