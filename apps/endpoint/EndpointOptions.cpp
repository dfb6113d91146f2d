#include "endpoint/EndpointOptions.h"

#include "endpoint/EndpointVariables.h"
#include "endpoint/OptionTable.h"

#include <QCommandLineParser>

namespace {

// clang-format off
constexpr OptionRow cTrace      {"trace",        EndpointVariables::cTrace, "FILE", "append a record of every line to this file, \"-\" for standard error"};
constexpr OptionRow cIdle       {"idle-seconds", EndpointVariables::cIdle,  "N",    "end after this long without a client"};
constexpr OptionRow cSocketName {"socket-name",  "",                        "NAME", "name of the local server"};
// clang-format on
const QString cHideSecrets = QStringLiteral("hide-secrets");

} // namespace

void EndpointOptions::addTrace(QCommandLineParser &parser)
{
    addOption(parser, cTrace);
    parser.addOption({cHideSecrets, QStringLiteral("keep what users sign in with out of the trace")});
}

void EndpointOptions::addOthers(QCommandLineParser &parser)
{
    const EndpointOptions byDefault;
    addOption(parser, cIdle, QString::number(byDefault.idleSeconds));
    addOption(parser, cSocketName, byDefault.socketName);
    parser.addOption({QStringLiteral("help"), QStringLiteral("print this")});
}

bool EndpointOptions::parse(QCommandLineParser &parser, const QStringList &arguments, QString *error)
{
    if (!parser.parse(arguments)) {
        *error = parser.errorText();
        return false;
    }
    if (!parser.positionalArguments().isEmpty()) {
        *error = QStringLiteral("unexpected argument \"%1\"").arg(parser.positionalArguments().constFirst());
        return false;
    }
    return true;
}

bool EndpointOptions::read(const QCommandLineParser &parser, QString *error)
{
    help = parser.isSet(QStringLiteral("help"));
    trace = valueOf(parser, cTrace);
    hideSecrets = parser.isSet(cHideSecrets);
    const QString name = valueOf(parser, cSocketName);
    if (!name.isEmpty()) {
        socketName = name;
    }
    return readNumber(parser, cIdle, 0.0, &idleSeconds, error);
}
