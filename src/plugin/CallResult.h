#pragma once

// Constants alone; any thread.

/// Why a call ended. The numbers go to the host with the call record (MSG_CALL_FINISHED) and are part of its contract.
enum CallResult
{
    /// ended before it connected, by this side or by the caller; also notification 4, or 5 naming the own user, at any
    /// time
    resultCancelled = 21,
    resultFailed = 22,   ///< the call process could not make the call
    resultHungUp = 24,   ///< ended after it connected, or by the far end
    resultBusy = 25,     ///< the far end is in another call
    resultRejected = 26, ///< refused, here or there
};
