#include "engine/CallRing.h"

#include <QCoreApplication>
#include <QSound>

#include <memory>
#include <utility>

namespace {

std::unique_ptr<QSound> &held()
{
    static std::unique_ptr<QSound> s_player;
    return s_player;
}

// Destroying a player waits for the thread that reads its file and ends the one that talks to the sound server.
void end()
{
    held().reset();
}

/// Ends a player that the application object left over, while the statics of Qt's player still stand.
class EndWithLibrary
{
public:
    EndWithLibrary() = default;
    ~EndWithLibrary()
    {
        qRemovePostRoutine(end);
        end();
    }
    EndWithLibrary(const EndWithLibrary &) = delete;
    EndWithLibrary &operator=(const EndWithLibrary &) = delete;
};

} // namespace

QSound *CallRing::player()
{
    if (!held()) {
        auto made = std::make_unique<QSound>(QStringLiteral("Resources/Audio/ring.wav"));
        made->setLoops(QSound::Infinite);
        held() = std::move(made);
        qAddPostRoutine(end);
        // Made after the first player, so that it is destroyed before the statics that came into being with the player.
        static const EndWithLibrary s_end;
    }
    return held().get();
}
