#include "calls/agent/UserAgent.h"

#include "calls/agent/UserAgentCore.h"

#include <utility>

UserAgent::UserAgent(const CallsSettings &settings, const ExchangeAccess &access, QString folder, Sound sound,
                     QObject *parent)
    : QObject(parent), m_core(std::make_shared<Core>(*this, settings, access, std::move(folder), sound))
{
}

UserAgent::~UserAgent()
{
    const QSignalBlocker quiet(this);
    m_core->stop();
}

void UserAgent::takeExchange()
{
    m_core->takeExchange();
}

void UserAgent::loseExchange()
{
    m_core->loseExchange();
}

bool UserAgent::start(QString *error)
{
    return m_core->start(error);
}

void UserAgent::stop()
{
    m_core->stop();
}

void UserAgent::signIn(const QString &userId, const QString &nickName, const Credentials &credentials)
{
    m_core->signIn(userId, nickName, credentials);
}

void UserAgent::signOut()
{
    m_core->end();
    m_core->signOut();
}

bool UserAgent::isRegistered() const
{
    return m_core->isRegistered();
}

bool UserAgent::call(const QString &userId)
{
    return m_core->place(userId);
}

void UserAgent::accept()
{
    m_core->accept();
}

void UserAgent::end()
{
    m_core->end();
}

void UserAgent::refuse(bool asBusy)
{
    m_core->refuse(asBusy);
}

void UserAgent::playFailure(const CallEnd &end)
{
    m_core->playFailure(end);
}

void UserAgent::setEnabled(Loudness::Side side, bool enabled)
{
    m_core->loudness().setEnabled(side, enabled);
    m_core->applyLoudness();
}

void UserAgent::setVolume(Loudness::Side side, int volume)
{
    m_core->loudness().setVolume(side, volume);
    m_core->applyLoudness();
}
