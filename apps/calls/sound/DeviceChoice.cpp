#include "calls/sound/DeviceChoice.h"

#include "calls/settings/CallsSettings.h"
#include "calls/sound/SoundServer.h"

#include <linphone++/linphone.hh>

#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace {

using Device = std::shared_ptr<linphone::AudioDevice>;
using Capability = linphone::AudioDevice::Capabilities;

/// The device of that name, else the first one that has it in its own; none: null.
Device deviceOf(linphone::Core &core, const QString &name, Capability capability)
{
    Device part;
    for (const Device &device : core.getExtendedAudioDevices()) {
        const QString own = QString::fromStdString(device->getDeviceName());
        if (!device->hasCapability(capability) || name.isEmpty()) {
            continue;
        }
        if (own == name || QString::fromStdString(device->getId()) == name) {
            return device;
        }
        if (!part && own.contains(name, Qt::CaseInsensitive)) {
            part = device;
        }
    }
    return part;
}

/// By the setting, which may be a description or a name of the sound server's, else by the sound server's choice.
Device choiceOf(linphone::Core &core, const std::string &setting, const ServerDevice &server, Capability capability)
{
    const QString name = QString::fromStdString(setting);
    Device device = server.name == name ? nullptr : deviceOf(core, name, capability);
    return device ? device : deviceOf(core, server.description, capability);
}

/// The name that the sound server is asked for: the setting's, else the one by which its own programs choose.
QString wanted(const std::string &setting, const char *variable)
{
    return setting.empty() ? qEnvironmentVariable(variable) : QString::fromStdString(setting);
}

QString idOf(const Device &device)
{
    return device ? QString::fromStdString(device->getId()) : QStringLiteral("the library's choice");
}

/// What is wrong with a file to play; empty: nothing. Nobody may ever write into a pipe.
QString faultOfPlayed(const std::string &file)
{
    const int descriptor = ::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0) {
        return qt_error_string(errno);
    }
    std::array<char, 12> head{}; // "RIFF", a size, "WAVE"
    const bool whole = ::read(descriptor, head.data(), head.size()) == ssize_t(head.size());
    ::close(descriptor);
    const bool sound = whole && std::memcmp(head.data(), "RIFF", 4) == 0 && std::memcmp(&head[8], "WAVE", 4) == 0;
    return sound ? QString() : QStringLiteral("no WAV file");
}

/// The same for one to write, which is not there afterwards if it was not before.
QString faultOfWritten(const std::string &file)
{
    constexpr int how = O_WRONLY | O_CLOEXEC | O_NONBLOCK;
    int descriptor = ::open(file.c_str(), how | O_CREAT | O_EXCL, S_IRUSR | S_IWUSR);
    if (descriptor >= 0) {
        ::unlink(file.c_str());
    } else if (errno == EEXIST) {
        descriptor = ::open(file.c_str(), how);
    }
    if (descriptor < 0) {
        return qt_error_string(errno);
    }
    ::close(descriptor);
    return {};
}

} // namespace

QString faultOfFiles(const CallsSettings &settings)
{
    const auto fault = [](const char *setting, const std::string &file, QString (*faultOf)(const std::string &)) {
        const QString wrong = file.empty() ? QString() : faultOf(file);
        return wrong.isEmpty()
                   ? QString()
                   : QStringLiteral("%1 is %2: %3").arg(QLatin1String(setting), QString::fromStdString(file), wrong);
    };
    const QString played = fault("sound/wav-in", settings.wavIn, &faultOfPlayed);
    return played.isEmpty() ? fault("sound/wav-out", settings.wavOut, &faultOfWritten) : played;
}

void chooseSound(linphone::Core &core, const CallsSettings &settings)
{
    const bool files = !settings.wavIn.empty() || !settings.wavOut.empty();
    core.setUseFiles(files);
    if (files) {
        core.setPlayFile(settings.wavIn);
        core.setRecordFile(settings.wavOut);
    }
    core.enableEchoCancellation(settings.echoCancelling && !files);
}

QString DeviceChoice::refresh(linphone::Core &core)
{
    if (core.getUseFiles()) {
        return {};
    }
    const ServerDevices server =
        askSoundServer(wanted(m_settings.microphone, "PULSE_SOURCE"), wanted(m_settings.speaker, "PULSE_SINK"));
    // Of the same name, another device may have come in its place.
    const QString names = server.microphone.name + QLatin1Char('\n') + server.speaker.name + QLatin1Char('\n') +
                          server.microphone.description + QLatin1Char('\n') + server.speaker.description;
    if (m_last == names) {
        return {};
    }
    // The library's own list stays: to make it anew blocks for good behind a call.
    m_last = names;
    const Device microphone = choiceOf(core, m_settings.microphone, server.microphone, Capability::CapabilityRecord);
    const Device speaker = choiceOf(core, m_settings.speaker, server.speaker, Capability::CapabilityPlay);
    if (microphone) {
        core.setDefaultInputAudioDevice(microphone);
    }
    if (speaker) {
        core.setDefaultOutputAudioDevice(speaker);
        core.setRingerDevice(speaker->getId());
    }
    return QStringLiteral("microphone %1, loudspeaker %2").arg(idOf(microphone), idOf(speaker));
}
