#pragma once

// What the checker is told at its start. To be started in the place of a call process, which gets no arguments, the
// options of a recording may stand in the environment instead. Values only.

#include <QString>
#include <QStringList>

/// What the program ends with.
enum class CheckExit : int
{
    Passed = 0,
    CannotStart = 1,   ///< the call process cannot be started or reached, or the socket not be opened
    BadInput = 2,      ///< bad options, a scenario with a fault, a file that cannot be written
    NotAsRecorded = 3, ///< the call process does not do what the scenario says
    DiedByASignal = 9, ///< recording: the call process was killed
};

struct CheckOptions
{
    enum class Mode
    {
        Help,
        Record,
        Replay,
    };

    Mode mode = Mode::Help;
    bool inPlace = false;     ///< recording in the place of the call process, told by the environment
    QString output;           ///< recording: the scenario's path
    QString scenario;         ///< replay: the scenario's path
    QString trace;            ///< path, "-" for standard error; empty: none
    QString attachTo;         ///< name or path of a running call process's socket; empty: `program` is started
    QString program;          ///< the call process; empty when there is one to attach to
    QStringList arguments;    ///< its arguments
    double patience = 0.0;    ///< replay: seconds that an answer may come later than it was recorded
    QString userId;           ///< replay: who signs in where the scenario does not say
    QString nickName;         ///< the same
    QString registration;     ///< the same: the registration value
    QString registrationFile; ///< path of a file that has it instead, "-" for standard input; empty: none
    QString socketName;       ///< recording: where the plug-in connects; never empty

    /// Reads the command line, the program's name first, and the environment; only then the fields hold the defaults of
    /// the options that were not given. False with `error` set.
    bool read(const QStringList &commandLine, QString *error);

    /// The text of --help.
    static QString helpText();
};
