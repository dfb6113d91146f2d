#pragma once

// The client's translation catalogue: the texts behind the keys that the plug-in and the common code show, and the
// words of the client's own windows. There is one file for each language, kelvarim_<language>.qm. GUI thread; the
// creator owns it and installs it in the application.

#include <QTranslator>

class HostCatalogue : public QTranslator
{
    Q_OBJECT

public:
    using QTranslator::QTranslator;

    /// Reads the catalogue of `strLanguage` from `strFolder`: one of Languages.def, or "uk", an older name of "en". Any
    /// other language, an empty one too, gets the first of the table. False when the file is missing or damaged; every
    /// key then shows as itself.
    bool read(const QString &strFolder, const QString &strLanguage);

    /// The suffix of the file that holds `strLanguage`.
    static QString suffixOf(const QString &strLanguage);

    /// The folder of the catalogues beside the executable.
    static QString folder();
};
