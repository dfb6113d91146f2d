#include "calls/CallsOptions.h"

#include "endpoint/OptionTable.h"

#include <QCommandLineParser>

namespace {

// clang-format off
constexpr OptionRow cSettings {"settings", "", "FILE", "take the settings from this file instead of calls.ini"};
constexpr OptionRow cEcho     {"echo",     "", "ID",   "serve no client: sign in as this user and repeat to every caller what he says"};
// clang-format on

void addOptions(QCommandLineParser &parser)
{
    addOption(parser, cSettings);
    addOption(parser, cEcho);
    EndpointOptions::addTrace(parser);
    EndpointOptions::addOthers(parser);
}

} // namespace

bool CallsOptions::read(const QStringList &arguments, QString *error)
{
    QCommandLineParser parser;
    addOptions(parser);
    if (!parse(parser, arguments, error)) {
        return false;
    }
    settings = valueOf(parser, cSettings);
    echo = valueOf(parser, cEcho);
    return EndpointOptions::read(parser, error);
}

QString CallsOptions::helpText()
{
    QCommandLineParser parser;
    addOptions(parser);
    parser.setApplicationDescription(
        QStringLiteral("The call process of the voice and video plug-in, for calls between people."));
    return parser.helpText();
}
