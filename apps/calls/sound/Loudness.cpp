#include "calls/sound/Loudness.h"

#include <linphone++/linphone.hh>

#include <algorithm>

namespace {

constexpr int cFullVolume = 10;
constexpr float cStepDb = 3.0F;
// The library takes a gain of -20 for one of -40 dB.
constexpr float cLibraryDbPerDb = 0.5F;

} // namespace

float libraryGainOf(int volume)
{
    const int step = std::clamp(volume, 0, cFullVolume);
    return static_cast<float>(step - cFullVolume) * cStepDb * cLibraryDbPerDb;
}

void Loudness::apply(linphone::Core &core, linphone::Call *call) const
{
    // The switch is a gain of the same filter: it comes last.
    core.setMicGainDb(libraryGainOf(m_microphone.volume));
    core.enableMic(!isMuted(Side::Microphone));
    core.setPlaybackGainDb(libraryGainOf(m_speaker.volume));
    if (call != nullptr) {
        call->setSpeakerMuted(isMuted(Side::Speaker));
    }
}
