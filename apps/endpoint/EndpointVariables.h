#pragma once

// The variables of the environment that tell every call process how it is wanted, since the plug-in starts it without
// options: for it, and for who starts its client. Constants alone, without Qt; any thread.

namespace EndpointVariables {

inline constexpr const char *cTrace = "VOIPSDK_TRACE";       ///< the trace's file, "-" for standard error
inline constexpr const char *cIdle = "VOIPSDK_IDLE_SECONDS"; ///< how long it stays without a client

} // namespace EndpointVariables
