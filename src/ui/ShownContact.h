#pragma once

// A user as the windows show one: the contact's record and the file of its head picture. A plain value that is copied
// freely. GUI thread.

#include "model/FriendData.h"

struct ShownContact
{
    /// What the client knows of the user; an empty record when it knows nothing.
    FriendData record;
    /// The path of the head picture, as headPathOf gives it for the record's card.
    QString strHeadPath;
    /// Whether it was looked up by the signed-in user's own id; false for the jid.
    bool bIsMe = false;

    /// Looks up the user id `strUserID`, which may also be a jid. A user who is not in the client's friend map is asked
    /// for at the host, whose handler runs to its end in here: it may destroy the caller's window.
    static ShownContact ofUser(const QString &strUserID);

    /// The path of the card's picture with the suffix that tells what the file holds: a wrongly named file is renamed.
    /// That of the default head when the card names no file or one that cannot be read.
    static QString headPathOf(const VcardInfo &vcard);
};
