#include "callcheck/CheckOptions.h"

#include "robots/RobotIds.h"
#include "wire/Commands.h"

#include <QCommandLineParser>

#include <cmath>

namespace {

constexpr const char *cOutVariable = "CALLCHECK_OUT";
constexpr const char *cProgramVariable = "CALLCHECK_PROGRAM";

struct OptionRow
{
    const char *option;
    const char *value;
    const char *byDefault;
    const char *text;
};

// clang-format off
constexpr OptionRow cOut          {"out",          "FILE",    "",             "record: the scenario to write; it must not exist yet"};
constexpr OptionRow cSocketName  {"socket-name",  "NAME",    Wire::cServerName, "record: name of the local server for the plug-in"};
constexpr OptionRow cAttach       {"attach",       "NAME",    "",             "speak with the call process that listens at this name or path, instead of starting PROGRAM"};
constexpr OptionRow cTrace        {"trace",        "FILE",    "",             "append a record of every line to this file, \"-\" for standard error"};
constexpr OptionRow cPatience     {"patience",     "SECONDS", "10",           "replay: how much later than recorded an answer may come"};
constexpr OptionRow cUser         {"user",         "ID",      Robots::cOwnUser, "replay: user id, where the scenario names none"};
constexpr OptionRow cNickName    {"nick",         "NAME",    "callcheck",    "replay: nick name, where the scenario names none"};
constexpr OptionRow cRegistration {"registration", "VALUE",   "registration", "replay: registration value, where the scenario names none; others see it in the list of processes"};
constexpr OptionRow cRegistrationFile {"registration-file", "FILE", "",       "replay: a file with a secret one, \"-\" for standard input"};
// clang-format on

void addOptions(QCommandLineParser &parser)
{
    for (const OptionRow &row :
         {cOut, cSocketName, cAttach, cTrace, cPatience, cUser, cNickName, cRegistration, cRegistrationFile}) {
        parser.addOption({QString::fromLatin1(row.option), QString::fromLatin1(row.text),
                          QString::fromLatin1(row.value), QString::fromLatin1(row.byDefault)});
    }
    parser.addOption({QStringLiteral("help"), QStringLiteral("print this")});
}

QString valueOf(const QCommandLineParser &parser, const OptionRow &row)
{
    return parser.value(QString::fromLatin1(row.option));
}

QString faultOf(const CheckOptions &options)
{
    const bool record = options.mode == CheckOptions::Mode::Record;
    if (record && options.output.isEmpty()) {
        return QStringLiteral("record needs --out FILE");
    }
    if (!record && options.scenario.isEmpty()) {
        return QStringLiteral("replay needs a scenario");
    }
    if (options.program.isEmpty() == options.attachTo.isEmpty()) {
        return QStringLiteral("needs either -- PROGRAM or --attach NAME");
    }
    if (options.socketName.isEmpty()) {
        return QStringLiteral("--socket-name is empty");
    }
    if (!std::isfinite(options.patience) || options.patience <= 0.0 || options.patience > 1e6) {
        return QStringLiteral("--patience: not a number of seconds above 0");
    }
    return {};
}

void takeValues(const QCommandLineParser &parser, CheckOptions &options)
{
    options.output = options.inPlace ? qEnvironmentVariable(cOutVariable) : valueOf(parser, cOut);
    options.socketName = valueOf(parser, cSocketName);
    options.attachTo = valueOf(parser, cAttach);
    options.trace = valueOf(parser, cTrace);
    options.userId = valueOf(parser, cUser);
    options.nickName = valueOf(parser, cNickName);
    options.registration = valueOf(parser, cRegistration);
    options.registrationFile = valueOf(parser, cRegistrationFile);
    bool number = false;
    const double patience = valueOf(parser, cPatience).toDouble(&number);
    options.patience = number ? patience : 0.0;
}

/// The command with what it works on. `words` are not empty; false for an unknown command.
bool takeWords(QStringList words, CheckOptions &options, QString *error)
{
    const QString command = words.takeFirst();
    if (command != QLatin1String("record") && command != QLatin1String("replay")) {
        *error = QStringLiteral("unknown command \"%1\": record or replay?").arg(command);
        return false;
    }
    options.mode = command == QLatin1String("record") ? CheckOptions::Mode::Record : CheckOptions::Mode::Replay;
    if (options.mode == CheckOptions::Mode::Replay && !words.isEmpty()) {
        options.scenario = words.takeFirst();
    }
    if (!words.isEmpty()) {
        options.program = words.takeFirst();
        options.arguments = words;
    }
    return true;
}

} // namespace

bool CheckOptions::read(const QStringList &commandLine, QString *error)
{
    QCommandLineParser parser;
    addOptions(parser);
    if (!parser.parse(commandLine)) {
        *error = parser.errorText();
        return false;
    }
    inPlace = commandLine.size() == 1 && qEnvironmentVariableIsSet(cOutVariable);
    takeValues(parser, *this);
    const QStringList words = inPlace ? QStringList{QStringLiteral("record"), qEnvironmentVariable(cProgramVariable)}
                                      : parser.positionalArguments();
    if (parser.isSet(QStringLiteral("help")) || words.isEmpty()) {
        mode = Mode::Help;
        *error = words.isEmpty() ? QStringLiteral("record or replay?") : QString();
        return parser.isSet(QStringLiteral("help"));
    }
    if (!takeWords(words, *this, error)) {
        return false;
    }
    *error = parser.isSet(QLatin1String(cRegistration.option)) && !registrationFile.isEmpty()
                 ? QStringLiteral("either --registration or --registration-file")
                 : faultOf(*this);
    return error->isEmpty();
}

QString CheckOptions::helpText()
{
    QCommandLineParser parser;
    addOptions(parser);
    parser.setApplicationDescription(
        QStringLiteral("Checks a call process of the voice and video plug-in.\n\n"
                       "record  stands between the plug-in and a call process and writes what happens as a scenario\n"
                       "replay  plays the plug-in's part of a scenario against a call process\n\n"
                       "Started without arguments in the place of a call process, it records into the file that %1\n"
                       "names, with the call process that %2 names.")
            .arg(QLatin1String(cOutVariable), QLatin1String(cProgramVariable)));
    parser.addPositionalArgument(QStringLiteral("COMMAND"),
                                 QStringLiteral("record, or replay and the scenario to play"),
                                 QStringLiteral("record|replay [SCENARIO]"));
    parser.addPositionalArgument(QStringLiteral("PROGRAM"), QStringLiteral("the call process and its arguments"),
                                 QStringLiteral("[-- PROGRAM ARGUMENTS...]"));
    return parser.helpText();
}
