#pragma once

// The player of the incoming ring: one for the process, whatever number of engines it serves one after another.
//
// A player talks to the sound server in one thread and reads its file in another, both of Qt. Neither stands a player
// that goes while they work: each one made and destroyed connects and disconnects a client of its own, and one that is
// left alone when the process ends has both threads run on among destroyed statics, which crashes, hangs or prints
// warnings. So the first engine makes it, no engine destroys it, and it goes with the application object, or, when that
// stays, with this library, after both threads have ended.
//
// GUI thread only.

class QSound;

namespace CallRing {

/// The player of "Resources/Audio/ring.wav", found below the working directory at the first call, looping until
/// stopped. The process owns it. It emits destroyed() at the end; a later call gives a new one.
QSound *player();

} // namespace CallRing
