#pragma once

// The identifiers that the client makes. The counter is the process's and unguarded: main thread.

#include <QString>

class Identifiers
{
public:
    /// A fresh universal identifier in 22 characters: base64 with the alphabet for addresses, without padding.
    static QString getUuid();

    /// "impc" and the counter's value, which then goes up by one.
    static QString getShortId();

    /// The counter's value in decimal, which then goes up by one; the same counter as getShortId's.
    static QString getAutoIncrementNumber();

    /// The counter, from 0.
    static quint64 m_nAutoIncrementNumber;
};
