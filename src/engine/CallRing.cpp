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

// A player that goes waits for the thread that reads its file and ends the one at the sound server.
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
        // Made behind the first player, so that it goes before the statics which that has brought along.
        static const EndWithLibrary s_end;
    }
    return held().get();
}
