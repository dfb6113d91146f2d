#pragma once

// What the library's states of a call mean here. Pure functions; any thread.

#include <linphone++/linphone.hh>

/// Whether the call has ended, however.
inline bool isOver(linphone::Call::State state)
{
    return state == linphone::Call::State::End || state == linphone::Call::State::Error ||
           state == linphone::Call::State::Released;
}

/// Whether somebody calls and has no answer yet.
inline bool isArrival(linphone::Call::State state)
{
    return state == linphone::Call::State::IncomingReceived || state == linphone::Call::State::PushIncomingReceived;
}
