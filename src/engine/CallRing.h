#pragma once

// The player of the incoming ring: one for the process, whatever number of engines it serves one after another.
//
// A player talks to the sound server in one thread and reads its file in another, both of them Qt's. A process that
// ends while the file is read has that thread run on among destroyed statics: it crashes, hangs or warns of an invalid
// date. And each player that is made and destroyed starts both threads anew and connects a client of its own. So the
// first engine makes the player, no engine destroys it, and it goes, with its threads waited for, together with the
// application object; where that stays, with this library. The latter comes too late for a process that calls exit()
// while the file is read.
//
// GUI thread only.

class QSound;

namespace CallRing {

/// The player of "Resources/Audio/ring.wav", found below the working directory at the first call, looping until
/// stopped. The process owns it. It emits destroyed() at the end; a later call gives a new one.
QSound *player();

} // namespace CallRing
