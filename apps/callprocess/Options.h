#pragma once

// What the stand-in can be told at its start, by options or, since the plug-in starts it without any, by the
// environment. An option wins over its variable. Values only.

#include "endpoint/EndpointOptions.h"

#include <QString>
#include <QStringList>

struct Options : EndpointOptions
{
    QString scenario;   ///< path; empty: the exchange of robots
    double speed = 1.0; ///< greater than 0

    /// Reads the arguments, the program's name first, and the environment. False with `error` set for an unknown
    /// option, a surplus argument or a bad number.
    bool read(const QStringList &arguments, QString *error);

    /// The text of --help.
    static QString helpText();
};

/// A delay in milliseconds divided by the speed factor, within what a timer takes.
int scaledDelay(int milliseconds, double speed);
