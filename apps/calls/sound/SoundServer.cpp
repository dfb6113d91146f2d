#include "calls/sound/SoundServer.h"

#include <QDeadlineTimer>

#include <pulse/pulseaudio.h>

#include <memory>

namespace {

constexpr int cPatienceMs = 500;
constexpr int cStepUs = 10000;

/// One conversation with the server, from the connection to the answers.
class Conversation
{
public:
    Conversation() : m_loop(pa_mainloop_new()), m_deadline(cPatienceMs)
    {
        m_context.reset(pa_context_new(pa_mainloop_get_api(m_loop.get()), "kelvarim-calls"));
    }

    bool connect()
    {
        if (pa_context_connect(m_context.get(), nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0) {
            return false;
        }
        while (pa_context_get_state(m_context.get()) != PA_CONTEXT_READY) {
            if (!PA_CONTEXT_IS_GOOD(pa_context_get_state(m_context.get())) || !step()) {
                return false;
            }
        }
        return true;
    }

    pa_context *context() const { return m_context.get(); }

    /// Waits for the answer to what was asked.
    void wait(pa_operation *operation)
    {
        if (operation != nullptr) {
            while (pa_operation_get_state(operation) == PA_OPERATION_RUNNING && step()) {
            }
            pa_operation_unref(operation);
        }
    }

private:
    struct Free
    {
        void operator()(pa_mainloop *loop) const { pa_mainloop_free(loop); }
        void operator()(pa_context *context) const
        {
            pa_context_disconnect(context);
            pa_context_unref(context);
        }
    };

    bool step()
    {
        return !m_deadline.hasExpired() && pa_mainloop_prepare(m_loop.get(), cStepUs) >= 0 &&
               pa_mainloop_poll(m_loop.get()) >= 0 && pa_mainloop_dispatch(m_loop.get()) >= 0;
    }

    std::unique_ptr<pa_mainloop, Free> m_loop;
    std::unique_ptr<pa_context, Free> m_context;
    QDeadlineTimer m_deadline;
};

template <class Info>
void takeDevice(pa_context * /*context*/, const Info *info, int end, void *device)
{
    if (end == 0 && info != nullptr) {
        *static_cast<ServerDevice *>(device) = {QString::fromUtf8(info->name), QString::fromUtf8(info->description)};
    }
}

void takeDefaults(pa_context * /*context*/, const pa_server_info *info, void *devices)
{
    if (info != nullptr) {
        auto *const choice = static_cast<ServerDevices *>(devices);
        choice->microphone.name = QString::fromUtf8(info->default_source_name);
        choice->speaker.name = QString::fromUtf8(info->default_sink_name);
    }
}

} // namespace

ServerDevices askSoundServer(const QString &microphone, const QString &speaker)
{
    Conversation server;
    if (!server.connect()) {
        return {};
    }
    ServerDevices choice;
    server.wait(pa_context_get_server_info(server.context(), takeDefaults, &choice));
    ServerDevices found;
    const auto askMicrophone = [&](const QString &name) {
        server.wait(pa_context_get_source_info_by_name(server.context(), name.toUtf8().constData(),
                                                       takeDevice<pa_source_info>, &found.microphone));
    };
    const auto askSpeaker = [&](const QString &name) {
        server.wait(pa_context_get_sink_info_by_name(server.context(), name.toUtf8().constData(),
                                                     takeDevice<pa_sink_info>, &found.speaker));
    };
    for (const QString &name : {microphone, choice.microphone.name}) {
        if (found.microphone.name.isEmpty() && !name.isEmpty()) {
            askMicrophone(name);
        }
    }
    for (const QString &name : {speaker, choice.speaker.name}) {
        if (found.speaker.name.isEmpty() && !name.isEmpty()) {
            askSpeaker(name);
        }
    }
    return found;
}
