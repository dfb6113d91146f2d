#pragma once

// Takes out of what the microphone hears what the loudspeaker plays. Main thread; the work is done on the library's
// sound threads.

namespace linphone {
class Core;
}

/// Gives a core this canceller in the place of the library's own, which computes at the 48 kHz of Opus and hands sound
/// on to the loudspeaker only as the microphone hears. This one works at 24 kHz, and so does Opus beside it: all that a
/// voice has, at half of the cost. Before the first call.
void useEchoCanceller(linphone::Core &core);
