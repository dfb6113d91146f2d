#include "common/text/SizeText.h"

#include <limits>

namespace {

constexpr qint64 cKib = 1024;
constexpr qint64 cMib = 1024 * cKib;
constexpr qint64 cGib = 1024 * cMib;
constexpr qint64 cGreatestSpeed = 15 * cMib;
constexpr qint64 cGreatest = std::numeric_limits<qint64>::max();

QString inUnits(qint64 iBytes, qint64 iUnit, const QString &strUnit)
{
    return QString::number(double(iBytes) / double(iUnit), 'g', 3) + strUnit;
}

QString oneUnit(const QString &strUnit)
{
    return QString::number(1.0, 'g', 2) + strUnit;
}

QString withOneDecimal(qint64 iSpeed, qint64 iUnit, const QString &strUnit)
{
    return QString::number(double(iSpeed) / double(iUnit), 'f', 1) + strUnit;
}

} // namespace

QString SizeText::fileSizeConvert(qint64 iBytes)
{
    // From 999 units on, a number of three digits may be written with an exponent, so the next unit is taken.
    if (iBytes >= cGib) {
        return inUnits(iBytes, cGib, QStringLiteral("GB"));
    }
    if (iBytes >= cMib) {
        return iBytes / cMib < 999 ? inUnits(iBytes, cMib, QStringLiteral("MB")) : oneUnit(QStringLiteral("GB"));
    }
    if (iBytes < cKib) {
        return QString::number(iBytes) + QLatin1Char('B');
    }
    return iBytes / cKib < 999 ? inUnits(iBytes, cKib, QStringLiteral("KB")) : oneUnit(QStringLiteral("MB"));
}

QString SizeText::speedConvert(unsigned long &iBytes, unsigned long &iSeconds)
{
    if (iSeconds == 0) {
        return {};
    }
    return fileSizeConvert(qint64(qMin<quint64>(iBytes / iSeconds, cGreatest))) + QStringLiteral("/s");
}

qint64 SizeText::getSpeed(qint64 iStart, qint64 iEnd, qint64 iBytes)
{
    if (iStart == 0 || iEnd <= iStart) {
        return 0;
    }
    using Exact = long double; // holds every 64-bit number, so that no product or difference overflows
    const Exact speed = Exact(iBytes) * 1000 / (Exact(iEnd) - Exact(iStart));
    return qint64(qBound(Exact(-cGreatest), speed, Exact(cGreatestSpeed)));
}

QString SizeText::getSpeedString(qint64 iStart, qint64 iEnd, qint64 iBytes)
{
    const qint64 iSpeed = getSpeed(iStart, iEnd, iBytes);
    if (iSpeed >= cMib) {
        return withOneDecimal(iSpeed, cMib, QStringLiteral("MB/S"));
    }
    if (iSpeed < cKib) {
        return QString::number(double(iSpeed), 'g') + QStringLiteral("B/S");
    }
    return withOneDecimal(iSpeed, cKib, QStringLiteral("KB/S"));
}
