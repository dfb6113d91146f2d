#include "calls/sound/TonePlayer.h"

#include "calls/sound/Tones.h"

#include <linphone++/linphone.hh>

#include <utility>

namespace {

constexpr int cBusyPeriods = 5;
constexpr int cFailedPeriods = 8;

} // namespace

TonePlayer::TonePlayer(const QString &folder)
{
    const auto make = [&](const char *name, const Tone &tone, int periods) {
        const QString file = folder + QLatin1Char('/') + QLatin1String(name);
        return writeTone(file, tone, periods) ? file : QString();
    };
    m_ringBack = make("ringback.wav", cRingBackTone, 1);
    m_busy = make("busy.wav", cBusyTone, cBusyPeriods);
    m_failed = make("failed.wav", cFailedTone, cFailedPeriods);
}

TonePlayer::~TonePlayer() = default;

void TonePlayer::stop()
{
    if (const auto player = std::exchange(m_player, nullptr)) {
        player->close();
    }
}

void TonePlayer::play(linphone::Core &core, const QString &file)
{
    stop();
    const auto speaker = core.getDefaultOutputAudioDevice();
    if (core.getUseFiles() || !speaker) {
        return;
    }
    m_player = core.createLocalPlayer(speaker->getId(), "", nullptr);
    if (m_player && (m_player->open(file.toStdString()) != 0 || m_player->start() != 0)) {
        m_player = nullptr;
    }
}
