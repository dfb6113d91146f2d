#pragma once

// Where the sound comes from and goes to: the devices that the settings name, those that the desktop has chosen, or
// files. Main thread.

#include <QString>

struct CallsSettings;

namespace linphone {
class Core;
}

/// What is wrong with the files that take the place of devices, with the setting that names it; empty: nothing.
QString faultOfFiles(const CallsSettings &settings);

/// Chooses between devices and files, and echo cancelling, for a core that is not started yet.
void chooseSound(linphone::Core &core, const CallsSettings &settings);

/// Which devices are taken. Owned by the user agent; main thread.
class DeviceChoice
{
public:
    /// `settings` outlive the choice.
    explicit DeviceChoice(const CallsSettings &settings) : m_settings(settings) {}

    /// Chooses, if the sound server's devices or its choice among them are others than the last time. What was chosen,
    /// in words for an operator; empty when nothing has changed.
    QString refresh(linphone::Core &core);

private:
    const CallsSettings &m_settings;
    QString m_last; // the names of the server's devices
};
