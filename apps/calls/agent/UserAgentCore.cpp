#include "calls/agent/UserAgentCore.h"

#include "calls/agent/AgentCore.h"
#include "calls/agent/CallState.h"
#include "calls/agent/FarText.h"
#include "calls/agent/Guard.h"
#include "calls/settings/CallsSettings.h"
#include "calls/sound/DeviceChoice.h"
#include "calls/sound/EchoCard.h"

#include "conference/UserId.h"

#include <unistd.h>
#include <utility>

namespace {

constexpr int cIdleIterateMs = 40;
constexpr int cBusyIterateMs = 4;
constexpr int cHurryMs = 3000;
constexpr int cKeysMs = 8000;
constexpr int cStopSteps = 150;
constexpr int cStopStepUs = 10000;

} // namespace

template <class Action>
void UserAgent::Core::guard(const Action &action)
{
    guarded(action, [this](const char *what) {
        emit m_agent.remarked(QStringLiteral("the SIP library failed: %1").arg(farText(what, cRemarkLimit)));
    });
}

UserAgent::Core::Core(UserAgent &agent, const CallsSettings &settings, const ExchangeAccess &access, QString folder,
                      Sound sound)
    : m_agent(agent), m_settings(settings), m_access(access), m_folder(std::move(folder)), m_sound(sound),
      m_tones(m_folder), m_devices(settings)
{
    m_iterateTimer.setTimerType(Qt::PreciseTimer);
    m_iterateTimer.setInterval(cIdleIterateMs);
    QObject::connect(&m_iterateTimer, &QTimer::timeout, &m_agent, [this] { iterate(); });
    m_nextServerTimer.setSingleShot(true);
    m_nextServerTimer.setInterval(settings.retry * 1000);
    QObject::connect(&m_nextServerTimer, &QTimer::timeout, &m_agent, [this] {
        guard([this] { m_registration->tryNextServer(); });
        hurry();
    });
}

bool UserAgent::Core::start(QString *error)
{
    *error = faultOfFiles(m_settings);
    if (!error->isEmpty()) {
        return false;
    }
    bool started = false;
    *error = QStringLiteral("the SIP library does not start");
    guarded(
        [&] {
            m_library = makeCore(m_settings, m_access, m_folder);
            m_library->addListener(shared_from_this());
            m_library->setRingback(m_tones.ringBack().toStdString());
            started = m_library->start() == 0 && (m_sound == Sound::OfSettings || useEchoCard(*m_library));
        },
        [&](const char *what) { *error += QStringLiteral(": ") + farText(what, cRemarkLimit); });
    if (!started) {
        stop();
        return false;
    }
    error->clear();
    m_registration = std::make_unique<Registration>(*m_library, m_access, m_settings.expires);
    guard([this] { refreshDevices(); });
    m_iterateTimer.start();
    return true;
}

void UserAgent::Core::stop()
{
    if (!m_library) {
        return;
    }
    m_iterateTimer.stop();
    m_nextServerTimer.stop();
    guard([this] {
        end();
        const bool registered = isRegistered();
        if (m_registration) {
            m_registration->signOut();
        }
        // The exchange may be gone: what it does not answer is not waited for.
        for (int i = 0; i < cStopSteps && (m_library->getCallsNb() > 0 || (registered && i < cStopSteps / 5)); ++i) {
            m_library->iterate();
            ::usleep(cStopStepUs);
        }
    });
    guard([this] {
        m_tones.stop();
        m_library->removeListener(shared_from_this());
        m_library->stop();
    });
    m_registration.reset();
    m_library.reset();
}

void UserAgent::Core::takeExchange()
{
    if (m_library) {
        guard([this] { verifyServers(*m_library, m_access); });
    }
}

void UserAgent::Core::loseExchange()
{
    m_nextServerTimer.stop();
    if (m_registration) {
        m_registration->forget();
    }
}

