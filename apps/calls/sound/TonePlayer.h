#pragma once

// Plays the tones that tell a caller how his call ended. Owned by the user agent; main thread. Where sound goes to a
// file, and where there is no loudspeaker, nothing plays.

#include <QString>

#include <memory>

namespace linphone {
class Core;
class Player;
} // namespace linphone

class TonePlayer
{
public:
    /// Makes the tones' files in `folder`, which outlives the player.
    explicit TonePlayer(const QString &folder);
    ~TonePlayer();

    /// The file of the tone that the library itself plays while it rings at the far end.
    QString ringBack() const { return m_ringBack; }

    void playBusy(linphone::Core &core) { play(core, m_busy); }
    void playFailed(linphone::Core &core) { play(core, m_failed); }

    /// Silence. Without a tone: no effect.
    void stop();

private:
    void play(linphone::Core &core, const QString &file);

    QString m_ringBack;
    QString m_busy;
    QString m_failed;
    std::shared_ptr<linphone::Player> m_player;
};
