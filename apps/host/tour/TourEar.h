#pragma once

#include <QString>

/// What a person's loudspeaker gets, as a recorder writes it to a file while the tour runs: 16-bit samples of one
/// channel, 16000 a second, and nothing else. GUI thread.
class TourEar
{
public:
    explicit TourEar(const QString &strFile) : m_strFile(strFile) {}

    /// How much has been recorded.
    double seconds() const;

    /// The level of the tone in the last half second, 0 to 32767; 0 before there is as much.
    double level(int hertz) const;

    /// Whether the tone is there, or nothing of it.
    bool hears(int hertz) const { return level(hertz) > cLoud; }
    bool hearsNothingOf(int hertz) const { return seconds() > 1 && level(hertz) < cSilent; }

private:
    static constexpr double cLoud = 2000;
    static constexpr double cSilent = 150;

    QString m_strFile;
};
