#pragma once

// Whom the tour calls: the robots of the call process by user id, each named for what it does. With it the way in which
// the steps write their texts. Any thread.

#include <QString>

namespace TourCast {

inline constexpr const char *answers = "30010001";
inline constexpr const char *busy = "30010002";
inline constexpr const char *rejects = "30010003";
inline constexpr const char *silent = "30010004";
inline constexpr const char *fails = "30010005";
inline constexpr const char *hangsUp = "30010006";
inline constexpr const char *callsBack = "30010007";
inline constexpr const char *invites = "30010008";
inline constexpr const char *comesBack = "30010009";
inline constexpr const char *crosses = "30010010";

/// The text of a literal in the source's UTF-8.
inline QString u(const char *strText)
{
    return QString::fromUtf8(strText);
}

} // namespace TourCast
