#include "calls/CallsOptions.h"

#include "endpoint/OptionTable.h"

#include <QCommandLineParser>

namespace {

constexpr OptionRow cSettings{"settings", "", "FILE", "take the settings from this file instead of calls.ini"};

void addOptions(QCommandLineParser &parser)
{
    addOption(parser, cSettings);
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
