#pragma once

// A language in which every text begins with a wave: what follows a new language shows it.

#include <QTranslator>

class Waves : public QTranslator
{
public:
    QString translate(const char *, const char *strText, const char *, int) const override
    {
        return QLatin1Char('~') + QString::fromUtf8(strText);
    }
    bool isEmpty() const override { return false; }
};
