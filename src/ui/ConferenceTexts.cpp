#include "ui/ConferenceTexts.h"

#include "common/CommonFun.h"

#include <cmath>
#include <limits>

namespace {

qint64 cutToSeconds(double dSeconds)
{
    // 2 to the 63rd: the first number beyond 64 bits, and exact as a double.
    constexpr double cBeyond = 9223372036854775808.0;
    if (std::isnan(dSeconds))
        return 0;
    if (dSeconds >= cBeyond)
        return std::numeric_limits<qint64>::max();
    if (dSeconds < -cBeyond)
        return std::numeric_limits<qint64>::min();
    return static_cast<qint64>(dSeconds);
}

} // namespace

QString ConferenceTexts::titleLine(const QString &strCreatTime)
{
    return QStringLiteral("【语音会议】 ") + strCreatTime;
}

QString ConferenceTexts::callLength(const QString &strCallTime)
{
    return CommonFun::getTimeStringBySecond(cutToSeconds(strCallTime.toDouble()));
}
