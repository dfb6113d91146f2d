#include "tour/TourEar.h"

#include "tour/ToneLevel.h"

#include <QFile>
#include <QFileInfo>

namespace {

constexpr int cRate = 16000;
constexpr qint64 cBytes = 2;

} // namespace

double TourEar::seconds() const
{
    return double(QFileInfo(m_strFile).size()) / (cBytes * cRate);
}

double TourEar::level(int hertz) const
{
    constexpr qint64 piece = cBytes * cRate / 2;
    QFile recording(m_strFile);
    if (!recording.open(QIODevice::ReadOnly) || recording.size() < piece) {
        return 0;
    }
    recording.seek((recording.size() - piece) / cBytes * cBytes);
    return toneLevel(recording.read(piece), hertz, cRate);
}
