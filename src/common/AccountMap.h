#pragma once

// The file that maps account names to user identifiers. Any thread; no state.

#include <QString>

class AccountMap
{
public:
    /// The identifier of an account, from the list "/accounts/accountuidmap" of an INI file, whose items are an account
    /// and its identifier with "^^" between them: that of the first item whose account is equal, else of the first item
    /// that holds the account anywhere and has an identifier, else the empty text, as for an empty account. Outside the
    /// public version the account itself.
    static QString getUIDByAccountNo(QString strFile, QString strAccount);
};
