#include "common/TimeText.h"

namespace {

QString twoDigits(qint64 iPart)
{
    const QString strPart = QString::number(iPart);
    return iPart <= 9 ? QLatin1Char('0') + strPart : strPart;
}

} // namespace

QString TimeText::GetTimeString(qint64 iSeconds)
{
    const QLatin1Char colon(':');
    const qint64 iRest = iSeconds % 3600;
    return twoDigits(iSeconds / 3600) + colon + twoDigits(iRest / 60) + colon + twoDigits(iRest % 60);
}
