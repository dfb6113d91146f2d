#pragma once

// What the sound server says of its devices. The SIP library knows them by their descriptions alone, while the desktop
// and the server's own programs choose them by name. Any thread.

#include <QString>

struct ServerDevice
{
    QString name;        ///< as the server's programs know it; empty: there is none
    QString description; ///< as people and the SIP library know it
};

struct ServerDevices
{
    ServerDevice microphone;
    ServerDevice speaker;
};

/// The devices of these names, where a name is empty or nobody's the server's own choice. Asks the server anew, half a
/// second at most; nothing when none answers.
ServerDevices askSoundServer(const QString &microphone, const QString &speaker);
