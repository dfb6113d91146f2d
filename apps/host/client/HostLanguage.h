#pragma once

#include "client/HostCatalogue.h"

#include <QObject>
#include <QString>
#include <QTranslator>

#include <vector>

/// The language of the client: keeps the catalogue of the language in force installed, and Qt's own words beside it
/// where the system has them. A change reaches the open windows as Qt's LanguageChange event. GUI thread; one object,
/// for the life of the application object.
class HostLanguage : public QObject
{
    Q_OBJECT

public:
    /// A language that can be chosen.
    struct Choice
    {
        QString setting; ///< as the client's settings name it
        QString ownName; ///< what its speakers call it
    };

    /// The languages that can be chosen.
    static const std::vector<Choice> &choices();

    /// The setting of the choice that the client shows for `strLanguage`; the first one for any that it does not have.
    static QString choiceOf(const QString &strLanguage);

    /// The language for a client that has none in its settings yet: Chinese as the shared code picks it where the
    /// system's language `strSystem` ("zh_TW", "de") is Chinese, else English.
    static QString firstLanguage(const QString &strSystem);

    /// Catalogues come from the folder `strFolder`. Nothing is installed yet.
    explicit HostLanguage(const QString &strFolder);
    ~HostLanguage() override;

    /// Puts this language in force. False when its catalogue cannot be read; every key then shows as itself.
    bool use(const QString &strLanguage);

private:
    QString m_strFolder;
    HostCatalogue m_catalogue;
    QTranslator m_qtWords;
};
