#include "calls/agent/Registration.h"

#include "calls/agent/FarText.h"

#include "conference/UserId.h"

#include <linphone++/linphone.hh>

#include <stdexcept>

Registration::Registration(linphone::Core &core, const ExchangeAccess &access, int expires)
    : m_core(core), m_access(access), m_expires(expires)
{
}

void Registration::signIn(const QString &userId, const QString &nickName, const Credentials &credentials)
{
    const bool same = m_account && m_userId == userId && m_nickName == nickName && m_credentials == credentials &&
                      m_place == m_access.servers.value(m_server);
    if (same && (m_registered || m_forgotten)) {
        m_account->refreshRegister();
        return;
    }
    signOut();
    m_forgotten = false;
    const auto identity = addressOf(userId);
    if (!identity) {
        throw std::invalid_argument("no address for the user in the domain " + m_access.domain.toStdString());
    }
    if (m_server >= m_access.servers.size()) {
        m_server = 0;
    }
    m_userId = userId;
    m_nickName = nickName;
    m_credentials = credentials;
    m_core.addAuthInfo(linphone::Factory::get()->createAuthInfo(userId.toStdString(), credentials.name.toStdString(),
                                                                credentials.password.toStdString(), "", "",
                                                                m_access.domain.toStdString()));
    const auto parameters = m_core.createAccountParams();
    identity->setDisplayName(nickName.left(cUserIdLimit).toStdString());
    parameters->setIdentityAddress(identity);
    parameters->setExpires(m_expires);
    parameters->enablePublish(false);
    m_account = m_core.createAccount(parameters);
    registerAt(m_server);
    m_core.addAccount(m_account);
    m_core.setDefaultAccount(m_account);
}

void Registration::signOut()
{
    m_registered = false;
    m_userId.clear();
    m_credentials = {};
    if (m_account) {
        m_account = nullptr;
        // The registration is taken back with the secret that the library still holds for its account.
        m_core.clearAccounts();
    }
}

void Registration::forget()
{
    m_forgotten = m_registered || m_forgotten;
    m_registered = false;
}

Registration::Change Registration::take(const std::shared_ptr<linphone::Account> &account,
                                        linphone::RegistrationState state, const std::string &message, QString *why)
{
    if (account != m_account) {
        return Change::None;
    }
    if (state == linphone::RegistrationState::Ok) {
        m_registered = true;
        m_forgotten = false;
        m_unreachable = false;
        return Change::Registered;
    }
    if (state == linphone::RegistrationState::Failed || state == linphone::RegistrationState::Cleared) {
        const auto error = account->getErrorInfo();
        m_unreachable = error && error->getReason() != linphone::Reason::Forbidden &&
                        error->getReason() != linphone::Reason::Unauthorized;
        m_forgotten = m_unreachable && (m_registered || m_forgotten);
        m_registered = false;
        *why = farText(message, cRemarkLimit);
        return Change::Lost;
    }
    return Change::None;
}

void Registration::tryNextServer()
{
    if (m_account && !m_registered) {
        m_server = (m_server + 1) % m_access.servers.size();
        registerAt(m_server);
    }
}

void Registration::registerAt(int server)
{
    const auto parameters = m_account->getParams()->clone();
    m_place = m_access.servers.at(server);
    const auto address = m_core.createAddress(m_place.toStdString());
    if (!address) {
        throw std::invalid_argument("no address of a server: " + m_place.toStdString());
    }
    parameters->setServerAddress(address);
    parameters->setRoutesAddresses({address});
    parameters->enableRegister(true);
    m_account->setParams(parameters);
}

std::shared_ptr<linphone::Address> Registration::addressOf(const QString &userId) const
{
    // The id never takes part in the parsing: what stands in it is escaped.
    auto address = m_core.createAddress(QStringLiteral("sip:%1").arg(m_access.domain).toStdString());
    if (address) {
        address->setUsername(userId.toStdString());
    }
    return address;
}

bool Registration::isOfThisExchange(const linphone::Address &address) const
{
    // As the library writes it: an IPv6 address may have its brackets or not.
    const auto own = m_core.createAddress(QStringLiteral("sip:%1").arg(m_access.domain).toStdString());
    return own && address.getDomain() == own->getDomain();
}
