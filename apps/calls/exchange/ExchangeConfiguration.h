#pragma once

// What Kamailio is told: kamailio.cfg.in with the values of one exchange in it. The same template, with other values,
// is the sample for a server of one's own.

#include <QByteArray>
#include <QString>

struct ExchangeConfiguration
{
    QString folder; ///< with the files of ExchangeFolder
    QByteArray secret;
    quint16 port = 0;
    bool alsoIpv6 = false; ///< on ::1 as well

    /// The whole text.
    QByteArray text() const;

    /// What stands behind the @ of everybody at an exchange of one's own: a name that leads nowhere.
    static QString domain();
};
