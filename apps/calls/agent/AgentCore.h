#pragma once

// The SIP library's core, set up as this process needs it: nobody can reach it but through the connection that it opens
// to the exchange itself, sound is encrypted or there is none, nothing is written but in a folder of its own. Main
// thread.

#include <QString>

#include <memory>

struct CallsSettings;
struct ExchangeAccess;

namespace linphone {
class Core;
}

/// A core that is not started yet. `folder` is private to this user and outlives it; its certificates, keys and tones
/// stand there.
std::shared_ptr<linphone::Core> makeCore(const CallsSettings &settings, const ExchangeAccess &access,
                                         const QString &folder);

/// Has the core believe whom the access names, and nobody else, from the next connection on.
void verifyServers(linphone::Core &core, const ExchangeAccess &access);
