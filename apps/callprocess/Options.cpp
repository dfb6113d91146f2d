#include "callprocess/Options.h"

#include "endpoint/OptionTable.h"
#include "robots/StandIn.h"

#include <QCommandLineParser>

#include <algorithm>
#include <limits>

namespace {

// clang-format off
constexpr OptionRow cScenario {"scenario", StandIn::cScenarioVariable, "FILE",   "run this scenario instead of the exchange of robots"};
constexpr OptionRow cSpeed    {"speed",    StandIn::cSpeedVariable,    "FACTOR", "divide all delays by this"};
// clang-format on

void addOptions(QCommandLineParser &parser)
{
    addOption(parser, cScenario);
    EndpointOptions::addTrace(parser);
    addOption(parser, cSpeed);
    EndpointOptions::addOthers(parser);
}

} // namespace

bool Options::read(const QStringList &arguments, QString *error)
{
    QCommandLineParser parser;
    addOptions(parser);
    if (!parse(parser, arguments, error)) {
        return false;
    }
    scenario = valueOf(parser, cScenario);
    return readNumber(parser, cSpeed, 0.001, &speed, error) && EndpointOptions::read(parser, error);
}

QString Options::helpText()
{
    QCommandLineParser parser;
    addOptions(parser);
    parser.setApplicationDescription(QStringLiteral("Stands in for the call process of the voice and video plug-in."));
    return parser.helpText();
}

int scaledDelay(int milliseconds, double speed)
{
    return static_cast<int>(std::min<double>(milliseconds / speed, std::numeric_limits<int>::max()));
}
