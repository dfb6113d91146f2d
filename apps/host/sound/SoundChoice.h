#pragma once

#include "sound/SoundDevices.h"

#include <QByteArray>
#include <QObject>

#include <array>
#include <functional>

/// Which microphone and which speaker the user has chosen, kept in the user's settings, and how a call process learns
/// of it: by two variables of the environment that it inherits from this process, and that the sound server's own
/// client library reads. They stand there only while the chosen device does, since a stream to one that is not there
/// fails instead of going where the desktop has it. GUI thread; one for the process.
class SoundChoice : public QObject
{
    Q_OBJECT

public:
    enum Role
    {
        Microphone,
        Speaker
    };
    static constexpr int cRoles = 2;

    explicit SoundChoice(QObject *parent = nullptr);

    /// Reads what the user has chosen and begins to watch the devices; to be used after the user's settings were read.
    /// A second call reads nothing anew. `then` is called as soon as the environment says what holds: at once when
    /// nothing was chosen, or when it is known whether the devices are there, or the sound server is silent.
    void start(std::function<void()> then = {});

    /// The devices of the machine.
    const SoundDevices &devices() const { return m_devices; }

    /// Has the sound server asked anew, since a device was found to say nothing.
    void lookAgain() { m_devices.lookAgain(); }

    /// Those of that kind that are there.
    const QList<SoundDevices::Device> &present(Role role) const;

    /// What is chosen; with an empty name what the desktop has chosen.
    const SoundDevices::Device &chosen(Role role) const { return m_chosen.at(role); }

    /// Whether the chosen device is known not to be there.
    bool isMissing(Role role) const;

    /// Chooses the device; one without a name leaves it to the desktop. For call processes that are started from now
    /// on. False, and nothing is changed, where the user's settings cannot be written to.
    bool choose(Role role, const SoundDevices::Device &device);

    /// Whether the call process of that id was started with what holds now.
    static bool isHeededBy(qint64 pid);

    /// The variable of the environment.
    static const char *variable(Role role);

signals:
    /// The devices or the choice have changed.
    void changed();

private:
    void settle();
    void tellEnvironment();

    SoundDevices m_devices;
    std::array<SoundDevices::Device, cRoles> m_chosen;
    std::array<QByteArray, cRoles> m_inherited;
    std::function<void()> m_then;
    bool m_bStarted = false;
};
