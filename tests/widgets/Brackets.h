#pragma once

// A language for the tests of what the widgets say. GUI thread.

#include <QTranslator>

/// A language whose words are the keys in angle brackets, as long as the kit asks for them in its context "QObject".
class Brackets : public QTranslator
{
public:
    QString translate(const char *context, const char *key, const char *, int) const override
    {
        return qstrcmp(context, "QObject") == 0 ? QLatin1Char('<') + QLatin1String(key) + QLatin1Char('>') : QString();
    }
    bool isEmpty() const override { return false; }
};
