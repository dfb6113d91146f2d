#pragma once

// What sanitizers cost: for the tests that hold processor time against a limit.

#if defined(__SANITIZE_ADDRESS__)
inline constexpr bool kSanitized = true;
#elif defined(__has_feature)
inline constexpr bool kSanitized = __has_feature(address_sanitizer);
#else
inline constexpr bool kSanitized = false;
#endif

/// What a limit of a plain build is multiplied by: their own share, with assertions on and little optimisation.
inline constexpr int kSanitizerFactor = kSanitized ? 4 : 1;
