#include "common/text/SizeText.h"

#include <limits>

namespace {

constexpr qint64 KIB = 1024;
constexpr qint64 MIB = 1024 * KIB;
constexpr qint64 GIB = 1024 * MIB;
constexpr qint64 GREATEST_SPEED = 15 * MIB;
constexpr qint64 GREATEST = std::numeric_limits<qint64>::max();

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
    if (iBytes >= GIB) {
        return inUnits(iBytes, GIB, QStringLiteral("GB"));
    }
    if (iBytes >= MIB) {
        return iBytes / MIB < 999 ? inUnits(iBytes, MIB, QStringLiteral("MB")) : oneUnit(QStringLiteral("GB"));
    }
    if (iBytes < KIB) {
        return QString::number(iBytes) + QLatin1Char('B');
    }
    return iBytes / KIB < 999 ? inUnits(iBytes, KIB, QStringLiteral("KB")) : oneUnit(QStringLiteral("MB"));
}

QString SizeText::speedConvert(unsigned long &iBytes, unsigned long &iSeconds)
{
    if (iSeconds == 0) {
        return {};
    }
    return fileSizeConvert(qint64(qMin<quint64>(iBytes / iSeconds, GREATEST))) + QStringLiteral("/s");
}

qint64 SizeText::getSpeed(qint64 iStart, qint64 iEnd, qint64 iBytes)
{
    if (iStart == 0 || iEnd <= iStart) {
        return 0;
    }
    using Exact = long double; // holds every 64-bit number, so that no product or difference overflows
    const Exact speed = Exact(iBytes) * 1000 / (Exact(iEnd) - Exact(iStart));
    return qint64(qBound(Exact(-GREATEST), speed, Exact(GREATEST_SPEED)));
}

QString SizeText::getSpeedString(qint64 iStart, qint64 iEnd, qint64 iBytes)
{
    const qint64 iSpeed = getSpeed(iStart, iEnd, iBytes);
    if (iSpeed >= MIB) {
        return withOneDecimal(iSpeed, MIB, QStringLiteral("MB/S"));
    }
    if (iSpeed < KIB) {
        return QString::number(double(iSpeed), 'g') + QStringLiteral("B/S");
    }
    return withOneDecimal(iSpeed, KIB, QStringLiteral("KB/S"));
}
