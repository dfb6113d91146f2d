#include "client/HostLanguage.h"

#include "common/AppInfo.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

#include <algorithm>

const std::vector<HostLanguage::Choice> &HostLanguage::choices()
{
    static const std::vector<Choice> all = {
#define LANGUAGE(suffix, ownName) {QStringLiteral(#suffix), QStringLiteral(ownName)},
#include "client/Languages.def"
#undef LANGUAGE
    };
    return all;
}

QString HostLanguage::choiceOf(const QString &strLanguage)
{
    const QString suffix = HostCatalogue::suffixOf(strLanguage);
    const auto found = std::find_if(choices().begin(), choices().end(),
                                    [&](const Choice &choice) { return choice.setting == suffix; });
    return found == choices().end() ? choices().front().setting : found->setting;
}

QString HostLanguage::firstLanguage(const QString &strSystem)
{
    const QLocale system(strSystem);
    return system.language() == QLocale::Chinese ? AppInfo::getLanguageFileSuffix(system.language(), system.country())
                                                 : QStringLiteral("en");
}

HostLanguage::HostLanguage(const QString &strFolder) : m_strFolder(strFolder) {}

HostLanguage::~HostLanguage()
{
    QCoreApplication::removeTranslator(&m_catalogue);
    QCoreApplication::removeTranslator(&m_qtWords);
}

bool HostLanguage::use(const QString &strLanguage)
{
    QCoreApplication::removeTranslator(&m_catalogue);
    QCoreApplication::removeTranslator(&m_qtWords);
    if (m_qtWords.load(QStringLiteral("qtbase_") + HostCatalogue::suffixOf(strLanguage),
                       QLibraryInfo::location(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&m_qtWords);
    }
    const bool bRead = m_catalogue.read(m_strFolder, strLanguage);
    QCoreApplication::installTranslator(&m_catalogue);
    return bRead;
}
