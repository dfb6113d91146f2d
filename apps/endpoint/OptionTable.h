#pragma once

// The options of a call process as rows of a table. Since the plug-in starts it without any, each may be given by the
// environment too; an option wins over its variable. Values and functions, no thread of their own.

#include <QString>

class QCommandLineParser;

struct OptionRow
{
    const char *option;
    const char *variable; ///< empty: none
    const char *value;
    const char *text;
};

/// Makes the parser know the option; `byDefault`, unless it is empty, stands in its help.
void addOption(QCommandLineParser &parser, const OptionRow &row, const QString &byDefault = {});

/// What was given, empty when nothing was.
QString valueOf(const QCommandLineParser &parser, const OptionRow &row);

/// Reads what was given as a number from `least` to a million; leaves `number` as it is when nothing was given. False
/// with `error` set for another text.
bool readNumber(const QCommandLineParser &parser, const OptionRow &row, double least, double *number, QString *error);
