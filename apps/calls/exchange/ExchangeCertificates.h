#pragma once

// The exchange's certificate and who vouches for it, made for this one exchange: the authority signs once and its key
// is thrown away, so nobody can make another certificate that its clients would believe.

#include <QString>

namespace ExchangeCertificates {

/// Whether the files of the folder fit each other, are this user's alone and hold for some weeks still.
bool areGood(const QString &folder);

/// Makes authority, certificate and key anew, for the names localhost, 127.0.0.1 and ::1. False with the reason in
/// `error` when they cannot be made or written.
bool make(const QString &folder, QString *error);

} // namespace ExchangeCertificates
