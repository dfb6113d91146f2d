#pragma once

// Whether the machine has a microphone, asked in a way that a silent sound server does not hold up for long.
//
// Qt keeps its list of devices up to date by itself once it has one. Making it is what waits for the sound server, on
// the GUI thread: half a minute where that takes clients and answers none, and again every three seconds from then on.
// So Qt is asked only when the server has answered, or refused, a client of our own.
//
// GUI thread only.

namespace AudioInputs {

/// How long a server that takes clients has time to answer one, in milliseconds.
constexpr int cPatienceMs = 1000;

/// Whether there is any audio input by Qt's list. True also while the sound server is silent and Qt has no list yet,
/// which is what Qt would say after its wait; the next call asks anew.
bool exist();

} // namespace AudioInputs
