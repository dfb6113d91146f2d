#pragma once

// Collects the users of a new call whose cards the client does not have, and asks the vCard plug-in for them. A value
// for the length of one flow; GUI thread.

#include <QString>
#include <QStringList>

/// The strangers met so far, and the versions of the cards that are at hand for them.
struct StrangerCards
{
    /// User ids without domain.
    QStringList ids;
    /// For each id the decimal version of its small card; "-1" when there is none.
    QStringList versions;

    /// Asks the host about the user id `uid` and notes it when it is a stranger: no contact, and not the fixed system
    /// account. Returns whether it is one.
    bool test(const QString &uid);

    /// Asks for the cards of all strangers noted, with one queued request, also when there are none.
    void request() const;
};
