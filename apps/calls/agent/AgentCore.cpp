#include "calls/agent/AgentCore.h"

#include "calls/agent/ExchangeAccess.h"
#include "calls/settings/CallsSettings.h"
#include "calls/sound/DeviceChoice.h"
#include "calls/sound/EchoCanceller.h"

#include <QFile>

#include <linphone++/linphone.hh>

#include <algorithm>
#include <array>
#include <cstdlib>

namespace {

// The plug-in gives up after 60 seconds, and the word that it then gives must be the first one: a limit of the library
// that ran out before would read as a busy line.
constexpr int cUnansweredSeconds = 150;
// Where sound comes unevenly the library waits longer by itself; where it does not, its own 60 ms are heard as a pause.
constexpr int cJitterMs = 10;
// Of Opus, 0 to 10: the library's own 9 takes twice as long, and no tone comes out otherwise.
constexpr const char *cOpusEffort = "1";
constexpr int cNoListener = -2; // the library's word for a transport that only dials out

constexpr std::array<const char *, 3> cSystemCertificates{"/etc/ssl/certs/ca-certificates.crt",
                                                          "/etc/pki/tls/certs/ca-bundle.crt", "/etc/ssl/ca-bundle.pem"};

std::shared_ptr<linphone::Config> makeConfig(const CallsSettings &settings)
{
    // Without a file: nothing of it is written.
    auto config = linphone::Factory::get()->createConfig("");
    config->setString("storage", "uri", "null");
    config->setString("sound", "remote_ring", "");
    config->setBool("sound", "noisegate", settings.noiseHandling);
    // The process plays tones of its own: the library cuts its own short.
    config->setBool("misc", "tone_indications", false);
    config->setInt("sip", "delayed_timeout", cUnansweredSeconds);
    config->setInt("sip", "keepalive_period", 15000);
    config->setInt("sip", "refresher_retry_after", settings.retry * 1000);
    config->setBool("sip", "ipv6_migration_done", true);
    config->setBool("sip", "auto_answer_replacing_calls", false);
    config->setBool("net", "dns_srv_enabled", false);
    config->setBool("misc", "conference_event_log_enabled", false);
    config->setInt("rtp", "nortp_timeout", settings.noMedia);
    config->setInt("rtp", "audio_jitt_comp", cJitterMs);
    return config;
}

void closeAllDoors(linphone::Core &core)
{
    const auto transports = linphone::Factory::get()->createTransports();
    transports->setUdpPort(0);
    transports->setTcpPort(0);
    transports->setDtlsPort(0);
    transports->setTlsPort(cNoListener);
    core.setTransports(transports);
    // Messages need a data base, which is switched off.
    core.disableChat(linphone::Reason::NotImplemented);
    core.enableFriendListSubscription(false);
    core.enableNativeRinging(false);
    core.setRing("");
    core.setUserAgent("kelvarim-calls", "");
}

void encryptMedia(linphone::Core &core, const CallsSettings &settings, const QString &folder)
{
    const bool zrtp = settings.encryption == "zrtp";
    core.setMediaEncryption(zrtp ? linphone::MediaEncryption::ZRTP : linphone::MediaEncryption::SRTP);
    core.setMediaEncryptionMandatory(true);
    if (zrtp) {
        core.setZrtpSecretsFile((folder + QStringLiteral("/zrtp.db")).toStdString());
    }
}

void allowSoundAlone(linphone::Core &core)
{
    core.enableVideoCapture(false);
    core.enableVideoDisplay(false);
    const auto policy = linphone::Factory::get()->createVideoActivationPolicy();
    policy->setAutomaticallyAccept(false);
    policy->setAutomaticallyInitiate(false);
    core.setVideoActivationPolicy(policy);
}

/// The codecs of the settings, in their order, and no others.
void orderCodecs(linphone::Core &core, const CallsSettings &settings)
{
    const auto place = [&](const std::shared_ptr<linphone::PayloadType> &type) {
        std::string name = type->getMimeType();
        std::transform(name.begin(), name.end(), name.begin(), [](unsigned char c) { return std::tolower(c); });
        return std::find(settings.codecs.begin(), settings.codecs.end(), name) - settings.codecs.begin();
    };
    auto types = core.getAudioPayloadTypes();
    types.sort([&](const auto &one, const auto &other) { return place(one) < place(other); });
    core.setAudioPayloadTypes(types);
    for (const auto &type : core.getAudioPayloadTypes()) {
        type->enable(place(type) < static_cast<std::ptrdiff_t>(settings.codecs.size()));
    }
}

} // namespace

void verifyServers(linphone::Core &core, const ExchangeAccess &access)
{
    std::string file = access.caFile.toStdString();
    if (file.empty()) {
        const auto *const found = std::find_if(cSystemCertificates.begin(), cSystemCertificates.end(),
                                               [](const char *path) { return QFile::exists(QLatin1String(path)); });
        file = found == cSystemCertificates.end() ? "" : *found;
    }
    core.setRootCa(file);
    core.verifyServerCertificates(true);
    core.verifyServerCn(true);
}

std::shared_ptr<linphone::Core> makeCore(const CallsSettings &settings, const ExchangeAccess &access,
                                         const QString &folder)
{
    const auto factory = linphone::Factory::get();
    linphone::LoggingService::get()->setLogLevel(linphone::LogLevel::Fatal);
    const std::string place = folder.toStdString() + '/';
    factory->setDataDir(place);
    factory->setConfigDir(place);
    factory->setDownloadDir(place);
    auto core = factory->createCoreWithConfig(makeConfig(settings), nullptr);
    closeAllDoors(*core);
    verifyServers(*core, access);
    encryptMedia(*core, settings, folder);
    allowSoundAlone(*core);
    orderCodecs(*core, settings);
    core->setAudioPortRange(settings.ports.first, settings.ports.last);
    core->setIncTimeout(cUnansweredSeconds);
    core->setNortpTimeout(settings.noMedia);
    chooseSound(*core, settings);
    useEchoCanceller(*core);
    ::setenv("MS2_OPUS_COMPLEXITY", cOpusEffort, 0);
    return core;
}
