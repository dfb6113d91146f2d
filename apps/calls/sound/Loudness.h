#pragma once

// The microphone's and the speaker's switch and volume, which outlive a call and are applied to each. Owned by the user
// agent; main thread.

namespace linphone {
class Call;
class Core;
} // namespace linphone

/// The gain of a volume as the library wants it. A person hears the steps 1 to 10 as even, each some 3 dB from the
/// next; 10 changes nothing. Volumes beyond are taken as 0 or 10.
float libraryGainOf(int volume);

class Loudness
{
public:
    enum class Side
    {
        Microphone,
        Speaker,
    };

    void setEnabled(Side side, bool enabled) { of(side).enabled = enabled; }

    /// 0 is silence, 10 unchanged; others are taken as the nearer of both.
    void setVolume(Side side, int volume) { of(side).volume = volume; }

    /// Whether nothing is to be heard: switched off, or of volume 0.
    bool isMuted(Side side) const { return !of(side).enabled || of(side).volume <= 0; }

    /// Has the library follow; `call` may be null.
    void apply(linphone::Core &core, linphone::Call *call) const;

private:
    struct State
    {
        bool enabled = true;
        int volume = 10;
    };

    State &of(Side side) { return side == Side::Microphone ? m_microphone : m_speaker; }
    const State &of(Side side) const { return side == Side::Microphone ? m_microphone : m_speaker; }

    State m_microphone;
    State m_speaker;
};
