#pragma once

// The inside of the user agent, where the library's types are known: the calls, and what the library reports. Owned by
// the user agent; main thread.

#include "calls/agent/Registration.h"
#include "calls/agent/UserAgent.h"
#include "calls/sound/DeviceChoice.h"
#include "calls/sound/TonePlayer.h"

#include <QElapsedTimer>
#include <QTimer>

#include <linphone++/linphone.hh>

class UserAgent::Core : public linphone::CoreListener, public std::enable_shared_from_this<UserAgent::Core>
{
public:
    Core(UserAgent &agent, const CallsSettings &settings, const ExchangeAccess &access, QString folder, Sound sound);

    bool start(QString *error);
    void stop();

    void takeExchange();
    void loseExchange();
    void signIn(const QString &userId, const QString &nickName, const Credentials &credentials);
    void signOut();
    bool isRegistered() const { return m_registration && m_registration->isRegistered(); }

    bool place(const QString &userId);
    void accept();
    void end();
    void refuse(bool asBusy);
    void playFailure(const CallEnd &end);
    void applyLoudness();

    Loudness &loudness() { return m_loudness; }

    void onAccountRegistrationStateChanged(const std::shared_ptr<linphone::Core> &core,
                                           const std::shared_ptr<linphone::Account> &account,
                                           linphone::RegistrationState state, const std::string &message) override;
    void onCallStateChanged(const std::shared_ptr<linphone::Core> &core, const std::shared_ptr<linphone::Call> &call,
                            linphone::Call::State state, const std::string &message) override;
    void onCallEncryptionChanged(const std::shared_ptr<linphone::Core> &core,
                                 const std::shared_ptr<linphone::Call> &call, bool encrypted,
                                 const std::string &token) override;
    void onCallLogUpdated(const std::shared_ptr<linphone::Core> &core,
                          const std::shared_ptr<linphone::CallLog> &log) override;
    void onAudioDevicesListUpdated(const std::shared_ptr<linphone::Core> &core) override;

private:
    /// Runs what may throw; the exception ends here with a remark.
    template <class Action>
    void guard(const Action &action);

    /// The library is asked more often for a while: something is under way.
    void hurry();
    void refreshDevices();
    void iterate();
    void takeStranger(const std::shared_ptr<linphone::Call> &call, linphone::Call::State state);
    void takeArrival(const std::shared_ptr<linphone::Call> &call);
    void takeOwn(linphone::Call::State state);
    void takeEnd();
    void reportEnd(const CallEnd &end, bool placedHere);

    /// Whether the call that is on was placed to this one, and does not stand yet.
    bool isBeingPlacedTo(const linphone::Address &address) const;
    void takeRunningStreams();
    void endUnlessKeysAreAgreedOn();
    void endForWantOfKeys();
    void playEnd(const CallEnd &end, bool placedHere);
    std::shared_ptr<linphone::CallParams> parameters(const std::shared_ptr<linphone::Call> &call);

    UserAgent &m_agent;
    const CallsSettings &m_settings;
    const ExchangeAccess &m_access;
    QString m_folder;
    Sound m_sound;
    std::shared_ptr<linphone::Core> m_library;
    std::unique_ptr<Registration> m_registration;
    Loudness m_loudness;
    TonePlayer m_tones;
    DeviceChoice m_devices;
    QTimer m_iterateTimer;
    QElapsedTimer m_sinceHurry;
    QTimer m_nextServerTimer;
    std::shared_ptr<linphone::Call> m_call; // the one that the plug-in knows of
    bool m_placing = false;
    bool m_mediaRan = false;
};
