#pragma once

// How a call ended, as SIP tells it. Values only.

#include <QString>

/// What SIP calls the ends that more than one place knows by their number.
namespace SipStatus {

inline constexpr int cUnknown = 404;
inline constexpr int cBusy = 486;
inline constexpr int cNothingInCommon = 488;
inline constexpr int cDeclined = 603;

} // namespace SipStatus

struct CallEnd
{
    int status = 0;         ///< of SIP, 0 where there was none: 486, 603, ...
    bool mediaLost = false; ///< nothing was heard of the far end for too long
    QString why;            ///< for an operator, may be empty
};
