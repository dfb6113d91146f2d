#include "calls/desk/Remarks.h"

namespace {

constexpr int cRemarksAMinute = 60;
constexpr int cMinuteMs = 60000;
constexpr int cTextLimit = 500;

} // namespace

void Remarks::tell(const QString &text)
{
    if (!m_minute.isValid() || m_minute.hasExpired(cMinuteMs)) {
        m_minute.start();
        m_told = 0;
    }
    if (m_told < cRemarksAMinute) {
        ++m_told;
        const bool last = m_told == cRemarksAMinute;
        m_outlet.notify(Wire::Code::SdkLog,
                        last ? QStringLiteral("more remarks of this minute are dropped") : text.left(cTextLimit));
    }
}
