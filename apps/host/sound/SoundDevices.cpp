#include "sound/SoundDevices.h"

#include <pulse/introspect.h>
#include <pulse/subscribe.h>

#include <utility>

namespace {

constexpr int cAgainMs = 3000;

/// Asks, and takes no notice of when the answer comes: they come in the order of the questions.
void forget(pa_operation *question)
{
    if (question != nullptr) {
        pa_operation_unref(question);
    }
}

bool isSame(const SoundDevices::Lists &one, const SoundDevices::Lists &other)
{
    return one.microphones == other.microphones && one.speakers == other.speakers &&
           one.microphone == other.microphone && one.speaker == other.speaker;
}

} // namespace

/// The questions of one connection, on its thread.
class SoundDevices::Inquiry
{
public:
    explicit Inquiry(SoundDevices &devices)
        : m_devices(devices), m_link(&devices, {[this] { begin(); }, [this] { tell(Absent, {}); }})
    {
    }

private:
    void begin()
    {
        pa_context_set_subscribe_callback(
            m_link.context(),
            [](pa_context *, pa_subscription_event_type_t, std::uint32_t, void *self) {
                static_cast<Inquiry *>(self)->ask();
            },
            this);
        const auto wanted = pa_subscription_mask_t(PA_SUBSCRIPTION_MASK_SINK | PA_SUBSCRIPTION_MASK_SOURCE |
                                                   PA_SUBSCRIPTION_MASK_SERVER);
        forget(pa_context_subscribe(m_link.context(), wanted, nullptr, nullptr));
        ask();
    }

    /// Many events come at once when a device is plugged in.
    void ask()
    {
        if (std::exchange(m_bAsking, true)) {
            m_bAgain = true;
            return;
        }
        m_lists = {};
        forget(pa_context_get_server_info(
            m_link.context(),
            [](pa_context *, const pa_server_info *info, void *self) {
                if (info != nullptr) {
                    static_cast<Inquiry *>(self)->m_lists.microphone = QString::fromUtf8(info->default_source_name);
                    static_cast<Inquiry *>(self)->m_lists.speaker = QString::fromUtf8(info->default_sink_name);
                }
            },
            this));
        forget(pa_context_get_sink_info_list(
            m_link.context(),
            [](pa_context *, const pa_sink_info *info, int, void *self) {
                if (info != nullptr) {
                    static_cast<Inquiry *>(self)->m_lists.speakers.append(deviceOf(*info));
                }
            },
            this));
        forget(pa_context_get_source_info_list(
            m_link.context(),
            [](pa_context *, const pa_source_info *info, int iEnd, void *self) {
                if (iEnd != 0) {
                    static_cast<Inquiry *>(self)->finish();
                } else if (info->monitor_of_sink == PA_INVALID_INDEX) {
                    static_cast<Inquiry *>(self)->m_lists.microphones.append(deviceOf(*info));
                }
            },
            this));
    }

    void finish()
    {
        m_bAsking = false;
        if (std::exchange(m_bAgain, false)) {
            ask();
        } else {
            tell(Answering, m_lists);
        }
    }

    template <typename Info>
    static Device deviceOf(const Info &info)
    {
        return {QString::fromUtf8(info.name), QString::fromUtf8(info.description)};
    }

    void tell(State state, const Lists &lists)
    {
        m_link.tell([devices = &m_devices, state, lists] { devices->take(state, lists); });
    }

    SoundDevices &m_devices;
    Lists m_lists;
    bool m_bAsking = false;
    bool m_bAgain = false;
    SoundLink m_link; // begins to speak at once, ends first
};

SoundDevices::SoundDevices(QObject *parent) : QObject(parent)
{
    m_patience.setSingleShot(true);
    m_patience.setInterval(cPatienceMs);
    m_pause.setSingleShot(true);
    m_pause.setInterval(cAgainMs);
    connect(&m_patience, &QTimer::timeout, this, [this] { take(Silent, {}); });
    connect(&m_pause, &QTimer::timeout, this, &SoundDevices::connectToServer);
}

SoundDevices::~SoundDevices() = default;

void SoundDevices::start()
{
    if (m_pInquiry == nullptr) {
        connectToServer();
    }
}

void SoundDevices::lookAgain()
{
    // A question that is under way or due answers this one as well.
    if (!m_patience.isActive() && !m_pause.isActive()) {
        connectToServer();
    }
}

void SoundDevices::connectToServer()
{
    m_patience.start();
    // The old one ends first.
    m_pInquiry.reset();
    m_pInquiry = std::make_unique<Inquiry>(*this);
}

void SoundDevices::take(State state, const Lists &lists)
{
    if (state != Silent) {
        m_patience.stop();
    }
    if (state == Absent) {
        m_pause.start();
    }
    const bool isNews = state != m_state || (state == Answering && !isSame(lists, m_lists));
    m_state = state;
    if (state == Answering) {
        m_lists = lists;
    }
    // A changed volume is no news.
    if (isNews) {
        emit changed();
    }
}
