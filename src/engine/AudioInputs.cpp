#include "engine/AudioInputs.h"

#include <QAudioDeviceInfo>
#include <QThread>

#include <chrono>
#include <future>
#include <memory>

namespace {

using Answer = std::shared_future<bool>;

bool listed()
{
    return !QAudioDeviceInfo::availableDevices(QAudio::AudioInput).isEmpty();
}

Answer askInAThread()
{
    auto asked = std::make_shared<std::promise<bool>>();
    Answer answer = asked->get_future().share();
    // Neither waited for nor destroyed: it may stand at the sound server to the process's end.
    static QThread *s_asking = QThread::create([asked] { asked->set_value(listed()); });
    s_asking->start();
    return answer;
}

} // namespace

bool AudioInputs::exist()
{
    static const Answer s_first = askInAThread();
    const auto isThere = [](std::chrono::milliseconds patience) {
        return s_first.wait_for(patience) == std::future_status::ready;
    };
    // Behind the first answer the list is kept up to date by itself, and reading it waits for nobody.
    if (isThere(std::chrono::milliseconds::zero()))
        return listed();
    return !isThere(std::chrono::milliseconds(kPatienceMs)) || s_first.get();
}
