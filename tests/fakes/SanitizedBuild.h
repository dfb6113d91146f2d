#pragma once

// What sanitizers cost: for the tests that hold processor time against a limit.

#if defined(__SANITIZE_ADDRESS__)
inline constexpr bool cSanitized = true;
#elif defined(__has_feature)
inline constexpr bool cSanitized = __has_feature(address_sanitizer);
#else
inline constexpr bool cSanitized = false;
#endif

/// What a limit of a plain build is multiplied by: their own share, with assertions on and little optimisation.
inline constexpr int cSanitizerFactor = cSanitized ? 4 : 1;