void UserAgent::Core::signIn(const QString &userId, const QString &nickName, const Credentials &credentials)
{
    bool asked = false;
    if (m_registration) {
        guard([&] {
            m_registration->signIn(userId, nickName, credentials);
            asked = true;
        });
    }
    if (!asked) {
        emit m_agent.registrationLost(QStringLiteral("the exchange cannot be asked"));
    }
    hurry();
}

void UserAgent::Core::signOut()
{
    m_nextServerTimer.stop();
    if (m_registration) {
        guard([this] { m_registration->signOut(); });
    }
    hurry();
}

bool UserAgent::Core::place(const QString &userId)
{
    end();
    if (!m_library) {
        return false;
    }
    guard([&] {
        const auto address = m_registration->addressOf(userId);
        refreshDevices();
        m_placing = true;
        m_mediaRan = false;
        m_call = address ? m_library->inviteAddressWithParams(address, parameters(nullptr)) : nullptr;
    });
    m_placing = false;
    hurry();
    return m_call != nullptr;
}

void UserAgent::Core::accept()
{
    guard([this] {
        if (m_call && isArrival(m_call->getState())) {
            refreshDevices();
            if (m_call->acceptWithParams(parameters(m_call)) != 0) {
                const auto call = std::exchange(m_call, nullptr);
                call->terminate();
                reportEnd({0, false, QStringLiteral("the library does not accept it")}, false);
            }
        }
    });
    hurry();
}

void UserAgent::Core::end()
{
    guard([this] {
        m_tones.stop();
        if (const auto call = std::exchange(m_call, nullptr)) {
            if (isArrival(call->getState())) {
                call->decline(linphone::Reason::Declined);
            } else if (!isOver(call->getState())) {
                call->terminate();
            }
        }
    });
    hurry();
}

void UserAgent::Core::refuse(bool asBusy)
{
    guard([&] {
        if (const auto call = std::exchange(m_call, nullptr)) {
            call->decline(asBusy ? linphone::Reason::Busy : linphone::Reason::TemporarilyUnavailable);
        }
    });
}

void UserAgent::Core::playFailure(const CallEnd &end)
{
    if (m_library) {
        guard([&] {
            m_mediaRan = false;
            playEnd(end, true);
        });
    }
}

void UserAgent::Core::applyLoudness()
{
    if (m_library) {
        guard([this] { m_loudness.apply(*m_library, m_call.get()); });
    }
}

std::shared_ptr<linphone::CallParams> UserAgent::Core::parameters(const std::shared_ptr<linphone::Call> &call)
{
    auto parameters = m_library->createCallParams(call);
    parameters->enableVideo(false);
    parameters->enableAudio(true);
    return parameters;
}

void UserAgent::Core::refreshDevices()
{
    const QString chosen = m_sound == Sound::Echo ? QString() : m_devices.refresh(*m_library);
    if (!chosen.isEmpty()) {
        emit m_agent.remarked(chosen);
    }
}

void UserAgent::Core::hurry()
{
    m_sinceHurry.start();
    if (m_iterateTimer.isActive()) {
        m_iterateTimer.start(cBusyIterateMs);
    }
}

void UserAgent::Core::iterate()
{
    if (m_iterateTimer.interval() == cBusyIterateMs && m_sinceHurry.hasExpired(cHurryMs)) {
        m_iterateTimer.start(cIdleIterateMs);
    }
    guard([this] { m_library->iterate(); });
}

void UserAgent::Core::onAccountRegistrationStateChanged(const std::shared_ptr<linphone::Core> & /*core*/,
                                                        const std::shared_ptr<linphone::Account> &account,
                                                        linphone::RegistrationState state, const std::string &message)
{
    guard([&] {
        QString why;
        switch (m_registration ? m_registration->take(account, state, message, &why) : Registration::Change::None) {
        case Registration::Change::Registered:
            m_nextServerTimer.stop();
            emit m_agent.registered();
            break;
        case Registration::Change::Lost:
            if (m_registration->mayTryNextServer()) {
                m_nextServerTimer.start();
            }
            emit m_agent.registrationLost(why);
            break;
        case Registration::Change::None:
            break;
        }
    });
}

