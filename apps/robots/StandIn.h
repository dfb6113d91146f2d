#pragma once

// The variables of the environment that tell the stand-in call process how it is wanted, since the plug-in starts it
// without options: for it, and for who starts its client. Constants alone, without Qt; any thread.

namespace StandIn {

inline constexpr const char *cScenarioVariable = "VOIPSDK_SCENARIO"; ///< the scenario's file
inline constexpr const char *cTraceVariable = "VOIPSDK_TRACE";       ///< the trace's file, "-" for standard error
inline constexpr const char *cSpeedVariable = "VOIPSDK_SPEED";       ///< what all delays are divided by
inline constexpr const char *cIdleVariable = "VOIPSDK_IDLE_SECONDS"; ///< how long it stays without a client

} // namespace StandIn
