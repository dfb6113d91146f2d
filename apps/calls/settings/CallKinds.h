#pragma once

/// The kinds of call process that the front at VoipSDK/Contents/MacOS/VoipSDK can start. The program of a kind stands
/// beside the front and has the prefix before the kind's name: kelvarim-robots.
namespace CallKinds {

/// All of them, separated by bars.
inline constexpr const char *cAll = "robots|calls";
/// The one that needs nothing else.
inline constexpr const char *cFirst = "robots";
inline constexpr const char *cPrefix = "kelvarim-";

} // namespace CallKinds
