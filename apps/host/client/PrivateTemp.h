#pragma once

#include <QString>

/// The temporary folder of one user of the client. Client and call process meet at a socket of a fixed name below the
/// temporary folder, so where that is everybody's, two users would meet at one socket: another user of the machine
/// could even take the name first. No state; main thread, before anything is made there.
namespace PrivateTemp {

/// Sees to it that the temporary folder of this process, and of those that it starts, is one that no other user of the
/// machine reaches; when `bOwn` one for the client's user `strUid` alone, below the present one. A folder in which a
/// call process of this user already listens stays, as does a private one, unless `bOwn`. False, with the reason in
/// `strError`, when no such folder can be made.
bool use(const QString &strUid, bool bOwn, QString *strError);

} // namespace PrivateTemp
