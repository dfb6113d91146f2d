#pragma once

// What the call process for calls between people can be told at its start. Values only.

#include "endpoint/EndpointOptions.h"

#include <QString>
#include <QStringList>

struct CallsOptions : EndpointOptions
{
    QString settings; ///< path of the settings; empty: where calls.ini is looked for
    QString echo;     ///< id of the user as whom every call is answered with an echo, without a client; empty: none

    /// Reads the arguments, the program's name first, and the environment. False with `error` set for an unknown
    /// option, a surplus argument or a bad number.
    bool read(const QStringList &arguments, QString *error);

    /// The text of --help.
    static QString helpText();
};