void UserAgent::Core::onCallStateChanged(const std::shared_ptr<linphone::Core> & /*core*/,
                                         const std::shared_ptr<linphone::Call> &call, linphone::Call::State state,
                                         const std::string & /*message*/)
{
    guard([&] {
        hurry();
        if (m_call && call == m_call) {
            takeOwn(state);
        } else {
            takeStranger(call, state);
        }
    });
}

bool UserAgent::Core::isBeingPlacedTo(const linphone::Address &address) const
{
    return m_call && m_call->getDir() == linphone::Call::Dir::Outgoing && !m_mediaRan &&
           m_call->getRemoteAddress()->weakEqual(address.clone());
}

void UserAgent::Core::takeOwn(linphone::Call::State state)
{
    switch (state) {
    case linphone::Call::State::OutgoingRinging:
    case linphone::Call::State::OutgoingEarlyMedia:
        emit m_agent.ringsThere();
        break;
    case linphone::Call::State::Connected:
        if (m_library->getMediaEncryption() == linphone::MediaEncryption::ZRTP) {
            endUnlessKeysAreAgreedOn();
        }
        break;
    case linphone::Call::State::StreamsRunning:
        takeRunningStreams();
        break;
    case linphone::Call::State::End:
    case linphone::Call::State::Error:
    case linphone::Call::State::Released:
        takeEnd();
        break;
    default:
        break;
    }
}

void UserAgent::Core::takeRunningStreams()
{
    m_loudness.apply(*m_library, m_call.get());
    const bool encrypted = m_call->getCurrentParams()->getMediaEncryption() != linphone::MediaEncryption::None;
    // Keys that the two ends agree on between themselves come after the streams.
    if (encrypted && !m_mediaRan) {
        m_mediaRan = true;
        emit m_agent.mediaRuns();
    }
}

void UserAgent::Core::endUnlessKeysAreAgreedOn()
{
    const auto endIt = [this, waiting = std::weak_ptr<linphone::Call>(m_call)] {
        if (m_call && m_call == waiting.lock() && !m_mediaRan) {
            guard([this] { endForWantOfKeys(); });
        }
    };
    QTimer::singleShot(cKeysMs, &m_agent, endIt);
}

void UserAgent::Core::onCallEncryptionChanged(const std::shared_ptr<linphone::Core> & /*core*/,
                                              const std::shared_ptr<linphone::Call> &call, bool encrypted,
                                              const std::string & /*token*/)
{
    guard([&] {
        if (encrypted && m_call && call == m_call && call->getState() == linphone::Call::State::StreamsRunning) {
            takeRunningStreams();
        }
    });
}

void UserAgent::Core::onCallLogUpdated(const std::shared_ptr<linphone::Core> & /*core*/,
                                       const std::shared_ptr<linphone::CallLog> &log)
{
    guard([&] {
        // The library refuses on its own what it cannot agree with, and a call that nobody hears of has an entry alone.
        // One that it refuses because the line is busy is no matter of an operator's.
        const auto error = log->getErrorInfo();
        const int status = error ? error->getProtocolCode() : 0;
        if (!error || log->getStatus() != linphone::Call::Status::EarlyAborted ||
            log->getDir() != linphone::Call::Dir::Incoming) {
            return;
        }
        if (status != SipStatus::cBusy) {
            emit m_agent.remarked(QStringLiteral("refused a call from %1: %2")
                                      .arg(farText(log->getFromAddress()->getUsername(), cUserIdLimit),
                                           whyRefused(status, error->getPhrase())));
        } else if (isBeingPlacedTo(*log->getFromAddress())) {
            // Each has called the other: the library has told that one that the line is busy, and where both hear the
            // same in turn one call would be left to ring.
            const auto own = std::exchange(m_call, nullptr);
            own->terminate();
            reportEnd({SipStatus::cBusy, false, QStringLiteral("both have called at once")}, true);
        }
    });
}

void UserAgent::Core::onAudioDevicesListUpdated(const std::shared_ptr<linphone::Core> & /*core*/)
{
    guard([this] { refreshDevices(); });
}
