#pragma once

// The words of one scenario line. Words are parted by blanks; "#" at a word's begin starts a comment. A word, or the
// value behind its first "=", may stand in double quotes, where \n \r \t \0 \\ \" and \xNN are escapes, or in single
// quotes, where nothing is. Values only.

#include <QByteArray>
#include <QString>
#include <QVector>

struct ScenarioWord
{
    QByteArray text;     ///< without quotes, escapes resolved
    int quotedFrom = -1; ///< where in `text` the quoted piece begins, -1 for a bare word

    bool isBare(const char *word) const { return quotedFrom < 0 && text == word; }
};

/// Splits one line (without its line feed). On a fault the words before it come back and `error` is set.
QVector<ScenarioWord> scenarioWords(const QByteArray &line, QString *error);
