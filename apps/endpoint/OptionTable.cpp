#include "endpoint/OptionTable.h"

#include <QCommandLineParser>

#include <cmath>

void addOption(QCommandLineParser &parser, const OptionRow &row, const QString &byDefault)
{
    QString text = QString::fromLatin1(row.text);
    if (!byDefault.isEmpty()) {
        text += QStringLiteral(" (%1)").arg(byDefault);
    }
    if (*row.variable != '\0') {
        text += QStringLiteral(" [%1]").arg(QLatin1String(row.variable));
    }
    parser.addOption({QString::fromLatin1(row.option), text, QString::fromLatin1(row.value)});
}

QString valueOf(const QCommandLineParser &parser, const OptionRow &row)
{
    const QString option = QString::fromLatin1(row.option);
    if (parser.isSet(option) || *row.variable == '\0') {
        return parser.value(option);
    }
    return qEnvironmentVariable(row.variable);
}

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
