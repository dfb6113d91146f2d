#include "ui/ConferenceTexts.h"

#include "common/text/TimeText.h"
#include "common/text/WholeNumber.h"

#include <cmath>

namespace {

qint64 cutToSeconds(double dSeconds)
{
    return std::isnan(dSeconds) ? 0 : WholeNumber::cut(dSeconds);
}

} // namespace

qint64 ConferenceTexts::wholeSeconds(const QString &strCallTime)
{
    return qMax<qint64>(0, cutToSeconds(strCallTime.toDouble()));
}

QString ConferenceTexts::titleLine(const QString &strCreatTime)
{
    return QStringLiteral("【语音会议】 ") + strCreatTime;
}

QString ConferenceTexts::callLength(const QString &strCallTime)
{
    return TimeText::getTimeStringBySecond(cutToSeconds(strCallTime.toDouble()));
}
