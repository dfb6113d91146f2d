#pragma once

// Where the one call stands, and with which word to the plug-in it ends from there. Values only; any thread.

#include "calls/agent/CallEnd.h"

#include "wire/Notifications.h"

enum class CallPhase
{
    None,
    Calling,  ///< placed here, not connected yet
    Ringing,  ///< arrived, not answered yet
    Accepted, ///< arrived and answered, no sound yet
    Running,  ///< sound has run
};

/// The notification for a call that was in this phase, `None` aside, when it ended.
Wire::Code codeOf(CallPhase phase, const CallEnd &end);
