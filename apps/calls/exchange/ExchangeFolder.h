#pragma once

// Where the exchange of one Unix user keeps its files, which no other user of the machine reaches. The same place for
// all of his processes, whatever their temporary folder is.

#include <QString>

namespace ExchangeFolder {

/// Names of what stands in the folder.
inline constexpr const char *cKeeper = "keeper";               ///< the socket at which the keeper is joined
inline constexpr const char *cLock = "lock";                   ///< held by the one keeper
inline constexpr const char *cAuthority = "ca.pem";            ///< who vouches for the exchange
inline constexpr const char *cCertificate = "certificate.pem"; ///< the exchange's own
inline constexpr const char *cKey = "key.pem";
inline constexpr const char *cSecret = "secret"; ///< what every user's password follows from
inline constexpr const char *cConfiguration = "kamailio.cfg";
inline constexpr const char *cPort = "port"; ///< the last one
inline constexpr const char *cLog = "exchange.log";

/// The folder: `set` where that is not empty, else in the user's run-time folder, else below /tmp. It is made where it
/// is not there. Empty, with the reason in `error`, where it cannot be made or is not this user's alone; also for a
/// path so long that no socket has room in it.
QString take(const QString &set, QString *error);

/// A file of the folder.
QString path(const QString &folder, const char *name);

/// The content of a file that is this user's alone; empty for any other, and for one that cannot be read.
QByteArray readPrivate(const QString &file);

/// Writes the file anew, for this user alone, at once or not at all. False where that fails.
bool writePrivate(const QString &file, const QByteArray &content);

} // namespace ExchangeFolder
