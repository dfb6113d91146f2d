#include "sound/SoundChoice.h"

#include "client/HostSettings.h"
#include "client/SettingsFile.h"
#include "traffic/CallChannel.h"

#include <algorithm>
#include <utility>

namespace {

struct RoleRow
{
    const char *variable;
    const char *nameKey;  // what the server calls the device
    const char *shownKey; // what a person calls it, for when it is not there
};

// By role.
constexpr std::array<RoleRow, SoundChoice::cRoles> cRows{{
    {"PULSE_SOURCE", "/soundSetting/microphone", "/soundSetting/microphoneShown"},
    {"PULSE_SINK", "/soundSetting/speaker", "/soundSetting/speakerShown"},
}};

constexpr std::array<SoundChoice::Role, SoundChoice::cRoles> cEach{SoundChoice::Microphone, SoundChoice::Speaker};

QString stored(const char *strKey)
{
    return SettingsFile::read(HostSettings::userFile(), QLatin1String(strKey));
}

/// Touches the environment only where it changes: other threads read it.
void setVariable(const char *strName, const QByteArray &value)
{
    if (qgetenv(strName) == value && qEnvironmentVariableIsSet(strName) == !value.isEmpty()) {
        return;
    }
    if (value.isEmpty()) {
        qunsetenv(strName);
    } else {
        qputenv(strName, value);
    }
}

} // namespace

SoundChoice::SoundChoice(QObject *parent) : QObject(parent)
{
    connect(&m_devices, &SoundDevices::changed, this, [this] {
        settle();
        emit changed();
    });
}

void SoundChoice::start(std::function<void()> then)
{
    if (!std::exchange(m_bStarted, true)) {
        for (const Role role : cEach) {
            m_inherited.at(role) = qgetenv(variable(role));
            m_chosen.at(role) = {stored(cRows.at(role).nameKey), stored(cRows.at(role).shownKey)};
        }
        tellEnvironment();
        m_devices.start();
    }
    if (then) {
        m_then = std::move(then);
    }
    const auto isOpen = [](const SoundDevices::Device &device) { return device.name.isEmpty(); };
    if (std::all_of(m_chosen.begin(), m_chosen.end(), isOpen) || m_devices.state() != SoundDevices::Asking) {
        settle();
    }
}

const QList<SoundDevices::Device> &SoundChoice::present(Role role) const
{
    return role == Microphone ? m_devices.lists().microphones : m_devices.lists().speakers;
}

bool SoundChoice::isMissing(Role role) const
{
    const QString &name = chosen(role).name;
    const QList<SoundDevices::Device> &there = present(role);
    return !name.isEmpty() && m_devices.state() == SoundDevices::Answering &&
           std::none_of(there.begin(), there.end(), [&](const auto &device) { return device.name == name; });
}

bool SoundChoice::choose(Role role, const SoundDevices::Device &device)
{
    const RoleRow &row = cRows.at(role);
    const QString shown = device.name.isEmpty() ? QString() : device.shown;
    const bool bKept = SettingsFile::write(
        HostSettings::userFile(), {{QLatin1String(row.nameKey), device.name}, {QLatin1String(row.shownKey), shown}});
    if (bKept) {
        m_chosen.at(role) = device;
        tellEnvironment();
    }
    emit changed();
    return bKept;
}

bool SoundChoice::isHeededBy(qint64 pid)
{
    return std::all_of(cEach.begin(), cEach.end(), [pid](Role role) {
        return CallChannel::variableOf(pid, variable(role)) == qgetenv(variable(role));
    });
}

const char *SoundChoice::variable(Role role)
{
    return cRows.at(role).variable;
}

void SoundChoice::settle()
{
    tellEnvironment();
    if (m_then) {
        std::exchange(m_then, {})();
    }
}

void SoundChoice::tellEnvironment()
{
    for (const Role role : cEach) {
        const bool isTaken = !chosen(role).name.isEmpty() && !isMissing(role);
        setVariable(variable(role), isTaken ? chosen(role).name.toUtf8() : m_inherited.at(role));
    }
}
