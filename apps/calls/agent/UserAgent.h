#pragma once

// The telephone: signs a user in at the exchange, and places and takes one call at a time, with encrypted sound. It
// wraps the SIP library; nothing that the library throws or means goes beyond it. Owned by main; main thread.

#include "calls/agent/CallEnd.h"
#include "calls/agent/ExchangeAccess.h"
#include "calls/sound/Loudness.h"

#include <QObject>

#include <memory>

struct CallsSettings;

class UserAgent : public QObject
{
    Q_OBJECT

public:
    /// Whose ears and voice.
    enum class Sound
    {
        OfSettings, ///< devices or files, as the settings have them
        Echo        ///< whoever speaks hears himself
    };

    /// `settings` and `access` outlive the agent; `folder` is private to this user.
    UserAgent(const CallsSettings &settings, const ExchangeAccess &access, QString folder,
              Sound sound = Sound::OfSettings, QObject *parent = nullptr);
    ~UserAgent() override;

    /// The exchange is at another place, or has come anew: who signs in from now on does so there.
    void takeExchange();

    /// The exchange has gone: nobody is registered, until `registered` says so anew. No signal; a call goes on.
    void loseExchange();

    /// Starts the library. False with `error` set when it cannot be; it may be tried again. Until it has been nobody is
    /// signed in, and nothing else has an effect.
    bool start(QString *error);

    /// Ends the call, takes the registration back, stops the library. Takes seconds at most, with the exchange gone
    /// too.
    void stop();

    /// Signs the user in, again if he is; ends a call of another user and takes that one's registration back.
    /// `registered` or `registrationLost` follows.
    void signIn(const QString &userId, const QString &nickName, const Credentials &credentials);

    /// Ends the call and takes the registration back, without a signal.
    void signOut();
    bool isRegistered() const;

    /// Calls a user; what there was of a call ends without a signal. False when it cannot be placed.
    bool call(const QString &userId);

    /// Accepts the call that has arrived, otherwise no effect.
    void accept();

    /// Cancels, rejects or hangs up the call, without a signal. Without one: no effect.
    void end();

    /// Refuses the call that has arrived, without a signal: as that of one who is busy, or as of nobody who could
    /// answer.
    void refuse(bool asBusy);

    /// Plays the tone for a call of one's own that came to nothing before it was placed.
    void playFailure(const CallEnd &end);

    /// The switches and volumes, which outlive the call.
    void setEnabled(Loudness::Side side, bool enabled);
    void setVolume(Loudness::Side side, int volume);

signals:
    /// The exchange knows the user, perhaps anew.
    void registered();
    /// The exchange refuses the user or cannot be reached; it is tried again by itself.
    void registrationLost(const QString &why);
    /// Somebody calls, and there is no other call.
    void callArrived(const QString &userId);
    /// It rings at the far end of the call that was placed.
    void ringsThere();
    /// Encrypted sound runs for the first time in this call.
    void mediaRuns();
    /// The call was ended by the far end, the exchange or a failure.
    void callEnded(const CallEnd &end);
    /// What an operator needs to know.
    void remarked(const QString &text);

private:
    class Core;
    std::shared_ptr<Core> m_core; // the library has a part in it while it runs
};
