#pragma once

// How a user proves who he is. Values only; any thread. What stands in them goes to the exchange's challenge and
// nowhere else: into no log, no trace, no argument.

#include <QString>

struct Credentials
{
    QString name;     ///< the name of the digest: the user's id, or the one that a token is made out to
    QString password; ///< never empty where there is no fault

    bool operator==(const Credentials &other) const { return name == other.name && password == other.password; }
    bool operator!=(const Credentials &other) const { return !(*this == other); }
};

/// The registration value as the password itself. `fault` says why when it cannot be one.
Credentials passwordCredentials(const QString &userId, const QString &registrationValue, QString *fault);

/// The registration value as a token, a JSON object with `username` and `password`: one with an end, made out by the
/// client's server. `fault` says why when it is none, or one of another user.
Credentials tokenCredentials(const QString &userId, const QString &registrationValue, QString *fault);

/// The user's line `user:password` of a file that this user alone may read. `fault` says why when there is none.
Credentials fileCredentials(const QString &userId, const QString &file, QString *fault);
