#pragma once

// A sound card of no machine's: its microphone hears after a second what its loudspeaker plays. Main thread.

namespace linphone {
class Core;
}

/// Gives a core that is started this card, and has it use no other. False when the library will not have it.
bool useEchoCard(linphone::Core &core);
