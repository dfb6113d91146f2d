#pragma once

// The variables of the environment that tell the stand-in call process how it is wanted, beside those of every call
// process (endpoint/EndpointVariables.h). Constants alone, without Qt; any thread.

namespace StandIn {

inline constexpr const char *cScenarioVariable = "VOIPSDK_SCENARIO"; ///< the scenario's file
inline constexpr const char *cSpeedVariable = "VOIPSDK_SPEED";       ///< what all delays are divided by

} // namespace StandIn
