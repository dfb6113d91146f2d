#include "callprocess/Options.h"

#include "robots/StandIn.h"

#include <QCommandLineParser>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

struct OptionRow
{
    const char *option;
    const char *variable; // empty: none
    const char *value;
    const char *text;
    QString (*byDefault)(const Options &options); // as the help shows it; null: not shown
};

QString idleByDefault(const Options &options)
{
    return QString::number(options.idleSeconds);
}

QString socketNameByDefault(const Options &options)
{
    return options.socketName;
}

// clang-format off
constexpr OptionRow cScenario    {"scenario",     StandIn::cScenarioVariable, "FILE",   "run this scenario instead of the exchange of robots", nullptr};
constexpr OptionRow cTrace       {"trace",        StandIn::cTraceVariable,    "FILE",   "append a record of every line to this file, \"-\" for standard error", nullptr};
constexpr OptionRow cSpeed       {"speed",        StandIn::cSpeedVariable,    "FACTOR", "divide all delays by this", nullptr};
constexpr OptionRow cIdle        {"idle-seconds", StandIn::cIdleVariable,     "N",      "end after this long without a client", idleByDefault};
constexpr OptionRow cSocketName  {"socket-name",  "",                         "NAME",   "name of the local server", socketNameByDefault};
// clang-format on

QCommandLineOption optionOf(const OptionRow &row)
{
    QString text = QString::fromLatin1(row.text);
    if (row.byDefault != nullptr) {
        text += QStringLiteral(" (%1)").arg(row.byDefault(Options()));
    }
    if (*row.variable != '\0') {
        text += QStringLiteral(" [%1]").arg(QLatin1String(row.variable));
    }
    return {QString::fromLatin1(row.option), text, QString::fromLatin1(row.value)};
}

void addOptions(QCommandLineParser &parser)
{
    for (const OptionRow &row : {cScenario, cTrace, cSpeed, cIdle, cSocketName}) {
        parser.addOption(optionOf(row));
    }
    parser.addOption({QStringLiteral("help"), QStringLiteral("print this")});
}

QString valueOf(const QCommandLineParser &parser, const OptionRow &row)
{
    const QString option = QString::fromLatin1(row.option);
    if (parser.isSet(option) || *row.variable == '\0') {
        return parser.value(option);
    }
    return qEnvironmentVariable(row.variable);
}

/// Leaves `number` as it is when nothing was given.
bool readNumber(const QCommandLineParser &parser, const OptionRow &row, double least, double *number, QString *error)
{
    const QString text = valueOf(parser, row);
    if (text.isEmpty()) {
        return true;
    }
    bool valid = false;
    const double value = text.toDouble(&valid);
    if (!valid || !std::isfinite(value) || value < least || value > 1e6) {
        *error = QStringLiteral("--%1: bad number \"%2\"").arg(QLatin1String(row.option), text);
        return false;
    }
    *number = value;
    return true;
}

} // namespace

bool Options::read(const QStringList &arguments, QString *error)
{
    QCommandLineParser parser;
    addOptions(parser);
    if (!parser.parse(arguments)) {
        *error = parser.errorText();
        return false;
    }
    if (!parser.positionalArguments().isEmpty()) {
        *error = QStringLiteral("unexpected argument \"%1\"").arg(parser.positionalArguments().constFirst());
        return false;
    }
    help = parser.isSet(QStringLiteral("help"));
    scenario = valueOf(parser, cScenario);
    trace = valueOf(parser, cTrace);
    const QString name = valueOf(parser, cSocketName);
    if (!name.isEmpty()) {
        socketName = name;
    }
    return readNumber(parser, cSpeed, 0.001, &speed, error) && readNumber(parser, cIdle, 0.0, &idleSeconds, error);
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
