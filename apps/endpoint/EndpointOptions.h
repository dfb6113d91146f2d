#pragma once

// What every call process can be told at its start, whatever is behind it. Values only.

#include "wire/Commands.h"

#include <QString>

class QCommandLineParser;
class QStringList;

struct EndpointOptions
{
    QString trace;                                               ///< path, "-" for standard error; empty: none
    bool hideSecrets = false;                                    ///< what a user signs in with is not traced
    double idleSeconds = 600.0;                                  ///< 0 or more
    QString socketName = QString::fromLatin1(Wire::cServerName); ///< never empty
    bool help = false;

    /// Makes the parser know the trace and what is kept out of it: options of the program's own may follow it.
    static void addTrace(QCommandLineParser &parser);

    /// Makes the parser know the others, the help last.
    static void addOthers(QCommandLineParser &parser);

    /// Has the parser read the arguments, the program's name first. False with `error` set for an unknown option or a
    /// surplus argument.
    static bool parse(QCommandLineParser &parser, const QStringList &arguments, QString *error);

    /// Takes from the parser what is the endpoint's. False with `error` set for a bad number.
    bool read(const QCommandLineParser &parser, QString *error);
};
