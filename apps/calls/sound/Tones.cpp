#include "calls/sound/Tones.h"

#include <QDataStream>
#include <QFile>

#include <algorithm>
#include <cmath>

namespace {

constexpr int cRate = 16000;
constexpr int cFadeSamples = cRate / 200; // without it the tone clicks
constexpr double cAmplitude = 4000;
constexpr double cTurn = 6.283185307179586;

QByteArray samplesOf(const Tone &tone)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    const int on = cRate * tone.onMs / 1000;
    const int off = cRate * tone.offMs / 1000;
    for (int i = 0; i < on + off; ++i) {
        const double fade = std::clamp(std::min(i, on - i) / double(cFadeSamples), 0.0, 1.0);
        out << static_cast<qint16>(cAmplitude * fade * std::sin(cTurn * tone.hertz * i / cRate));
    }
    return bytes;
}

} // namespace

bool writeTone(const QString &file, const Tone &tone, int periods)
{
    const QByteArray samples = samplesOf(tone).repeated(periods);
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out.writeRawData("RIFF", 4);
    out << quint32(36 + samples.size());
    out.writeRawData("WAVEfmt ", 8);
    // Plain samples, one channel, two bytes each.
    out << quint32(16) << quint16(1) << quint16(1) << quint32(cRate) << quint32(2 * cRate) << quint16(2) << quint16(16);
    out.writeRawData("data", 4);
    out << quint32(samples.size());
    bytes += samples;
    QFile wav(file);
    return wav.open(QIODevice::WriteOnly) && wav.write(bytes) == bytes.size();
}
