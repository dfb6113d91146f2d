#pragma once

#include "traffic/Sentence.h"
#include "traffic/WireTrace.h"

#include <QString>
#include <QStringList>

class SecretMask;

/// Says in a sentence what a line between plug-in and call process means, command by command and
/// notification by notification. Lines come from outside: whatever does not follow the protocol is said to be so. No
/// state.
class WireWords
{
public:
    /// What a line says.
    struct Said
    {
        Sentence sentence;
        bool bad = false; ///< the line does not follow the protocol, or is a complaint of the call process
    };

    /// The sentence of one line of the trace, with its secrets masked. A line that was cut is not decoded.
    static Said say(const WireLine &line, const SecretMask &mask);

    /// The lines of the protocol in a text of the trace, which holds all that was written at once: as it stands when it
    /// is one line, else cut at the pictures of the line feeds.
    static QStringList split(const QString &strText);

    /// The registration value in the line of a command; empty when there is none.
    static QString secretOf(const QString &strText);
};
