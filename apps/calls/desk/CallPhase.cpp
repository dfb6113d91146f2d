#include "calls/desk/CallPhase.h"

#include <algorithm>
#include <array>

namespace {

constexpr int cAnyStatus = -1;

struct EndRow
{
    CallPhase phase;
    int status; // of SIP
    Wire::Code code;

    bool tellsOf(CallPhase otherPhase, int otherStatus) const
    {
        return phase == otherPhase && (status == cAnyStatus || status == otherStatus);
    }
};

// The first row that fits counts.
// clang-format off
constexpr std::array cEnds{
    EndRow{CallPhase::Calling,  SipStatus::cBusy,            Wire::Code::PeerBusy},
    EndRow{CallPhase::Calling,  600,                         Wire::Code::PeerBusy},
    EndRow{CallPhase::Calling,  SipStatus::cDeclined,        Wire::Code::PeerRejected},
    EndRow{CallPhase::Calling,  SipStatus::cUnknown,         Wire::Code::CallFailedAlt},  // nobody there
    EndRow{CallPhase::Calling,  408,                         Wire::Code::CallFailedAlt},
    EndRow{CallPhase::Calling,  410,                         Wire::Code::CallFailedAlt},
    EndRow{CallPhase::Calling,  480,                         Wire::Code::CallFailedAlt},
    EndRow{CallPhase::Calling,  604,                         Wire::Code::CallFailedAlt},
    EndRow{CallPhase::Calling,  415,                         Wire::Code::CallFailedAlt2}, // no common encryption or codec
    EndRow{CallPhase::Calling,  SipStatus::cNothingInCommon, Wire::Code::CallFailedAlt2},
    EndRow{CallPhase::Calling,  606,                         Wire::Code::CallFailedAlt2},
    EndRow{CallPhase::Calling,  cAnyStatus,                  Wire::Code::CallFailed},
    EndRow{CallPhase::Ringing,  cAnyStatus,                  Wire::Code::PeerCanceled},
    EndRow{CallPhase::Accepted, SipStatus::cNothingInCommon, Wire::Code::CallFailedAlt2},
    EndRow{CallPhase::Accepted, cAnyStatus,                  Wire::Code::PeerCanceled},
    EndRow{CallPhase::Running,  cAnyStatus,                  Wire::Code::PeerHangup},
};
// clang-format on

} // namespace

Wire::Code codeOf(CallPhase phase, const CallEnd &end)
{
    if (phase == CallPhase::Running && end.mediaLost) {
        return Wire::Code::PeerHangupAlt;
    }
    const auto *const row =
        std::find_if(cEnds.begin(), cEnds.end(), [&](const EndRow &one) { return one.tellsOf(phase, end.status); });
    return row == cEnds.end() ? Wire::Code::CallFailed : row->code;
}
