#pragma once

// How the exchange is reached and who one is there. Values only.

#include "calls/account/Credentials.h"

#include <QString>
#include <QStringList>

#include <functional>

struct ExchangeAccess
{
    QStringList servers; ///< SIP addresses, "sip:host:port;transport=tls", in the order of preference; empty while the
                         ///< exchange of one's own has not said where it is
    QString caFile;      ///< certificates of who may vouch for them; empty: those of the system
    QString domain;      ///< behind the @ of every user

    /// The credentials of a user by his id and the registration value that his client signed in with; `fault` says why
    /// there are none.
    std::function<Credentials(const QString &userId, const QString &registrationValue, QString *fault)> credentials;
};
