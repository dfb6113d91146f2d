#pragma once

// The one user who is signed in at the exchange. Owned by the user agent; main thread. Every operation may throw what
// the library throws.

#include "calls/agent/ExchangeAccess.h"

#include <QString>

#include <memory>

namespace linphone {
class Account;
class Address;
class Core;
enum class RegistrationState;
} // namespace linphone

class Registration
{
public:
    /// What a report of the library means for the one user.
    enum class Change
    {
        None,       ///< nothing, or it is about somebody who is no longer signed in
        Registered, ///< the exchange knows the user, perhaps anew
        Lost,       ///< the exchange refuses, or cannot be reached
    };

    /// `core` and `access`, which may come to name other servers, outlive the registration. `expires` in seconds.
    Registration(linphone::Core &core, const ExchangeAccess &access, int expires);

    /// Signs the user in, again if he is; another one's registration is taken back. The answer is reported.
    void signIn(const QString &userId, const QString &nickName, const Credentials &credentials);

    /// Takes the registration back. Without one: no effect.
    void signOut();

    /// What the exchange knew of the user it knows no longer: he is not registered until it reports so anew.
    void forget();

    /// Takes a report of the library; for a loss `why` has what was said.
    Change take(const std::shared_ptr<linphone::Account> &account, linphone::RegistrationState state,
                const std::string &message, QString *why);

    bool isRegistered() const { return m_registered; }

    /// Whether the last loss was one of the connection, and there is another server to try.
    bool mayTryNextServer() const { return m_unreachable && m_access.servers.size() > 1; }

    /// Registers at the server after the present one, behind the last one at the first again.
    void tryNextServer();

    /// The SIP address of a user of the same exchange; null where its domain is none.
    std::shared_ptr<linphone::Address> addressOf(const QString &userId) const;

    /// Whether the address is one of the exchange's users.
    bool isOfThisExchange(const linphone::Address &address) const;

private:
    void registerAt(int server);

    linphone::Core &m_core;
    const ExchangeAccess &m_access;
    int m_expires;
    std::shared_ptr<linphone::Account> m_account;
    QString m_userId;
    QString m_nickName;
    Credentials m_credentials;
    int m_server = 0;
    QString m_place; // where he registers, as it was named
    bool m_registered = false;
    bool m_forgotten = false; // he was, until the exchange forgot him: the library goes on trying by itself
    bool m_unreachable = false;
};
