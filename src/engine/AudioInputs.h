#pragma once

// Whether the machine can hear the user. The list of devices comes from the sound server, and whoever first asks for it
// waits for that server to answer: beside one that has stopped answering for minutes or for ever, and after each loss
// of the server again. So a thread asks first and keeps what waits from then on; it ends with its answer.
//
// GUI thread only.

namespace AudioInputs {

/// How long the caller waits for a sound server that does not answer, in milliseconds.
constexpr int kPatienceMs = 1000;

/// Whether there is any audio input. A sound server that does not answer in time counts as one: its default input,
/// which is listed whatever it answers.
bool exist();

} // namespace AudioInputs
